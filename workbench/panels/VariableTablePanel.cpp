#include "workbench/panels/VariableTablePanel.h"

#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "models/VariableDiccionaryModel.h"
#include "models/VariablesDictionaryProxyModel.h"
#include "workbench/Actions.h"
#include "workbench/Document.h"
#include "workbench/panels/Widgets.h"
#include "workbench/Selection.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QSet>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

VariableTablePanel::VariableTablePanel(const Workspace &workspace, QWidget *parent)
    : QWidget(parent), m_workspace(workspace),
      m_filter(Widgets::filterField(tr("Filter variables"),
                                    tr("Filter variables by name, alias, label, group or tag"), this)),
      m_count(new QLabel(this)), m_view(new EmptyText<QTableView>(this)),
      m_proxy(new VariablesDictionaryProxyModel(this))
{
    m_columns = std::make_unique<ColumnMemory>(m_view, u"variables"_s);
    updateEmptyText();
    Widgets::setUpTable(m_view, tr("Variables"));
    m_view->setModel(m_proxy);
    m_view->setAcceptDrops(true);
    m_view->setDragDropMode(QAbstractItemView::DropOnly);
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_view->horizontalHeader()->setStretchLastSection(false);
    m_count->setAccessibleDescription(tr("Number of variables"));

    auto *bar = new QHBoxLayout;
    bar->addWidget(m_filter, 1);
    bar->addWidget(m_count);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 0);
    layout->addLayout(bar);
    layout->addWidget(m_view);

    connect(m_view->horizontalHeader(), &QHeaderView::sortIndicatorChanged, this,
            &VariableTablePanel::updateActions);
    connect(m_filter, &QLineEdit::textChanged, this, &VariableTablePanel::setFilter);
    connect(workspace.selection, &Selection::entityChanged, this, &VariableTablePanel::showEntity);
    connect(workspace.selection, &Selection::variablesChanged, this, &VariableTablePanel::showSelection);
    connect(workspace.document, &Document::contentChanged, this, &VariableTablePanel::refresh);
    // The proxy's, not the model's: the view has the new rows by then.
    connect(m_proxy, &QAbstractItemModel::modelReset, this, &VariableTablePanel::takeImport);
    connectActions();
    showEntity(workspace.selection->entity());
    showSelection();
}

void VariableTablePanel::refresh()
{
    // What the person sees is painted anew; order and filter are worked out again only where there are any.
    const bool arranged = m_proxy->sortColumn() >= 0 || isFiltered();
    if (m_model && m_model->rowCount() > 0 && arranged && !m_committing)
        arrange([this] {
            Q_EMIT m_model->dataChanged(m_model->index(0, 0), m_model->index(m_model->rowCount() - 1, 4));
        });
    m_view->viewport()->update();
    if (isFiltered())
        goOnWithWhatIsShown();
    else
        updateActions();
}

void VariableTablePanel::showEntity(TDcEntity *entity)
{
    const QScopedValueRollback following(m_showing, true);
    // A table without a model has no columns and so forgets how wide they were.
    if (m_model) {
        m_columns->take();
        m_scroll = m_view->verticalScrollBar()->value();
    }
    m_proxy->setSourceModel(nullptr);
    delete m_model;
    m_model = nullptr;
    if (entity) {
        m_model = new VariableDiccionaryModel(this, entity, m_workspace.document->root());
        connectModel();
        m_proxy->setSourceModel(m_model);
        arrangeColumns();
        // The view's selection model goes with each model that it is given; the proxy stays the same.
        connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                &VariableTablePanel::takeSelection, Qt::UniqueConnection);
        connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
                &VariableTablePanel::takeSelection, Qt::UniqueConnection);
        // A change of structure shows the same entity anew; the person goes on looking at the same place.
        if (std::exchange(m_shown, entity) == entity) {
            m_view->doItemsLayout();
            m_view->verticalScrollBar()->setValue(m_scroll);
        }
    }
    updateCount();
}

void VariableTablePanel::arrangeColumns()
{
    QHeaderView *header = m_view->horizontalHeader();
    if (m_columns->restore())
        return;
    const int letter = fontMetrics().averageCharWidth();
    constexpr int letters[] = {22, 13, 30, 15, 9}; // The label takes what is left.
    for (int column = 0; column < header->count(); ++column)
        header->resizeSection(column, qMax(letters[column] * letter, header->sectionSizeHint(column)));
    header->setSectionResizeMode(2, QHeaderView::Stretch);
}

void VariableTablePanel::connectModel()
{
    // An edit of a cell is one step. A drop is one step too: it says so per field, then per variable that it
    // adds, and resets the model when it is done.
    connect(m_model, &VariableDiccionaryModel::signalVariableDropped, this, [this] { ++m_imported; });
    connect(m_model, &VariableDiccionaryModel::signalVariablesModified, this, [this] {
        if (m_imported > 0)
            return;
        const QScopedValueRollback committing(m_committing, true);
        m_workspace.document->commit({}, m_workspace.selection->entity());
    });
}

