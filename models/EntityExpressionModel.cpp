#include "models/EntityExpressionModel.h"

EntityExpressionModel::EntityExpressionModel(QObject *parent, QList<TDcEntity *> *items, eEntityShowMode mode)
    : NamedExpressionModel(parent, items, mode)
{
}
