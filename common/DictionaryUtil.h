#pragma once

#include "common/utilitarian_export.h"
#include "model/TDcEntity.h"

#include <QList>
#include <QString>

/// Gathers names over a dictionary, for callers that look for clashes.
///
/// Every gatherer appends to the list it is given and returns it; empty texts are left out. A dictionary tree
/// is the given entity with everything below it, in pre-order. A null entity adds nothing.
class UTILITARIAN_EXPORT DictionaryUtil
{
public:
    /// The names of the entities of the tree.
    [[nodiscard]] QList<QString> getNamesEntitiesDictionary(TDcEntity *entity, QList<QString> names);
    /// The groups of all variables of the tree, each once.
    [[nodiscard]] QList<QString> getGroupEntitiesDictionary(TDcEntity *entity, QList<QString> names);
    /// The aliases of the entities of the tree.
    [[nodiscard]] QList<QString> getAliasEntitiesDictionary(TDcEntity *entity, QList<QString> names);
    /// The names of the variables of this entity alone, repeated ones too.
    [[nodiscard]] QList<QString> getNamesVariablesByEntities(TDcEntity *entity, QList<QString> names);
    /// The aliases of the variables of this entity alone, repeated ones too.
    [[nodiscard]] QList<QString> getAliasVariableByEntity(TDcEntity *entity, QList<QString> names);
    /// The selectable entities below \a entity, in pre-order; without \a entity itself. Fills and returns \a
    /// found.
    QList<TDcEntity *> *getChildEntitiesChecked(TDcEntity *entity, QList<TDcEntity *> *found);
};
