#include "workbench/operations/LabelSets.h"

#include "model/PreOrder.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "model/ValueLabelElement.h"

#include <QHash>
#include <QStringList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr qsizetype mostNamed = 4; // Labels that text() tells.
}

QString LabelSets::Set::text() const
{
    QStringList words;
    const QList<Label> some = labels.first(std::min(labels.size(), mostNamed));
    std::transform(some.cbegin(), some.cend(), std::back_inserter(words),
                   [](const Label &label) { return u"%1 %2"_s.arg(label.first, label.second).simplified(); });
    if (labels.size() > mostNamed)
        words.append(u"…"_s);
    return words.join(u", "_s);
}

QList<LabelSets::Set> LabelSets::shared(TDcEntity *root)
{
    QList<Set> sets;
    QHash<QList<Label>, qsizetype> places;
    preOrder(root, [&](TDcEntity *entity) {
        for (TDcVariable *variable : std::as_const(*entity->getVariables())) {
            const QList<ValueLabelElement *> &elements = *variable->getValueLabelElementList();
            if (elements.isEmpty())
                continue;
            QList<Label> labels;
            std::transform(elements.cbegin(), elements.cend(), std::back_inserter(labels),
                           [](const ValueLabelElement *element) {
                               return Label(element->getValue(), element->getLabel());
                           });
            const auto known = places.constFind(labels);
            const qsizetype place = known == places.cend() ? sets.size() : *known;
            if (known == places.cend()) {
                places.insert(labels, place);
                sets.append({labels, {}});
            }
            sets[place].members.append({entity, variable});
        }
    });
    sets.removeIf([](const Set &set) { return set.members.size() < 2; });
    std::stable_sort(sets.begin(), sets.end(), [](const Set &left, const Set &right) {
        return left.members.size() > right.members.size();
    });
    return sets;
}

void LabelSets::change(const Set &set, const QList<Edited> &edited)
{
    for (const Member &member : set.members) {
        QList<ValueLabelElement *> &elements = *member.variable->getValueLabelElementList();
        QList<ValueLabelElement *> old = std::exchange(elements, {});
        for (const Edited &label : edited) {
            ValueLabelElement *element =
                label.origin < 0 ? new ValueLabelElement : std::exchange(old[label.origin], nullptr);
            element->setValue(label.label.first);
            element->setLabel(label.label.second);
            elements.append(element);
        }
        qDeleteAll(old);
    }
}
