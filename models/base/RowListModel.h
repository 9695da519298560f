#pragma once

#include <QAbstractItemModel>
#include <QList>

/// A flat table whose rows are pointers to objects that live elsewhere.
///
/// An index carries the object that its row shows. Derived classes add what a cell shows and what an edit
/// does; they carry the meta-object and the texts.
template <typename Item>
class RowListModel : public QAbstractItemModel
{
public:
    using QAbstractItemModel::parent; // keeps QObject::parent() callable

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override
    {
        if (parent.isValid() || row < 0 || row >= m_rows.size())
            return {};
        return createIndex(row, column, m_rows.at(row));
    }

    [[nodiscard]] QModelIndex parent(const QModelIndex &) const override { return {}; }

    /// The parent is not looked at: every cell claims as many rows as the table has.
    [[nodiscard]] int rowCount(const QModelIndex & = {}) const override { return int(m_rows.size()); }

protected:
    explicit RowListModel(QObject *parent) : QAbstractItemModel(parent) { }

    /// The object behind \a index; null for an invalid index, one of another model and one without an object.
    [[nodiscard]] Item *itemAt(const QModelIndex &index) const
    {
        return index.model() == this ? static_cast<Item *>(index.internalPointer()) : nullptr;
    }

    QList<Item *> m_rows; // The objects are not owned.
};
