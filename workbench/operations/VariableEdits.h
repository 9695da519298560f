#pragma once

#include <QList>
#include <QString>

class TDcEntity;
class TDcVariable;

/// Changes of an entity's variables.
namespace VariableEdits
{
/// What a variable can be for its entity.
enum class Role { RefCode, RefLabel, Weight };

/// Adds a whole-number variable called \a name at the end, with the tag after the highest.
TDcVariable *add(TDcEntity *entity, const QString &name);
/// Adds a copy of each of \a variables at the end, with free names and without alias.
QList<TDcVariable *> duplicate(TDcEntity *root, TDcEntity *entity, const QList<TDcVariable *> &variables);

[[nodiscard]] bool has(const TDcEntity &entity, const TDcVariable &variable, Role role);
/// Gives \a role to \a variable alone, or takes it away if it has it. An entity that loses its reference code
/// is not selectable any more.
void toggle(TDcEntity &entity, const TDcVariable &variable, Role role);
} // namespace VariableEdits
