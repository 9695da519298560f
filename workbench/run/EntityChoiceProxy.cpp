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
    if (parent.isValid())
        Q_EMIT dataChanged(parent, parent);
    QList<QModelIndex> pending{parent};
    while (!pending.isEmpty()) {
        const QModelIndex node = pending.takeLast();
        const int rows = rowCount(node);
        if (rows > 0)
            Q_EMIT dataChanged(index(0, 0, node), index(rows - 1, 0, node));
        for (int row = 0; row < rows; ++row)
            pending.append(index(row, 0, node));
    }
    Q_EMIT marksChanged();
}
