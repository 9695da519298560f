#include "cli/Output.h"

#include "cli/Failure.h"

#include <QFileDevice>

#include <sys/ioctl.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace Cli
{
void Output::line(const QString &text)
{
    raw(text.toUtf8() + '\n');
}

void Output::raw(const QByteArray &bytes)
{
    if (m_device.write(bytes) != bytes.size())
        throw Failure(u"cannot write the output: "_s + m_device.errorString());
}

void Output::flush()
{
    auto *file = qobject_cast<QFileDevice *>(&m_device);
    if (file && !file->flush())
        throw Failure(u"cannot write the output: "_s + file->errorString());
}

QString Output::strong(const QString &text) const
{
    return styled(text, 1);
}

QString Output::faint(const QString &text) const
{
    return styled(text, 2);
}

bool Output::coloursSuitStandardOutput()
{
    return isatty(STDOUT_FILENO) && qEnvironmentVariableIsEmpty("NO_COLOR") && qgetenv("TERM") != "dumb";
}

int Output::columnsOf(int descriptor)
{
    if (!isatty(descriptor))
        return 0;
    if (const int columns = qEnvironmentVariableIntValue("COLUMNS"); columns > 0)
        return columns;
    winsize size{};
    return ioctl(descriptor, TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}

QString Output::styled(const QString &text, int style) const
{
    return m_colours ? u"\x1b[%1m%2\x1b[0m"_s.arg(style).arg(text) : text;
}
} // namespace Cli
