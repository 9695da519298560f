#pragma once

#include <QIODevice>
#include <QString>

namespace Cli
{
/// Where a verb prints: lines of UTF-8, with colours if they are wanted. Texts from documents are made
/// printable by whoever puts them into a line.
class Output
{
public:
    /// The device is not owned.
    Output(QIODevice &device, bool colours) : m_device(device), m_colours(colours) { }

    /// Prints \a text and a line end; throws Failure when it cannot be written.
    void line(const QString &text = {});
    /// Prints \a bytes as they are; throws Failure when they cannot be written.
    void raw(const QByteArray &bytes);
    /// Writes out what is still held back; throws Failure when that fails.
    void flush();

    [[nodiscard]] QString strong(const QString &text) const;
    [[nodiscard]] QString faint(const QString &text) const;

    /// Whether colours suit standard output: a terminal that knows them, and no NO_COLOR in the environment.
    [[nodiscard]] static bool coloursSuitStandardOutput();

private:
    [[nodiscard]] QString styled(const QString &text, int style) const;

    QIODevice &m_device;
    bool m_colours;
};
} // namespace Cli
