#include "documents/internal/Matching.h"

#include "documents/internal/Properties.h"

#include <QSet>

#include <limits>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace Matching
{
namespace
{
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
