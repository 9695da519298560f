#include "workbench/proxies/RealRowProxy.h"

#include <QList>

QModelIndex RealRowProxy::parent(const QModelIndex &child) const
{
    if (!child.isValid() || !sourceModel())
        return {};
    // Only the objects behind the source's answers are right, not the rows.
    const QModelIndex found = sourceModel()->parent(mapToSource(child));
    if (!found.isValid())
        return {};
    const QModelIndex above = sourceModel()->parent(found);
    const int siblings = sourceModel()->rowCount(above);
    for (int row = 0; row < siblings; ++row) {
        const QModelIndex candidate = sourceModel()->index(row, 0, above);
        if (candidate.internalPointer() == found.internalPointer())
            return mapFromSource(candidate);
    }
    return {};
}

QModelIndex RealRowProxy::indexOf(const void *object) const
{
    QList<QModelIndex> pending{QModelIndex()};
    while (object && !pending.isEmpty()) {
        const QModelIndex node = pending.takeLast();
        if (node.isValid() && node.internalPointer() == object)
            return node;
        for (int row = rowCount(node) - 1; row >= 0; --row)
            pending.append(index(row, 0, node));
    }
    return {};
}
