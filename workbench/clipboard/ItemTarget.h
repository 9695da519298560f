#pragma once

#include "workbench/clipboard/PasteTarget.h"

#include <QAbstractItemModel>

#include <algorithm>
#include <memory>
#include <utility>

/// The items of a variable that one of the layer's models with two columns edits, to paste rows into.
template <typename Item>
class ItemTarget : public PasteTarget
{
public:
    [[nodiscard]] QList<Column> columns() const override
    {
        QList<Column> columns;
        std::transform(m_columns.cbegin(), m_columns.cend(), std::back_inserter(columns),
                       [this](int column) { return m_titles.at(column); });
        return columns;
    }
    [[nodiscard]] int displayedColumns() const override { return int(m_columns.size()); }
    [[nodiscard]] QList<int> keyColumns() const override
    {
        QList<int> keys;
        std::transform(m_keys.cbegin(), m_keys.cend(), std::back_inserter(keys),
                       [this](int column) { return int(m_columns.indexOf(column)); });
        return keys;
    }
    [[nodiscard]] int rowCount() const override { return int(m_items.size()); }
    void add(const QStringList & /*keys*/) override { m_items.append(addItem()); }

    [[nodiscard]] QString store(int row, int column, const QString &text) override
    {
        QString why;
        const QVariant value = check(m_columns.at(column), text, &why);
        if (!value.isValid())
            return why;
        if (!m_model) {
            m_model = createModel();
            for (int i = 0; i < m_model->rowCount(); ++i)
                m_modelRows.insert(m_model->index(i, 0).internalPointer(), i);
        }
        const int modelRow = m_modelRows.value(m_items.at(row), -1);
        m_model->setData(m_model->index(modelRow, m_columns.at(column)), value, Qt::EditRole);
        return {};
    }

    void discard(int row) override { m_discarded.append(std::exchange(m_items[row], nullptr)); }

    void finish() override
    {
        if (m_discarded.isEmpty())
            return;
        m_model.reset(); // It must not know items that are gone.
        m_modelRows.clear();
        removeItems(std::exchange(m_discarded, {}));
    }

    [[nodiscard]] Item *item(int row) const { return m_items.at(row); }

protected:
    /// \a titles are those of all columns of the layer's model, \a columns those that are displayed, \a keys
    /// those that tell items apart.
    ItemTarget(QList<Item *> displayed, QList<int> columns, QList<Column> titles, QList<int> keys)
        : m_items(std::move(displayed)), m_columns(std::move(columns)), m_titles(std::move(titles)),
          m_keys(std::move(keys))
    {
    }

    [[nodiscard]] virtual std::unique_ptr<QAbstractItemModel> createModel() const = 0;
    [[nodiscard]] virtual Item *addItem() = 0;
    /// Deletes \a items.
    virtual void removeItems(const QList<Item *> &items) = 0;
    /// What the model is to store for \a text in \a column of the model; invalid for nothing, with \a why if
    /// that is a refusal.
    [[nodiscard]] virtual QVariant check(int column, const QString &text, QString *why) const = 0;

    QList<Item *> m_items; // By row; owned by the variable. Null once discarded.

private:
    QList<Item *> m_discarded; // Still the variable's until all cells are stored.
    QList<int> m_columns;
    QList<Column> m_titles;
    QList<int> m_keys;
    std::unique_ptr<QAbstractItemModel> m_model; // Made when all items are there.
    QHash<void *, int> m_modelRows;
};
