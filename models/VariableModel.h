#pragma once

#include "models/base/CheckListModel.h"

/// The variables of an entity that a wizard offers, without those that have a role in the entity. Only
/// variables of level 1 can be checked.
class BUSINESS_QUILLON_EXPORT VariableModel : public CheckListModel
{
public:
    /// Keeps the entries of \a variables, which is not looked at again, null stands for an empty list;
    /// neither list nor entity is owned.
    VariableModel(QObject *parent, TDcEntity *entity, QList<TDcVariable *> *variables);

    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

protected:
    [[nodiscard]] bool isCheckable(const TDcVariable &variable) const override;
};
