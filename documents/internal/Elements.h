#pragma once

#include "documents/internal/Origin.h"

#include <QLatin1StringView>
#include <QList>

#include <utility>

/// Lists of objects in a document: an array, or just one object, or something else that reading made elements
/// of, such as the characters of a text.
namespace Elements
{
/// How an object came: as an element of a list, or on its own where a list is usual.
enum class Form { Element, Single };

/// The elements that the layer's readers take \a value for.
[[nodiscard]] inline QVariantList read(const QVariant &value)
{
    if (value.typeId() == QMetaType::QVariantMap)
        return value.toMap().isEmpty() ? QVariantList() : QVariantList{value};
    if (value.typeId() != QMetaType::QString)
        return value.toList();
    QVariantList characters;
    const QString text = value.toString();
    for (const QChar character : text)
        characters.append(QString(character));
    return characters;
}

/// Notes in \a kept how the list under \a key was written when it was not an array with elements.
inline void rememberForm(const QString &key, const QVariant &value, Kept &kept)
{
    const auto *list = value.typeId() == QMetaType::QVariantList
        ? static_cast<const QVariantList *>(value.constData())
        : nullptr;
    if (value.typeId() == QMetaType::QVariantMap && !value.toMap().isEmpty())
        kept.single.append(key);
    else if (!list || list->isEmpty())
        kept.values.insert(key, value);
}

/// Calls \a visit with each of \a items, which were read from \a value, with the object and the element that
/// it was read from and how that came. An element that is no object was read as an empty one.
template <typename Item, typename Visit>
void forEach(const QList<Item *> &items, const QVariant &value, Visit visit)
{
    static const QVariantMap none;
    const auto visitOne = [&visit](Item *item, const QVariant &element, Form form) {
        const bool isObject = element.typeId() == QMetaType::QVariantMap;
        visit(*item, isObject ? *static_cast<const QVariantMap *>(element.constData()) : none,
              isObject ? QVariant() : element, form);
    };
    const auto visitAll = [&](const QVariantList &elements, Form form) {
        const qsizetype count = std::min(items.size(), elements.size());
        for (qsizetype i = 0; i < count; ++i)
            visitOne(items.at(i), elements.at(i), form);
    };
    if (value.typeId() == QMetaType::QVariantList)
        visitAll(*static_cast<const QVariantList *>(value.constData()), Form::Element);
    else
        visitAll(read(value), value.typeId() == QMetaType::QVariantMap ? Form::Single : Form::Element);
}

/// The value for \a item, which the layer wrote as \a json: what it was read from when that was no object and
/// nothing has been added to it.
[[nodiscard]] inline QJsonValue withElement(const FromDocument &item, const QJsonObject &json)
{
    const QVariant &element = Origin::of(item).element;
    return json.isEmpty() && element.isValid() ? QJsonValue::fromVariant(element) : QJsonValue(json);
}

/// The list under \a key of an object that keeps \a kept, in the form it came in as far as \a array can have
/// it. Undefined when there is no element and there was no list.
[[nodiscard]] inline QJsonValue withForm(const QString &key, const QJsonArray &array, const Kept &kept)
{
    if (array.size() == 1 && kept.single.contains(key) && !array.at(0).toObject().isEmpty())
        return array.at(0);
    const auto original = kept.values.constFind(key);
    if (original != kept.values.cend() && array == QJsonArray::fromVariantList(read(*original)))
        return QJsonValue::fromVariant(*original);
    return array.isEmpty() ? QJsonValue(QJsonValue::Undefined) : QJsonValue(array);
}

/// Goes over the list that the layer wrote under \a key for \a items. \a differs tells the items that the
/// layer does not write in full, \a restore turns what it wrote for one into what the file shall hold.
template <typename Item, typename Differs, typename Restore>
void restore(QLatin1StringView key, const QList<Item *> &items, const Kept &kept, QJsonObject &json,
             Differs differs, Restore restore)
{
    const bool formIsKept = kept.single.contains(key) || kept.values.contains(key);
    const auto present = [](const Item *item) { return item != nullptr; }; // The layer passes nulls over.
    if (!formIsKept && std::none_of(items.cbegin(), items.cend(), [&](const Item *item) {
            return present(item) && differs(*item);
        }))
        return;
    QJsonArray array = json.take(key).toArray();
    qsizetype index = -1;
    for (Item *item : items) {
        index += present(item) ? 1 : 0;
        if (!present(item) || !differs(*item))
            continue;
        QJsonObject element = array.at(index).toObject();
        restore(*item, element);
        array.replace(index, withElement(*item, element));
    }
    if (const QJsonValue value = withForm(key, array, kept); !value.isUndefined())
        json.insert(key, value);
}
} // namespace Elements
