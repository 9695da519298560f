#include "workbench/operations/ValueCopies.h"

#include "documents/DictionaryCopy.h"
#include "documents/DictionaryEquality.h"
#include "model/ValueLabelElement.h"
#include "workbench/operations/Layouts.h"

#include <QSet>

#include <algorithm>
#include <memory>
#include <utility>

namespace
{
/// What tells one item of a variable from another.
QString keyOf(const ValueLabelElement &element)
{
    return element.getValue().trimmed();
}

std::pair<double, double> keyOf(const Range &range)
{
    return {range.getRangeMin(), range.getRangeMax()};
}

/// Empties \a to if asked, and adds copies of those of \a from that it does not have.
template <typename Item>
void copyItems(const QList<Item *> &from, QList<Item *> &to, bool replace)
{
    if (replace)
        qDeleteAll(std::exchange(to, {}));
    QSet<decltype(keyOf(std::declval<const Item &>()))> there;
    for (const Item *item : std::as_const(to))
        there.insert(keyOf(*item));
    for (const Item *item : from) {
        // A source that repeats itself is copied as it is.
        if (replace || !there.contains(keyOf(*item)))
            to.append(DictionaryCopy::copy(*item).release());
    }
}

template <typename Item>
bool equal(const QList<Item *> &left, const QList<Item *> &right)
{
    return std::equal(
        left.cbegin(), left.cend(), right.cbegin(), right.cend(),
        [](const Item *one, const Item *other) { return DictionaryEquality::equal(*one, *other); });
}

void copyTo(TDcVariable &target, const TDcVariable &source, const ValueCopies::What &what)
{
    if (what.valueLabels
        && !(what.replace && equal(*source.getValueLabelElementList(), *target.getValueLabelElementList())))
        copyItems(*source.getValueLabelElementList(), *target.getValueLabelElementList(), what.replace);
    const bool same = what.replace ? equal(Layouts::ranges(source), Layouts::ranges(target))
                                   : Layouts::ranges(source).isEmpty();
    if (what.ranges && !same)
        copyItems(Layouts::ranges(source), *Layouts::of(target).getRange(), what.replace);
    if (what.missing) {
        target.setMissing(source.getMissing());
        target.setNotappl(source.getNotappl());
    }
}
} // namespace

ValueCopies::What ValueCopies::contents(const TDcVariable &source)
{
    return {.valueLabels = !source.getValueLabelElementList()->isEmpty(),
            .ranges = !Layouts::ranges(source).isEmpty(),
            .missing = true};
}

void ValueCopies::apply(const TDcVariable &source, const QList<TDcVariable *> &targets, const What &what)
{
    for (TDcVariable *target : targets) {
        if (target != &source)
            copyTo(*target, source, what);
    }
}

QString ValueCopies::preview(const TDcVariable &source, const QList<TDcVariable *> &targets, const What &what)
{
    int changed = 0;
    int labelled = 0;
    int ranged = 0;
    for (const TDcVariable *target : targets) {
        if (target == &source)
            continue;
        const std::unique_ptr<TDcVariable> after = DictionaryCopy::copy(*target);
        copyTo(*after, source, what);
        if (DictionaryEquality::equal(*after, *target))
            continue;
        ++changed;
        const QList<ValueLabelElement *> &labels = *target->getValueLabelElementList();
        const QList<Range *> ranges = Layouts::ranges(*target);
        labelled += what.replace && !labels.isEmpty() && !equal(labels, *after->getValueLabelElementList());
        ranged += what.replace && !ranges.isEmpty() && !equal(ranges, Layouts::ranges(*after));
    }
    if (changed == 0)
        return tr("Nothing will change.");
    QString text =
        changed == 1 ? tr("One variable will change.") : tr("%L1 variables will change.").arg(changed);
    if (labelled > 0)
        text += u' ' + tr("Variables whose value labels will be replaced: %L1.").arg(labelled);
    if (ranged > 0)
        text += u' ' + tr("Variables whose ranges will be replaced: %L1.").arg(ranged);
    return text;
}
