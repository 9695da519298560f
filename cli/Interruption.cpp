#include "cli/Interruption.h"

#include <atomic>

#include <unistd.h>

namespace
{
constexpr int requests[] = {SIGINT, SIGTERM, SIGHUP};
constexpr char startOfEmptyLine[] = "\r\x1b[K";

// All that a signal handler may touch.
std::atomic<bool> lineStands = false;
std::atomic<bool> isWriting = false;
std::atomic<bool> ends = false;

sigset_t allRequests()
{
    sigset_t set;
    sigemptyset(&set);
    for (const int request : requests)
        sigaddset(&set, request);
    return set;
}

void write(const QByteArray &bytes)
{
    // Nobody needs to know what a terminal that is gone did not show.
    [[maybe_unused]] const auto written = ::write(STDERR_FILENO, bytes.constData(), size_t(bytes.size()));
}

/// Runs in the thread that works, never in the one that tells: waiting for the other's write ends.
void endWithoutLine(int request)
{
    ends = true;
    while (isWriting) { }
    if (lineStands) {
        [[maybe_unused]] const auto written =
            ::write(STDERR_FILENO, startOfEmptyLine, sizeof startOfEmptyLine - 1);
    }
    raise(request); // The handler was for once: now the program ends.
}
} // namespace

namespace Cli
{
Uninterrupted::Uninterrupted()
{
    const sigset_t set = allRequests();
    pthread_sigmask(SIG_BLOCK, &set, &m_before);
}

Uninterrupted::~Uninterrupted()
{
    pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
}

void Interruption::clearStatusLine()
{
    struct sigaction present {
    };
    struct sigaction wanted {
    };
    wanted.sa_handler = endWithoutLine;
    wanted.sa_mask = allRequests();
    wanted.sa_flags = int(SA_RESETHAND | SA_RESTART);
    for (const int request : requests) {
        // Whoever started the program may want the request to be ignored.
        if (sigaction(request, nullptr, &present) == 0 && present.sa_handler == SIG_DFL)
            sigaction(request, &wanted, nullptr);
    }
}

void Interruption::showStatusLine(const QByteArray &line)
{
    if (line.isEmpty() && !lineStands)
        return;
    const Uninterrupted held; // Or the handler would wait for what it interrupts.
    isWriting = true;
    if (!ends) {
        lineStands = !line.isEmpty();
        write(startOfEmptyLine + line);
    }
    isWriting = false;
}
} // namespace Cli
