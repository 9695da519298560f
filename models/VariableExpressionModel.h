#pragma once

#include "business/business_quillon_export.h"
#include "model/TDcVariable.h"
#include "models/base/NamedExpressionModel.h"

/// The variables that an expression may refer to.
class BUSINESS_QUILLON_EXPORT VariableExpressionModel : public NamedExpressionModel<TDcVariable>
{
    Q_OBJECT

public:
    /// Copies the pointers in \a items; the variables stay their owner's.
    VariableExpressionModel(QObject *parent, QList<TDcVariable *> *items, eEntityShowMode mode);
};
