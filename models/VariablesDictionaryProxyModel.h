#pragma once

#include "models/base/TextSearchProxyModel.h"

/// Sorts the variables of a dictionary by text, tags by value, and searches all five columns.
class BUSINESS_QUILLON_EXPORT VariablesDictionaryProxyModel : public TextSearchProxyModel
{
    Q_OBJECT

public:
    explicit VariablesDictionaryProxyModel(QObject *parent = nullptr);

protected:
    [[nodiscard]] bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;
};
