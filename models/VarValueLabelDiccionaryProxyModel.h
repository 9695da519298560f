#pragma once

#include "business/business_quillon_export.h"

#include <QSortFilterProxyModel>

/// Sorts the categories of a variable: both columns by numeric value, where a text that is no number counts
/// as 0.
class BUSINESS_QUILLON_EXPORT VarValueLabelDiccionaryProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit VarValueLabelDiccionaryProxyModel(QObject *parent = nullptr);

protected:
    /// Accepts what its base accepts.
    [[nodiscard]] bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;
    [[nodiscard]] bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;
};
