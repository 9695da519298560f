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
    /// The device is not owned. \a columns is the width of the terminal, 0 when lines may have any length.
    Output(QIODevice &device, bool colours, int columns = 0)
        : m_device(device), m_colours(colours), m_columns(columns)
    {
    }

    /// Prints \a text and a line end; throws Failure when it cannot be written.
    void line(const QString &text = {});
    /// Prints \a bytes as they are; throws Failure when they cannot be written.
    void raw(const QByteArray &bytes);
    /// Writes out what is still held back; throws Failure when that fails.
    void flush();

    [[nodiscard]] QString strong(const QString &text) const;
    [[nodiscard]] QString faint(const QString &text) const;

    [[nodiscard]] int columns() const { return m_columns; }

    /// The width of the terminal behind \a descriptor: what COLUMNS says, or the terminal. 0 when it is none.
    [[nodiscard]] static int columnsOf(int descriptor);
    /// Whether colours suit standard output: a terminal that knows them, and no NO_COLOR in the environment.
    [[nodiscard]] static bool coloursSuitStandardOutput();

private:
    [[nodiscard]] QString styled(const QString &text, int style) const;

    QIODevice &m_device;
    bool m_colours;
    int m_columns;
};
} // namespace Cli
