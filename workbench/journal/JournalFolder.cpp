#include "workbench/journal/JournalFolder.h"

#include <QDir>
#include <QLockFile>
#include <QStandardPaths>
#include <QUuid>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr auto journalSuffix = ".journal"_L1;
constexpr auto lockSuffix = ".lock"_L1;
} // namespace

QString JournalFolder::path()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + "/journal"_L1;
}

bool JournalFolder::make(const QString &folder)
{
    return QDir().mkpath(folder)
        && QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QString JournalFolder::newJournal(const QString &folder)
{
    return QDir(folder).filePath(QUuid::createUuid().toString(QUuid::WithoutBraces) + journalSuffix);
}

std::unique_ptr<QLockFile> JournalFolder::lock(const QString &path)
{
    auto lock = std::make_unique<QLockFile>(path + lockSuffix);
    // A session may last for days. Whether its process lives is what counts.
    lock->setStaleLockTime(0);
    return lock;
}

std::unique_ptr<QLockFile> JournalFolder::take(const QString &path)
{
    auto taken = lock(path);
    return taken->tryLock(0) ? std::move(taken) : nullptr;
}

QStringList JournalFolder::orphans(const QString &folder)
{
    const QFileInfoList journals =
        QDir(folder).entryInfoList({u'*' + journalSuffix}, QDir::Files | QDir::Hidden, QDir::Time);
    QStringList paths;
    for (const QFileInfo &journal : journals) {
        if (take(journal.absoluteFilePath()))
            paths.append(journal.absoluteFilePath());
    }
    return paths;
}

void JournalFolder::cleanUp(const QString &folder)
{
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files | QDir::Hidden);
    for (const QFileInfo &file : files) {
        const qsizetype end = file.fileName().indexOf(journalSuffix);
        const QString path = file.absoluteFilePath();
        if (path.endsWith(lockSuffix))
            take(path.chopped(lockSuffix.size())).reset(); // A lock goes when it is let go.
        else if (end >= 0 && !path.endsWith(journalSuffix)
                 && take(QDir(folder).filePath(file.fileName().left(end) + journalSuffix)))
            QFile::remove(path);
    }
}
