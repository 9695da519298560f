#include "models/base/TextSearchProxyModel.h"

#include "models/internal/TextFilter.h"

TextSearchProxyModel::TextSearchProxyModel(QObject *parent, int columns)
    : QSortFilterProxyModel(parent), m_columns(columns), m_filter(std::make_unique<TextFilter>())
{
}

TextSearchProxyModel::~TextSearchProxyModel() = default;

bool TextSearchProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    m_filter->setExpression(filterRegularExpression());
    if (m_filter->matchesEverything() || m_filter->matchesNothing())
        return m_filter->matchesEverything();
    const QAbstractItemModel *source = sourceModel();
    for (int column = 0; column < m_columns; ++column) {
        if (m_filter->matches(source->data(source->index(sourceRow, column, sourceParent)).toString()))
            return true;
    }
    return false;
}
