#pragma once

#include <QStringList>
#include <QtGlobal>

/// Keeps what is written to the debug log while it lives, in place of the log. One at a time.
class DebugLines
{
public:
    DebugLines()
    {
        lines.clear();
        m_before =
            qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
                if (type == QtDebugMsg)
                    lines += text;
            });
    }
    ~DebugLines() { qInstallMessageHandler(m_before); }
    Q_DISABLE_COPY_MOVE(DebugLines)

    static inline QStringList lines;

private:
    QtMessageHandler m_before;
};
