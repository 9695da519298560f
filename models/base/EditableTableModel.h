#pragma once

#include "models/base/RowListModel.h"

/// A row list whose cells are edited in place, straight in the objects that they show.
template <typename Item>
class EditableTableModel : public RowListModel<Item>
{
public:
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override
    {
        if (role != Qt::DisplayRole && role != Qt::EditRole)
            return {};
        return getItemData(this->itemAt(index), index.column());
    }

    /// Takes every value as it comes. A role other than Qt::EditRole stores nothing; it is announced and
    /// answered with true like an edit, on purpose.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override
    {
        Item *item = this->itemAt(index);
        if (!item)
            return false;
        if (role == Qt::EditRole)
            store(*item, index.column(), value);
        Q_EMIT this->dataChanged(index, index);
        return true;
    }

    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        const Qt::ItemFlags flags = QAbstractItemModel::flags(index);
        return index.isValid() ? flags | Qt::ItemIsSelectable | Qt::ItemIsEditable : flags;
    }

    /// What the cell of \a item in \a column shows; invalid without an item and beyond the columns.
    [[nodiscard]] virtual QVariant getItemData(Item *item, int column) const = 0;

protected:
    /// Shows \a items. Later changes of the list that they come from are not seen.
    EditableTableModel(QObject *parent, const QList<Item *> &items) : RowListModel<Item>(parent)
    {
        if (items.isEmpty())
            return;
        this->beginInsertRows({}, 0, int(items.size()) - 1);
        this->m_rows = items;
        this->endInsertRows();
    }

    /// Writes \a value to the cell; nothing happens beyond the columns.
    virtual void store(Item &item, int column, const QVariant &value) = 0;
};
