#pragma once

#include "cli/ShowText.h"

#include <QByteArray>

namespace Cli
{
/// \a entities as JSON: a list in the order of the tree, each with its level, the name of its parent (null
/// for a root) and its variables with all that the objects hold. Safe to print on a terminal.
[[nodiscard]] QByteArray shownAsJson(const QString &path, const QList<ShownEntity> &entities);
} // namespace Cli
