#pragma once

#include "documents/DictionaryDifference.h"

#include "documents/internal/Properties.h"

#include <QSharedData>

#include <iterator>
#include <memory>

/// What differences are made of. Everything has two sides of the same form, before and after, so that to
/// invert a difference is to swap them.
namespace Difference
{
/// A property by its place in the table of its class.
struct PropertyChange {
    int property;
    QVariant before;
    QVariant after;
};
using PropertyChanges = QList<PropertyChange>;

/// An item at a position of a list on one side.
struct Place {
    int index;
    int item;
};

/// What is taken out of a list and what is put into it. All else stays, in its order. An item that is on both
/// sides, of one list or of two, moves.
struct ListChange {
    QList<Place> taken = {}; ///< By ascending index in the list before.
    QList<Place> placed = {}; ///< By ascending index in the list after.
    int sizeBefore = 0;
    int sizeAfter = 0;

    [[nodiscard]] bool isEmpty() const { return taken.isEmpty() && placed.isEmpty(); }
};

/// An object that is on one side only or moves. The copy is there in the first case, unless a list held a
/// null.
template <typename Object>
struct Item {
    bool before;
    bool after;
    QString name = {};
    std::shared_ptr<const Object> copy = nullptr;
};

/// Ranges or value labels.
template <typename Object>
struct PartsChange {
    struct Edit {
        int before;
        int after;
        QString name;
        PropertyChanges properties;
    };
    ListChange list = {};
    QList<Item<Object>> items = {};
    QList<Edit> edits = {};

    [[nodiscard]] bool isEmpty() const { return list.isEmpty() && edits.isEmpty(); }
};

struct VariableContent {
    PropertyChanges properties = {};
    bool layoutBefore = false;
    bool layoutAfter = false;
    std::shared_ptr<const MetadataVariables> layout = nullptr; ///< When only one side has one.
    PropertyChanges layoutProperties = {};
    PartsChange<Range> ranges = {};
    PartsChange<ValueLabelElement> labels = {};

    [[nodiscard]] bool isEmpty() const
    {
        return properties.isEmpty() && layoutBefore == layoutAfter && layoutProperties.isEmpty()
            && ranges.isEmpty() && labels.isEmpty();
    }
};

/// An entity on one side: where it is in the tree or, when it is not there, which item it is.
struct EntityPlace {
    QList<int> path = {}; ///< Positions among the children, from the root down.
    int item = -1;
    QString names = {};
};

struct EntityChange {
    EntityPlace before;
    EntityPlace after;
    PropertyChanges properties = {};
    ListChange variables = {};
    ListChange children = {};

    [[nodiscard]] bool isEmpty() const
    {
        return properties.isEmpty() && variables.isEmpty() && children.isEmpty();
    }
};

struct VariablePlace {
    EntityPlace entity;
    int index;
    QString name;
};

struct VariableChange {
    VariablePlace before;
    VariablePlace after;
    VariableContent content;
};

/// The difference between two objects that count as the same.
[[nodiscard]] VariableContent between(const TDcVariable &before, const TDcVariable &after);

/// Which items of a list before stay where they are among those that stay: the most that can. \a peers gives
/// for each item of the list after the position it had in the list before, or -1.
[[nodiscard]] QList<bool> staying(const QList<int> &peers, qsizetype sizeBefore);

template <typename Object>
[[nodiscard]] PropertyChanges propertyChanges(const Object &before, const Object &after)
{
    PropertyChanges changes;
    const auto &properties = Properties::of(before);
    for (std::size_t i = 0; i < std::size(properties); ++i) {
        if (!properties[i].same(before, after))
            changes.append({int(i), properties[i].get(before), properties[i].get(after)});
    }
    return changes;
}
} // namespace Difference

struct DictionaryDifference::Data : public QSharedData {
    QList<Difference::EntityChange> entities =
        {}; ///< In the order of the tree after; removed ones at the end.
    QList<Difference::VariableChange> variables = {};
    QList<Difference::Item<TDcEntity>> entityItems = {}; ///< Copies without variables and children.
    QList<Difference::Item<TDcVariable>> variableItems = {};
    bool isOfVariable = false; ///< Then there is one variable change at most, without a place.
};
