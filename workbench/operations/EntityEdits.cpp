#include "workbench/operations/EntityEdits.h"

#include "business/BusinessEntity.h"
#include "documents/DictionaryCopy.h"
#include "model/PreOrder.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "workbench/operations/NewNames.h"
#include "workbench/operations/Places.h"

#include <QList>

#include <algorithm>
#include <memory>

namespace
{
/// Gives \a entity the level \a level, and those below it theirs. Variables that have their entity's level
/// keep having it; those of a file have none.
void renumber(TDcEntity *entity, int level)
{
    for (TDcVariable *variable : std::as_const(*entity->getVariables())) {
        if (variable->getLevel() == entity->getLevel())
            variable->setLevel(level);
    }
    entity->setLevel(level);
}
} // namespace

TDcEntity *EntityEdits::add(TDcEntity *parent, const QString &name)
{
    auto *entity = new TDcEntity;
    entity->setName(name);
    entity->setLevel(parent->getLevel() + 1);
    parent->getChildren()->append(entity);
    return entity;
}

TDcEntity *EntityEdits::duplicate(TDcEntity *root, TDcEntity *entity)
{
    TDcEntity *parent = Places::parentOf(root, entity);
    std::unique_ptr<TDcEntity> copy = DictionaryCopy::copy(*entity);
    TDcEntity *added = copy.get();
    auto names = NewNames::forEntities(root);
    preOrder(added, [&names](TDcEntity *node) {
        node->setName(names.take(node->getName()));
        node->setAlias({});
    });
    QList<TDcEntity *> &siblings = *parent->getChildren();
    siblings.insert(siblings.indexOf(entity) + 1, copy.release());
    return added;
}

QSet<TDcEntity *> EntityEdits::targets(TDcEntity *root, TDcEntity *entity)
{
    QSet<TDcEntity *> targets;
    preOrder(root, [&targets](TDcEntity *node) { targets.insert(node); });
    preOrder(entity, [&targets](TDcEntity *node) { targets.remove(node); });
    targets.remove(Places::parentOf(root, entity));
    return targets;
}

void EntityEdits::moveTo(TDcEntity *root, TDcEntity *entity, TDcEntity *parent)
{
    if (!targets(root, entity).contains(parent))
        return;
    Places::parentOf(root, entity)->getChildren()->removeOne(entity);
    parent->getChildren()->append(entity);
    renumber(entity, parent->getLevel() + 1);
    preOrder(entity, [](const TDcEntity *node) {
        for (TDcEntity *child : std::as_const(*node->getChildren()))
            renumber(child, node->getLevel() + 1);
    });
}

void EntityEdits::setSelectable(TDcEntity *entity, bool selectable)
{
    entity->setSelectable(selectable);
    if (selectable)
        return;
    const std::unique_ptr<QList<TDcEntity *>> below(BusinessEntity().verifyChildrenSelectCheck(entity));
    std::for_each(below->cbegin(), below->cend(), [](TDcEntity *child) { child->setSelectable(false); });
}
