#include "workbench/Tour.h"

#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "workbench/dialogs/CopyValuesDialog.h"
#include "workbench/dialogs/LabelSetsDialog.h"
#include "workbench/operations/NewNames.h"
#include "workbench/panels/EntityTreePanel.h"
#include "workbench/panels/FindPanel.h"
#include "workbench/panels/RangesPanel.h"
#include "workbench/panels/SourcesPanel.h"
#include "workbench/panels/SourceTab.h"
#include "workbench/panels/ValueLabelsPanel.h"
#include "workbench/panels/VariableTablePanel.h"
#include "workbench/SourceCommands.h"

#include <QDeadlineTimer>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QTableView>
#include <QTabWidget>
#include <QTreeView>

#include <utility>

using namespace Qt::Literals::StringLiterals;

// What the tour does at each of its stops, but for the larger dialogs.

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
        {"csv", TEXT("The columns of a text file are listed."), [this] { return openTextFile(); }},
        {"lookups", TEXT("Lookup tables have a place of their own."), [this] { return showLookups(); }},
        {"undo", TEXT("Every step can be undone and redone."), [this] { return showUndo(); }},
        {"question", TEXT("No work is lost unasked."), [this] { return keepWork(); }},
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
        {"progress", TEXT("What takes long says so and can be cancelled."),
         [this] { return showProgress(); }},
        {"recovery", TEXT("After a crash the unsaved changes are offered."),
         [this] { return offerRecovery(); }},
        {"about", TEXT("The workbench says what it is."), [this] { return showAbout(); }},
    };
#undef TEXT
}

bool Tour::open()
{
    if (!m_window->document()->open(m_copy)) {
        m_error = m_window->document()->errorText();
        return false;
    }
    m_window->selection()->setEntity(richest(m_window->document()->root()));
    // Progress takes the keyboard while a large dictionary is read; without it editors would stay open.
    m_window->activateWindow();
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

bool Tour::openTextFile()
{
    if (!m_areas.isEmpty() && !m_window->findChild<SourceCommands *>()->openCsv(m_areas))
        return false;
    return picture(m_window);
}

bool Tour::showLookups()
{
    auto *sources = m_window->findChild<SourcesPanel *>();
    sources->findChild<QTabWidget *>()->setCurrentWidget(sources->lookups());
    return picture(m_window);
}

bool Tour::keepWork()
{
    // The question is not answered, so the window stays.
    return !m_window->document()->isModified() || answer({}, [this] { m_window->close(); });
}

bool Tour::save()
{
    trigger(ActionId::FileSave);
    return !m_window->document()->isModified() && picture(m_window);
}
