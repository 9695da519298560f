#include "workbench/run/VariablesPage.h"

#include "model/ConfigEntities.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "models/base/CheckListModel.h"
#include "workbench/panels/Widgets.h"
#include "workbench/proxies/CheckableProxy.h"
#include "workbench/run/RunDraft.h"
#include "workbench/run/RunWords.h"
#include "workbench/run/StepModels.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

VariablesPage::VariablesPage(RunDraft *draft, Step step, QWidget *parent)
    : RunPage(draft, parent), m_step(step), m_entities(new QListWidget(this)),
      m_all(new QCheckBox(tr("Take all variables, those that are a&dded later too"), this)),
      m_filter(Widgets::filterField(tr("Filter variables"), tr("Filter the variables"), this)),
      m_count(new QLabel(this)), m_checkable(new CheckableProxy(this)),
      m_proxy(StepModels::makeProxy(step, this))
{
    describe();
    m_proxy->setFilterKeyColumn(-1);
    m_proxy->setSourceModel(m_checkable);
    auto *row = new QHBoxLayout;
    row->addWidget(makeEntities(), 1);
    row->addWidget(makeVariables(), 3);
    auto *column = new QVBoxLayout(this);
    column->addLayout(row);
    column->addWidget(problemRow());
    connect(m_entities, &QListWidget::currentRowChanged, this, &VariablesPage::showEntity);
}

void VariablesPage::describe()
{
    struct Words {
        const char *name, *title, *subTitle;
    };
    static constexpr Words words[] = {
        {"runVariablesPage", QT_TR_NOOP("Variables"),
         QT_TR_NOOP("Tick the variables that take part, entity by entity. Space switches the ticks of the "
                    "selected rows.")},
        {"runSplitPage", QT_TR_NOOP("Split"),
         QT_TR_NOOP("Tick what tells the records apart when they are split. The ticks are those of the page "
                    "before; reference codes, labels and weights are offered here too.")},
        {"runDownPage", QT_TR_NOOP("Download"),
         QT_TR_NOOP("These variables are downloaded. Take away the ticks of those that are not wanted "
                    "after all.")},
    };
    const Words &mine = words[int(m_step)];
    setObjectName(QLatin1StringView(mine.name));
    setTitle(tr(mine.title));
    setSubTitle(tr(mine.subTitle));
}

QWidget *VariablesPage::makeEntities()
{
    m_entities->setObjectName(u"entities"_s);
    m_entities->setAccessibleName(tr("Entities that take part"));
    m_entities->setSpacing(2);
    auto *caption = new QLabel(tr("&Entities"));
    caption->setBuddy(m_entities);
    auto *side = new QWidget(this);
    auto *column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(caption);
    column->addWidget(m_entities);
    return side;
}

QWidget *VariablesPage::makeVariables()
{
    m_view = new EmptyText<QTableView>(this);
    Widgets::setUpTable(m_view, tr("Variables"));
    m_view->setModel(m_proxy);
    m_view->setObjectName(u"variables"_s);
    auto *space = new QShortcut(Qt::Key_Space, m_view);
    space->setContext(Qt::WidgetShortcut);
    connect(space, &QShortcut::activated, this, &VariablesPage::switchSelected);
    if (m_step == Step::Down)
        m_view->sortByColumn(0, Qt::AscendingOrder);

    m_filter->setObjectName(u"filter"_s);
    m_filter->installEventFilter(this);
    auto *caption = new QLabel(tr("&Variables"));
    caption->setBuddy(m_view);
    auto *filterCaption = new QLabel(tr("Fi&lter"));
    filterCaption->setBuddy(m_filter);
    auto *all = new QPushButton(tr("&Tick Shown"));
    auto *none = new QPushButton(tr("&Untick Shown"));
    connect(all, &QPushButton::clicked, this, [this] { check(shownRows(), true); });
    connect(none, &QPushButton::clicked, this, [this] { check(shownRows(), false); });
    connect(m_filter, &QLineEdit::textChanged, this, &VariablesPage::setFilter);
    connect(m_all, &QCheckBox::clicked, this, [this](bool checked) {
        draft().takeAllVariables(current(), checked);
        m_view->viewport()->update();
        showCounts();
    });

    auto *filter = new QHBoxLayout;
    filter->addWidget(caption);
    filter->addSpacing(12);
    filter->addWidget(filterCaption);
    filter->addWidget(m_filter, 1);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(all);
    buttons->addWidget(none);
    buttons->addStretch();
    buttons->addWidget(m_count);
    auto *side = new QWidget(this);
    auto *column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(filter);
    column->addWidget(m_view);
    column->addLayout(buttons);
    column->addWidget(m_all);
    const QList<QWidget *> order{m_entities, m_filter, m_view, all, none, m_all};
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order.at(i - 1), order.at(i));
    return side;
}

