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

/// Adds a whole-number variable called \a name at the end, with a tag of its own.
TDcVariable *add(TDcEntity *entity, const QString &name);
/// The same with \a tag, for whoever adds many and counts.
TDcVariable *add(TDcEntity *entity, const QString &name, int tag);
/// Adds a copy of each of \a variables at the end, with free names and without alias.
QList<TDcVariable *> duplicate(TDcEntity *root, TDcEntity *entity, const QList<TDcVariable *> &variables);
/// The roles of \a entity that one of \a variables has, and no other variable of it.
[[nodiscard]] QList<Role> rolesOf(const TDcEntity &entity, const QList<TDcVariable *> &variables);
/// Takes \a variables, all of them of \a entity, out of it; the caller owns them then. A role that no
/// variable is left for is nobody's then.
void takeOut(TDcEntity &entity, const QList<TDcVariable *> &variables);
/// The same, and deletes them.
void remove(TDcEntity &entity, const QList<TDcVariable *> &variables);

[[nodiscard]] bool has(const TDcEntity &entity, const TDcVariable &variable, Role role);
/// Gives \a role to \a variable alone, or takes it away if it has it.
void toggle(TDcEntity &entity, const TDcVariable &variable, Role role);
/// Gives \a role to the variable called \a name; empty for none. An entity that loses its reference code is
/// not selectable any more.
void setRole(TDcEntity &entity, Role role, const QString &name);
} // namespace VariableEdits
