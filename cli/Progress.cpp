#include "cli/Progress.h"

#include "cli/Text.h"

#include <algorithm>
#include <iostream>

#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr int betweenLines = 100; // Milliseconds between two lines, and before the first.

void rewriteLine(const QString &text)
{
    std::cerr << "\r\x1b[K" << text.toStdString() << std::flush;
}
} // namespace

namespace Cli
{
Progress::Progress(const QString &task) : m_task(Text::printable(task)), m_terminal(isatty(STDERR_FILENO))
{
    m_sinceLast.start();
}

Progress::~Progress()
{
    if (m_shown)
        rewriteLine({});
}

void Progress::show(double part)
{
    if (!m_terminal || !m_sinceLast.hasExpired(betweenLines))
        return;
    rewriteLine(u"%1: %2 %"_s.arg(m_task).arg(int(std::clamp(part, 0.0, 1.0) * 100)));
    m_shown = true;
    m_sinceLast.restart();
}
} // namespace Cli
