#pragma once

#include "workbench/Document.h"

#include <QDateTime>
#include <QList>
#include <QString>

class Journal;

/// Unsaved changes that an instance left behind.
struct LeftChanges {
    /// What became of the file that they belong to.
    enum class State { NeverSaved, AsItWas, ChangedSince, Gone };

    QString journal; ///< The path of the journal.
    QString path; ///< Of the dictionary; empty if it was never saved.
    QDateTime written;
    State state = State::NeverSaved;
};

namespace Recovery
{
/// Whether there is anything to find in \a folder.
[[nodiscard]] bool any(const QString &folder);
/// What living instances do not hold in \a folder, newest first. Journals that cannot be read are left out,
/// and left where they are.
[[nodiscard]] QList<LeftChanges> find(const QString &folder);
/// Makes the changes at \a journalPath the content of \a document, modified and belonging to their file, and
/// lets \a journal go on with it. Why that cannot be done, in words; empty when it was done or the person
/// cancelled it.
[[nodiscard]] QString recover(const QString &journalPath, Document *document, Journal *journal,
                              Document::Access access = Document::Access::ReadWrite);
/// Deletes the changes at \a journalPath for good, unless an instance holds them by now.
void remove(const QString &journalPath);
} // namespace Recovery
