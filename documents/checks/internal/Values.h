#pragma once

#include "documents/checks/internal/Rules.h"
#include "model/MetadataVariables.h"

#include <algorithm>

/// What rules about the values of a variable have in common.
namespace Checks
{
[[nodiscard]] inline QString number(double value)
{
    return QString::number(value, 'g', 15);
}

/// The ranges of a variable, without nulls. A lookup's values come from its table: what is left of a range
/// has no meaning.
[[nodiscard]] inline QList<Range *> ranges(const Variable &subject)
{
    const MetadataVariables *metadata = subject.variable.getMetadataVariables();
    QList<Range *> found;
    if (metadata && !metadata->getLookup())
        found = *metadata->getRange();
    found.removeAll(nullptr);
    return found;
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
