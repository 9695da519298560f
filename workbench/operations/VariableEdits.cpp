#include "workbench/operations/VariableEdits.h"

#include "common/Constants.h"
#include "documents/DictionaryCopy.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "workbench/operations/NewNames.h"

#include <algorithm>
#include <memory>

namespace
{
using VariableEdits::Role;

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

void setRoleName(TDcEntity &entity, Role role, const QString &name)
{
    switch (role) {
    case Role::RefCode:
        entity.setRefCode(name);
        break;
    case Role::RefLabel:
        entity.setRefLabel(name);
        break;
    case Role::Weight:
        entity.setWeightVariable(name);
        break;
    }
}
} // namespace

int VariableEdits::nextTag(const TDcEntity &entity)
{
    int highest = 0;
    for (const TDcVariable *variable : std::as_const(*entity.getVariables()))
        highest = std::max(highest, variable->getTag());
    return highest + 1;
}

TDcVariable *VariableEdits::add(TDcEntity *entity, const QString &name)
{
    return add(entity, name, nextTag(*entity));
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
    int tag = nextTag(*entity);
    for (const TDcVariable *variable : variables) {
        std::unique_ptr<TDcVariable> copy = DictionaryCopy::copy(*variable);
        copy->setName(NewNames::variable(root, entity, variable->getName()));
        copy->setAlias({});
        copy->setTag(tag++);
        copies.append(copy.get());
        entity->addVariables(copy.release());
    }
    return copies;
}

bool VariableEdits::has(const TDcEntity &entity, const TDcVariable &variable, Role role)
{
    const QString name = variable.getName().trimmed();
    return !name.isEmpty() && roleName(entity, role).trimmed() == name;
}

void VariableEdits::toggle(TDcEntity &entity, const TDcVariable &variable, Role role)
{
    const bool taken = has(entity, variable, role);
    setRoleName(entity, role, taken ? QString() : variable.getName().trimmed());
    if (taken && role == Role::RefCode)
        entity.setSelectable(false);
}
