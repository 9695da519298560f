#pragma once

#include <QVariant>

#include <cstddef>

/// One column of a table whose rows are of type \a Item: its title, and how a cell is read and written.
/// A table is an array of these; it tells the column count, the headers and the cells.
template <typename Item>
struct Column {
    const char *title; ///< In ASCII; not translated.
    QVariant (*value)(const Item &item);
    void (*store)(Item &item, const QVariant &value) = nullptr; ///< Null where nothing is stored as it is.
};

/// Column::value of a getter: `valueOf<&TDcVariable::getName>`.
template <auto getter, typename Item>
QVariant valueOf(const Item &item)
{
    return (item.*getter)();
}

/// Column::store of a setter that takes a text.
template <auto setter, typename Item>
void storeText(Item &item, const QVariant &value)
{
    (item.*setter)(value.toString());
}

/// The column at \a section; null beyond the table.
template <typename Item, std::size_t count>
[[nodiscard]] const Column<Item> *columnAt(const Column<Item> (&columns)[count], int section)
{
    return section >= 0 && section < int(count) ? &columns[section] : nullptr;
}

/// What the cell of \a item shows; invalid without an item and beyond the table.
template <typename Item, std::size_t count>
[[nodiscard]] QVariant cellValue(const Column<Item> (&columns)[count], const Item *item, int section)
{
    const Column<Item> *column = columnAt(columns, section);
    return item && column ? column->value(*item) : QVariant();
}

/// Writes \a value to the cell of \a item; nothing happens beyond the table and where nothing is stored.
template <typename Item, std::size_t count>
void storeCell(const Column<Item> (&columns)[count], Item &item, int section, const QVariant &value)
{
    const Column<Item> *column = columnAt(columns, section);
    if (column && column->store)
        column->store(item, value);
}

/// The title that a horizontal header displays; null for whatever else is asked of headerData().
template <typename Item, std::size_t count>
[[nodiscard]] const char *columnTitle(const Column<Item> (&columns)[count], int section,
                                      Qt::Orientation orientation, int role)
{
    const Column<Item> *column = columnAt(columns, section);
    return column && orientation == Qt::Horizontal && role == Qt::DisplayRole ? column->title : nullptr;
}

/// The answer of headerData() where headers are not translated.
template <typename Item, std::size_t count>
[[nodiscard]] QVariant plainHeader(const Column<Item> (&columns)[count], int section,
                                   Qt::Orientation orientation, int role)
{
    const char *title = columnTitle(columns, section, orientation, role);
    return title ? QString::fromLatin1(title) : QVariant();
}
