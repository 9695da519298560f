#include "documents/DictionaryDifference.h"

#include "documents/internal/DifferenceData.h"

#include <utility>

namespace
{
using namespace Difference;

void swapSides(PropertyChanges &changes)
{
    for (PropertyChange &change : changes)
        std::swap(change.before, change.after);
}

void swapSides(ListChange &change)
{
    std::swap(change.taken, change.placed);
    std::swap(change.sizeBefore, change.sizeAfter);
}

template <typename Object>
void swapSides(QList<Item<Object>> &items)
{
    for (Item<Object> &item : items)
        std::swap(item.before, item.after);
}

template <typename Object>
void swapSides(PartsChange<Object> &change)
{
    swapSides(change.list);
    swapSides(change.items);
    for (auto &edit : change.edits) {
        std::swap(edit.before, edit.after);
        swapSides(edit.properties);
    }
}
} // namespace

DictionaryDifference::DictionaryDifference() : m_data(new Data) { }
DictionaryDifference::DictionaryDifference(const DictionaryDifference &other) = default;
DictionaryDifference::DictionaryDifference(DictionaryDifference &&other) noexcept = default;
DictionaryDifference &DictionaryDifference::operator=(const DictionaryDifference &other) = default;
DictionaryDifference &DictionaryDifference::operator=(DictionaryDifference &&other) noexcept = default;
DictionaryDifference::~DictionaryDifference() = default;

bool DictionaryDifference::isEmpty() const
{
    return m_data->entities.isEmpty() && m_data->variables.isEmpty();
}

DictionaryDifference DictionaryDifference::inverted() const
{
    DictionaryDifference inverse(*this);
    Data &data = *inverse.m_data;
    for (EntityChange &change : data.entities) {
        std::swap(change.before, change.after);
        swapSides(change.properties);
        swapSides(change.variables);
        swapSides(change.children);
    }
    for (VariableChange &change : data.variables) {
        std::swap(change.before, change.after);
        swapSides(change.content.properties);
        std::swap(change.content.layoutBefore, change.content.layoutAfter);
        swapSides(change.content.layoutProperties);
        swapSides(change.content.ranges);
        swapSides(change.content.labels);
    }
    swapSides(data.entityItems);
    swapSides(data.variableItems);
    return inverse;
}
