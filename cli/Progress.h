#pragma once

#include <QElapsedTimer>
#include <QString>

namespace Cli
{
/// How far long work has come, told on standard error while that is a terminal. The line goes when the work
/// ends, however it ends. Work that is done at once shows nothing.
class Progress
{
public:
    /// \a task is what is done, for instance "Reading survey.sav".
    explicit Progress(const QString &task);
    ~Progress();
    Q_DISABLE_COPY_MOVE(Progress)

    /// \a part is what is done of the work, from 0 to 1.
    void show(double part);

private:
    QString m_task; // Safe to print.
    bool m_terminal;
    bool m_shown = false;
    QElapsedTimer m_sinceLast;
};
} // namespace Cli
