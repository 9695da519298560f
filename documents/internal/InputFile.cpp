#include "documents/internal/InputFile.h"

#include <QFile>
#include <QFileInfo>

QString InputFile::open(QFile &file)
{
    // Asked before it is opened: that alone may take for ever.
    const QFileInfo info(file.fileName());
    if (file.fileName().isEmpty() || !info.exists())
        return tr("There is no such file.");
    if (info.isDir())
        return tr("It is a folder, not a file.");
    if (!info.isFile())
        return tr("It is a device or a pipe, not a file.");
    return file.open(QIODevice::ReadOnly) ? QString() : file.errorString();
}

QByteArray InputFile::read(const QString &path, QString *problem)
{
    QFile file(path);
    *problem = open(file);
    if (!problem->isEmpty())
        return {};
    const QByteArray bytes = file.readAll();
    if (file.error() != QFile::NoError) {
        *problem = file.errorString();
        return {};
    }
    return bytes.isNull() ? QByteArray("") : bytes;
}
