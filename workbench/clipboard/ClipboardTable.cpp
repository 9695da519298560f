#include "workbench/clipboard/ClipboardTable.h"

#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "workbench/clipboard/DisplayedTable.h"
#include "workbench/clipboard/ItemTargets.h"
#include "workbench/clipboard/TabText.h"
#include "workbench/clipboard/VariableTarget.h"
#include "workbench/Document.h"
#include "workbench/operations/Numbers.h"
#include "workbench/Selection.h"

#include <QAbstractProxyModel>
#include <QTableView>

#include <algorithm>

std::unique_ptr<PasteTarget> ClipboardTable::target() const
{
    using namespace DisplayedTable;
    const QList<int> shown = columns(*m_view);
    TDcVariable *variable = m_workspace.selection->variable();
    switch (m_kind) {
    case Kind::Variables:
        return std::make_unique<VariableTarget>(m_workspace.document->root(), m_workspace.selection->entity(),
                                                items<TDcVariable>(*m_view), shown);
    case Kind::ValueLabels:
        return variable
            ? std::make_unique<ValueLabelTarget>(variable, items<ValueLabelElement>(*m_view), shown)
            : nullptr;
    case Kind::Ranges:
        return variable ? std::make_unique<RangeTarget>(variable, items<Range>(*m_view), shown) : nullptr;
    }
    Q_UNREACHABLE();
}

QStringList ClipboardTable::cells(int row, const QList<int> &columns) const
{
    const auto *proxy = static_cast<const QAbstractProxyModel *>(m_view->model());
    QStringList cells;
    if (m_kind == Kind::Variables) {
        const auto *variable =
            static_cast<TDcVariable *>(proxy->mapToSource(proxy->index(row, 0)).internalPointer());
        const QList<VariableProperty> properties = VariableTarget::properties(columns);
        std::transform(properties.cbegin(), properties.cend(), std::back_inserter(cells),
                       [variable](const VariableProperty &property) {
                           return VariableWriter::text(*variable, property);
                       });
        return cells;
    }
    std::transform(columns.cbegin(), columns.cend(), std::back_inserter(cells), [proxy, row](int column) {
        const QVariant value = proxy->index(row, column).data(Qt::EditRole);
        return value.typeId() == QMetaType::Double ? Numbers::text(value.toDouble()) : value.toString();
    });
    return cells;
}

QString ClipboardTable::copy() const
{
    const QList<int> rows = DisplayedTable::selectedRows(*m_view);
    if (rows.isEmpty())
        return {};
    const QList<int> columns = DisplayedTable::columns(*m_view);
    QStringList header;
    const QList<PasteTarget::Column> titles = target()->columns();
    std::transform(titles.cbegin(), titles.cend(), std::back_inserter(header),
                   [](const PasteTarget::Column &column) { return column.name; });
    QList<QStringList> table{header};
    std::transform(rows.cbegin(), rows.cend(), std::back_inserter(table),
                   [this, &columns](int row) { return cells(row, columns); });
    return TabText::write(table);
}

Paste ClipboardTable::paste(const QString &text, const Paste::Progress &progress)
{
    const std::unique_ptr<PasteTarget> to = target();
    Paste paste;
    if (!to) {
        paste.error = tr("Select a variable to paste into.");
        return paste;
    }
    const TabText table = TabText::parse(text);
    if (table.rows.isEmpty())
        return Paste::into(*to, table, -1, -1);
    const int row = DisplayedTable::currentRow(*m_view);
    const int column = DisplayedTable::currentColumn(*m_view);
    const qsizetype rows = table.rows.size() - (Paste::hasHeader(*to, table) ? 1 : 0);
    const QString step = rows == 1 ? tr("pasting a row") : tr("pasting %L1 rows").arg(rows);
    TDcEntity *entity = m_workspace.selection->entity();
    const TDcVariable *variable = m_workspace.selection->variable();
    if (m_kind != Kind::Variables) {
        paste = Paste::into(*to, table, row, column, progress);
        m_workspace.document->commit(tr("%1 into %2").arg(step, variable->getName()), entity);
        return paste;
    }
    m_workspace.document->edit(step, [&] { paste = Paste::into(*to, table, row, column, progress); });
    QSet<const TDcVariable *> pasted;
    for (int each : paste.rows())
        pasted.insert(static_cast<VariableTarget &>(*to).variable(each));
    QList<TDcVariable *> variables;
    std::copy_if(entity->getVariables()->cbegin(), entity->getVariables()->cend(),
                 std::back_inserter(variables),
                 [&pasted](const TDcVariable *each) { return pasted.contains(each); });
    if (!variables.isEmpty())
        m_workspace.selection->setVariables(variables, variables.constFirst());
    return paste;
}
