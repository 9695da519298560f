#include "workbench/proxies/RealRowProxy.h"

#include <QList>

#include <tuple>

void RealRowProxy::setSourceModel(QAbstractItemModel *model)
{
    m_rows.clear();
    QIdentityProxyModel::setSourceModel(model);
}

QModelIndex RealRowProxy::parent(const QModelIndex &child) const
{
    if (!child.isValid() || !sourceModel())
        return {};
    // Only the objects behind the source's answers are right, not the rows.
    const QModelIndex found = sourceModel()->parent(mapToSource(child));
    if (!found.isValid())
        return {};
    const void *object = found.internalPointer();
    const QModelIndex above = sourceModel()->parent(found);
    const int siblings = sourceModel()->rowCount(above);
    // The tree may have changed unseen; so what is remembered counts only where it still holds.
    if (const int row = m_rows.value(object, siblings); row < siblings) {
        if (const QModelIndex known = sourceModel()->index(row, 0, above); known.internalPointer() == object)
            return mapFromSource(known);
    }
    // One search serves all siblings.
    QModelIndex real;
    for (int row = siblings - 1; row >= 0; --row) {
        const QModelIndex candidate = sourceModel()->index(row, 0, above);
        m_rows.insert(candidate.internalPointer(), row);
        if (candidate.internalPointer() == object)
            real = candidate;
    }
    return mapFromSource(real);
}

QModelIndex RealRowProxy::first(const std::function<bool(const QModelIndex &)> &wanted) const
{
    QList<QModelIndex> pending{QModelIndex()};
    while (!pending.isEmpty()) {
        const QModelIndex node = pending.takeLast();
        if (node.isValid() && wanted(node))
            return node;
        for (int row = rowCount(node) - 1; row >= 0; --row)
            pending.append(index(row, 0, node));
    }
    return {};
}

void RealRowProxy::visit(const std::function<void(const QModelIndex &)> &visitor) const
{
    std::ignore = first([&visitor](const QModelIndex &node) {
        visitor(node);
        return false;
    });
}

QModelIndex RealRowProxy::indexOf(const void *object) const
{
    return first([object](const QModelIndex &node) { return object && node.internalPointer() == object; });
}
