#include "documents/internal/DifferenceData.h"

#include "documents/DictionaryCopy.h"

#include <algorithm>

namespace
{
using namespace Difference;
using Removed = DictionaryDifference::Removed;

// First everything is checked, then everything is changed.

template <typename Object>
bool fits(const Object &object, const PropertyChanges &changes)
{
    const auto &properties = Properties::of(object);
    return std::all_of(changes.cbegin(), changes.cend(), [&](const PropertyChange &change) {
        Object expected;
        properties[change.property].set(expected, change.before);
        return properties[change.property].same(object, expected);
    });
}

template <typename Object>
bool fits(const QList<Object *> &list, const ListChange &change)
{
    return change.isEmpty() || list.size() == change.sizeBefore;
}

template <typename Object>
bool fits(const QList<Object *> &list, const PartsChange<Object> &change)
{
    return fits(list, change.list)
        && std::all_of(change.edits.cbegin(), change.edits.cend(), [&list](const auto &edit) {
               return edit.before < list.size() && list.at(edit.before)
                   && fits(*list.at(edit.before), edit.properties);
           });
}

bool fits(const TDcVariable &variable, const VariableContent &content)
{
    const MetadataVariables *layout = variable.getMetadataVariables();
    return fits(variable, content.properties) && content.layoutBefore == (layout != nullptr)
        && (!layout || (fits(*layout, content.layoutProperties) && fits(*layout->getRange(), content.ranges)))
        && fits(*variable.getValueLabelElementList(), content.labels);
}

template <typename Object>
void change(Object &object, const PropertyChanges &changes)
{
    std::for_each(changes.cbegin(), changes.cend(), [&object](const PropertyChange &change) {
        Properties::of(object)[change.property].set(object, change.after);
    });
}

/// The objects that go from list to list, by their items.
template <typename Object>
class Hand
{
public:
    /// Makes those that are only there after.
    explicit Hand(const QList<Item<Object>> &items) : m_items(items), m_objects(items.size(), nullptr)
    {
        for (qsizetype i = 0; i < items.size(); ++i) {
            if (!items.at(i).before && items.at(i).copy)
                m_objects[i] = DictionaryCopy::copy(*items.at(i).copy).release();
        }
    }

    [[nodiscard]] Object *at(int item) const { return m_objects.at(item); }

    void take(QList<Object *> &list, const QList<Place> &places)
    {
        QList<Object *> left;
        left.reserve(list.size() - places.size());
        auto place = places.cbegin();
        for (qsizetype i = 0; i < list.size(); ++i) {
            if (place != places.cend() && place->index == i)
                m_objects[(place++)->item] = list.at(i);
            else
                left.append(list.at(i));
        }
        list = left;
    }

    void put(QList<Object *> &list, const QList<Place> &places) const
    {
        QList<Object *> filled;
        filled.reserve(list.size() + places.size());
        auto rest = list.cbegin();
        for (const Place &place : places) {
            const auto count = place.index - filled.size();
            std::copy_n(rest, count, std::back_inserter(filled));
            rest += count;
            filled.append(m_objects.at(place.item));
        }
        std::copy(rest, list.cend(), std::back_inserter(filled));
        list = filled;
    }

