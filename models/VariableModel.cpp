#include "models/VariableModel.h"

#include "model/TDcVariable.h"

VariableModel::VariableModel(QObject *parent, TDcEntity *entity, QList<TDcVariable *> *variables)
    : CheckListModel(parent, withoutRoles(entity, variables), 5)
{
}

Qt::ItemFlags VariableModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = CheckListModel::flags(index);
    return index.column() == 0 ? flags | Qt::ItemIsUserCheckable : flags;
}

bool VariableModel::isCheckable(const TDcVariable &variable) const
{
    return variable.getLevel() == 1;
}
