#pragma once

#include "models/base/TextSearchProxyModel.h"

/// Sorts the fields of a dataset by text, numbers by value, and searches all three columns.
class BUSINESS_QUILLON_EXPORT VariablesDatasetProxyModel : public TextSearchProxyModel
{
    Q_OBJECT

public:
    explicit VariablesDatasetProxyModel(QObject *parent = nullptr);

protected:
    [[nodiscard]] bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;
};
