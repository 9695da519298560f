#include "workbench/operations/EntityEdits.h"

#include "business/BusinessEntity.h"
#include "common/DictionaryUtil.h"
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
    // One by one: each new name has to be free beside those given before.
    TDcEntity *added = copy.get();
    QList<QString> given;
    preOrder(added, [root, &given](TDcEntity *node) {
        QString name = NewNames::entity(root, node->getName());
        name = NewNames::free(name, DictionaryUtil().getNamesEntitiesDictionary(root, given));
        given.append(name);
        node->setName(name);
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
