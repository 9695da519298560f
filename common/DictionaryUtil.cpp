#include "common/DictionaryUtil.h"

#include "model/PreOrder.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"

#include <QSet>

namespace
{
void appendText(QList<QString> &texts, const QString &text)
{
    if (!text.isEmpty())
        texts.append(text);
}

/// Calls \a visit with each variable of \a entity; nulls are passed over.
template <typename Visit>
void forEachVariable(const TDcEntity *entity, Visit visit)
{
    if (!entity)
        return;
    for (const TDcVariable *variable : std::as_const(*entity->getVariables())) {
        if (variable)
            visit(*variable);
    }
}
} // namespace

QList<QString> DictionaryUtil::getNamesEntitiesDictionary(TDcEntity *entity, QList<QString> names)
{
    preOrder(entity, [&names](const TDcEntity *node) { appendText(names, node->getName()); });
    return names;
}

QList<QString> DictionaryUtil::getGroupEntitiesDictionary(TDcEntity *entity, QList<QString> names)
{
    QSet<QString> seen(names.cbegin(), names.cend());
    preOrder(entity, [&names, &seen](const TDcEntity *node) {
        forEachVariable(node, [&names, &seen](const TDcVariable &variable) {
            const QString group = variable.getGroup();
            if (!seen.contains(group)) {
                seen.insert(group);
                appendText(names, group);
            }
        });
    });
    return names;
}

QList<QString> DictionaryUtil::getAliasEntitiesDictionary(TDcEntity *entity, QList<QString> names)
{
    preOrder(entity, [&names](const TDcEntity *node) { appendText(names, node->getAlias()); });
    return names;
}

QList<QString> DictionaryUtil::getNamesVariablesByEntities(TDcEntity *entity, QList<QString> names)
{
    forEachVariable(entity, [&names](const TDcVariable &variable) { appendText(names, variable.getName()); });
    return names;
}

QList<QString> DictionaryUtil::getAliasVariableByEntity(TDcEntity *entity, QList<QString> names)
{
    forEachVariable(entity,
                    [&names](const TDcVariable &variable) { appendText(names, variable.getAlias()); });
    return names;
}

QList<TDcEntity *> *DictionaryUtil::getChildEntitiesChecked(TDcEntity *entity, QList<TDcEntity *> *found)
{
    preOrder(entity, [entity, found](TDcEntity *node) {
        if (node != entity && node->getSelectable())
            found->append(node);
    });
    return found;
}
