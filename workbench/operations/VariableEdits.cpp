#include "workbench/operations/VariableEdits.h"

#include "common/Constants.h"
#include "documents/DictionaryCopy.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "workbench/operations/ListEdits.h"
#include "workbench/operations/NewNames.h"
#include "workbench/operations/NewTags.h"

#include <QSet>

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

namespace
{
using VariableEdits::Role;

constexpr Role roles[] = {Role::RefCode, Role::RefLabel, Role::Weight};

QString roleName(const TDcEntity &entity, Role role)
{
    switch (role) {
    case Role::RefCode:
        return entity.getRefCode();
    case Role::RefLabel:
        return entity.getRefLabel();
    case Role::Weight:
        return entity.getWeightVariable();
    }
    Q_UNREACHABLE();
}

bool anyHas(const TDcEntity &entity, const QList<TDcVariable *> &variables, Role role)
{
    return std::any_of(variables.cbegin(), variables.cend(), [&entity, role](const TDcVariable *variable) {
        return VariableEdits::has(entity, *variable, role);
    });
}
} // namespace

TDcVariable *VariableEdits::add(TDcEntity *entity, const QString &name)
{
    return add(entity, name, NewTags(*entity->getVariables()).take());
}

TDcVariable *VariableEdits::add(TDcEntity *entity, const QString &name, int tag)
{
    auto *variable = new TDcVariable;
    variable->setName(name);
    variable->setVarType(Constants::typeInteger);
    variable->setTag(tag);
    variable->setLevel(entity->getLevel());
    entity->addVariables(variable);
    return variable;
}

QList<TDcVariable *> VariableEdits::duplicate(TDcEntity *root, TDcEntity *entity,
                                              const QList<TDcVariable *> &variables)
{
    QList<TDcVariable *> copies;
    NewTags tags(*entity->getVariables());
    auto names = NewNames::forVariables(root, entity);
    for (const TDcVariable *variable : variables) {
        std::unique_ptr<TDcVariable> copy = DictionaryCopy::copy(*variable);
        copy->setName(names.take(variable->getName()));
        copy->setAlias({});
        copy->setTag(tags.take());
        copies.append(copy.get());
        entity->addVariables(copy.release());
    }
    return copies;
}

QList<Role> VariableEdits::rolesOf(const TDcEntity &entity, const QList<TDcVariable *> &variables)
{
    const QSet<TDcVariable *> leaving(variables.cbegin(), variables.cend());
    QList<TDcVariable *> others = *entity.getVariables();
    others.removeIf([&leaving](TDcVariable *variable) { return leaving.contains(variable); });
    QList<Role> found;
    std::copy_if(std::begin(roles), std::end(roles), std::back_inserter(found), [&](Role role) {
        return anyHas(entity, variables, role) && !anyHas(entity, others, role); // Names may be there twice.
    });
    return found;
}

void VariableEdits::takeOut(TDcEntity &entity, const QList<TDcVariable *> &variables)
{
    const QList<Role> lost = rolesOf(entity, variables);
    const QSet<TDcVariable *> leaving(variables.cbegin(), variables.cend());
    entity.getVariables()->removeIf([&leaving](TDcVariable *variable) { return leaving.contains(variable); });
    for (Role role : lost)
        setRole(entity, role, {});
}

void VariableEdits::remove(TDcEntity &entity, const QList<TDcVariable *> &variables)
{
    takeOut(entity, variables);
    qDeleteAll(variables);
}

bool VariableEdits::has(const TDcEntity &entity, const TDcVariable &variable, Role role)
{
    const QString name = variable.getName().trimmed();
    return !name.isEmpty() && roleName(entity, role).trimmed() == name;
}

void VariableEdits::toggle(TDcEntity &entity, const TDcVariable &variable, Role role)
{
    setRole(entity, role, has(entity, variable, role) ? QString() : variable.getName().trimmed());
}

void VariableEdits::setRole(TDcEntity &entity, Role role, const QString &name)
{
    switch (role) {
    case Role::RefCode:
        entity.setRefCode(name);
        if (name.trimmed().isEmpty())
            entity.setSelectable(false);
        break;
    case Role::RefLabel:
        entity.setRefLabel(name);
        break;
    case Role::Weight:
        entity.setWeightVariable(name);
        break;
    }
}
