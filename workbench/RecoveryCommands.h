#pragma once

#include "workbench/Workspace.h"

#include <QObject>

class FileCommands;
class Journal;

/// Offers what Journals of instances that are gone hold: at the start, and whenever the person asks for it.
class RecoveryCommands : public QObject
{
    Q_OBJECT

public:
    /// \a files asks before the open dictionary goes. Neither it nor \a journal is owned.
    RecoveryCommands(const Workspace &workspace, FileCommands *files, Journal *journal,
                     QObject *parent = nullptr);

    /// Opens the dialog if there is anything to recover.
    void offer();

private:
    void recover(const QString &journalPath, const QString &path);
    void updateActions();

    Workspace m_workspace;
    FileCommands *m_files; // Not owned.
    Journal *m_journal; // Not owned.
};
