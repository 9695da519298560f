#include "models/base/CheckListModel.h"

#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "models/internal/Columns.h"

#include <algorithm>
#include <iterator>

namespace
{
// Label before alias, unlike the variable table of the dictionary.
constexpr Column<TDcVariable> columns[] = {
    {"Name", valueOf<&TDcVariable::getName>},   {"Label", valueOf<&TDcVariable::getLabel>},
    {"Alias", valueOf<&TDcVariable::getAlias>}, {"Group", valueOf<&TDcVariable::getGroup>},
    {"Tag", valueOf<&TDcVariable::getTag>},
};

bool isCheckBox(const QModelIndex &index, int role)
{
    return role == Qt::CheckStateRole && index.column() == 0;
}
} // namespace

CheckListModel::CheckListModel(QObject *parent, const QList<TDcVariable *> &variables, int shownColumns)
    : RowListModel(parent), m_columns(shownColumns)
{
    // One row is announced whatever their number: nobody can listen yet.
    beginInsertRows({}, 0, 0);
    m_rows = variables;
    endInsertRows();
}

int CheckListModel::columnCount(const QModelIndex &) const
{
    return m_columns;
}

QVariant CheckListModel::data(const QModelIndex &index, int role) const
{
    TDcVariable *variable = itemAt(index);
    if (!variable)
        return {};
    if (role == Qt::DisplayRole)
        return getItemData(variable, index.column());
    if (isCheckBox(index, role) && isCheckable(*variable))
        return int(variable->getChecked() ? Qt::Checked : Qt::Unchecked);
    return {};
}

bool CheckListModel::setData(const QModelIndex &index, const QVariant &, int role)
{
    TDcVariable *variable = itemAt(index);
    if (!variable || !isCheckBox(index, role) || !isCheckable(*variable))
        return false;
    variable->setChecked(variable->getChecked() ? 0 : 1);
    Q_EMIT dataChanged(index, index);
    return true;
}

QVariant CheckListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return section < m_columns ? plainHeader(columns, section, orientation, role) : QVariant();
}

Qt::ItemFlags CheckListModel::flags(const QModelIndex &index) const
{
    return index.isValid() ? QAbstractItemModel::flags(index) | Qt::ItemIsEnabled : Qt::NoItemFlags;
}

QVariant CheckListModel::getItemData(TDcVariable *variable, int column) const
{
    return column < m_columns ? cellValue(columns, variable, column) : QVariant();
}

QList<TDcVariable *> CheckListModel::withoutRoles(const TDcEntity *entity,
                                                  const QList<TDcVariable *> *variables)
{
    if (!variables)
        return {};
    const QStringList roles{entity->getRefCode(), entity->getRefLabel(), entity->getWeightVariable()};
    QList<TDcVariable *> others;
    std::copy_if(
        variables->cbegin(), variables->cend(), std::back_inserter(others),
        [&roles](const TDcVariable *variable) { return variable && !roles.contains(variable->getName()); });
    return others;
}

bool CheckListModel::isCheckable(const TDcVariable &) const
{
    return true;
}
