#include "models/internal/FieldPayload.h"

#include "models/base/DragListModel.h"

#include <QJsonDocument>
#include <QSet>

QString FieldPayload::toText(const QJsonObject &object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson());
}

QJsonObject FieldPayload::fromText(const QString &text)
{
    return QJsonDocument::fromJson(text.toUtf8()).object();
}

QMimeData *FieldPayload::mimeData(const QByteArray &bytes)
{
    auto *data = new QMimeData;
    data->setData(TextList::mimeType, bytes);
    return data;
}

QStringList FieldPayload::read(const QByteArray &bytes)
{
    QStringList texts;
    QSet<QString> seen;
    QDataStream stream(bytes);
    while (!stream.atEnd()) { // Each text takes four bytes or more, so that this ends.
        QString text;
        stream
            >> text; // Empty after a bad length; memory grows with what is there, not with what is claimed.
        if (!seen.contains(text)) {
            seen.insert(text);
            texts.append(text);
        }
    }
    return texts;
}
