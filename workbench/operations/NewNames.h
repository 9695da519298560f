#pragma once

#include <QList>
#include <QString>

class TDcEntity;

/// Names for what a person adds, such that the layer's naming rules accept them.
namespace NewNames
{
/// \a base, or \a base followed by "_2", "_3" ..., whatever none of \a taken is equal to, case aside.
[[nodiscard]] QString free(const QString &base, const QList<QString> &taken);
/// A free entity name: no entity's name or alias and no group of the dictionary.
[[nodiscard]] QString entity(TDcEntity *root, const QString &base);
/// A free variable name: no entity's name, and no name or alias of a variable of \a entity.
[[nodiscard]] QString variable(TDcEntity *root, TDcEntity *entity, const QString &base);
} // namespace NewNames
