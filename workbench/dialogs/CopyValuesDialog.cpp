#include "workbench/dialogs/CopyValuesDialog.h"

#include "model/PreOrder.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "workbench/Actions.h"
#include "workbench/Document.h"
#include "workbench/panels/EmptyText.h"
#include "workbench/panels/Widgets.h"
#include "workbench/Selection.h"

#include <QAction>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

void CopyValuesDialog::addTo(const Workspace &workspace)
{
    QAction *action = (*workspace.actions)[ActionId::ValuesCopyTo];
    connect(action, &QAction::triggered, workspace.window, [workspace] {
        auto *dialog = new CopyValuesDialog(workspace);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->open();
    });
    const auto update = [workspace, action] { action->setEnabled(workspace.selection->variable()); };
    connect(workspace.selection, &Selection::variablesChanged, action, update);
    update();
}

CopyValuesDialog::CopyValuesDialog(const Workspace &workspace)
    : QDialog(workspace.window), m_workspace(workspace), m_source(workspace.selection->variable()),
      m_model(new QStandardItemModel(this)), m_proxy(new QSortFilterProxyModel(this)),
      m_preview(new QLabel(this))
{
    setObjectName(u"copyValuesDialog"_s);
    setWindowTitle(tr("Copy Values of %1").arg(m_source->getName()));
    resize(640, 600);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(createChoices());
    addList();
    m_preview->setObjectName(u"copyValuesPreview"_s);
    m_preview->setAccessibleDescription(tr("What will change"));
    m_preview->setWordWrap(true);
    layout->addWidget(m_preview);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    m_ok->setText(tr("&Copy"));
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    // The variables may go with the change.
    connect(workspace.document, &Document::structureAboutToChange, this, &QDialog::reject);
    fill();
    connect(m_model, &QStandardItemModel::itemChanged, this, &CopyValuesDialog::refresh);
    refresh();
}

QWidget *CopyValuesDialog::createChoices()
{
    auto *choices = new QWidget(this);
    auto *column = new QVBoxLayout(choices);
    column->setContentsMargins(0, 0, 0, 0);
    m_labels = new QCheckBox(tr("Value &labels"), choices);
    m_ranges = new QCheckBox(tr("&Ranges"), choices);
    m_missing = new QCheckBox(tr("&Missing-value and not-applicable codes"), choices);
    // What the source lacks cannot be copied; replaced by it, the others' would be erased.
    const ValueCopies::What there = ValueCopies::contents(*m_source);
    for (const auto &[box, has] :
         {std::pair(m_labels, there.valueLabels), std::pair(m_ranges, there.ranges)}) {
        box->setChecked(has);
        box->setEnabled(has);
        box->setToolTip(has ? QString() : tr("%1 has none.").arg(m_source->getName()));
    }
    auto *what = new QHBoxLayout;
    for (QCheckBox *box : {m_labels, m_ranges, m_missing}) {
        connect(box, &QCheckBox::toggled, this, &CopyValuesDialog::refresh);
        what->addWidget(box);
    }
    what->addStretch(1);
    column->addLayout(what);
    m_replace = new QRadioButton(tr("Re&place the labels and ranges that are there"), choices);
    m_add = new QRadioButton(tr("A&dd what is not there yet"), choices);
    m_replace->setChecked(true);
    connect(m_replace, &QRadioButton::toggled, this, &CopyValuesDialog::refresh);
    column->addWidget(m_replace);
    column->addWidget(m_add);
    return choices;
}

