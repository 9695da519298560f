#include "workbench/journal/FileClaim.h"

#include "workbench/journal/JournalFolder.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QLockFile>

#include <utility>

using namespace Qt::Literals::StringLiterals;

FileClaim::FileClaim(QString folder) : m_folder(std::move(folder)) { }

FileClaim::~FileClaim() = default;

QString FileClaim::markOf(const QString &path) const
{
    // A file that does not exist yet has no canonical path, its folder has.
    const QFileInfo file(path);
    QString canonical = file.canonicalFilePath();
    if (canonical.isEmpty())
        canonical = QFileInfo(file.absolutePath()).canonicalFilePath() + u'/' + file.fileName();
    const QByteArray name = QCryptographicHash::hash(canonical.toUtf8(), QCryptographicHash::Sha256).toHex();
    return QDir(m_folder).filePath(QString::fromLatin1(name) + ".open"_L1);
}

bool FileClaim::claim(const QString &path)
{
    const QString mark = path.isEmpty() ? QString() : markOf(path);
    if (mark == m_mark)
        return true;
    m_lock.reset();
    m_mark.clear();
    if (mark.isEmpty())
        return true;
    JournalFolder::make(m_folder);
    auto lock = JournalFolder::lock(mark);
    if (!lock->tryLock(0))
        // Where locks cannot be made nobody is known to have it open.
        return lock->error() != QLockFile::LockFailedError;
    m_lock = std::move(lock);
    m_mark = mark;
    return true;
}

bool FileClaim::isOpenElsewhere(const QString &path) const
{
    const QString mark = path.isEmpty() ? QString() : markOf(path);
    if (mark == m_mark || mark.isEmpty())
        return false;
    const auto lock = JournalFolder::lock(mark);
    return !lock->tryLock(0) && lock->error() == QLockFile::LockFailedError;
}
