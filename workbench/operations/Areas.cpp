#include "workbench/operations/Areas.h"

#include "model/PreOrder.h"
#include "model/SelectionTreeUnit.h"

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace
{
QList<SelectionTreeUnit *> unitsUnder(SelectionTreeUnit *root)
{
    QList<SelectionTreeUnit *> units;
    preOrder(root, [&units](SelectionTreeUnit *unit) { units.append(unit); });
    return units;
}

/// What the units below \a unit make of it.
Qt::CheckState stateOf(const SelectionTreeUnit &unit)
{
    const QList<SelectionTreeUnit *> &children = *unit.getChildren();
    const auto all = [&children](Qt::CheckState state) {
        return std::all_of(children.cbegin(), children.cend(), [state](const SelectionTreeUnit *child) {
            return child->getUnitState() == state;
        });
    };
    if (all(Qt::Checked))
        return Qt::Checked;
    return all(Qt::Unchecked) ? Qt::Unchecked : Qt::PartiallyChecked;
}

QString cell(const QString &text)
{
    const bool plain = std::none_of(text.cbegin(), text.cend(), [](QChar character) {
        return character == u',' || character == u'"' || character == u'\n' || character == u'\r';
    });
    return plain ? text : u'"' + QString(text).replace(u'"', u"\"\""_s) + u'"';
}
} // namespace

std::unique_ptr<SelectionTreeUnit> Areas::joined(QList<SelectionTreeUnit *> &roots, const QString &title)
{
    if (roots.isEmpty())
        return {};
    if (roots.size() == 1)
        return std::unique_ptr<SelectionTreeUnit>(roots.takeFirst());
    auto root = std::make_unique<SelectionTreeUnit>();
    root->setName(title);
    root->setArea({std::string(), title.toStdString()});
    root->getChildren()->swap(roots);
    preOrder(root.get(), [](SelectionTreeUnit *unit) {
        for (SelectionTreeUnit *child : std::as_const(*unit->getChildren()))
            child->setLevel(unit->getLevel() + 1);
    });
    return root;
}

void Areas::select(SelectionTreeUnit *root, SelectionTreeUnit *unit, bool selected)
{
    preOrder(unit, [selected](SelectionTreeUnit *below) {
        below->setUnitState(selected ? Qt::Checked : Qt::Unchecked);
    });
    const QList<SelectionTreeUnit *> units = unitsUnder(root);
    // Backwards, so that each unit comes after those below it.
    std::for_each(units.crbegin(), units.crend(), [](SelectionTreeUnit *candidate) {
        if (!candidate->getChildren()->isEmpty())
            candidate->setUnitState(stateOf(*candidate));
    });
}

Areas::Count Areas::count(SelectionTreeUnit *root)
{
    Count count;
    preOrder(root, [&count](const SelectionTreeUnit *unit) {
        if (!unit->getChildren()->isEmpty())
            return;
        ++count.all;
        if (unit->getUnitState() == Qt::Checked)
            ++count.selected;
    });
    return count;
}

QList<SelectionTreeUnit *> Areas::selected(SelectionTreeUnit *root)
{
    QList<SelectionTreeUnit *> found;
    QList<SelectionTreeUnit *> pending{root};
    while (!pending.isEmpty()) {
        SelectionTreeUnit *unit = pending.takeLast();
        if (unit->getUnitState() == Qt::Checked && !unit->getCode().isEmpty()) {
            found.append(unit);
        } else {
            const QList<SelectionTreeUnit *> &children = *unit->getChildren();
            std::copy(children.crbegin(), children.crend(), std::back_inserter(pending));
        }
    }
    return found;
}

QString Areas::toText(const QList<SelectionTreeUnit *> &units)
{
    QStringList codes;
    std::transform(units.cbegin(), units.cend(), std::back_inserter(codes),
                   [](const SelectionTreeUnit *unit) { return unit->getCode(); });
    return codes.join(u'\n');
}

QString Areas::toCsv(const QList<SelectionTreeUnit *> &units)
{
    QString text = u"code,name,area1,area2\n"_s;
    for (const SelectionTreeUnit *unit : units) {
        const auto area = unit->getArea();
        const QStringList cells{cell(unit->getCode()), cell(unit->getName()),
                                cell(QString::fromStdString(area.first)),
                                cell(QString::fromStdString(area.second))};
        text += cells.join(u',') + u'\n';
    }
    return text;
}
