#include "workbench/journal/JournalFile.h"

#include <QDataStream>
#include <QFile>
#include <QSaveFile>

namespace
{
constexpr quint32 magic = 0x514a524e; // "QJRN"
constexpr quint32 version = 1;

/// Reads what stands before the content; the stream goes on with that.
std::optional<JournalFile> readFrom(QDataStream &stream)
{
    stream.setVersion(QDataStream::Qt_6_4);
    quint32 kind = 0;
    quint32 format = 0;
    stream >> kind >> format;
    if (kind != magic || format != version)
        return std::nullopt;
    JournalFile journal;
    stream >> journal.written >> journal.document.path >> journal.document.digest >> journal.document.losses;
    return stream.status() == QDataStream::Ok ? std::optional(journal) : std::nullopt;
}
} // namespace

QString JournalFile::write(const QString &path) const
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner))
        return file.errorString();
    QDataStream stream(&file);
    stream.setVersion(QDataStream::Qt_6_4);
    stream << magic << version << written << document.path << document.digest << document.losses
           << document.content;
    return stream.status() == QDataStream::Ok && file.commit() ? QString() : file.errorString();
}

std::optional<JournalFile> JournalFile::readHeader(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QDataStream stream(&file);
    return readFrom(stream);
}

std::optional<JournalFile> JournalFile::read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QDataStream stream(&file);
    std::optional<JournalFile> journal = readFrom(stream);
    if (journal)
        stream >> journal->document.content;
    return stream.status() == QDataStream::Ok ? journal : std::nullopt;
}
