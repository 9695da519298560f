#include "workbench/proxies/CheckableProxy.h"

QVariant CheckableProxy::data(const QModelIndex &index, int role) const
{
    QVariant value = QIdentityProxyModel::data(index, role);
    if (role != Qt::TextAlignmentRole || value.isValid())
        return value;
    const bool isNumber = QIdentityProxyModel::data(index, Qt::DisplayRole).typeId() == QMetaType::Int;
    return isNumber ? QVariant(int(Qt::AlignRight | Qt::AlignVCenter)) : QVariant();
}

Qt::ItemFlags CheckableProxy::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QIdentityProxyModel::flags(index);
    const bool hasBox = index.column() == 0 && index.data(Qt::CheckStateRole).isValid();
    return hasBox ? flags | Qt::ItemIsUserCheckable : flags & ~Qt::ItemFlags(Qt::ItemIsUserCheckable);
}