void CopyValuesDialog::addList()
{
    m_filter = Widgets::filterField(tr("Filter variables"), tr("Filter by name, label or entity"), this);
    auto *table = new EmptyText<QTableView>(this);
    table->setEmptyText(tr("No other variable matches the filter."));
    m_view = table;
    m_proxy->setSourceModel(m_model);
    m_proxy->setFilterKeyColumn(-1);
    m_view->setModel(m_proxy);
    Widgets::setUpTable(m_view, tr("Variables to copy to"));
    m_view->setSortingEnabled(false);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    connect(m_filter, &QLineEdit::textChanged, m_proxy,
            [this](const QString &text) { Widgets::filterBy(m_proxy, text); });

    auto *all = new QPushButton(tr("&Tick Shown"), this);
    auto *none = new QPushButton(tr("&Untick Shown"), this);
    for (QPushButton *button : {all, none})
        button->setAutoDefault(false);
    connect(all, &QPushButton::clicked, this, [this] { tick(true); });
    connect(none, &QPushButton::clicked, this, [this] { tick(false); });
    auto *bar = new QHBoxLayout;
    bar->addWidget(m_filter, 1);
    bar->addWidget(all);
    bar->addWidget(none);
    static_cast<QVBoxLayout *>(layout())->addLayout(bar);
    layout()->addWidget(m_view);
}

void CopyValuesDialog::fill()
{
    const QList<TDcVariable *> selected = m_workspace.selection->variables();
    const QSet<const TDcVariable *> ticked(selected.cbegin(), selected.cend());
    QList<TDcEntity *> entities;
    preOrder(m_workspace.document->root(), [&entities](TDcEntity *entity) { entities.append(entity); });
    for (const TDcEntity *entity : std::as_const(entities)) {
        for (TDcVariable *variable : std::as_const(*entity->getVariables())) {
            if (variable == m_source)
                continue;
            auto *name = new QStandardItem(variable->getName());
            name->setCheckable(true);
            name->setCheckState(ticked.contains(variable) ? Qt::Checked : Qt::Unchecked);
            m_model->appendRow(
                {name, new QStandardItem(variable->getLabel()), new QStandardItem(entity->getName())});
            m_variables.append(variable);
        }
    }
    m_model->setHorizontalHeaderLabels({tr("Variable"), tr("Label"), tr("Entity")});
    m_view->setColumnWidth(0, 180);
    m_view->setColumnWidth(1, 280);
    // What is ticked to begin with is in sight.
    const auto first =
        std::find_if(m_variables.cbegin(), m_variables.cend(),
                     [&ticked](const TDcVariable *variable) { return ticked.contains(variable); });
    const int row = first == m_variables.cend() ? 0 : int(first - m_variables.cbegin());
    m_view->setCurrentIndex(m_proxy->index(row, 0));
}

void CopyValuesDialog::tick(bool on)
{
    {
        const QSignalBlocker once(m_model);
        for (int row = 0; row < m_proxy->rowCount(); ++row) {
            const QModelIndex source = m_proxy->mapToSource(m_proxy->index(row, 0));
            m_model->itemFromIndex(source)->setCheckState(on ? Qt::Checked : Qt::Unchecked);
        }
    }
    m_view->viewport()->update();
    refresh();
}

QList<TDcVariable *> CopyValuesDialog::targets() const
{
    QList<TDcVariable *> targets;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        if (m_model->item(row)->checkState() == Qt::Checked)
            targets.append(m_variables.at(row));
    }
    return targets;
}

ValueCopies::What CopyValuesDialog::what() const
{
    return {m_labels->isChecked(), m_ranges->isChecked(), m_missing->isChecked(), m_replace->isChecked()};
}

void CopyValuesDialog::refresh()
{
    const QList<TDcVariable *> chosen = targets();
    m_preview->setText(chosen.isEmpty() ? tr("Tick the variables to copy to.")
                                        : ValueCopies::preview(*m_source, chosen, what()));
    m_ok->setEnabled(!chosen.isEmpty());
}

void CopyValuesDialog::accept()
{
    const QList<TDcVariable *> chosen = targets();
    ValueCopies::apply(*m_source, chosen, what());
    m_workspace.document->commit(chosen.size() == 1
                                     ? tr("copying values of %1 to %2", "two variables")
                                           .arg(m_source->getName(), chosen.constFirst()->getName())
                                     : tr("copying values of %1 to %L2 variables")
                                           .arg(m_source->getName(), QLocale().toString(chosen.size())));
    QDialog::accept();
}
