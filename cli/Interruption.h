#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <csignal>

namespace Cli
{
/// Holds back Ctrl-C and other requests to end until it goes: what is saved in the meantime is saved as a
/// whole and leaves no temporary file.
class Uninterrupted
{
public:
    Uninterrupted();
    ~Uninterrupted();
    Q_DISABLE_COPY_MOVE(Uninterrupted)

private:
    sigset_t m_before;
};

/// A line on standard error, which is a terminal, that does not outlive the program.
namespace Interruption
{
/// From now on Ctrl-C and the like end the program as they do, but take the line away first.
void clearStatusLine();

/// Puts \a line in the place of the one before; an empty one takes it away. From any thread, one at a time.
void showStatusLine(const QByteArray &line);
} // namespace Interruption
} // namespace Cli
