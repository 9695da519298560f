#include "documents/internal/Matching.h"

#include "documents/internal/Properties.h"

#include <QSet>
#include <QStringList>

#include <limits>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace Matching
{
namespace
{
template <typename Item>
Peers noPeers(const QList<Item *> &after)
{
    return Peers(after.size(), -1);
}

/// A text that tells something, or a null one.
QString told(const QString &text)
{
    return text.isEmpty() ? QString() : text;
}

QString joined(const QStringList &texts)
{
    return texts.join(u'\x1f');
}

/// Everything but the name.
QString restOf(const TDcVariable &variable)
{
    QStringList texts;
    for (const auto &property : Properties::variableProperties) {
        if (property.name != "name"_L1)
            texts.append(property.get(variable).toString());
    }
    for (const ValueLabelElement *label : std::as_const(*variable.getValueLabelElementList()))
        texts << (label ? label->getValue() : QString()) << (label ? label->getLabel() : QString());
    return joined(texts);
}

QString sourceOf(const TDcVariable &variable)
{
    const MetadataVariables *layout = variable.getMetadataVariables();
    if (!layout || layout->getField().isEmpty())
        return {};
    return joined({layout->getRecord(), layout->getField(), variable.getVarType()});
}

QString nameOf(const TDcVariable &variable)
{
    return u"n"_s + variable.getName();
}

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

/// Items that are left on both sides at the same position.
template <typename Item>
void pairByPosition(const QList<Item *> &before, Peers &peers)
{
    const QSet<int> taken(peers.cbegin(), peers.cend());
    for (qsizetype i = 0; i < std::min(before.size(), peers.size()); ++i) {
        if (peers.at(i) < 0 && before.at(i) && !taken.contains(int(i)))
            peers[i] = int(i);
    }
}

QString exact(double number)
{
    return QString::number(number, 'g', std::numeric_limits<double>::max_digits10);
}
} // namespace

Peers variables(const QList<TDcVariable *> &before, const QList<TDcVariable *> &after)
{
    Peers peers = noPeers(after);
    const auto sameName = [](const TDcVariable *one, const TDcVariable *other) {
        return one && other ? one->getName() == other->getName() : one == other;
    };
    if (std::equal(before.cbegin(), before.cend(), after.cbegin(), after.cend(), sameName)) {
        std::iota(peers.begin(), peers.end(), 0);
        return peers;
    }
    pair<TDcVariable>(before, after, peers, nameOf, Repeated::InOrder);
    const Trait<TDcVariable> traits[] = {
        restOf,
        [](const TDcVariable &variable) {
            return variable.getLabel().isEmpty() ? QString()
                                                 : joined({variable.getLabel(), variable.getVarType()});
        },
        sourceOf,
        [](const TDcVariable &variable) { return told(variable.getAlias()); },
        [](const TDcVariable &variable) {
            return variable.getTag() == 0 ? QString() : QString::number(variable.getTag());
        },
    };
    for (const auto &trait : traits)
        pair(before, after, peers, trait, Repeated::TellNothing);
    return peers;
}

Peers ranges(const QList<Range *> &before, const QList<Range *> &after)
{
    Peers peers = noPeers(after);
    const Trait<Range> traits[] = {
        [](const Range &range) {
            return joined({exact(range.getRangeMin()), exact(range.getRangeMax())});
        },
        [](const Range &range) { return exact(range.getRangeMin()); },
        [](const Range &range) { return exact(range.getRangeMax()); },
    };
    for (const auto &trait : traits)
        pair(before, after, peers, trait, Repeated::InOrder);
    pairByPosition(before, peers);
    return peers;
}

Peers valueLabels(const QList<ValueLabelElement *> &before, const QList<ValueLabelElement *> &after)
{
    Peers peers = noPeers(after);
    const Trait<ValueLabelElement> traits[] = {
        [](const ValueLabelElement &label) {
            return joined({label.getValue(), label.getLabel()});
        },
        [](const ValueLabelElement &label) { return told(label.getValue()); },
        [](const ValueLabelElement &label) { return told(label.getLabel()); },
    };
    for (const auto &trait : traits)
        pair(before, after, peers, trait, Repeated::InOrder);
    pairByPosition(before, peers);
    return peers;
}

QHash<const TDcEntity *, const TDcEntity *> entities(const TDcEntity &before, const TDcEntity &after)
{
    return EntitySearch().peers(before, after);
}

Peers movedVariables(const QList<TDcVariable *> &before, const QList<TDcVariable *> &after)
{
    Peers peers = noPeers(after);
    pair<TDcVariable>(
        before, after, peers,
        [](const TDcVariable &variable) {
            return variable.getName().isEmpty()
                ? QString()
                : joined({variable.getName(), variable.getVarType(), variable.getLabel()});
        },
        Repeated::TellNothing);
    return peers;
}
} // namespace Matching
