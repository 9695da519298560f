#include "workbench/clipboard/DisplayedTable.h"

#include <QAbstractProxyModel>
#include <QHeaderView>
#include <QTableView>

#include <algorithm>

QList<int> DisplayedTable::columns(const QTableView &view)
{
    const QHeaderView &header = *view.horizontalHeader();
    QList<int> columns;
    for (int position = 0; position < header.count(); ++position) {
        if (const int column = header.logicalIndex(position); !header.isSectionHidden(column))
            columns.append(column);
    }
    return columns;
}

QList<void *> DisplayedTable::objects(const QTableView &view)
{
    const auto *proxy = qobject_cast<const QAbstractProxyModel *>(view.model());
    QList<void *> objects;
    for (int row = 0; proxy && row < proxy->rowCount(); ++row)
        objects.append(proxy->mapToSource(proxy->index(row, 0)).internalPointer());
    return objects;
}

QList<int> DisplayedTable::selectedRows(const QTableView &view)
{
    QList<int> rows;
    const QModelIndexList selected = view.selectionModel()->selectedRows();
    std::transform(selected.cbegin(), selected.cend(), std::back_inserter(rows),
                   [](const QModelIndex &index) { return index.row(); });
    std::sort(rows.begin(), rows.end());
    return rows;
}

int DisplayedTable::currentRow(const QTableView &view)
{
    return view.currentIndex().row();
}

int DisplayedTable::currentColumn(const QTableView &view)
{
    return int(columns(view).indexOf(view.currentIndex().column()));
}
