#include "models/VariableModelDownStep4.h"

VariableModelDownStep4::VariableModelDownStep4(QObject *parent, TDcEntity *entity,
                                               QList<TDcVariable *> *variables)
    : CheckListModel(parent, withoutRoles(entity, variables), 3)
{
}
