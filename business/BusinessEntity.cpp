#include "business/BusinessEntity.h"

#include "model/TDcEntity.h"

#include <QMessageBox>

#include <memory>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace
{
/// Not translated. The mark and full stop at its end are as users know them.
QString question(const QList<TDcEntity *> &entities)
{
    QString names;
    for (const TDcEntity *entity : entities)
        names += entity->getName() + u'\n';
    return u"You have child entities that are selectable, and they are as follows:\n%1\n"
           "Are you sure you want to deselect this entity and its child entities?.\n"_s.arg(names);
}
} // namespace

void BusinessEntity::selectableChildren(TDcEntity *entity, QList<TDcEntity *> &result)
{
    m_dictionaryUtil.getChildEntitiesChecked(entity, &result);
}

QList<TDcEntity *> *BusinessEntity::verifyChildrenSelectCheck(TDcEntity *entity)
{
    auto checked = std::make_unique<QList<TDcEntity *>>();
    selectableChildren(entity, *checked);
    if (checked->isEmpty() || entity->getSelectable())
        return checked.release();

    const bool confirmed = QMessageBox::question(nullptr, QString(), question(*checked),
                                                 QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
        == QMessageBox::Yes;
    entity->setSelectable(!confirmed);
    if (!confirmed)
        checked->clear();
    return checked.release();
}
