#include "workbench/panels/FindPanel.h"

#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "workbench/Actions.h"
#include "workbench/Document.h"
#include "workbench/panels/Widgets.h"
#include "workbench/Selection.h"

#include <QAction>
#include <QCheckBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <chrono>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace
{
enum Column { Match, What, Place };
// Long enough that each letter typed quickly does not cost a search.
constexpr auto quiet = 150ms;
} // namespace

FindPanel::FindPanel(const Workspace &workspace, QWidget *parent)
    : QWidget(parent), m_workspace(workspace),
      m_field(Widgets::filterField(tr("Find in the dictionary"), tr("Find in the whole dictionary"), this)),
      m_summary(new QLabel(this)), m_view(new EmptyText<QTableView>(this)),
      m_model(new QStandardItemModel(this)), m_matchCase(new QCheckBox(tr("Match case"), this)),
      m_wholeWords(new QCheckBox(tr("Whole words"), this))
{
    setObjectName(u"findPanel"_s);
    m_view->setModel(m_model);
    Widgets::setUpTable(m_view, tr("Found"));
    m_view->setSortingEnabled(false);
    m_columns = std::make_unique<ColumnMemory>(m_view, u"find"_s);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_summary->setAccessibleDescription(tr("What was found"));

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 0);
    layout->setSpacing(4);
    layout->addWidget(createBar());
    layout->addWidget(m_view);
    chainControls();

    m_quiet.setSingleShot(true);
    m_quiet.setInterval(quiet);
    connect(&m_quiet, &QTimer::timeout, this, [this] {
        // Nobody looks at a panel that is hidden; it searches when it is shown, or asked for the next hit.
        if (isVisible())
            searchNow();
    });
    connect(m_field, &QLineEdit::textChanged, this, &FindPanel::ask);
    connect(m_field, &QLineEdit::returnPressed, this, [this] { step(true); });
    connect(m_view, &QAbstractItemView::activated, this,
            [this](const QModelIndex &index) { go(index.row()); });
    connect(m_view, &QAbstractItemView::clicked, this, [this](const QModelIndex &index) { go(index.row()); });
    connect(workspace.document, &Document::structureAboutToChange, this, &FindPanel::forget);
    connect(workspace.document, &Document::structureChanged, this, &FindPanel::search);
    connect(workspace.document, &Document::contentChanged, this, &FindPanel::search);
    const Actions &actions = *workspace.actions;
    connect(actions[ActionId::EditFindNext], &QAction::triggered, this, [this] { step(true); });
    connect(actions[ActionId::EditFindPrevious], &QAction::triggered, this, [this] { step(false); });
    searchNow();
}

QWidget *FindPanel::createBar()
{
    auto *bar = new QWidget(this);
    // Wide as the words may be, the window may be narrower.
    bar->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto *rows = new QVBoxLayout(bar);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(4);
    auto *top = new QHBoxLayout;
    top->addWidget(m_field, 1);
    top->addWidget(m_summary);
    rows->addLayout(top);
    auto *row = new QHBoxLayout;
    rows->addLayout(row);
    addOption(row, tr("Names"), Find::Names);
    addOption(row, tr("Aliases"), Find::Aliases);
    addOption(row, tr("Labels"), Find::Labels);
    addOption(row, tr("Groups"), Find::Groups);
    addOption(row, tr("Value labels"), Find::Codes | Find::ValueLabels);
    row->addSpacing(12);
    for (QCheckBox *option : {m_matchCase, m_wholeWords}) {
        option->setAccessibleName(option->text());
        connect(option, &QCheckBox::toggled, this, &FindPanel::ask);
        row->addWidget(option);
    }
    row->addStretch(1);
    return bar;
}

void FindPanel::addOption(QBoxLayout *bar, const QString &text, Find::Parts parts)
{
    auto *option = new QCheckBox(text, this);
    option->setAccessibleName(tr("Find in: %1").arg(text));
    option->setChecked(true);
    connect(option, &QCheckBox::toggled, this, &FindPanel::ask);
    bar->addWidget(option);
    m_parts.append({option, parts});
}

void FindPanel::chainControls()
{
    QList<QWidget *> order{m_field};
    for (const auto &[option, parts] : std::as_const(m_parts))
        order.append(option);
    order += {m_matchCase, m_wholeWords, m_view};
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order.at(i - 1), order.at(i));
}

Find::Query FindPanel::query() const
{
    Find::Query query{m_field->text(), {}, m_matchCase->isChecked(), m_wholeWords->isChecked()};
    for (const auto &[option, parts] : m_parts)
        query.parts |= option->isChecked() ? parts : Find::Parts();
    return query;
}

void FindPanel::forget()
{
    m_quiet.stop();
    m_hits.clear();
    m_model->setRowCount(0);
}

void FindPanel::ask()
{
    m_row = -1;
    search();
}

void FindPanel::search()
{
    m_stale = true;
    m_quiet.start();
}

void FindPanel::searchNow()
{
    m_quiet.stop();
    m_stale = false;
    list(Find(m_workspace.document->root(), query(), mostHits));
}

void FindPanel::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_stale)
        searchNow();
}

void FindPanel::list(const Find &found)
{
    m_columns->take();
    m_model->clear();
    m_model->setHorizontalHeaderLabels({tr("Found"), tr("In"), tr("Place")});
    m_hits = found.hits;
    for (const Find::Hit &hit : std::as_const(m_hits)) {
        auto *match = new QStandardItem(hit.text.simplified());
        match->setToolTip(hit.text);
        m_model->appendRow({match, new QStandardItem(Find::title(hit.part)), new QStandardItem(hit.place())});
    }
    if (!m_columns->restore()) {
        m_view->setColumnWidth(Match, 420);
        m_view->setColumnWidth(What, 110);
    }
    if (!m_hits.isEmpty())
        m_view->setCurrentIndex(m_model->index(qBound(0, m_row, int(m_hits.size()) - 1), Match));

    const bool asked = !m_field->text().trimmed().isEmpty();
    m_view->setEmptyText(
        asked ? tr("Nothing found.")
              : tr("Type what to find: names, aliases, labels, groups, codes or value labels."));
    m_summary->setText(!asked ? QString()
                           : found.isComplete
                           ? tr("Found: %L1").arg(m_hits.size())
                           : tr("There is more: only the first %L1 are listed.").arg(m_hits.size()));
    const Actions &actions = *m_workspace.actions;
    actions[ActionId::EditFindNext]->setEnabled(!m_hits.isEmpty());
    actions[ActionId::EditFindPrevious]->setEnabled(!m_hits.isEmpty());
}

void FindPanel::start()
{
    m_field->setFocus(Qt::ShortcutFocusReason);
    m_field->selectAll();
}

void FindPanel::step(bool forward)
{
    // What is typed counts, also if the search for it did not begin yet.
    if (m_stale)
        searchNow();
    const int count = int(m_hits.size());
    if (count == 0)
        return;
    if (m_row < 0)
        go(forward ? 0 : count - 1);
    else
        go((m_row + (forward ? 1 : count - 1)) % count);
}

void FindPanel::go(int row)
{
    m_row = row;
    m_view->setCurrentIndex(m_model->index(row, Match));
    const Find::Hit hit = m_hits.at(row);
    if (!hit.variable) {
        m_workspace.selection->setEntity(hit.entity);
        return;
    }
    if (!hit.entity->getVariables()->contains(hit.variable))
        return;
    m_workspace.selection->select(hit.entity, hit.variable);
    if (hit.valueLabel)
        Q_EMIT itemChosen(hit.valueLabel);
}
