#pragma once

#include <QModelIndex>
#include <QVariant>

#include <initializer_list>
#include <optional>

/// How the sort proxies compare two cells: by rules, in the order in which they are given.
namespace SortRules
{
/// What a source model displays in a cell, and in which column.
struct Cell {
    QVariant value;
    int column;
};

/// Whether the left cell comes first; nothing where the rule does not apply to the two.
using Rule = std::optional<bool> (*)(const Cell &left, const Cell &right);

/// The answer of the first rule that applies; false when none does.
[[nodiscard]] bool less(const QModelIndex &left, const QModelIndex &right, std::initializer_list<Rule> rules);

/// Numerically, where the left value is something that may convert to a number, as every text may. What is no
/// number counts as 0.
std::optional<bool> numbers(const Cell &left, const Cell &right);
/// Numerically, where the left value is an int.
std::optional<bool> integers(const Cell &left, const Cell &right);
/// By date and time, where the left value is a date-time.
std::optional<bool> dates(const Cell &left, const Cell &right);
/// Both in the tag column (4): numbers of the default locale by value and before all other texts.
std::optional<bool> tags(const Cell &left, const Cell &right);
/// As texts in the order of the locale; of a text in column 1 only its first address ("name@host") counts, if
/// it has one. Always applies.
std::optional<bool> texts(const Cell &left, const Cell &right);
} // namespace SortRules
