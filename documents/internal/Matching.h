#pragma once

#include "model/TDcEntity.h"
#include "model/TDcVariable.h"

#include <QHash>
#include <QList>
#include <QStringList>

#include <functional>

/// Which object of one dictionary is which of another.
namespace Matching
{
/// Positions in two lists: for each item of the second the one of the first, or -1.
using Peers = QList<int>;

/// One way to tell an item: what two that are the same have in common. A null text tells nothing.
template <typename Item>
using Trait = std::function<QString(const Item &)>;

/// What to do about traits that several items of a list share.
enum class Repeated { InOrder, TellNothing };

/// A text that tells something, or a null one.
[[nodiscard]] inline QString told(const QString &text)
{
    return text.isEmpty() ? QString() : text;
}

[[nodiscard]] inline QString joined(const QStringList &texts)
{
    return texts.join(QChar(0x1f));
}

template <typename Item>
[[nodiscard]] Peers noPeers(const QList<Item *> &after)
{
    return Peers(after.size(), -1);
}

/// Pairs items that have no peer yet and share \a trait, in linear time.
template <typename Item>
void pair(const QList<Item *> &before, const QList<Item *> &after, Peers &peers, const Trait<Item> &trait,
          Repeated repeated)
{
    if (!peers.contains(-1))
        return;
    QList<bool> taken(before.size());
    for (const int peer : std::as_const(peers)) {
        if (peer >= 0)
            taken[peer] = true;
    }
    QHash<QString, QList<int>> first;
    QHash<QString, QList<int>> second;
    const auto gather = [&trait](QHash<QString, QList<int>> &into, const Item *item, qsizetype index) {
        // Lists may hold nulls; they pass for each other.
        if (const QString shared = item ? trait(*item) : QStringLiteral("\a"); !shared.isNull())
            into[shared].append(int(index));
    };
    for (qsizetype i = 0; i < before.size(); ++i) {
        if (!taken.at(i))
            gather(first, before.at(i), i);
    }
    for (qsizetype i = 0; i < after.size(); ++i) {
        if (peers.at(i) < 0)
            gather(second, after.at(i), i);
    }
    for (auto entry = second.cbegin(); entry != second.cend(); ++entry) {
        const QList<int> candidates = first.value(entry.key());
        if (repeated == Repeated::TellNothing && (candidates.size() != 1 || entry->size() != 1))
            continue;
        for (qsizetype i = 0; i < std::min(candidates.size(), entry->size()); ++i)
            peers[entry->at(i)] = candidates.at(i);
    }
}

/// The variables of an entity: by name, then by what stayed of them.
[[nodiscard]] Peers variables(const QList<TDcVariable *> &before, const QList<TDcVariable *> &after);
[[nodiscard]] Peers ranges(const QList<Range *> &before, const QList<Range *> &after);
[[nodiscard]] Peers valueLabels(const QList<ValueLabelElement *> &before,
                                const QList<ValueLabelElement *> &after);

/// For each entity below and including \a after the one of \a before that it was.
[[nodiscard]] QHash<const TDcEntity *, const TDcEntity *> entities(const TDcEntity &before,
                                                                   const TDcEntity &after);

/// Variables that have no peer in their own entity and are found in another one, by name, type and label.
[[nodiscard]] Peers movedVariables(const QList<TDcVariable *> &before, const QList<TDcVariable *> &after);
} // namespace Matching
