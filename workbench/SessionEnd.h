#pragma once

#include <QObject>

class FileCommands;
class Journal;

/// Lets no work get lost when something other than the person ends the program: the desktop's session, or a
/// signal of the system.
class SessionEnd : public QObject
{
    Q_OBJECT

public:
    /// Neither \a files nor \a journal is owned.
    SessionEnd(FileCommands *files, Journal *journal, QObject *parent = nullptr);

    /// Whether the session may end now. If \a mayAsk, the person is asked as when closing the window;
    /// otherwise unsaved changes stay in the journal.
    [[nodiscard]] bool prepare(bool mayAsk);
    /// Whether the session is ending as the person agreed to, so that windows close without asking again.
    [[nodiscard]] bool isEnding() const { return m_ending; }

    [[nodiscard]] bool eventFilter(QObject *object, QEvent *event) override;

    /// From now on SIGTERM, SIGINT and SIGHUP end the program in good order, with unsaved changes in the
    /// journal. Does nothing on systems without them. For one object in a program.
    void followSignals();

private:
    void terminate();

    FileCommands *m_files; // Not owned.
    Journal *m_journal; // Not owned.
    bool m_agreed = false;
    bool m_ending = false;
};
