#include "models/VariablesProxyModelDownStep4.h"

#include "models/internal/SortRules.h"

VariablesProxyModelDownStep4::VariablesProxyModelDownStep4(QObject *parent)
    : QSortFilterProxyModel(parent) { }

bool VariablesProxyModelDownStep4::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    return QSortFilterProxyModel::filterAcceptsRow(sourceRow, sourceParent);
}

bool VariablesProxyModelDownStep4::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    return SortRules::less(left, right, {SortRules::dates, SortRules::texts});
}
