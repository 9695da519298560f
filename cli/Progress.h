#pragma once

#include <QString>

#include <atomic>
#include <thread>

namespace Cli
{
/// How far long work has come, told on standard error while that is a terminal. The line goes when the work
/// ends, however it ends, be it by Ctrl-C. Work that is done at once shows nothing.
class Progress
{
public:
    /// \a task is what is done, for instance "Reading survey.sav".
    explicit Progress(const QString &task);
    ~Progress();
    Q_DISABLE_COPY_MOVE(Progress)

    /// \a part is what is done of the work, from 0 to 1. Without it the line tells the seconds that have
    /// gone.
    void show(double part);

private:
    void tell(const std::stop_token &stop) const;
    [[nodiscard]] QString line(int seconds) const;

    QString m_task; // Safe to print.
    std::atomic<int> m_percent = -1;
    std::jthread m_teller; // Tells while the work itself has no time to.
};
} // namespace Cli
