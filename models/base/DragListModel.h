#pragma once

#include "models/base/RowListModel.h"

#include <QStringList>

namespace TextList
{
/// The type under which a list of texts is dragged.
inline constexpr QLatin1StringView mimeType("application/vnd.text.list");
} // namespace TextList

/// A row list that items are dragged from: they can be picked up, and every place takes drops.
template <typename Item>
class DragListModel : public RowListModel<Item>
{
public:
    /// Stores nothing. An edit of an item is announced and answered with true, so that views take it as done.
    bool setData(const QModelIndex &index, const QVariant &, int = Qt::EditRole) override
    {
        if (!this->itemAt(index))
            return false;
        Q_EMIT this->dataChanged(index, index);
        return true;
    }

    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        const Qt::ItemFlags flags = QAbstractItemModel::flags(index) | Qt::ItemIsDropEnabled;
        return index.isValid() ? flags | Qt::ItemIsDragEnabled : flags;
    }

protected:
    using RowListModel<Item>::RowListModel;

    /// Shows \a items, for constructors. One row is announced whatever their number, as nobody listens yet.
    void fill(const QList<Item *> &items)
    {
        this->beginInsertRows({}, 0, 0);
        this->m_rows = items;
        this->endInsertRows();
    }

    /// The objects behind \a indexes, in their order, as often as they occur there.
    [[nodiscard]] QList<Item *> itemsAt(const QModelIndexList &indexes) const
    {
        QList<Item *> items;
        for (const QModelIndex &index : indexes) {
            if (Item *item = this->itemAt(index))
                items.append(item);
        }
        return items;
    }
};

/// Adds to \a Base, an item model, that its items travel as a list of texts that may be copied or moved.
template <typename Base>
class TextListDrag : public Base
{
public:
    [[nodiscard]] QStringList mimeTypes() const override { return {TextList::mimeType}; }

    [[nodiscard]] Qt::DropActions supportedDropActions() const override
    {
        return Qt::CopyAction | Qt::MoveAction;
    }

protected:
    using Base::Base;
};
