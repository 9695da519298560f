#pragma once

#include "models/base/TextSearchProxyModel.h"

/// Sorts and searches the ranges of a variable. Whole bounds sort by value, decimal ones as texts (10.5
/// before 9.5), on purpose.
class BUSINESS_QUILLON_EXPORT VarRangeProxyModel : public TextSearchProxyModel
{
    Q_OBJECT

public:
    explicit VarRangeProxyModel(QObject *parent = nullptr);

protected:
    [[nodiscard]] bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;
};
