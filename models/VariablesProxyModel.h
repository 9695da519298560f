#pragma once

#include "models/base/TextSearchProxyModel.h"

#include <QDate>

/// Sorts variables by text, tags by value, and searches name, alias, label and group.
class BUSINESS_QUILLON_EXPORT VariablesProxyModel : public TextSearchProxyModel
{
    Q_OBJECT

public:
    explicit VariablesProxyModel(QObject *parent = nullptr);

    /// Sets a bound of dateInRange(); an invalid date takes it away.
    void setFilterMinimumDate(QDate date);
    void setFilterMaximumDate(QDate date);
    /// Whether \a date lies between the two bounds, which are not in the range themselves. The filter does
    /// not ask it.
    [[nodiscard]] bool dateInRange(QDate date) const;

protected:
    [[nodiscard]] bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    QDate m_minDate; // Invalid: no bound.
    QDate m_maxDate;
};
