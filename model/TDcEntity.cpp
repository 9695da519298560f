#include "model/TDcEntity.h"

#include "model/TDcVariable.h"

TDcEntity::TDcEntity() = default;

TDcEntity::~TDcEntity()
{
    deleteDescendants(*this);
}

void TDcEntity::setChildren(QList<TDcEntity *> *children)
{
    m_children.reset(children);
}

void TDcEntity::setVariables(QList<TDcVariable *> *variables)
{
    m_variables.reset(variables);
}

void TDcEntity::retireVariable(TDcVariable *variable)
{
    if (getVariables()->removeOne(variable))
        m_retired.append(variable);
}
