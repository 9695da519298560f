#pragma once

#include "cli/RoundTrip.h"

namespace Cli
{
/// What differs between two dictionary documents in keys that the layer does not know. Entities, variables,
/// ranges and value labels must be the same ones in both, in the same order. An undefined value stands for a
/// missing key.
[[nodiscard]] QList<Difference> otherDifferences(const QByteArray &before, const QByteArray &after);
} // namespace Cli
