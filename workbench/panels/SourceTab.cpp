#include "workbench/panels/SourceTab.h"

#include "workbench/panels/EmptyText.h"
#include "workbench/panels/Widgets.h"
#include "workbench/SourceFiles.h"

#include <QAction>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QMimeData>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

SourceTab::SourceTab(const QString &name, const QString &title, QSortFilterProxyModel *proxy,
                     const QList<QAction *> &actions, QWidget *parent)
    : QWidget(parent), m_bar(new QHBoxLayout), m_view(new EmptyText<QTableView>(this)), m_proxy(proxy),
      m_notesButton(new QToolButton(this))
{
    updateEmptyText();
    m_columns = std::make_unique<ColumnMemory>(m_view, name);
    m_proxy->setParent(this);
    m_view->setModel(m_proxy);
    Widgets::setUpTable(m_view, title);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setDragEnabled(true);
    m_view->setDragDropMode(QAbstractItemView::DragOnly);
    m_view->setDefaultDropAction(Qt::CopyAction);
    m_view->setDragDropOverwriteMode(false);
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);

    for (QAction *action : actions) {
        QToolButton *button = Widgets::button(action, this);
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        m_bar->addWidget(button);
        m_view->addAction(action);
    }
    m_notesButton->setObjectName(u"notes"_s);
    m_notesButton->setAutoRaise(true);
    m_notesButton->setFocusPolicy(Qt::TabFocus);
    m_notesButton->setToolTip(tr("Show what was read, but not as the file has it"));
    setNotes({});
    m_bar->addWidget(m_notesButton);
    QLineEdit *filter = Widgets::filterField(tr("Filter %1").arg(title), tr("Filter"), this);
    m_bar->addWidget(filter, 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addLayout(m_bar);
    layout->addWidget(m_view);

    connect(m_notesButton, &QAbstractButton::clicked, this,
            [this] { SourceFiles::showNotes(window(), m_notes); });
    connect(filter, &QLineEdit::textChanged, this, [this](const QString &text) {
        Widgets::filterBy(m_proxy, text);
        // What was selected may be out of sight now.
        if (!m_view->selectionModel()->hasSelection() && m_proxy->rowCount() > 0)
            m_view->selectRow(qMax(0, m_view->currentIndex().row()));
    });
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &SourceTab::selectionChanged);
    connect(m_view, &QAbstractItemView::activated, this, &SourceTab::activated);
    chainControls();
}

void SourceTab::chainControls()
{
    for (int i = 1; i < m_bar->count(); ++i)
        setTabOrder(m_bar->itemAt(i - 1)->widget(), m_bar->itemAt(i)->widget());
    setTabOrder(m_bar->itemAt(m_bar->count() - 1)->widget(), m_view);
}

void SourceTab::setModel(QAbstractItemModel *model)
{
    if (m_model)
        m_columns->take();
    m_proxy->setSourceModel(model);
    delete m_model;
    m_model = model;
    updateEmptyText();
    if (!model)
        return;
    model->setParent(this);
    m_view->horizontalHeader()->setVisible(model->columnCount() > 1);
    const bool known = m_columns->restore();
    for (int column = 0; !known && column + 1 < model->columnCount(); ++column)
        m_view->setColumnWidth(column, column == 0 ? 180 : 420);
    if (m_proxy->rowCount() > 0)
        m_view->selectRow(0);
    Q_EMIT selectionChanged();
}

void SourceTab::setNotes(const QList<SourceProblem> &notes)
{
    m_notes = notes;
    m_notesButton->setText(tr("Notes (%L1)…").arg(notes.size()));
    m_notesButton->setVisible(!notes.isEmpty());
}

void SourceTab::updateEmptyText()
{
    // Of rows that are there the filter alone can leave none.
    m_view->setEmptyText(m_model && m_model->rowCount() > 0
                             ? tr("Nothing matches the filter.")
                             : tr("Open a file to list its fields here, then drag them onto the variables."));
}

QTableView *SourceTab::view() const
{
    return m_view;
}

void SourceTab::addControl(QWidget *control)
{
    m_bar->insertWidget(m_bar->count() - 1, control);
    chainControls();
}

QMimeData *SourceTab::payload() const
{
    const QModelIndexList rows = m_view->selectionModel()->selectedRows();
    return rows.isEmpty() ? nullptr : m_proxy->mimeData(rows);
}
