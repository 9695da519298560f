#pragma once

#include "models/base/DragListModel.h"
#include "models/eEntityShowMode.h"

#include <QIcon>

/// The items that an expression may refer to, one to a row, all with the same icon.
///
/// Keeps a list of its own, which later changes to the caller's list do not reach. Taking a row out never
/// deletes the item.
template <typename Item>
class ExpressionListModel : public DragListModel<Item>
{
public:
    /// The model's own list, valid as long as the model.
    [[nodiscard]] QList<Item *> *getData() const { return m_list; }
    /// What the row of \a item shows; the column is not looked at.
    [[nodiscard]] virtual QVariant getItemData(Item *item, int column) const = 0;

    [[nodiscard]] int columnCount(const QModelIndex & = {}) const override { return 1; }

    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override
    {
        if (role == Qt::DisplayRole)
            return getItemData(this->itemAt(index), index.column());
        if (role == Qt::DecorationRole && index.isValid() && index.column() == 0)
            return QIcon(QStringLiteral(":/icons/res/icons/48px-Project-preferences.png"));
        return {};
    }

    /// Announces the rows as asked and takes out those of them that there are; always true.
    bool removeRows(int row, int count, const QModelIndex & = {}) override
    {
        this->beginRemoveRows({}, row, row - 1 + count);
        if (row >= 0 && row < m_list->size() && count > 0)
            m_list->remove(row, qMin<qsizetype>(count, m_list->size() - row));
        this->endRemoveRows();
        return true;
    }

protected:
    /// Shows what is in \a items by now; null stands for none.
    ExpressionListModel(QObject *parent, const QList<Item *> *items, eEntityShowMode mode)
        : DragListModel<Item>(parent), m_mode(mode)
    {
        this->fill(items ? *items : QList<Item *>());
    }

    const eEntityShowMode m_mode;

private:
    QList<Item *> *const m_list = &this->m_rows; // getData() hands it out from a constant model.
};
