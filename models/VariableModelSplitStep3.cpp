#include "models/VariableModelSplitStep3.h"

VariableModelSplitStep3::VariableModelSplitStep3(QObject *parent, TDcEntity *,
                                                 QList<TDcVariable *> *variables)
    : CheckListModel(parent, variables ? *variables : QList<TDcVariable *>(), 3)
{
}
