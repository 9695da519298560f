#include "models/VarRangeProxyModel.h"

#include "models/internal/SortRules.h"

VarRangeProxyModel::VarRangeProxyModel(QObject *parent) : TextSearchProxyModel(parent, 2) { }

bool VarRangeProxyModel::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    return SortRules::less(left, right, {SortRules::integers, SortRules::dates, SortRules::texts});
}
