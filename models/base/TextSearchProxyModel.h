#pragma once

#include "business/business_quillon_export.h"

#include <QSortFilterProxyModel>

#include <memory>

class TextFilter;

/// A proxy that accepts the rows where the filter expression matches one of the first columns.
///
/// It looks at what the source displays, in upper case and without surrounding blanks: an expression written
/// in lower case matches nothing unless it is case-insensitive. Filter key column and role play no part.
class BUSINESS_QUILLON_EXPORT TextSearchProxyModel : public QSortFilterProxyModel
{
public:
    ~TextSearchProxyModel() override;

protected:
    /// Searches columns 0 to \a columns - 1 of the source.
    TextSearchProxyModel(QObject *parent, int columns);

    [[nodiscard]] bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

private:
    const int m_columns;
    const std::unique_ptr<TextFilter> m_filter; // Follows the filter expression.
};
