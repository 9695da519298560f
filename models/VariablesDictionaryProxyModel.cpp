#include "models/VariablesDictionaryProxyModel.h"

#include "models/internal/SortRules.h"

VariablesDictionaryProxyModel::VariablesDictionaryProxyModel(QObject *parent)
    : TextSearchProxyModel(parent, 5)
{
}

bool VariablesDictionaryProxyModel::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    return SortRules::less(left, right, {SortRules::integers, SortRules::dates, SortRules::texts});
}
