#pragma once

#include "workbench/clipboard/PasteTarget.h"
#include "workbench/operations/NewTags.h"
#include "workbench/operations/VariableWriter.h"

#include <QHash>

#include <memory>

/// The variables of an entity, to paste rows into.
class VariableTarget : public PasteTarget
{
public:
    /// \a displayed are the variables, and \a columns those of the model, as the table shows them. Nothing
    /// is owned; all must stay while the target lives.
    VariableTarget(TDcEntity *root, TDcEntity *entity, const QList<TDcVariable *> &displayed,
                   const QList<int> &columns);

    /// The properties in the order of a table that shows \a columns of the model: these, then all others.
    [[nodiscard]] static QList<VariableProperty> properties(const QList<int> &columns);

    [[nodiscard]] TDcVariable *variable(int row) const { return m_variables.at(row); }

    [[nodiscard]] QList<Column> columns() const override;
    [[nodiscard]] int displayedColumns() const override { return m_displayedColumns; }
    [[nodiscard]] QList<int> keyColumns() const override;
    [[nodiscard]] int rowCount() const override { return int(m_variables.size()); }
    [[nodiscard]] int find(const QStringList &keys) override;
    void add(const QStringList &keys) override;
    [[nodiscard]] QString store(int row, int column, const QString &text) override;
    void discard(int row) override;
    void finish() override;

private:
    void remember(const QString &name, TDcVariable *variable);
    int append(TDcVariable *variable);

    TDcEntity *m_root; // Not owned.
    TDcEntity *m_entity; // Not owned.
    QList<TDcVariable *> m_variables; // By row; owned by the entity. Null once discarded.
    QHash<const TDcVariable *, int> m_rows; // The other way round.
    QList<TDcVariable *> m_added;
    QList<TDcVariable *> m_discarded; // Still the entity's until all cells are stored.
    NewTags m_newTags;
    QList<VariableProperty> m_properties; // By column.
    int m_displayedColumns;
    QHash<QString, TDcVariable *> m_byName;
    QHash<QString, TDcVariable *> m_byFoldedName;
    std::unique_ptr<VariableWriter> m_writer; // Made when all variables are there.
};