    /// Gives those away that are not there any more.
    void remove(Removed &removed) const
    {
        for (qsizetype i = 0; i < m_items.size(); ++i) {
            if (!m_items.at(i).after && m_objects.at(i))
                removed.push_back(std::shared_ptr<Object>(m_objects.at(i)));
        }
    }

private:
    const QList<Item<Object>> &m_items;
    QList<Object *> m_objects;
};

template <typename Object>
void change(QList<Object *> &list, const PartsChange<Object> &parts, Removed &removed)
{
    for (const auto &edit : parts.edits)
        change(*list.at(edit.before), edit.properties);
    if (parts.list.isEmpty())
        return;
    Hand<Object> hand(parts.items);
    hand.take(list, parts.list.taken);
    hand.put(list, parts.list.placed);
    hand.remove(removed);
}

void change(TDcVariable &variable, const VariableContent &content, Removed &removed)
{
    change(variable, content.properties);
    if (content.layoutBefore && !content.layoutAfter) {
        // The variable deletes its layout at once, but range editors hold on to the ranges.
        const QList<Range *> ranges = std::exchange(*variable.getMetadataVariables()->getRange(), {});
        for (Range *range : ranges)
            removed.push_back(std::shared_ptr<Range>(range));
        variable.setMetadataVariables(nullptr);
    } else if (!content.layoutBefore && content.layoutAfter) {
        variable.setMetadataVariables(DictionaryCopy::copy(*content.layout).release());
    } else if (MetadataVariables *layout = variable.getMetadataVariables()) {
        change(*layout, content.layoutProperties);
        change(*layout->getRange(), content.ranges, removed);
    }
    change(*variable.getValueLabelElementList(), content.labels, removed);
}

/// The entity at \a path; null when there is none.
TDcEntity *entityAt(TDcEntity &root, const QList<int> &path)
{
    TDcEntity *entity = &root;
    for (const int index : path) {
        if (!entity || index >= entity->getChildren()->size())
            return nullptr;
        entity = entity->getChildren()->at(index);
    }
    return entity;
}

TDcVariable *variableAt(TDcEntity &root, const VariablePlace &place)
{
    TDcEntity *entity = entityAt(root, place.entity.path);
    return entity ? entity->getVariables()->value(place.index) : nullptr;
}

/// Whether the entity that \a change starts from is as it says; one that is yet to be made is.
bool fits(TDcEntity &root, const EntityChange &change)
{
    if (change.before.item >= 0)
        return true;
    const TDcEntity *entity = entityAt(root, change.before.path);
    return entity && fits(*entity, change.properties) && fits(*entity->getVariables(), change.variables)
        && fits(*entity->getChildren(), change.children);
}
} // namespace

bool DictionaryDifference::apply(TDcVariable &variable, Removed *removed) const
{
    if (isEmpty())
        return true;
    if (!m_data->isOfVariable || !fits(variable, m_data->variables.constFirst().content))
        return false;
    Removed gone;
    change(variable, m_data->variables.constFirst().content, removed ? *removed : gone);
    return true;
}

bool DictionaryDifference::apply(TDcEntity &root, Removed *removed) const
{
    if (isEmpty())
        return true;
    const bool fit = std::all_of(m_data->entities.cbegin(), m_data->entities.cend(),
                                 [&root](const EntityChange &each) { return fits(root, each); })
        && std::all_of(m_data->variables.cbegin(), m_data->variables.cend(),
                       [&root](const VariableChange &each) {
                           const TDcVariable *variable = variableAt(root, each.before);
                           return variable && fits(*variable, each.content);
                       });
    if (m_data->isOfVariable || !fit)
        return false;

    // Paths and positions are those before: all objects are looked up before anything moves.
    Hand<TDcEntity> entities(m_data->entityItems);
    Hand<TDcVariable> variables(m_data->variableItems);
    QList<std::pair<TDcEntity *, const EntityChange *>> changedEntities;
    for (const EntityChange &each : m_data->entities) {
        TDcEntity *entity =
            each.before.item >= 0 ? entities.at(each.before.item) : entityAt(root, each.before.path);
        changedEntities.append({entity, &each});
    }
    QList<std::pair<TDcVariable *, const VariableChange *>> changedVariables;
    for (const VariableChange &each : m_data->variables)
        changedVariables.append({variableAt(root, each.before), &each});

    for (const auto &[entity, each] : std::as_const(changedEntities)) {
        variables.take(*entity->getVariables(), each->variables.taken);
        entities.take(*entity->getChildren(), each->children.taken);
    }
    for (const auto &[entity, each] : std::as_const(changedEntities)) {
        variables.put(*entity->getVariables(), each->variables.placed);
        entities.put(*entity->getChildren(), each->children.placed);
        change(*entity, each->properties);
    }
    Removed gone;
    Removed &target = removed ? *removed : gone;
    for (const auto &[variable, each] : std::as_const(changedVariables))
        change(*variable, each->content, target);
    variables.remove(target);
    entities.remove(target);
    return true;
}
