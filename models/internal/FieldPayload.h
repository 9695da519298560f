#pragma once

#include <QDataStream>
#include <QIODevice>
#include <QJsonObject>
#include <QMimeData>
#include <QStringList>

/// What source fields are dragged as: a stream of texts without a count, each text one JSON object.
namespace FieldPayload
{
// The keys that writers and the reader share.
inline constexpr QLatin1StringView nameKey("name");
inline constexpr QLatin1StringView labelKey("label");
inline constexpr QLatin1StringView tagKey("tag");
inline constexpr QLatin1StringView typeKey("type");
inline constexpr QLatin1StringView categoriesKey("categories");
inline constexpr QLatin1StringView categoryCodeKey("codigoCategoria");
inline constexpr QLatin1StringView categoryLabelKey("nombreCategoria");
inline constexpr QLatin1StringView fieldTypeKey("fieldType");
inline constexpr QLatin1StringView rangeMinKey("fieldRangeMin");
inline constexpr QLatin1StringView rangeMaxKey("fieldRangeMax");
inline constexpr QLatin1StringView decimalsKey("fieldDecimals");
inline constexpr QLatin1StringView sizeKey("fieldSize");

/// The type word of a dragged lookup.
inline constexpr QLatin1StringView lookupType("LOOKUP");

/// \a object as it stands in a payload.
[[nodiscard]] QString toText(const QJsonObject &object);
/// The object that \a text holds; an empty one if it holds none.
[[nodiscard]] QJsonObject fromText(const QString &text);

/// New data with the texts of \a bytes; the caller's.
[[nodiscard]] QMimeData *mimeData(const QByteArray &bytes);

/// New data with what \a describe makes of each of \a items; the caller's.
template <typename Item, typename Describe>
[[nodiscard]] QMimeData *write(const QList<Item *> &items, Describe describe)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (Item *item : items)
        stream << toText(describe(*item));
    return mimeData(bytes);
}

/// The texts of a payload, each different one once, in their order.
///
/// Any bytes will do: they are read to their end, and what is no text counts as an empty one.
[[nodiscard]] QStringList read(const QByteArray &bytes);
} // namespace FieldPayload
