#pragma once

#include "models/base/CheckListModel.h"

/// The variables of an entity without those that have a role in it, as a wizard's last step shows them.
class BUSINESS_QUILLON_EXPORT VariableModelDownStep4 : public CheckListModel
{
public:
    /// Keeps the entries of \a variables, which is not looked at again, null stands for an empty list;
    /// neither list nor entity is owned.
    VariableModelDownStep4(QObject *parent, TDcEntity *entity, QList<TDcVariable *> *variables);
};
