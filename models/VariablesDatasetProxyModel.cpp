#include "models/VariablesDatasetProxyModel.h"

#include "models/internal/SortRules.h"

VariablesDatasetProxyModel::VariablesDatasetProxyModel(QObject *parent) : TextSearchProxyModel(parent, 3) { }

bool VariablesDatasetProxyModel::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    return SortRules::less(left, right, {SortRules::integers, SortRules::dates, SortRules::texts});
}
