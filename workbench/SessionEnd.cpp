#include "workbench/SessionEnd.h"

#include "workbench/FileCommands.h"
#include "workbench/journal/Journal.h"

#include <QEvent>
#include <QGuiApplication>
#include <QSessionManager>
#include <QSocketNotifier>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>
#endif

SessionEnd::SessionEnd(FileCommands *files, Journal *journal, QObject *parent)
    : QObject(parent), m_files(files), m_journal(journal)
{
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, [this](QSessionManager &manager) {
        const bool mayAsk = manager.allowsInteraction();
        const bool mayEnd = prepare(mayAsk);
        if (mayAsk)
            manager.release();
        if (!mayEnd)
            manager.cancel();
    });
    // A session can be saved without ending.
    connect(qGuiApp, &QGuiApplication::saveStateRequest, this, [this] { m_journal->writeNow(); });
    qGuiApp->installEventFilter(this);
}

bool SessionEnd::eventFilter(QObject *object, QEvent *event)
{
    // The session tells programs to quit once all of them agreed. Nobody else does: a person closes the
    // window.
    if (object == qGuiApp && event->type() == QEvent::Quit)
        m_ending = m_agreed;
    return QObject::eventFilter(object, event);
}

bool SessionEnd::prepare(bool mayAsk)
{
    m_agreed = mayAsk && m_files->mayClose();
    // What is not saved now was given up, but only if the session does end: another program may still object.
    m_journal->setGivenUp(m_agreed);
    if (m_agreed)
        return true;
    m_journal->writeNow();
    return !mayAsk;
}

void SessionEnd::terminate()
{
    m_journal->setGivenUp(false); // Whoever agreed to something did not agree to this.
    m_journal->writeNow();
    QCoreApplication::exit();
}

#ifdef Q_OS_UNIX
namespace
{
// A signal may come at any moment, and next to nothing may be done then. What is written to one end of this
// pair is read at the other one when the program gets round to it.
int ends[2] = {-1, -1};

void writeSignal(int)
{
    const char one = 1;
    [[maybe_unused]] const ssize_t written = ::write(ends[0], &one, sizeof one);
}
} // namespace

void SessionEnd::followSignals()
{
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
        return;
    auto *notifier = new QSocketNotifier(ends[1], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        char one = 0;
        [[maybe_unused]] const ssize_t read = ::read(ends[1], &one, sizeof one);
        terminate();
    });
    struct sigaction action = {};
    action.sa_handler = writeSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (int signal : {SIGTERM, SIGINT, SIGHUP})
        sigaction(signal, &action, nullptr);
}
#else
void SessionEnd::followSignals() { }
#endif
