#pragma once

#include <QList>
#include <QString>

class TDcEntity;
class TDcVariable;

/// Where things stand in a dictionary.
namespace Places
{
/// Whether \a entity is \a root or below it. The address is only compared, so it may be stale.
[[nodiscard]] bool holds(TDcEntity *root, const TDcEntity *entity);
/// The entity that \a entity is a child of; null for \a root and for what is not below it.
[[nodiscard]] TDcEntity *parentOf(TDcEntity *root, const TDcEntity *entity);

/// Where \a entity stands: rows from \a root, which has none, down.
[[nodiscard]] QList<qsizetype> rowsOf(TDcEntity *root, const TDcEntity *entity);
/// The entity at \a rows below \a root.
[[nodiscard]] TDcEntity *at(TDcEntity *root, const QList<qsizetype> &rows);

/// The first entity called \a name, in pre-order; null when there is none.
[[nodiscard]] TDcEntity *findEntity(TDcEntity *root, const QString &name);
/// The first variable of \a entity called \a name; null when there is none.
[[nodiscard]] TDcVariable *findVariable(const TDcEntity *entity, const QString &name);
} // namespace Places
