#include "workbench/proxies/AreaTreeProxy.h"

#include "model/SelectionTreeUnit.h"
#include "workbench/operations/Areas.h"

QVariant AreaTreeProxy::data(const QModelIndex &index, int role) const
{
    if (role == FilterRole) {
        const auto *unit = static_cast<const SelectionTreeUnit *>(mapToSource(index).internalPointer());
        return unit
            ? QStringList({unit->getCode(), unit->getName(), QString::fromStdString(unit->getArea().first),
                           QString::fromStdString(unit->getArea().second)})
                  .join(u'\n')
            : QVariant();
    }
    const QVariant value = RealRowProxy::data(index, role);
    // A unit without a first text would begin with a blank.
    return role == Qt::DisplayRole ? value.toString().trimmed() : value;
}

bool AreaTreeProxy::setData(const QModelIndex &index, const QVariant &value, int role)
{
    auto *unit = static_cast<SelectionTreeUnit *>(mapToSource(index).internalPointer());
    if (role != Qt::CheckStateRole || index.column() != 0 || !unit || !m_root)
        return false;
    Areas::select(m_root, unit, value.toInt() == Qt::Checked);
    for (QModelIndex changed = index; changed.isValid(); changed = changed.parent())
        Q_EMIT dataChanged(changed, changed, {Qt::CheckStateRole});
    announceBelow(index);
    Q_EMIT selectionChanged();
    return true;
}

void AreaTreeProxy::selectNone()
{
    if (rowCount() > 0)
        setData(index(0, 0), Qt::Unchecked, Qt::CheckStateRole);
}

void AreaTreeProxy::announceBelow(const QModelIndex &parent)
{
    QList<QModelIndex> pending{parent};
    while (!pending.isEmpty()) {
        const QModelIndex above = pending.takeLast();
        const int rows = rowCount(above);
        if (rows == 0)
            continue;
        Q_EMIT dataChanged(index(0, 0, above), index(rows - 1, 0, above), {Qt::CheckStateRole});
        for (int row = 0; row < rows; ++row)
            pending.append(index(row, 0, above));
    }
}
