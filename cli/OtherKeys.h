#pragma once

#include "cli/RoundTrip.h"

namespace Cli
{
/// What differs between two dictionary documents and cannot be seen in the objects that are read from them.
/// An undefined value stands for a missing key.
struct OtherDifferences {
    QList<Difference> keys; ///< Keys that are not known.
    QList<Difference>
        values; ///< Known keys whose values are not what can stand there, such as a list for a label.

    [[nodiscard]] bool isEmpty() const { return keys.isEmpty() && values.isEmpty(); }
};

/// Compares two documents whose entities, variables, ranges and value labels are the same ones, in the same
/// order, with the same properties.
[[nodiscard]] OtherDifferences otherDifferences(const QByteArray &before, const QByteArray &after);
} // namespace Cli
