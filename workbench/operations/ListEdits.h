#pragma once

#include <QList>

#include <algorithm>
#include <iterator>

/// What can be done to any live list of the object model.
namespace ListEdits
{
/// The same items without their type, as item models carry them.
template <typename Item>
[[nodiscard]] QList<void *> untyped(const QList<Item *> &items)
{
    return QList<void *>(items.cbegin(), items.cend());
}

/// The other way round.
template <typename Item>
[[nodiscard]] QList<Item *> typed(const QList<void *> &items)
{
    QList<Item *> result;
    std::transform(items.cbegin(), items.cend(), std::back_inserter(result),
                   [](void *item) { return static_cast<Item *>(item); });
    return result;
}

/// Takes \a items out of \a list and deletes them.
template <typename Item>
void remove(QList<Item *> &list, const QList<Item *> &items)
{
    for (Item *item : items) {
        if (list.removeOne(item))
            delete item;
    }
}

/// Whether moving \a items by one place, up or else down, would change \a list: the first of them is not at
/// that end yet.
template <typename Item>
[[nodiscard]] bool canMove(const QList<Item *> &list, const QList<Item *> &items, bool up)
{
    if (list.isEmpty() || items.isEmpty())
        return false;
    return !items.contains(up ? list.first() : list.last());
}

/// Moves each of \a items by one place, up or else down; what lies between them keeps its order. Nothing
/// happens when one of them is at that end already.
template <typename Item>
void move(QList<Item *> &list, const QList<Item *> &items, bool up)
{
    if (!canMove(list, items, up))
        return;
    QList<qsizetype> rows;
    std::transform(items.cbegin(), items.cend(), std::back_inserter(rows),
                   [&list](Item *item) { return list.indexOf(item); });
    rows.removeAll(-1);
    std::sort(rows.begin(), rows.end());
    if (!up)
        std::reverse(rows.begin(), rows.end());
    for (qsizetype row : std::as_const(rows))
        list.swapItemsAt(row, up ? row - 1 : row + 1);
}
} // namespace ListEdits
