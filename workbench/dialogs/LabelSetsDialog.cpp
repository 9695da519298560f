#include "workbench/dialogs/LabelSetsDialog.h"

#include "model/TDcEntity.h"
#include "model/ValueLabelElement.h"
#include "models/VarValueLabelDiccionaryModel.h"
#include "workbench/Actions.h"
#include "workbench/Document.h"
#include "workbench/operations/ListEdits.h"
#include "workbench/panels/EmptyText.h"
#include "workbench/panels/Widgets.h"
#include "workbench/proxies/TitledColumns.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QIdentityProxyModel>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

void LabelSetsDialog::addTo(const Workspace &workspace)
{
    connect((*workspace.actions)[ActionId::ValuesLabelSets], &QAction::triggered, workspace.window,
            [workspace] {
                auto *dialog = new LabelSetsDialog(workspace);
                dialog->setAttribute(Qt::WA_DeleteOnClose);
                dialog->open();
            });
}

LabelSetsDialog::LabelSetsDialog(const Workspace &workspace)
    : QDialog(workspace.window), m_workspace(workspace),
      m_titled(new TitledColumns<QIdentityProxyModel>({tr("Code"), tr("Label")}))
{
    m_titled->setParent(this);
    setObjectName(u"labelSetsDialog"_s);
    setWindowTitle(tr("Identical Label Sets"));
    resize(820, 520);
    auto *splitter = new QSplitter(this);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(createSets());
    splitter->addWidget(createLabels());
    splitter->setSizes({380, 440});
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    m_apply = buttons->addButton(tr("Change All"), QDialogButtonBox::ApplyRole);
    m_takeBack = buttons->addButton(QDialogButtonBox::Reset);
    for (QPushButton *button : {m_apply, m_takeBack})
        button->setAutoDefault(false);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(splitter, 1);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_apply, &QPushButton::clicked, this, &LabelSetsDialog::apply);
    connect(m_takeBack, &QPushButton::clicked, this, &LabelSetsDialog::takeBack);
    connect(m_list, &QListWidget::currentRowChanged, this, &LabelSetsDialog::showSet);
    // The variables may go with the change: there is nothing left to ask.
    connect(workspace.document, &Document::structureAboutToChange, this, [this] { done(Rejected); });
    list(0);
}

LabelSetsDialog::~LabelSetsDialog()
{
    // It shows what the draft owns, which goes first.
    m_view->setModel(nullptr);
    delete m_model;
}

QWidget *LabelSetsDialog::createSets()
{
    auto *side = new QWidget(this);
    auto *column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    auto *list = new EmptyText<QListWidget>(side);
    list->setEmptyText(tr("No two variables have the same value labels."));
    m_list = list;
    Widgets::setUpList(m_list, tr("Identical label sets"));
    auto *title = new QLabel(tr("&Sets that variables share"), side);
    title->setBuddy(m_list);
    m_pending = new QLabel(tr("Change or reset the labels before you go to another set."), side);
    m_pending->setObjectName(u"labelSetPending"_s);
    m_pending->setWordWrap(true);
    m_pending->hide();
    column->addWidget(title);
    column->addWidget(m_list);
    column->addWidget(m_pending);
    return side;
}

QWidget *LabelSetsDialog::createLabels()
{
    auto *side = new QWidget(this);
    auto *column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    auto *table = new EmptyText<QTableView>(side);
    table->setEmptyText(tr("No value labels."));
    m_view = table;
    Widgets::setUpTable(m_view, tr("Labels of the set"));
    m_view->setSortingEnabled(false);
    auto *title = new QLabel(tr("&Labels of the set"), side);
    title->setBuddy(m_view);
    column->addWidget(title);
    column->addWidget(m_view, 1);
    auto *bar = new QHBoxLayout;
    m_add = addButton(bar, tr("&Add"), &LabelSetsDialog::addLabel);
    m_remove = addButton(bar, tr("&Remove"), &LabelSetsDialog::removeLabels);
    m_up = addButton(bar, tr("Move &Up"), &LabelSetsDialog::moveUp);
    m_down = addButton(bar, tr("Move &Down"), &LabelSetsDialog::moveDown);
    bar->addStretch(1);
    column->addLayout(bar);
    m_members = new QPlainTextEdit(side);
    m_members->setObjectName(u"labelSetMembers"_s);
    m_members->setAccessibleName(tr("Variables that have the set"));
    m_members->setReadOnly(true);
    m_members->setTabChangesFocus(true);
    m_members->setFixedHeight(m_members->fontMetrics().lineSpacing() * 5 + 12);
    auto *membersTitle = new QLabel(tr("&Variables that have the set"), side);
    membersTitle->setContentsMargins(0, 8, 0, 0);
    membersTitle->setBuddy(m_members);
    column->addWidget(membersTitle);
    column->addWidget(m_members);
    return side;
}

