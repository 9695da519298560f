#include "documents/internal/DictionaryShape.h"

#include "documents/DocumentKind.h"

#include <QVariantList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{
/// A run configuration lists names of variables, a dictionary the variables.
bool isVariable(const QVariant &value)
{
    return value.typeId() == QMetaType::QVariantMap && value.toMap().contains(u"name"_s);
}

/// Whether the entity in \a value has what those of a run configuration do not have.
bool isOfDictionary(const QVariant &value)
{
    const QVariantMap entity = value.toMap();
    if (DocumentKind::hasOneOf(
            entity,
            {"codeVar"_L1, "entities"_L1, "labelVar"_L1, "virtual"_L1, "weightVar"_L1, "weigthVar"_L1}))
        return true;
    const QVariantList variables = entity.value(u"variables"_s).toList();
    return !variables.isEmpty() && std::all_of(variables.cbegin(), variables.cend(), isVariable);
}
} // namespace

bool DictionaryShape::isNoRunConfiguration(const QVariantMap &document)
{
    if (document.value(u"type"_s) == u"config"_s || document.contains(u"database"_s))
        return false;
    const int root = document.value(u"root"_s).typeId();
    if (root == QMetaType::QVariantMap || root == QMetaType::QVariantList)
        return true;
    const QVariant entities = document.value(u"entities"_s);
    const bool isOnlyNamed =
        !entities.isValid() && !DocumentKind::hasEntityKeys(document); // Anything may have a name.
    if (DocumentKind::isEntity(document) && !isOnlyNamed)
        return true;
    if (entities.typeId() == QMetaType::QVariantMap)
        return isOfDictionary(entities);
    const QVariantList list = entities.toList();
    return std::any_of(list.cbegin(), list.cend(), isOfDictionary);
}
