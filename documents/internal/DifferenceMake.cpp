#include "documents/internal/DifferenceData.h"

#include "documents/DictionaryCopy.h"
#include "documents/internal/Matching.h"
#include "documents/internal/Properties.h"

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace Difference
{
namespace
{
QString nameOf(const Range &range)
{
    return u"%1 - %2"_s.arg(range.getRangeMin()).arg(range.getRangeMax());
}

QString nameOf(const ValueLabelElement &label)
{
    return label.getValue();
}

/// An item with a copy of \a object, which may be null, when it is on one side only.
template <typename Object>
Item<Object> itemOf(const Object *object, bool before, bool after)
{
    std::shared_ptr<const Object> copy;
    if (object && before != after)
        copy = DictionaryCopy::copy(*object);
    return {.before = before,
            .after = after,
            .name = object ? nameOf(*object) : QString(),
            .copy = std::move(copy)};
}

/// The difference of two lists of which nothing is found in any other list.
template <typename Object, typename Match>
PartsChange<Object> partsChange(const QList<Object *> &before, const QList<Object *> &after, Match match)
{
    if (std::equal(before.cbegin(), before.cend(), after.cbegin(), after.cend(),
                   [](const Object *one, const Object *other) {
                       return one && other ? Properties::same(*one, *other) : one == other;
                   }))
        return {};

    PartsChange<Object> change{.list = {.sizeBefore = int(before.size()), .sizeAfter = int(after.size())}};
    const QList<int> peers = match(before, after);
    const QList<bool> stays = staying(peers, before.size());
    QList<bool> isPeer(before.size());
    std::for_each(peers.cbegin(), peers.cend(), [&isPeer](int peer) {
        if (peer >= 0)
            isPeer[peer] = true;
    });

    QList<int> items(before.size(), -1);
    for (qsizetype i = 0; i < before.size(); ++i) {
        if (stays.at(i))
            continue;
        items[i] = int(change.items.size());
        change.list.taken.append({int(i), items.at(i)});
        change.items.append(itemOf<Object>(before.at(i), true, isPeer.at(i)));
    }
    for (qsizetype i = 0; i < after.size(); ++i) {
        const int peer = peers.at(i);
        if (peer < 0) {
            change.list.placed.append({int(i), int(change.items.size())});
            change.items.append(itemOf<Object>(after.at(i), false, true));
            continue;
        }
        if (!stays.at(peer))
            change.list.placed.append({int(i), items.at(peer)});
        if (!before.at(peer) || !after.at(i))
            continue;
        if (PropertyChanges edits = propertyChanges(*before.at(peer), *after.at(i)); !edits.isEmpty())
            change.edits.append({peer, int(i), nameOf(*before.at(peer)), std::move(edits)});
    }
    return change;
}
} // namespace

QList<bool> staying(const QList<int> &peers, qsizetype sizeBefore)
{
    // Positions in peers: of the longest ascents of every length, those with the lowest ends.
    QList<int> ends;
    QList<int> previous(peers.size(), -1);
    for (qsizetype i = 0; i < peers.size(); ++i) {
        if (peers.at(i) < 0)
            continue;
        const auto place = std::lower_bound(ends.begin(), ends.end(), peers.at(i),
                                            [&peers](int end, int peer) { return peers.at(end) < peer; });
        if (place != ends.begin())
            previous[i] = *std::prev(place);
        if (place == ends.end())
            ends.append(int(i));
        else
            *place = int(i);
    }
    QList<bool> stays(sizeBefore);
    for (int i = ends.isEmpty() ? -1 : ends.constLast(); i >= 0; i = previous.at(i))
        stays[peers.at(i)] = true;
    return stays;
}

VariableContent between(const TDcVariable &before, const TDcVariable &after)
{
    VariableContent content{.properties = propertyChanges(before, after)};
    const MetadataVariables *layoutBefore = before.getMetadataVariables();
    const MetadataVariables *layoutAfter = after.getMetadataVariables();
    content.layoutBefore = layoutBefore != nullptr;
    content.layoutAfter = layoutAfter != nullptr;
    if (layoutBefore && layoutAfter) {
        content.layoutProperties = propertyChanges(*layoutBefore, *layoutAfter);
        content.ranges = partsChange(*layoutBefore->getRange(), *layoutAfter->getRange(), Matching::ranges);
    } else if (layoutBefore || layoutAfter) {
        content.layout = DictionaryCopy::copy(layoutBefore ? *layoutBefore : *layoutAfter);
    }
    content.labels = partsChange(*before.getValueLabelElementList(), *after.getValueLabelElementList(),
                                 Matching::valueLabels);
    return content;
}
} // namespace Difference