void VariablesPage::initializePage()
{
    m_filter->clear();
    m_entities->clear();
    m_offered.clear();
    const QList<TDcEntity *> chosen = draft().chosen();
    for (TDcEntity *entity : chosen) {
        auto *item = new QListWidgetItem(m_entities);
        item->setData(Qt::UserRole, QVariant::fromValue(static_cast<void *>(entity)));
        m_offered.insert(entity, StepModels::offered(m_step, entity));
    }
    m_entities->setCurrentRow(0);
    showCounts();
}

QString VariablesPage::problem() const
{
    return RunWords::variablesProblem(draft());
}

TDcEntity *VariablesPage::current() const
{
    const QListWidgetItem *item = m_entities->currentItem();
    return item ? static_cast<TDcEntity *>(item->data(Qt::UserRole).value<void *>()) : nullptr;
}

void VariablesPage::showEntity()
{
    m_checkable->setSourceModel(nullptr);
    delete m_model;
    m_model = nullptr;
    TDcEntity *entity = current();
    m_all->setEnabled(entity);
    if (!entity)
        return;
    m_model = StepModels::make(m_step, entity, m_offered.value(entity), this);
    m_checkable->setSourceModel(m_model);
    connect(m_model, &QAbstractItemModel::dataChanged, this, &VariablesPage::followChecks);
    arrangeColumns();
    setFilter(m_filter->text());
    showCounts();
}

void VariablesPage::arrangeColumns()
{
    constexpr int letters[] = {18, 30, 10, 15, 7}; // The label takes what is left.
    constexpr int labelColumn = 1;
    QHeaderView *header = m_view->horizontalHeader();
    header->setStretchLastSection(false);
    for (int column = 0; column < header->count(); ++column)
        header->resizeSection(
            column,
            qMax(header->sectionSizeHint(column), letters[column] * fontMetrics().averageCharWidth()));
    header->setSectionResizeMode(labelColumn, QHeaderView::Stretch);
}

void VariablesPage::setFilter(const QString &text)
{
    Widgets::filterBy(m_proxy, text);
    m_view->setEmptyText(!text.trimmed().isEmpty()  ? tr("No variable matches the filter.")
                             : m_step == Step::Down ? tr("Nothing of this entity is downloaded.")
                                                    : tr("This entity has no variables to choose from."));
    // What was selected may be hidden now; Space needs rows to work on.
    if (!m_view->selectionModel()->hasSelection() && m_proxy->rowCount() > 0)
        m_view->selectRow(qMax(0, m_view->currentIndex().row()));
    showCounts();
}

bool VariablesPage::eventFilter(QObject *watched, QEvent *event)
{
    // Return in the filter goes to what it found, not to the next page.
    if (watched == m_filter && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Down) {
            m_view->setFocus();
            return true;
        }
    }
    return RunPage::eventFilter(watched, event);
}

void VariablesPage::followChecks()
{
    draft().followChecks(current());
    showCounts();
}

void VariablesPage::showCounts()
{
    for (int row = 0; row < m_entities->count(); ++row) {
        QListWidgetItem *item = m_entities->item(row);
        const auto *entity = static_cast<TDcEntity *>(item->data(Qt::UserRole).value<void *>());
        const QList<TDcVariable *> &variables = m_offered[entity];
        const auto ticked = std::count_if(variables.cbegin(), variables.cend(),
                                          [](const TDcVariable *variable) { return variable->getChecked(); });
        item->setText(tr("%1 (%2 of %3)")
                          .arg(entity->getName(), locale().toString(qsizetype(ticked)),
                               locale().toString(variables.size())));
    }
    if (const TDcEntity *entity = current())
        m_all->setChecked(draft().settings(entity).getAllVariables());
    const int all = m_model ? m_model->rowCount() : 0;
    const int shown = m_proxy->rowCount();
    m_count->setText(shown == all ? tr("Variables: %L1").arg(all)
                                  : tr("Variables: %L1 of %L2").arg(shown).arg(all));
    showProblem();
}

QModelIndexList VariablesPage::shownRows() const
{
    QModelIndexList rows;
    for (int row = 0; row < m_proxy->rowCount(); ++row)
        rows.append(m_proxy->index(row, 0));
    return rows;
}

void VariablesPage::switchSelected()
{
    const QModelIndex current = m_view->currentIndex();
    const bool checked = current.siblingAtColumn(0).data(Qt::CheckStateRole).toInt() == Qt::Checked;
    check(m_view->selectionModel()->selectedRows(), !checked);
}

void VariablesPage::check(const QModelIndexList &rows, bool checked)
{
    if (rows.isEmpty())
        return;
    QList<TDcVariable *> variables;
    std::transform(rows.cbegin(), rows.cend(), std::back_inserter(variables), [this](const QModelIndex &row) {
        return static_cast<TDcVariable *>(m_proxy->mapToSource(row).internalPointer());
    });
    draft().checkVariables(current(), variables, checked);
    // One word for all of them: a thousand would be sorted in one by one.
    Q_EMIT m_model->dataChanged(m_model->index(0, 0), m_model->index(m_model->rowCount() - 1, 0));
}
