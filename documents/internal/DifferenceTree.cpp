#include "documents/internal/DifferenceData.h"

#include "documents/DictionaryCopy.h"
#include "documents/internal/DifferencePlaces.h"
#include "documents/internal/Matching.h"
#include "documents/internal/Properties.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace
{
using namespace Difference;

const QList<TDcVariable *> &variablesOf(const TDcEntity *entity)
{
    static const QList<TDcVariable *> none;
    return entity ? *entity->getVariables() : none;
}

class TreeComparison
{
public:
    TreeComparison(const TDcEntity &before, const TDcEntity &after, bool withChildren)
        : m_before(before, withChildren), m_after(after, withChildren), m_withChildren(withChildren)
    {
        if (withChildren)
            m_peers = Matching::entities(before, after);
        else
            m_peers.insert(&after, &before);
        m_stayBefore = QSet<const TDcEntity *>(m_peers.cbegin(), m_peers.cend());
        for (const TDcEntity *entity : std::as_const(m_after.entities))
            m_pairs.append(Pair{m_peers.value(entity), entity});
        for (const TDcEntity *entity : std::as_const(m_before.entities)) {
            if (!m_stayBefore.contains(entity))
                m_pairs.append(Pair{entity, nullptr});
        }
    }

    void fill(DictionaryDifference::Data &data)
    {
        m_data = &data;
        for (const auto &[before, after] : std::as_const(m_pairs))
            matchVariables(before, after);
        matchMovedVariables();
        for (const auto &[before, after] : std::as_const(m_pairs))
            compare(before, after);
    }

private:
    struct Pair {
        const TDcEntity *before;
        const TDcEntity *after;
    };
    struct VariableSpot {
        const TDcEntity *entity = nullptr;
        int index = -1;
        [[nodiscard]] TDcVariable *variable() const { return entity->getVariables()->at(index); }
    };

    void matchVariables(const TDcEntity *before, const TDcEntity *after)
    {
        const QList<TDcVariable *> &first = variablesOf(before);
        const QList<TDcVariable *> &second = variablesOf(after);
        const Matching::Peers peers = Matching::variables(first, second);
        m_variablePeers.insert({before, after}, peers);
        const QSet<int> paired(peers.cbegin(), peers.cend());
        for (int i = 0; i < first.size(); ++i) {
            if (!paired.contains(i))
                m_leftBefore.append({before, i});
        }
        for (int i = 0; i < second.size(); ++i) {
            if (peers.at(i) < 0)
                m_leftAfter.append({after, i});
        }
    }

    void matchMovedVariables()
    {
        const auto variables = [](const QList<VariableSpot> &spots) {
            QList<TDcVariable *> found;
            std::transform(spots.cbegin(), spots.cend(), std::back_inserter(found),
                           [](const VariableSpot &spot) { return spot.variable(); });
            return found;
        };
        const Matching::Peers peers =
            Matching::movedVariables(variables(m_leftBefore), variables(m_leftAfter));
        for (qsizetype i = 0; i < peers.size(); ++i) {
            const VariableSpot &after = m_leftAfter.at(i);
            if (peers.at(i) < 0 || !after.variable())
                continue;
            const VariableSpot &before = m_leftBefore.at(peers.at(i));
            const int item = newVariableItem(before.variable(), true, true);
            m_movedBefore.insert({before.entity, before.index}, item);
            m_movedAfter.insert({after.entity, after.index}, item);
            compareVariables(before, after);
        }
    }

    /// \a before is null for an added entity, \a after for a removed one.
    void compare(const TDcEntity *before, const TDcEntity *after)
    {
        EntityChange change{.before = placeOf(before, m_before, after),
                            .after = placeOf(after, m_after, before)};
        if (before && after)
            change.properties = propertyChanges(*before, *after);
        change.variables = compareVariableLists(before, after);
        if (m_withChildren)
            change.children = compareChildren(before, after);
        if (!change.isEmpty())
            m_data->entities.append(change);
    }

    EntityPlace placeOf(const TDcEntity *entity, const TreePlaces &tree, const TDcEntity *other)
    {
        if (entity)
            return tree.spots.value(entity).place;
        return {.path = {}, .item = itemOf(other), .names = other->getName()};
    }

    /// The item for an entity, which is the same for one that moves and its peer.
    int itemOf(const TDcEntity *entity)
    {
        const TDcEntity *key = m_peers.value(entity, entity);
        if (const auto known = m_items.constFind(key); known != m_items.cend())
            return *known;
        const bool moves = m_stayBefore.contains(key);
        const bool isBefore = m_before.spots.contains(key);
        Item<TDcEntity> item{.before = isBefore, .after = moves || !isBefore, .name = entity->getName()};
        if (!moves) {
            auto copy = std::make_shared<TDcEntity>();
            Properties::copy(*copy, *entity);
            item.copy = std::move(copy);
        }
        m_data->entityItems.append(item);
        return *m_items.insert(key, int(m_data->entityItems.size()) - 1);
    }

    int newVariableItem(const TDcVariable *variable, bool before, bool after)
    {
        Item<TDcVariable> item{
            .before = before, .after = after, .name = variable ? variable->getName() : QString()};
        if (variable && before != after)
            item.copy = DictionaryCopy::copy(*variable);
        m_data->variableItems.append(std::move(item));
        return int(m_data->variableItems.size()) - 1;
    }

    /// What is taken out of \a first and put into \a second. `itemBefore(i, moves)` and `itemAfter(j)` give
    /// the items of what does not stay; what moves inside the list has the one that it got before.
    template <typename Object, typename ItemBefore, typename ItemAfter>
    static ListChange listChange(const QList<Object *> &first, const QList<Object *> &second,
                                 const Matching::Peers &peers, ItemBefore itemBefore, ItemAfter itemAfter)
    {
        ListChange change{.sizeBefore = int(first.size()), .sizeAfter = int(second.size())};
        const QList<bool> stays = staying(peers, first.size());
        const QSet<int> paired(peers.cbegin(), peers.cend());
        QHash<int, int> moving;
        for (int i = 0; i < first.size(); ++i) {
            if (stays.at(i))
                continue;
            const bool moves = paired.contains(i);
            change.taken.append({i, itemBefore(i, moves)});
            if (moves)
                moving.insert(i, change.taken.constLast().item);
        }
        for (int i = 0; i < second.size(); ++i) {
            if (peers.at(i) < 0)
                change.placed.append({i, itemAfter(i)});
            else if (!stays.at(peers.at(i)))
                change.placed.append({i, moving.value(peers.at(i))});
        }
        return change;
    }

    ListChange compareVariableLists(const TDcEntity *before, const TDcEntity *after)
    {
        const QList<TDcVariable *> &first = variablesOf(before);
        const QList<TDcVariable *> &second = variablesOf(after);
        const Matching::Peers &peers = *m_variablePeers.constFind({before, after});
        for (int i = 0; i < second.size(); ++i) {
            if (peers.at(i) >= 0 && second.at(i))
                compareVariables({before, peers.at(i)}, {after, i});
        }
        return listChange(
            first, second, peers,
            [&](int i, bool moves) {
                const auto elsewhere = m_movedBefore.constFind({before, i});
                return elsewhere != m_movedBefore.cend() ? *elsewhere
                                                         : newVariableItem(first.at(i), true, moves);
            },
            [&](int i) {
                const auto elsewhere = m_movedAfter.constFind({after, i});
                return elsewhere != m_movedAfter.cend() ? *elsewhere
                                                        : newVariableItem(second.at(i), false, true);
            });
    }

    void compareVariables(const VariableSpot &before, const VariableSpot &after)
    {
        const TDcVariable &first = *before.variable();
        const TDcVariable &second = *after.variable();
        VariableContent content = Difference::between(first, second);
        if (content.isEmpty())
            return;
        m_data->variables.append(
            {.before = {m_before.spots.value(before.entity).place, before.index, first.getName()},
             .after = {m_after.spots.value(after.entity).place, after.index, second.getName()},
             .content = std::move(content)});
    }

    ListChange compareChildren(const TDcEntity *before, const TDcEntity *after)
    {
        static const QList<TDcEntity *> none;
        const QList<TDcEntity *> &first = before ? *before->getChildren() : none;
        const QList<TDcEntity *> &second = after ? *after->getChildren() : none;
        Matching::Peers peers(second.size(), -1);
        int nextNull = int(first.indexOf(nullptr));
        for (int i = 0; i < second.size(); ++i) {
            const TDcEntity *peer = second.at(i) ? m_peers.value(second.at(i)) : nullptr;
            if (peer && before && m_before.spots.value(peer).parent == before)
                peers[i] = m_before.spots.value(peer).index;
            else if (!second.at(i) && nextNull >= 0) // Nulls pass for each other.
                nextNull = int(first.indexOf(nullptr, (peers[i] = nextNull) + 1));
        }
        const auto itemForNull = [this](bool isBefore, bool isAfter) {
            m_data->entityItems.append({.before = isBefore, .after = isAfter});
            return int(m_data->entityItems.size()) - 1;
        };
        return listChange(
            first, second, peers,
            [&](int i, bool moves) { return first.at(i) ? itemOf(first.at(i)) : itemForNull(true, moves); },
            [&](int i) { return second.at(i) ? itemOf(second.at(i)) : itemForNull(false, true); });
    }

    using Spot = std::pair<const TDcEntity *, int>;

    TreePlaces m_before;
    TreePlaces m_after;
    bool m_withChildren;
    QHash<const TDcEntity *, const TDcEntity *> m_peers; // Of the entities after.
    QSet<const TDcEntity *> m_stayBefore;
    QList<Pair> m_pairs; // One side is null for what is added or removed.
    QHash<std::pair<const TDcEntity *, const TDcEntity *>, Matching::Peers> m_variablePeers;
    QList<VariableSpot> m_leftBefore;
    QList<VariableSpot> m_leftAfter;
    QHash<Spot, int> m_movedBefore;
    QHash<Spot, int> m_movedAfter;
    QHash<const TDcEntity *, int> m_items;
    DictionaryDifference::Data *m_data = nullptr;
};
} // namespace

DictionaryDifference DictionaryDifference::between(const TDcEntity &before, const TDcEntity &after,
                                                   Scope scope)
{
    DictionaryDifference difference;
    TreeComparison(before, after, scope == Scope::WholeTree).fill(*difference.m_data);
    return difference;
}

DictionaryDifference DictionaryDifference::between(const TDcVariable &before, const TDcVariable &after)
{
    DictionaryDifference difference;
    difference.m_data->isOfVariable = true;
    if (VariableContent content = Difference::between(before, after); !content.isEmpty())
        difference.m_data->variables.append({.before = {{}, 0, before.getName()},
                                             .after = {{}, 0, after.getName()},
                                             .content = std::move(content)});
    return difference;
}
