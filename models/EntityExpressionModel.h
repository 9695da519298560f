#pragma once

#include "business/business_quillon_export.h"
#include "model/TDcEntity.h"
#include "models/base/NamedExpressionModel.h"

/// The entities that an expression may refer to.
class BUSINESS_QUILLON_EXPORT EntityExpressionModel : public NamedExpressionModel<TDcEntity>
{
    Q_OBJECT

public:
    /// Copies the pointers in \a items; the entities stay their owner's.
    EntityExpressionModel(QObject *parent, QList<TDcEntity *> *items, eEntityShowMode mode);
};
