#include "cli/Progress.h"

#include "cli/Interruption.h"
#include "cli/Output.h"
#include "cli/Text.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>

#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr auto betweenLines = std::chrono::milliseconds(200); // And before the first.
constexpr int usualColumns = 80;
} // namespace

namespace Cli
{
Progress::Progress(const QString &task) : m_task(Text::printable(task))
{
    if (!isatty(STDERR_FILENO))
        return;
    Interruption::clearStatusLine();
    const Uninterrupted held; // The thread inherits it: signals are for the one that works.
    m_teller = std::jthread([this](const std::stop_token &stop) { tell(stop); });
}

Progress::~Progress()
{
    if (!m_teller.joinable())
        return;
    m_teller.request_stop();
    m_teller.join();
    Interruption::showStatusLine({});
}

void Progress::show(double part)
{
    m_percent = int(std::clamp(part, 0.0, 1.0) * 100);
}

void Progress::tell(const std::stop_token &stop) const
{
    const auto start = std::chrono::steady_clock::now();
    std::mutex mutex;
    std::condition_variable_any wake;
    std::unique_lock lock(mutex);
    while (!wake.wait_for(lock, stop, betweenLines, [&stop] { return stop.stop_requested(); })) {
        const auto gone = std::chrono::steady_clock::now() - start;
        Interruption::showStatusLine(
            line(int(std::chrono::duration_cast<std::chrono::seconds>(gone).count())).toUtf8());
    }
}

QString Progress::line(int seconds) const
{
    const int percent = m_percent;
    QString state;
    if (percent >= 0)
        state = u": %1 %"_s.arg(percent);
    else if (seconds > 0)
        state = u": %1 s"_s.arg(seconds);
    // A line that goes on in the next one could not be cleared.
    const int columns = Output::columnsOf(STDERR_FILENO);
    const int room = (columns > 0 ? columns : usualColumns) - 1 - int(state.size());
    return Text::elided(m_task, std::max(room, 1)) + state;
}
} // namespace Cli
