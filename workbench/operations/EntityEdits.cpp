#include "workbench/operations/EntityEdits.h"

#include "business/BusinessEntity.h"
#include "documents/DictionaryCopy.h"
#include "model/PreOrder.h"
#include "model/TDcEntity.h"
#include "workbench/operations/NewNames.h"
#include "workbench/operations/Places.h"

#include <QList>

#include <algorithm>
#include <memory>

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

void EntityEdits::setSelectable(TDcEntity *entity, bool selectable)
{
    entity->setSelectable(selectable);
    if (selectable)
        return;
    const std::unique_ptr<QList<TDcEntity *>> below(BusinessEntity().verifyChildrenSelectCheck(entity));
    std::for_each(below->cbegin(), below->cend(), [](TDcEntity *child) { child->setSelectable(false); });
}
