#pragma once

#include <QString>
#include <QStringList>

#include <memory>

class QLockFile;

/// Where all instances of the workbench keep unsaved changes. Beside each journal stands a lock that the
/// instance which writes it holds as long as it lives.
namespace JournalFolder
{
/// The folder of this user; only they may look into it.
[[nodiscard]] QString path();
/// Makes \a folder. False when that cannot be done.
bool make(const QString &folder);

/// The path of a journal that nobody has.
[[nodiscard]] QString newJournal(const QString &folder);
/// Takes hold of what stands at \a path, a journal or anything else in the folder. Null when a living
/// instance holds it, this one included. Not held any more when the lock is deleted.
[[nodiscard]] std::unique_ptr<QLockFile> take(const QString &path);
/// The lock that take() takes, not taken yet.
[[nodiscard]] std::unique_ptr<QLockFile> lock(const QString &path);

/// The journals in \a folder that no living instance holds, newest first.
[[nodiscard]] QStringList orphans(const QString &folder);
/// Removes what instances left behind in \a folder that ended without warning: their locks, and journals that
/// were half written.
void cleanUp(const QString &folder);
} // namespace JournalFolder
