#include "workbench/operations/VariableMoves.h"

#include "common/DictionaryUtil.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "workbench/operations/NewNames.h"
#include "workbench/operations/NewTags.h"
#include "workbench/operations/VariableEdits.h"

#include <QSet>

VariableMoves::VariableMoves(TDcEntity *root, TDcEntity *from, const QList<TDcVariable *> &variables,
                             TDcEntity *to)
    : m_from(from), m_to(to), m_variables(variables)
{
    // An alias may be called as an entity is.
    DictionaryUtil gather;
    NewNames names = NewNames::forVariables(root, to);
    NewNames aliases(gather.getAliasVariableByEntity(to, gather.getNamesVariablesByEntities(to, {})));
    QSet<int> tags{0}; // Any number of variables may have none.
    for (const TDcVariable *variable : std::as_const(*to->getVariables()))
        tags.insert(variable->getTag());
    NewTags newTags(*to->getVariables() + variables);
    for (TDcVariable *variable : variables) {
        Arrival arrival{variable, names.take(variable->getName()), {}, variable->getTag()};
        (void)aliases.take(arrival.name);
        if (const QString alias = variable->getAlias(); aliases.isFree(alias)) {
            arrival.alias = aliases.take(alias);
            (void)names.take(alias);
        }
        if (arrival.tag != 0 && tags.contains(arrival.tag))
            arrival.tag = newTags.take();
        tags.insert(arrival.tag);
        m_arrivals.append(arrival);
    }
}

QStringList VariableMoves::consequences() const
{
    using VariableEdits::Role;
    QStringList lines;
    for (const Arrival &arrival : m_arrivals) {
        const QString name = arrival.variable->getName();
        if (arrival.name != name)
            lines.append(tr("%1 will be called %2, since the name is taken there.").arg(name, arrival.name));
        if (arrival.alias != arrival.variable->getAlias())
            lines.append(tr("%1 will lose its alias %2, which is taken there.")
                             .arg(name, arrival.variable->getAlias()));
    }
    const QList<Role> lost = VariableEdits::rolesOf(*m_from, m_variables);
    if (lost.contains(Role::RefCode))
        lines.append(tr("%1 will have no reference code and not be selectable.").arg(m_from->getName()));
    if (lost.contains(Role::RefLabel))
        lines.append(tr("%1 will have no reference label.").arg(m_from->getName()));
    if (lost.contains(Role::Weight))
        lines.append(tr("%1 will have no weight.").arg(m_from->getName()));
    return lines;
}

void VariableMoves::apply() const
{
    VariableEdits::takeOut(*m_from, m_variables);
    for (const Arrival &arrival : m_arrivals) {
        TDcVariable *variable = arrival.variable;
        variable->setName(arrival.name);
        variable->setAlias(arrival.alias);
        variable->setTag(arrival.tag);
        if (variable->getLevel() == m_from->getLevel()) // Those of a file have none.
            variable->setLevel(m_to->getLevel());
        m_to->addVariables(variable);
    }
}
