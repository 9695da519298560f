#include "model/TDcVariable.h"

#include "model/ValueLabelElement.h"

TDcVariable::TDcVariable() = default;

TDcVariable::~TDcVariable() = default;

void TDcVariable::setMetadataVariables(MetadataVariables *metadata)
{
    if (metadata != m_metadataVariables.get())
        m_metadataVariables.reset(metadata);
}

void TDcVariable::setValueLabelElementList(QList<ValueLabelElement *> *elements)
{
    m_valueLabels.reset(elements);
}
