#include "documents/internal/ConfigDocument.h"

#include "documents/internal/ConfigKeys.h"
#include "documents/internal/Elements.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr auto variablesKey = "variables"_L1;
constexpr auto entitiesKey = "entities"_L1;

/// The elements of the list of entities: in a run configuration an object is none.
QVariantList entitiesIn(const QVariant &value)
{
    return value.typeId() == QMetaType::QVariantMap ? QVariantList() : Elements::read(value);
}

/// The names in a list of variables: only a list has some.
QStringList namesIn(const QVariant &value)
{
    QStringList names;
    if (value.typeId() == QMetaType::QVariantList) {
        const QVariantList list = value.toList();
        std::transform(list.cbegin(), list.cend(), std::back_inserter(names),
                       [](const QVariant &name) { return name.toString(); });
    }
    return names;
}

bool isUsualListOfNames(const QVariant &value)
{
    const QVariantList list = value.toList();
    return !value.isValid()
        || (value.typeId() == QMetaType::QVariantList && !list.isEmpty()
            && std::all_of(list.cbegin(), list.cend(), Keys::isText));
}

/// A part that the document lacks was read from an empty object, so to say.
template <typename Part, std::size_t Size>
void rememberPart(const Keys::Key<Part> (&keys)[Size], Part &part, const QString &key, const QVariantMap &map,
                  Kept &keptOfConfig)
{
    const QVariant value = map.value(key);
    Kept kept;
    if (!value.isValid())
        keptOfConfig.values.insert(key, value);
    else if (value.typeId() != QMetaType::QVariantMap)
        kept.element = value;
    Keys::remember(keys, part, value.toMap(), kept);
    Origin::attach(part, std::move(kept));
}

void rememberEntity(ConfigEntities &entity, const QVariantMap &map, const QVariant &element, Elements::Form)
{
    Kept kept{.element = element};
    Keys::remember(Keys::configEntityKeys, entity, map, kept);
    if (const QVariant names = map.value(variablesKey); !isUsualListOfNames(names))
        kept.values.insert(variablesKey, names);
    Origin::attach(entity, std::move(kept));
}

template <typename Part, std::size_t Size>
void restorePart(const Keys::Key<Part> (&keys)[Size], const Part &part, const QString &key,
                 const Kept &keptOfConfig, QJsonObject &json)
{
    QJsonObject written = json.take(key).toObject();
    Keys::restore(keys, part, Origin::of(part), written);
    if (!written.isEmpty() || !keptOfConfig.values.contains(key))
        json.insert(key, Elements::withElement(part, written));
}

/// The names as they stood there, around those that were changed.
QJsonValue withNames(const QVariant &original, const QStringList &names)
{
    const QStringList before = namesIn(original);
    if (before == names)
        return QJsonValue::fromVariant(original);
    if (names.isEmpty())
        return QJsonValue(QJsonValue::Undefined);
    const QVariantList values = original.toList();
    const auto same = std::mismatch(before.cbegin(), before.cend(), names.cbegin(), names.cend());
    const auto sameAtEnd = std::mismatch(before.crbegin(), std::make_reverse_iterator(same.first),
                                         names.crbegin(), std::make_reverse_iterator(same.second));
    const qsizetype head = same.first - before.cbegin();
    const qsizetype tail = sameAtEnd.first - before.crbegin();
    QVariantList merged = values.first(head);
    for (const QString &name : names.sliced(head, names.size() - head - tail))
        merged.append(name);
    merged += values.last(tail);
    return QJsonArray::fromVariantList(merged);
}

bool differs(const ConfigEntities &entity)
{
    return Origin::of(entity).changesWriting() || !Keys::needsNothingInstead(Keys::configEntityKeys, entity);
}

void restoreEntity(const ConfigEntities &entity, QJsonObject &json)
{
    const Kept &kept = Origin::of(entity);
    Keys::restore(Keys::configEntityKeys, entity, kept, json);
    if (const auto names = kept.values.constFind(variablesKey); names != kept.values.cend())
        Keys::put(json, "variables"_L1, withNames(*names, *entity.getVariables()));
}
} // namespace

void ConfigDocument::remember(Config &config, const QVariantMap &map)
{
    // The layer writes these two and does not read them.
    const QVariantMap dataBase = map.value(u"database"_s).toMap();
    config.getDataBase()->setLabel(dataBase.value(u"label"_s).toString());
    config.getDataBase()->setAuthor(dataBase.value(u"author"_s).toString());

    Kept kept;
    Keys::remember(Keys::configKeys, config, map, kept);
    rememberPart(Keys::dataBaseKeys, *config.getDataBase(), u"database"_s, map, kept);
    rememberPart(Keys::optionKeys, *config.getOptions(), u"options"_s, map, kept);
    const QVariant entities = map.value(entitiesKey);
    if (entities.typeId() != QMetaType::QVariantList)
        kept.values.insert(entitiesKey, entities);
    Elements::forEach(*config.getEntities(), entitiesIn(entities), rememberEntity);
    Origin::attach(config, std::move(kept));
}

void ConfigDocument::restore(const Config &config, QJsonObject &json)
{
    const Kept &kept = Origin::of(config);
    Keys::restore(Keys::configKeys, config, kept, json);
    restorePart(Keys::dataBaseKeys, *config.getDataBase(), u"database"_s, kept, json);
    restorePart(Keys::optionKeys, *config.getOptions(), u"options"_s, kept, json);
    Elements::restore("entities"_L1, *config.getEntities(), Kept(), json, differs, restoreEntity);
    const auto entities = kept.values.constFind(entitiesKey);
    if (entities != kept.values.cend()
        && json.value(entitiesKey).toArray() == QJsonArray::fromVariantList(entitiesIn(*entities)))
        Keys::put(json, entitiesKey, *entities);
}
