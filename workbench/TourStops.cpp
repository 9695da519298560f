#include "workbench/Tour.h"

#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "workbench/dialogs/AreaSelectionDialog.h"
#include "workbench/dialogs/CopyValuesDialog.h"
#include "workbench/dialogs/EditTogetherDialog.h"
#include "workbench/dialogs/ExpressionDialog.h"
#include "workbench/dialogs/ExpressionEdit.h"
#include "workbench/dialogs/LabelSetsDialog.h"
#include "workbench/MainWindow.h"
#include "workbench/operations/NewNames.h"
#include "workbench/panels/EntityTreePanel.h"
#include "workbench/panels/FindPanel.h"
#include "workbench/panels/RangesPanel.h"
#include "workbench/panels/SourcesPanel.h"
#include "workbench/panels/SourceTab.h"
#include "workbench/panels/ValueLabelsPanel.h"
#include "workbench/panels/VariableTablePanel.h"
#include "workbench/run/RunWizard.h"
#include "workbench/SourceCommands.h"

#include <QDeadlineTimer>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QTableView>
#include <QTreeView>

#include <utility>

using namespace Qt::Literals::StringLiterals;

// What the tour does at each of its stops.

namespace
{
/// The entity below \a entity, or itself, that has the most variables.
TDcEntity *richest(TDcEntity *entity)
{
    TDcEntity *best = entity;
    for (TDcEntity *child : std::as_const(*entity->getChildren())) {
        TDcEntity *candidate = richest(child);
        if (candidate->getVariables()->size() > best->getVariables()->size())
            best = candidate;
    }
    return best;
}

/// Writes \a text into the last row of \a view, as its editor would.
bool writeLast(QAbstractItemView *view, int column, const QString &text)
{
    QAbstractItemModel *model = view->model();
    return model->setData(model->index(model->rowCount() - 1, column), text, Qt::EditRole);
}
} // namespace

QList<Tour::Stop> Tour::stops()
{
#define TEXT(text) QT_TRANSLATE_NOOP("Tour", text)
    return {
        {"open", TEXT("A dictionary is open."), [this] { return open(); }},
        {"rename", TEXT("An entity is renamed."), [this] { return renameEntity(); }},
        {"find", TEXT("A variable is found by typing a part of its label."), [this] { return find(); }},
        {"edit", TEXT("Its label is edited in place."), [this] { return edit(); }},
        {"values", TEXT("It gets a value label and a range."), [this] { return giveValues(); }},
        {"source", TEXT("A data file lists its fields."), [this] { return openDataFile(); }},
        {"import", TEXT("The fields become variables; clashes are resolved."),
         [this] { return importFields(); }},
        {"undo", TEXT("Every step can be undone and redone."), [this] { return showUndo(); }},
        {"save", TEXT("The dictionary is saved."), [this] { return save(); }},
        {"problems", TEXT("The dictionary is checked."), [this] { return check(); }},
        {"search", TEXT("The whole tree is searched."), [this] { return search(); }},
        {"together", TEXT("Several variables are edited together."), [this] { return editTogether(); }},
        {"copy", TEXT("Value labels and ranges are copied to many variables."),
         [this] { return dismiss(show<CopyValuesDialog>(ActionId::ValuesCopyTo)); }},
        {"sets", TEXT("Identical sets of value labels are edited once."),
         [this] { return dismiss(show<LabelSetsDialog>(ActionId::ValuesLabelSets)); }},
        {"expression", TEXT("An expression is put together from what the dictionary holds."),
         [this] { return buildExpression(); }},
        {"areas", TEXT("Area units are selected."), [this] { return selectAreas(); }},
        {"run", TEXT("A run configuration is made."), [this] { return makeRun(); }},
    };
#undef TEXT
}

template <typename Dialog>
Dialog *Tour::show(ActionId id)
{
    trigger(id);
    return m_window->findChild<Dialog *>();
}

bool Tour::open()
{
    if (!m_window->document()->open(m_copy)) {
        m_error = m_window->document()->errorText();
        return false;
    }
    m_window->selection()->setEntity(richest(m_window->document()->root()));
    return picture(m_window);
}

bool Tour::renameEntity()
{
    auto *tree = m_window->findChild<EntityTreePanel *>()->findChild<QTreeView *>();
    const QModelIndex index = tree->currentIndex();
    const QString name = NewNames::entity(m_window->document()->root(), index.data().toString() + u'S');
    tree->edit(index);
    const bool drawn = picture(m_window);
    m_window->setFocus(); // Which closes the editor.
    return drawn && tree->model()->setData(index, name, Qt::EditRole);
}

bool Tour::find()
{
    const QList<TDcVariable *> &variables = *m_window->selection()->entity()->getVariables();
    if (variables.isEmpty())
        return picture(m_window);
    const TDcVariable *wanted = variables.at(variables.size() / 2);
    const QString text = wanted->getLabel().isEmpty() ? wanted->getName() : wanted->getLabel();
    auto *table = m_window->findChild<VariableTablePanel *>();
    table->filterField()->setText(text.section(u' ', 0, 0).left(6).toLower());
    return picture(m_window) && table->view()->model()->rowCount() > 0;
}

