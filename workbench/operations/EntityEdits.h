#pragma once

#include <QSet>
#include <QString>

class TDcEntity;

/// Changes of the entity tree. They keep levels right and names free.
namespace EntityEdits
{
/// Adds an entity called \a name at the end of the children of \a parent.
TDcEntity *add(TDcEntity *parent, const QString &name);
/// Adds a copy of \a entity, which is not \a root, right after it; every entity of the copy gets a free name.
TDcEntity *duplicate(TDcEntity *root, TDcEntity *entity);
/// The entities that \a entity can be moved to: not itself nor any below it, and not where it is. None for
/// \a root.
[[nodiscard]] QSet<TDcEntity *> targets(TDcEntity *root, TDcEntity *entity);
/// Moves \a entity with everything below it to the end of the children of \a parent, if it can be.
void moveTo(TDcEntity *root, TDcEntity *entity, TDcEntity *parent);
/// Sets whether \a entity is selectable. Clearing the mark asks what is to become of selectable entities
/// below.
void setSelectable(TDcEntity *entity, bool selectable);
} // namespace EntityEdits
