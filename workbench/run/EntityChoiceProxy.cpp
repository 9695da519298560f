#include "workbench/run/EntityChoiceProxy.h"

#include "workbench/operations/EntityEdits.h"

Qt::ItemFlags EntityChoiceProxy::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = RealRowProxy::flags(index);
    return index.isValid() ? flags | Qt::ItemIsUserCheckable : flags;
}

bool EntityChoiceProxy::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || role != Qt::CheckStateRole)
        return false;
    EntityEdits::setSelectable(static_cast<TDcEntity *>(index.internalPointer()),
                               value.toInt() == Qt::Checked);
    announceMarks(index);
    return true;
}

void EntityChoiceProxy::announceMarks(const QModelIndex &parent)
{
    QList<QModelIndex> pending{parent};
    while (!pending.isEmpty()) {
        const QModelIndex node = pending.takeLast();
        if (node.isValid())
            Q_EMIT dataChanged(node, node);
        for (int row = 0; row < rowCount(node); ++row)
            pending.append(index(row, 0, node));
    }
}
