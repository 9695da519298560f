#include "documents/internal/Matching.h"

#include <QSet>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

// The search for the entities that were renamed or moved.
namespace Matching
{
namespace
{
/// The names of an entity's variables, the same for every order.
QString variableNamesOf(const TDcEntity &entity)
{
    QStringList names;
    for (const TDcVariable *variable : std::as_const(*entity.getVariables())) {
        if (variable)
            names.append(variable->getName());
    }
    names.sort();
    return told(joined(names));
}

/// Whether at least half of what two entities hold has the same names.
bool haveMuchInCommon(const TDcEntity &before, const TDcEntity &after)
{
    const auto names = [](const TDcEntity &entity) {
        QSet<QString> found;
        for (const TDcVariable *variable : std::as_const(*entity.getVariables()))
            found.insert(variable ? u"v"_s + variable->getName() : QString());
        for (const TDcEntity *child : std::as_const(*entity.getChildren()))
            found.insert(child ? u"e"_s + child->getName() : QString());
        return found;
    };
    const QSet<QString> first = names(before);
    const QSet<QString> second = names(after);
    const qsizetype common = QSet<QString>(first).intersect(second).size();
    return common > 0 && 2 * common >= std::max(first.size(), second.size());
}

/// Every child is compared with every candidate, but not when there are thousands of both.
constexpr qsizetype mostComparisons = 4096;

/// Entities with their peers, as the search for them goes on.
class EntitySearch
{
public:
    QHash<const TDcEntity *, const TDcEntity *> peers(const TDcEntity &before, const TDcEntity &after)
    {
        add(&before, &after);
        gather(before, m_before);
        gather(after, m_after);
        pairEverywhere([](const TDcEntity &entity) { return told(entity.getName()); });
        for (const auto *entity : std::as_const(m_after))
            pairRenamedChildren(entity);
        pairEverywhere(variableNamesOf);
        return m_peers;
    }

private:
    /// Makes a pair, and pairs of all below it that have kept name and place.
    void add(const TDcEntity *before, const TDcEntity *after)
    {
        QList<std::pair<const TDcEntity *, const TDcEntity *>> pending{{before, after}};
        while (!pending.isEmpty()) {
            const auto [first, second] = pending.takeLast();
            m_peers.insert(second, first);
            m_taken.insert(first);
            const auto names = [](const TDcEntity &entity) { return u"n"_s + entity.getName(); };
            pairLists(free(*first->getChildren()), open(*second->getChildren()), names, Repeated::InOrder,
                      [&pending](const TDcEntity *one, const TDcEntity *other) {
                          pending.append(std::pair(one, other));
                      });
        }
    }

    template <typename Found>
    static void pairLists(const QList<TDcEntity *> &before, const QList<TDcEntity *> &after,
                          const Trait<TDcEntity> &trait, Repeated repeated, Found found)
    {
        Peers peers = noPeers(after);
        pair(before, after, peers, trait, repeated);
        for (qsizetype i = 0; i < after.size(); ++i) {
            if (peers.at(i) >= 0)
                found(before.at(peers.at(i)), after.at(i));
        }
    }

    void pairEverywhere(const Trait<TDcEntity> &trait)
    {
        pairLists(free(m_before), open(m_after), trait, Repeated::TellNothing,
                  [this](auto *one, auto *other) {
                      if (!m_taken.contains(one) && !m_peers.contains(other)) // May be by now, with a parent.
                          add(one, other);
                  });
    }

    void pairRenamedChildren(const TDcEntity *after)
    {
        const TDcEntity *before = m_peers.value(after);
        if (!before)
            return;
        const auto sameRest = [](const TDcEntity &entity) {
            return entity.getLabel().isEmpty()
                ? QString()
                : joined({entity.getLabel(), entity.getAlias(), entity.getRefCode()});
        };
        const auto makePair = [this](auto *one, auto *other) { add(one, other); };
        pairLists(free(*before->getChildren()), open(*after->getChildren()), variableNamesOf,
                  Repeated::TellNothing, makePair);
        pairLists(free(*before->getChildren()), open(*after->getChildren()), sameRest, Repeated::TellNothing,
                  makePair);
        const QList<TDcEntity *> candidates = free(*before->getChildren());
        const QList<TDcEntity *> children = open(*after->getChildren());
        if (candidates.size() * children.size() > mostComparisons)
            return;
        for (TDcEntity *child : children) {
            const auto found =
                std::find_if(candidates.cbegin(), candidates.cend(), [&](const TDcEntity *candidate) {
                    return !m_taken.contains(candidate) && haveMuchInCommon(*candidate, *child);
                });
            if (found != candidates.cend())
                add(*found, child);
        }
    }

    static void gather(const TDcEntity &root, QList<TDcEntity *> &entities)
    {
        entities.append(const_cast<TDcEntity *>(&root));
        for (qsizetype i = 0; i < entities.size(); ++i) {
            for (TDcEntity *child : std::as_const(*entities.at(i)->getChildren())) {
                if (child)
                    entities.append(child);
            }
        }
    }

    [[nodiscard]] QList<TDcEntity *> free(const QList<TDcEntity *> &before) const
    {
        QList<TDcEntity *> found;
        std::copy_if(before.cbegin(), before.cend(), std::back_inserter(found),
                     [this](TDcEntity *entity) { return entity && !m_taken.contains(entity); });
        return found;
    }

    [[nodiscard]] QList<TDcEntity *> open(const QList<TDcEntity *> &after) const
    {
        QList<TDcEntity *> found;
        std::copy_if(after.cbegin(), after.cend(), std::back_inserter(found),
                     [this](TDcEntity *entity) { return entity && !m_peers.contains(entity); });
        return found;
    }

    QHash<const TDcEntity *, const TDcEntity *> m_peers;
    QSet<const TDcEntity *> m_taken;
    QList<TDcEntity *> m_before;
    QList<TDcEntity *> m_after;
};
} // namespace

QHash<const TDcEntity *, const TDcEntity *> entities(const TDcEntity &before, const TDcEntity &after)
{
    return EntitySearch().peers(before, after);
}
} // namespace Matching
