#include "models/VariableExpressionModel.h"

VariableExpressionModel::VariableExpressionModel(QObject *parent, QList<TDcVariable *> *items,
                                                 eEntityShowMode mode)
    : NamedExpressionModel(parent, items, mode)
{
}
