#include "documents/internal/DictionaryShape.h"

#include <QVariantList>

#include <algorithm>
#include <initializer_list>

using namespace Qt::Literals::StringLiterals;

namespace
{
bool hasOneOf(const QVariantMap &map, std::initializer_list<QLatin1StringView> keys)
{
    return std::any_of(keys.begin(), keys.end(), [&map](auto key) { return map.contains(key); });
}

/// Keys that stand in entities only, or so the top of a document tells.
bool hasOwnKeys(const QVariantMap &map)
{
    return hasOneOf(map,
                    {"codeVar"_L1, "labelVar"_L1, "selectable"_L1, "variables"_L1, "virtual"_L1,
                     "weightVar"_L1, "weigthVar"_L1});
}

/// A run configuration lists names of variables, a dictionary the variables.
bool isVariable(const QVariant &value)
{
    return value.typeId() == QMetaType::QVariantMap && value.toMap().contains(u"name"_s);
}

/// Whether the entity in \a value has what those of a run configuration do not have.
bool isOfDictionary(const QVariant &value)
{
    const QVariantMap entity = value.toMap();
    if (hasOneOf(entity,
                 {"codeVar"_L1, "entities"_L1, "labelVar"_L1, "virtual"_L1, "weightVar"_L1, "weigthVar"_L1}))
        return true;
    const QVariantList variables = entity.value(u"variables"_s).toList();
    return !variables.isEmpty() && std::all_of(variables.cbegin(), variables.cend(), isVariable);
}
} // namespace

bool DictionaryShape::isEntity(const QVariantMap &map)
{
    if (hasOwnKeys(map))
        return true;
    const bool isNamed = hasOneOf(map, {"alias"_L1, "documentation"_L1, "label"_L1, "name"_L1});
    return isNamed && (map.contains(u"entities"_s) || !map.contains(u"root"_s));
}

bool DictionaryShape::isNoRunConfiguration(const QVariantMap &document)
{
    if (document.value(u"type"_s) == u"config"_s || document.contains(u"database"_s))
        return false;
    const int root = document.value(u"root"_s).typeId();
    if (root == QMetaType::QVariantMap || root == QMetaType::QVariantList)
        return true;
    const QVariant entities = document.value(u"entities"_s);
    const bool isOnlyNamed = !entities.isValid() && !hasOwnKeys(document); // Anything may have a name.
    if (isEntity(document) && !isOnlyNamed)
        return true;
    if (entities.typeId() == QMetaType::QVariantMap)
        return isOfDictionary(entities);
    const QVariantList list = entities.toList();
    return std::any_of(list.cbegin(), list.cend(), isOfDictionary);
}
