#include "workbench/Progress.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFutureWatcher>
#include <QSemaphore>
#include <QtConcurrent>
#include <QThreadPool>

#include <algorithm>
#include <limits>
#include <memory>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr int patience = 700; // Milliseconds; people notice a second.
constexpr int steps = 1000;

/// Threads for what somebody waits for, one more whenever it is needed: what was given up goes on in vain for
/// a while, and nobody shall wait behind it. That holds for the journal too, which uses the program's own.
QThreadPool *threads()
{
    static QThreadPool *pool = nullptr;
    if (!pool) {
        pool = new QThreadPool;
        pool->setMaxThreadCount(std::numeric_limits<int>::max());
        // While the program still has what the threads may be using.
        qAddPostRoutine([] { delete std::exchange(pool, nullptr); });
    }
    return pool;
}

QString cancelText()
{
    return QCoreApplication::translate("Progress", "Cancel");
}
} // namespace

Progress::Progress(const QString &text, QWidget *window) : m_dialog(text, cancelText(), 0, steps, window)
{
    m_dialog.setObjectName(u"progress"_s);
    m_dialog.setWindowModality(Qt::WindowModal);
    m_dialog.setMinimumDuration(patience);
}

bool Progress::show(double part)
{
    // At its end the dialog would close, and open once more if there was more to come.
    m_dialog.setValue(std::clamp(int(part * steps), 0, steps - 1));
    return !m_dialog.wasCanceled();
}

bool Progress::run(const QString &text, QWidget *window, Cancel cancel, const std::function<void()> &work)
{
    const bool possible = cancel == Cancel::Possible;
    auto done = std::make_shared<QSemaphore>();
    QFuture<void> future = QtConcurrent::run(threads(), [work, done] {
        work();
        done->release();
    });
    if (done->tryAcquire(1, patience))
        return true;
    QProgressDialog dialog(text, possible ? cancelText() : QString(), 0, 0, window);
    dialog.setObjectName(u"progress"_s);
    dialog.setWindowModality(Qt::WindowModal);
    dialog.setMinimumDuration(0);
    dialog.show();
    QEventLoop loop;
    QFutureWatcher<void> watcher;
    QObject::connect(&watcher, &QFutureWatcherBase::finished, &loop, &QEventLoop::quit);
    QObject::connect(&dialog, &QProgressDialog::canceled, &loop, &QEventLoop::quit);
    watcher.setFuture(future);
    // What cannot be cancelled must not be disturbed either.
    loop.exec(possible ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
    if (!possible)
        future.waitForFinished(); // Even when the program is being ended.
    return future.isFinished();
}
