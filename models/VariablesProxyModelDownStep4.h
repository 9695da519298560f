#pragma once

#include "business/business_quillon_export.h"

#include <QSortFilterProxyModel>

/// Sorts the variables of a wizard's last step by text.
class BUSINESS_QUILLON_EXPORT VariablesProxyModelDownStep4 : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit VariablesProxyModelDownStep4(QObject *parent = nullptr);

protected:
    /// Accepts what its base accepts.
    [[nodiscard]] bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;
    [[nodiscard]] bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;
};
