#include "models/VariablesProxyModel.h"

#include "models/internal/SortRules.h"

VariablesProxyModel::VariablesProxyModel(QObject *parent) : TextSearchProxyModel(parent, 4) { }

void VariablesProxyModel::setFilterMinimumDate(QDate date)
{
    m_minDate = date;
    invalidateFilter();
}

void VariablesProxyModel::setFilterMaximumDate(QDate date)
{
    m_maxDate = date;
    invalidateFilter();
}

bool VariablesProxyModel::dateInRange(QDate date) const
{
    return (!m_minDate.isValid() || date > m_minDate) && (!m_maxDate.isValid() || date < m_maxDate);
}

bool VariablesProxyModel::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    return SortRules::less(left, right, {SortRules::dates, SortRules::tags, SortRules::texts});
}
