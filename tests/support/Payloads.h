#pragma once

#include "model/TDcSourceField.h"

#include <QDataStream>
#include <QIODevice>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMimeData>
#include <QStringList>

#include <memory>

/// The type under which source fields are dragged.
inline QString payloadType()
{
    return QStringLiteral("application/vnd.text.list");
}

/// What is dragged when \a bytes are.
[[nodiscard]] inline std::unique_ptr<QMimeData> makePayload(const QByteArray &bytes)
{
    auto data = std::make_unique<QMimeData>();
    data->setData(payloadType(), bytes);
    return data;
}

[[nodiscard]] inline QByteArray payloadBytes(const QStringList &texts)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (const QString &text : texts)
        stream << text;
    return bytes;
}

[[nodiscard]] inline std::unique_ptr<QMimeData> makePayload(const QStringList &texts)
{
    return makePayload(payloadBytes(texts));
}

/// The texts of a sound payload, repeated ones too.
[[nodiscard]] inline QStringList payloadTexts(const QMimeData &data)
{
    QStringList texts;
    QDataStream stream(data.data(payloadType()));
    while (!stream.atEnd())
        stream >> texts.emplaceBack();
    return texts;
}

[[nodiscard]] inline QString objectText(const QJsonObject &object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson());
}

/// The payload text of a dataset's field.
[[nodiscard]] inline QString fieldText(const QString &name, const QString &label = {},
                                       const QString &type = QStringLiteral("STRING"))
{
    return objectText({{QStringLiteral("name"), name},
                       {QStringLiteral("label"), label},
                       {QStringLiteral("fieldType"), type}});
}

[[nodiscard]] inline QString lookupText(const QString &id, const QString &label = {})
{
    return objectText({{QStringLiteral("name"), id},
                       {QStringLiteral("label"), label},
                       {QStringLiteral("tag"), QStringLiteral("*")},
                       {QStringLiteral("type"), QStringLiteral("LOOKUP")}});
}

/// A field of type \a type that takes values from \a min to \a max.
[[nodiscard]] inline std::unique_ptr<TDcSourceField> makeField(const QString &name, const QString &type = {},
                                                               const QString &min = {},
                                                               const QString &max = {})
{
    auto field = std::make_unique<TDcSourceField>();
    field->name = name;
    field->setFieldType(type);
    field->rangeMin = min;
    field->rangeMax = max;
    return field;
}