bool Tour::edit()
{
    auto *table = m_window->findChild<VariableTablePanel *>();
    const QModelIndex label = table->view()->currentIndex().siblingAtColumn(2);
    if (!label.isValid())
        return picture(m_window);
    const QString text = label.data().toString();
    table->view()->setCurrentIndex(label);
    table->view()->edit(label);
    const bool drawn = picture(m_window);
    m_window->setFocus();
    return drawn && table->view()->model()->setData(label, text + u'.', Qt::EditRole);
}

bool Tour::giveValues()
{
    if (!m_window->selection()->variable())
        return picture(m_window);
    trigger(ActionId::LabelAdd);
    m_window->setFocus();
    QTableView *labels = m_window->findChild<ValueLabelsPanel *>()->view();
    if (!writeLast(labels, 0, u"97"_s) || !writeLast(labels, 1, tr("Not known")))
        return false;
    trigger(ActionId::RangeAdd);
    m_window->setFocus();
    QTableView *ranges = m_window->findChild<RangesPanel *>()->view();
    if (!writeLast(ranges, 0, u"96"_s) || !writeLast(ranges, 1, u"97"_s))
        return false;
    return picture(m_window);
}

bool Tour::openDataFile()
{
    m_window->findChild<VariableTablePanel *>()->filterField()->clear();
    if (!m_dataFile.isEmpty() && !m_window->findChild<SourceCommands *>()->openDataset(m_dataFile))
        return false;
    return picture(m_window);
}

bool Tour::importFields()
{
    QTableView *fields = m_window->findChild<SourcesPanel *>()->dataset()->view();
    fields->selectAll();
    if (!fields->selectionModel()->hasSelection())
        return picture(m_window);
    const auto count = [this] { return m_window->selection()->entity()->getVariables()->size(); };
    const qsizetype before = count();
    trigger(ActionId::SourceAppend);
    if (!picture(m_window))
        return false;
    // A field once more is asked about.
    fields->selectRow(fields->model()->rowCount() - 1);
    const QString rename = QCoreApplication::translate("VariableDiccionaryModel", "Rename");
    return answer(rename, [this] { trigger(ActionId::SourceAppend); })
        && count() == before + fields->model()->rowCount() + 1;
}

bool Tour::showUndo()
{
    QMenu *menu = m_window->actions()->menu(MenuId::Edit);
    menu->ensurePolished();
    menu->resize(menu->sizeHint());
    if (!picture(menu))
        return false;
    const int steps = m_window->document()->undoStack()->index();
    for (int step = 0; step < steps; ++step)
        trigger(ActionId::EditUndo);
    const bool undone = !m_window->document()->isModified();
    for (int step = 0; step < steps; ++step)
        trigger(ActionId::EditRedo);
    return undone && m_window->document()->isModified();
}

bool Tour::check()
{
    trigger(ActionId::ToolsCheck);
    return picture(m_window);
}

bool Tour::search()
{
    trigger(ActionId::EditFind);
    auto *panel = m_window->findChild<FindPanel *>();
    panel->field()->setText(u"work"_s);
    // Typing is let settle before it is searched.
    const QDeadlineTimer patience(2000);
    while (panel->view()->model()->rowCount() == 0 && !patience.hasExpired())
        settle();
    return picture(m_window);
}

bool Tour::editTogether()
{
    m_window->findChild<VariableTablePanel *>()->view()->selectAll();
    settle();
    return dismiss(show<EditTogetherDialog>(ActionId::VariableEditTogether));
}

bool Tour::buildExpression()
{
    auto *dialog = show<ExpressionDialog>(ActionId::ToolsExpression);
    if (!dialog)
        return false;
    const TDcEntity *entity = m_window->selection()->entity();
    if (const TDcVariable *variable = m_window->selection()->variable())
        dialog->editor()->setPlainText(entity->getName() + u'.' + variable->getName() + u" > 3 AND ("_s);
    return dismiss(dialog);
}

bool Tour::selectAreas()
{
    auto *dialog = show<AreaSelectionDialog>(ActionId::ToolsAreas);
    if (!dialog || (!m_areas.isEmpty() && !dialog->load(m_areas)))
        return false;
    QAbstractItemModel *model = dialog->view()->model();
    const QModelIndex root = model->index(0, 0);
    for (int row : {1, 3}) {
        const QModelIndex unit = model->index(row, 0, root);
        if (unit.isValid() && !model->setData(unit, Qt::Checked, Qt::CheckStateRole))
            return false;
    }
    return dismiss(dialog);
}

bool Tour::makeRun()
{
    auto *wizard = show<RunWizard>(ActionId::ToolsNewRun);
    if (!wizard)
        return false;
    // It starts with everything chosen; only a name is wanted.
    const QList<QLineEdit *> fields = wizard->currentPage()->findChildren<QLineEdit *>(u"name"_s);
    for (QLineEdit *field : fields)
        field->setText(tr("First run"));
    for (int page = -1; wizard->nextId() >= 0 && wizard->currentId() != page; wizard->next()) {
        page = wizard->currentId();
        if (!picture(wizard))
            return false;
    }
    return dismiss(wizard);
}

bool Tour::save()
{
    trigger(ActionId::FileSave);
    return !m_window->document()->isModified() && picture(m_window);
}
