#pragma once

#include "business/business_quillon_export.h"
#include "model/ValueLabelElement.h"
#include "models/base/ExpressionListModel.h"

/// The categories of a variable that an expression may refer to.
class BUSINESS_QUILLON_EXPORT CategoryExpressionModel : public ExpressionListModel<ValueLabelElement>
{
    Q_OBJECT

public:
    /// Copies the pointers in \a items; the categories stay their owner's.
    CategoryExpressionModel(QObject *parent, QList<ValueLabelElement *> *items, eEntityShowMode mode);

    /// Value and label, joined by a hyphen without blanks; the same in every mode.
    [[nodiscard]] QVariant getItemData(ValueLabelElement *item, int column) const override;
};
