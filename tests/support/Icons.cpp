#include "tests/support/Icons.h"

#include <QDataStream>
#include <QIcon>
#include <QIODevice>
#include <QPixmap>

// A static library's resources are not there by themselves. Stands outside any namespace, as Qt demands.
static const bool registered = [] {
    Q_INIT_RESOURCE(icons);
    return true;
}();

QString iconFile(const QVariant &value)
{
    Q_ASSERT(registered);
    // An icon does not tell its file, but what it writes does: engine, number of images, then for each one
    // the image and its file.
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << value.value<QIcon>();
    QDataStream in(bytes);
    QString engine;
    int images = 0;
    QPixmap image;
    QString file;
    in >> engine >> images >> image >> file;
    return file;
}