QList<int> VariableTablePanel::shownRows(const QList<TDcVariable *> &variables) const
{
    const QSet<const void *> wanted(variables.cbegin(), variables.cend());
    QList<int> rows;
    for (int row = 0; m_model && row < m_model->rowCount(); ++row) {
        const QModelIndex index = m_model->index(row, 0);
        if (!wanted.contains(index.internalPointer()))
            continue;
        if (const QModelIndex shown = m_proxy->mapFromSource(index); shown.isValid())
            rows.append(shown.row());
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

int VariableTablePanel::shownRowNear(const TDcVariable *variable) const
{
    const qsizetype wanted = m_workspace.selection->entity()->getVariables()->indexOf(variable);
    int near = 0;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        const QModelIndex shown = m_proxy->mapFromSource(m_model->index(row, 0));
        if (shown.isValid())
            near = shown.row();
        if (shown.isValid() && row >= wanted)
            break;
    }
    return near;
}

bool VariableTablePanel::isFiltered() const
{
    return !m_filter->text().trimmed().isEmpty();
}

void VariableTablePanel::showSelection()
{
    updateActions();
    if (m_showing)
        return;
    const QScopedValueRollback following(m_showing, true);
    const Selection &selection = *m_workspace.selection;
    QList<int> rows = shownRows(selection.variables());
    const bool hidden = isFiltered() && rows.size() < selection.variables().size();
    if (hidden && selection.isChosen()) {
        // What somebody leads the person to must not stay out of sight.
        m_filter->clear();
        rows = shownRows(selection.variables());
    } else if (hidden && rows.isEmpty() && m_proxy->rowCount() > 0) {
        rows.append(shownRowNear(selection.variable()));
    }
    select(rows, shownRows({selection.variable()}).value(0, rows.value(0, -1)));
    // Otherwise the person goes on with what the filter shows.
    if (hidden && !selection.isChosen())
        adoptSelection();
}

void VariableTablePanel::select(const QList<int> &rows, int currentRow)
{
    const int column = qMax(0, m_view->currentIndex().column());
    const QModelIndex current = m_proxy->index(currentRow, column);
    m_view->selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    selectRows(rows);
    if (current.isValid())
        m_view->scrollTo(current);
}

void VariableTablePanel::selectRows(const QList<int> &rows)
{
    // Neighbours make one range: there may be very many of them.
    QItemSelection selection;
    for (auto first = rows.cbegin(); first != rows.cend();) {
        const auto gap =
            std::adjacent_find(first, rows.cend(), [](int row, int next) { return next != row + 1; });
        const auto end = gap == rows.cend() ? gap : std::next(gap);
        selection.append({m_proxy->index(*first, 0), m_proxy->index(*std::prev(end), 0)});
        first = end;
    }
    m_view->selectionModel()->select(selection,
                                     QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void VariableTablePanel::takeSelection()
{
    if (m_showing || !m_model)
        return;
    const QScopedValueRollback following(m_showing, true);
    adoptSelection();
}

void VariableTablePanel::adoptSelection()
{
    // Range by range: asked for its rows, the selection looks at all its ranges for each of them.
    QList<int> rows;
    const QItemSelection selection = m_view->selectionModel()->selection();
    for (const QItemSelectionRange &range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.append(m_proxy->mapToSource(m_proxy->index(row, 0)).row());
    }
    std::sort(rows.begin(), rows.end());
    rows.resize(std::distance(rows.begin(), std::unique(rows.begin(), rows.end())));
    QList<TDcVariable *> variables;
    std::transform(rows.cbegin(), rows.cend(), std::back_inserter(variables), [this](int row) {
        return static_cast<TDcVariable *>(m_model->index(row, 0).internalPointer());
    });
    const QModelIndex current = m_proxy->mapToSource(m_view->currentIndex());
    auto *variable = static_cast<TDcVariable *>(current.internalPointer());
    m_workspace.selection->setVariables(variables,
                                        variables.contains(variable) ? variable : variables.value(0));
    updateCount();
}

void VariableTablePanel::setFilter(const QString &text)
{
    arrange([this, &text] { Widgets::filterBy(m_proxy, text); });
    updateEmptyText();
    goOnWithWhatIsShown();
}

void VariableTablePanel::updateEmptyText()
{
    m_view->setEmptyText(
        isFiltered() ? tr("No variable matches the filter.")
                     : tr("No variables to show. Add one, or drag fields here from the sources below."));
}

void VariableTablePanel::arrange(const std::function<void()> &work)
{
    // Rows come and go in as many steps as there are gaps between them, and each step works on all that is
    // selected. Of very many rows nothing must be selected meanwhile.
    const QScopedValueRollback following(m_showing, true);
    m_view->selectionModel()->clearSelection();
    work();
    selectRows(shownRows(m_workspace.selection->variables()));
}

void VariableTablePanel::goOnWithWhatIsShown()
{
    // What was selected may be out of sight now. Somebody who types and then presses Tab works on what is
    // left.
    if (!m_view->selectionModel()->hasSelection() && m_proxy->rowCount() > 0) {
        const QScopedValueRollback following(m_showing, true);
        m_view->selectRow(qMax(0, m_view->currentIndex().row()));
    }
    takeSelection();
    updateActions();
    updateCount();
}

void VariableTablePanel::updateCount()
{
    const int all = m_model ? m_model->rowCount() : 0;
    const int shown = m_proxy->rowCount();
    m_count->setText(shown == all ? tr("Variables: %L1").arg(all)
                                  : tr("Variables: %L1 of %L2").arg(shown).arg(all));
}
