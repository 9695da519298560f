#pragma once

#include "models/base/ExpressionListModel.h"

#include <QDebug>

/// An expression list of items with a name and a label, to which others can be added.
///
/// Drops are decoded by Qt, which trusts the payload: a drop on a row adds that row's item once more, one
/// below the last row adds nothing. Front ends add items with insertRows().
template <typename Item>
class NamedExpressionModel : public TextListDrag<ExpressionListModel<Item>>
{
public:
    [[nodiscard]] QVariant getItemData(Item *item, int) const override
    {
        if (!item)
            return {};
        switch (this->m_mode) {
        case ShowName:
            return item->getName();
        case ShowLabel:
            return item->getLabel();
        case ShowNameAndLabel:
            return QString(item->getName() + QStringLiteral(" - ") + item->getLabel());
        }
        return {};
    }

    /// Appends the one item that \a source carries, an index of any model whose indexes carry such items.
    /// Row and count are announced as given but do not matter: it is always one, and it goes to the end.
    /// False, and nothing announced, if \a source carries none.
    bool insertRows(int row, int count, const QModelIndex &source = {}) override
    {
        auto *item = static_cast<Item *>(source.internalPointer());
        if (!item)
            return false;
        this->beginInsertRows({}, row, row - 1 + count);
        this->m_rows.append(item);
        this->endInsertRows();
        return true;
    }

    bool removeRows(int row, int count, const QModelIndex &parent = {}) override
    {
        qDebug("Removing rows");
        return ExpressionListModel<Item>::removeRows(row, count, parent);
    }

protected:
    using TextListDrag<ExpressionListModel<Item>>::TextListDrag;
};
