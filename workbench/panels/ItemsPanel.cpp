#include "workbench/panels/ItemsPanel.h"

#include "model/TDcVariable.h"
#include "workbench/Document.h"
#include "workbench/panels/Widgets.h"
#include "workbench/Selection.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QScopedValueRollback>
#include <QSortFilterProxyModel>
#include <QToolButton>
#include <QVBoxLayout>

ItemsPanel::ItemsPanel(const Workspace &workspace, const QString &name, const Texts &texts,
                       QSortFilterProxyModel *proxy, Buttons buttons, QWidget *parent)
    : QWidget(parent), m_workspace(workspace), m_view(new EmptyText<QTableView>(this)), m_texts(texts),
      m_buttons(buttons), m_proxy(proxy)
{
    m_columns = std::make_unique<ColumnMemory>(m_view, name);
    Widgets::setUpTable(m_view, texts.title);
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_proxy->setParent(this);
    m_view->setModel(m_proxy);
    m_view->setMinimumHeight(90);
    auto *title = new QLabel(texts.title, this);
    QFont font = title->font();
    font.setBold(true);
    title->setFont(font);
    title->setBuddy(m_view);

    auto *bar = new QHBoxLayout;
    bar->setSpacing(2);
    bar->addWidget(title, 1);
    const Actions &actions = *workspace.actions;
    for (ActionId id : {buttons.add, buttons.remove, buttons.moveUp, buttons.moveDown}) {
        bar->addWidget(Widgets::button(actions[id], this));
        m_view->addAction(actions[id]);
    }
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 4, 10, 6);
    layout->setSpacing(4);
    layout->addLayout(bar);
    layout->addWidget(m_view);

    connect(actions[buttons.add], &QAction::triggered, this, &ItemsPanel::addRow);
    connect(actions[buttons.remove], &QAction::triggered, this, &ItemsPanel::removeRows);
    connect(actions[buttons.moveUp], &QAction::triggered, this, [this] { moveRows(true); });
    connect(actions[buttons.moveDown], &QAction::triggered, this, [this] { moveRows(false); });
    Widgets::bindKey(m_view, QKeySequence::Delete, actions[buttons.remove]);
    Widgets::bindKey(m_view, Qt::Key_Insert, actions[buttons.add]);
}

void ItemsPanel::start()
{
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ItemsPanel::updateActions);
    connect(m_view->horizontalHeader(), &QHeaderView::sortIndicatorChanged, this, &ItemsPanel::updateActions);
    connect(m_workspace.selection, &Selection::variablesChanged, this, [this] {
        if (m_workspace.selection->variable() != m_variable || !m_variable)
            showVariable();
    });
    connect(m_workspace.document, &Document::contentChanged, this, &ItemsPanel::refresh);
    showVariable();
}

void ItemsPanel::refresh()
{
    if (!m_model || m_committing)
        return;
    // Addresses are only compared: the old rows may be gone.
    const QList<void *> now = items(m_variable);
    bool same = now.size() == m_model->rowCount();
    for (int row = 0; same && row < m_model->rowCount(); ++row)
        same = m_model->index(row, 0).internalPointer() == now.at(row);
    if (!same) {
        showVariable();
    } else if (!now.isEmpty()) {
        const QScopedValueRollback committed(m_committing, true); // Nothing is edited here.
        Q_EMIT m_model->dataChanged(m_model->index(0, 0), m_model->index(m_model->rowCount() - 1, 1));
    }
}

void ItemsPanel::showVariable()
{
    const QModelIndex before = m_view->currentIndex();
    const bool same = m_variable && m_variable == m_workspace.selection->variable();
    m_variable = m_workspace.selection->variable();
    // Without a variable there is nothing to say about its items.
    m_view->setEmptyText(m_variable ? m_texts.empty : QString());
    if (m_model)
        m_columns->take();
    m_proxy->setSourceModel(nullptr);
    delete m_model;
    m_model = m_variable ? createModel(m_variable) : nullptr;
    if (m_model) {
        m_model->setParent(this);
        m_proxy->setSourceModel(m_model);
        connect(m_model, &QAbstractItemModel::dataChanged, this, [this] {
            if (m_committing)
                return;
            const QScopedValueRollback committing(m_committing, true);
            m_workspace.document->commit({}, m_workspace.selection->entity());
        });
        if (!m_columns->restore())
            m_view->setColumnWidth(0, 90);
        if (m_proxy->rowCount() > 0) {
            const int row = same ? qBound(0, before.row(), m_proxy->rowCount() - 1) : 0;
            m_view->setCurrentIndex(m_proxy->index(row, qMax(0, before.column())));
        }
    }
    updateActions();
}

void ItemsPanel::updateActions()
{
    const Actions &actions = *m_workspace.actions;
    const QList<void *> items = selected();
    const bool ordered = m_variable && m_proxy->sortColumn() < 0;
    actions[m_buttons.add]->setEnabled(m_variable);
    actions[m_buttons.remove]->setEnabled(!items.isEmpty());
    actions[m_buttons.moveUp]->setEnabled(ordered && canMove(m_variable, items, true));
    actions[m_buttons.moveDown]->setEnabled(ordered && canMove(m_variable, items, false));
}

QList<void *> ItemsPanel::selected() const
{
    QList<void *> items;
    const QModelIndexList rows = m_view->selectionModel()->selectedRows();
    std::transform(rows.cbegin(), rows.cend(), std::back_inserter(items), [this](const QModelIndex &index) {
        return m_proxy->mapToSource(index).internalPointer();
    });
    return items;
}

void ItemsPanel::select(const QList<void *> &items)
{
    QItemSelection rows;
    QModelIndex first;
    for (int row = 0; row < m_proxy->rowCount(); ++row) {
        const QModelIndex index = m_proxy->index(row, 0);
        if (!items.contains(m_proxy->mapToSource(index).internalPointer()))
            continue;
        rows.select(index, index);
        first = first.isValid() ? first : index;
    }
    if (!first.isValid())
        return;
    m_view->selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    m_view->selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void ItemsPanel::commit(const QString &text)
{
    m_workspace.document->commit(text.arg(m_variable->getName()), m_workspace.selection->entity());
}

void ItemsPanel::addRow()
{
    add(m_variable);
    commit(m_texts.adding);
    m_view->setCurrentIndex(m_proxy->mapFromSource(m_model->index(m_model->rowCount() - 1, 0)));
    m_view->setFocus();
    m_view->edit(m_view->currentIndex());
}

void ItemsPanel::removeRows()
{
    remove(m_variable, selected());
    commit(m_texts.removing);
}

void ItemsPanel::moveRows(bool up)
{
    const QList<void *> items = selected();
    move(m_variable, items, up);
    commit(m_texts.moving);
    select(items);
}
