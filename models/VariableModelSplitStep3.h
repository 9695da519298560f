#pragma once

#include "models/base/CheckListModel.h"

/// All variables of an entity, as a step of the splitting wizard shows them.
class BUSINESS_QUILLON_EXPORT VariableModelSplitStep3 : public CheckListModel
{
public:
    /// Keeps the entries of \a variables, which is not looked at again and not owned; null stands for an
    /// empty list. The entity plays no part: variables with a role in it are offered too.
    VariableModelSplitStep3(QObject *parent, TDcEntity *entity, QList<TDcVariable *> *variables);
};
