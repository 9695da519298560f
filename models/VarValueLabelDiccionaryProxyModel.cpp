#include "models/VarValueLabelDiccionaryProxyModel.h"

#include "models/internal/SortRules.h"

VarValueLabelDiccionaryProxyModel::VarValueLabelDiccionaryProxyModel(QObject *parent)
    : QSortFilterProxyModel(parent)
{
}

bool VarValueLabelDiccionaryProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    return QSortFilterProxyModel::filterAcceptsRow(sourceRow, sourceParent);
}

bool VarValueLabelDiccionaryProxyModel::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    return SortRules::less(left, right,
                           {SortRules::numbers, SortRules::integers, SortRules::dates, SortRules::texts});
}
