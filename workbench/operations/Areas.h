#pragma once

#include <QList>
#include <QString>

#include <memory>

class SelectionTreeUnit;

/// Which area units of a tree are selected. A unit counts as selected when all below it are, and as partly
/// selected when some are.
namespace Areas
{
/// The one root that a tree of \a roots needs, which it takes over: their only one, or a unit without code
/// above them, called \a title. Null when there are none.
[[nodiscard]] std::unique_ptr<SelectionTreeUnit> joined(QList<SelectionTreeUnit *> &roots,
                                                        const QString &title);

/// Selects \a unit and all below it, or stops it, and brings all other units under \a root into line.
void select(SelectionTreeUnit *root, SelectionTreeUnit *unit, bool selected);

struct Count {
    qsizetype selected = 0;
    qsizetype all = 0;
};
/// The areas that have no others below them.
[[nodiscard]] Count count(SelectionTreeUnit *root);

/// The fewest units that stand for all that is selected, in the order of the tree: a selected unit stands for
/// all below it. Units without code are left to those below them.
[[nodiscard]] QList<SelectionTreeUnit *> selected(SelectionTreeUnit *root);
/// The codes of \a units, one to a line.
[[nodiscard]] QString toText(const QList<SelectionTreeUnit *> &units);
/// \a units as a table with a header, which AreaUnitFile reads: their codes, names and area texts.
[[nodiscard]] QString toCsv(const QList<SelectionTreeUnit *> &units);
} // namespace Areas
