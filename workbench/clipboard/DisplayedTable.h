#pragma once

#include "workbench/operations/ListEdits.h"

#include <QList>
#include <QStringList>

class QTableView;

/// What a table that shows one of the layer's flat models through a proxy looks like to a person.
namespace DisplayedTable
{
/// The columns of the model from left to right, hidden ones left out.
[[nodiscard]] QList<int> columns(const QTableView &view);
/// The objects in the rows from top to bottom.
[[nodiscard]] QList<void *> objects(const QTableView &view);
/// The selected rows from top to bottom.
[[nodiscard]] QList<int> selectedRows(const QTableView &view);
/// Where the current cell is; -1 when there is none.
[[nodiscard]] int currentRow(const QTableView &view);
/// Counted among columns().
[[nodiscard]] int currentColumn(const QTableView &view);

template <typename Item>
[[nodiscard]] QList<Item *> items(const QTableView &view)
{
    return ListEdits::typed<Item>(objects(view));
}
} // namespace DisplayedTable
