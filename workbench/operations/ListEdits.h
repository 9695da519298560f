#pragma once

#include <QList>
#include <QSet>

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
    const QSet<Item *> leaving(items.cbegin(), items.cend());
    const auto kept = std::stable_partition(list.begin(), list.end(),
                                            [&leaving](Item *item) { return !leaving.contains(item); });
    qDeleteAll(kept, list.end());
    list.erase(kept, list.end());
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
    const QSet<Item *> moving(items.cbegin(), items.cend());
    // One after the other in the direction of the move: each takes the place that the one before left.
    const auto pass = [&moving](auto begin, auto end) {
        for (auto it = std::next(begin); it != end; ++it) {
            if (moving.contains(*it))
                std::iter_swap(it, std::prev(it));
        }
    };
    if (up)
        pass(list.begin(), list.end());
    else
        pass(list.rbegin(), list.rend());
}
} // namespace ListEdits