QPushButton *LabelSetsDialog::addButton(QLayout *layout, const QString &text, void (LabelSetsDialog::*slot)())
{
    auto *button = new QPushButton(text, this);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, slot);
    layout->addWidget(button);
    return button;
}

void LabelSetsDialog::list(int row, const TDcVariable *member)
{
    m_sets = LabelSets::shared(m_workspace.document->root());
    m_list->clear();
    for (const LabelSets::Set &set : std::as_const(m_sets))
        m_list->addItem(
            tr("%L1 variables: %2", "how many have these labels").arg(set.members.size()).arg(set.text()));
    const auto found = std::find_if(m_sets.cbegin(), m_sets.cend(), [member](const LabelSets::Set &set) {
        return std::any_of(set.members.cbegin(), set.members.cend(),
                           [member](const LabelSets::Member &each) { return each.variable == member; });
    });
    m_list->setCurrentRow(found != m_sets.cend() ? int(found - m_sets.cbegin())
                                                 : std::min(row, int(m_sets.size()) - 1));
    if (m_sets.isEmpty())
        showSet(-1);
}

void LabelSetsDialog::showSet(int row)
{
    m_set = row;
    QStringList members;
    auto *elements = new QList<ValueLabelElement *>;
    m_origins.clear();
    if (row >= 0) {
        for (const LabelSets::Member &member : m_sets.at(row).members)
            members.append(member.entity->getName() + u'/' + member.variable->getName());
        for (const LabelSets::Label &label : m_sets.at(row).labels) {
            auto *element = new ValueLabelElement;
            element->setValue(label.first);
            element->setLabel(label.second);
            m_origins.insert(element, int(elements->size()));
            elements->append(element);
        }
    }
    m_view->setModel(nullptr);
    delete std::exchange(m_model, nullptr);
    m_draft.setValueLabelElementList(elements);
    m_members->setPlainText(members.join(u'\n'));
    showLabels(0);
}

void LabelSetsDialog::showLabels(int current)
{
    // The model keeps the rows that it was made with.
    m_view->setModel(nullptr);
    delete m_model;
    m_model = new VarValueLabelDiccionaryModel(this, &m_draft);
    m_titled->setSourceModel(m_model);
    m_view->setModel(m_titled);
    m_view->setColumnWidth(0, 90);
    connect(m_model, &QAbstractItemModel::dataChanged, this, &LabelSetsDialog::updateButtons);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &LabelSetsDialog::updateButtons);
    if (m_titled->rowCount() > 0)
        m_view->setCurrentIndex(m_titled->index(qBound(0, current, m_titled->rowCount() - 1), 0));
    updateButtons();
}

QList<ValueLabelElement *> LabelSetsDialog::selected() const
{
    QList<ValueLabelElement *> elements;
    const QModelIndexList rows = m_view->selectionModel()->selectedRows();
    std::transform(rows.cbegin(), rows.cend(), std::back_inserter(elements), [](const QModelIndex &index) {
        return static_cast<ValueLabelElement *>(index.internalPointer());
    });
    return elements;
}

QList<LabelSets::Edited> LabelSetsDialog::edited() const
{
    QList<LabelSets::Edited> edited;
    const QList<ValueLabelElement *> &elements = *m_draft.getValueLabelElementList();
    std::transform(elements.cbegin(), elements.cend(), std::back_inserter(edited),
                   [this](const ValueLabelElement *element) {
                       return LabelSets::Edited{{element->getValue(), element->getLabel()},
                                                m_origins.value(element, -1)};
                   });
    return edited;
}

bool LabelSetsDialog::isChanged() const
{
    if (m_set < 0)
        return false;
    const QList<LabelSets::Edited> now = edited();
    const QList<LabelSets::Label> &before = m_sets.at(m_set).labels;
    return !std::equal(
        now.cbegin(), now.cend(), before.cbegin(), before.cend(),
        [](const LabelSets::Edited &one, const LabelSets::Label &other) { return one.label == other; });
}

void LabelSetsDialog::updateButtons()
{
    const QList<ValueLabelElement *> &elements = *m_draft.getValueLabelElementList();
    const QList<ValueLabelElement *> rows = selected();
    m_add->setEnabled(m_set >= 0);
    m_remove->setEnabled(!rows.isEmpty());
    m_up->setEnabled(ListEdits::canMove(elements, rows, true));
    m_down->setEnabled(ListEdits::canMove(elements, rows, false));
    const bool changed = isChanged();
    m_apply->setEnabled(changed);
    m_takeBack->setEnabled(changed);
    // What is edited must be written or taken back before another set is shown.
    m_list->setEnabled(!changed);
    m_pending->setVisible(changed);
    m_apply->setText(m_set < 0 ? tr("&Change All")
                               : tr("&Change in %L1 Variables").arg(m_sets.at(m_set).members.size()));
}
