#pragma once

#include "documents/checks/internal/Rules.h"
#include "documents/internal/Values.h"

#include <algorithm>

/// What rules about the values of a variable have in common.
namespace Checks
{
using Values::number;

[[nodiscard]] inline QList<Range *> ranges(const Variable &subject)
{
    return Values::ranges(subject.variable);
}

[[nodiscard]] inline bool contains(const QList<Range *> &list, double value)
{
    return std::any_of(list.cbegin(), list.cend(), [value](const Range *range) {
        return range->getRangeMin() <= value && value <= range->getRangeMax();
    });
}

/// Positions that a value has in its record: 0 when not known.
[[nodiscard]] inline int width(const Variable &subject)
{
    const int length = subject.variable.getFieldSize();
    return length <= 0 && subject.type.isText() ? subject.variable.getSize() : length;
}
} // namespace Checks
