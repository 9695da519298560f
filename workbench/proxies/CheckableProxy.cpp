#include "workbench/proxies/CheckableProxy.h"

Qt::ItemFlags CheckableProxy::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QIdentityProxyModel::flags(index);
    const bool hasBox = index.column() == 0 && index.data(Qt::CheckStateRole).isValid();
    return hasBox ? flags | Qt::ItemIsUserCheckable : flags & ~Qt::ItemFlags(Qt::ItemIsUserCheckable);
}
