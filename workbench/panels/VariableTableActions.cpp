#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "models/VariableDiccionaryModel.h"
#include "models/VariablesDictionaryProxyModel.h"
#include "workbench/Actions.h"
#include "workbench/Document.h"
#include "workbench/operations/ListEdits.h"
#include "workbench/operations/NewNames.h"
#include "workbench/operations/VariableEdits.h"
#include "workbench/panels/VariableTablePanel.h"
#include "workbench/panels/Widgets.h"
#include "workbench/Selection.h"

#include <QAction>
#include <QLineEdit>
#include <QTableView>

#include <utility>

using namespace Qt::Literals::StringLiterals;

// What the variable table does when an action asks for it.

namespace
{
struct Role {
    ActionId action;
    VariableEdits::Role role;
};

/// \a one with the variable's name, or \a many with the number of variables.
QString stepText(const QString &one, const QString &many, const QList<TDcVariable *> &variables)
{
    return variables.size() == 1 ? one.arg(variables.first()->getName()) : many.arg(variables.size());
}

constexpr Role roles[] = {{ActionId::VariableRefCode, VariableEdits::Role::RefCode},
                          {ActionId::VariableRefLabel, VariableEdits::Role::RefLabel},
                          {ActionId::VariableWeight, VariableEdits::Role::Weight}};
} // namespace

void VariableTablePanel::connectActions()
{
    const Actions &actions = *m_workspace.actions;
    const auto act = [this, &actions](ActionId id, auto &&slot) {
        connect(actions[id], &QAction::triggered, this, slot);
        m_view->addAction(actions[id]);
    };
    act(ActionId::VariableAdd, [this] { addVariable(); });
    act(ActionId::VariableDuplicate, [this] { duplicateVariables(); });
    act(ActionId::VariableRemove, [this] { removeVariables(); });
    act(ActionId::VariableMoveUp, [this] { moveVariables(true); });
    act(ActionId::VariableMoveDown, [this] { moveVariables(false); });
    m_view->addAction(actions[ActionId::VariableMoveTo]);
    for (const Role &role : roles) {
        actions[role.action]->setCheckable(true);
        act(role.action, [this, &role] { toggleRole(role.role); });
    }
    connect(actions[ActionId::VariableDuplicates], &QAction::triggered, this,
            [this] { m_model->showDuplicatedNamesWarning(); });
    connect(actions[ActionId::EditFilter], &QAction::triggered, this, [this] {
        m_filter->setFocus(Qt::ShortcutFocusReason);
        m_filter->selectAll();
    });
    Widgets::bindKey(m_view, QKeySequence::Delete, actions[ActionId::VariableRemove]);
    Widgets::bindKey(m_view, Qt::Key_Insert, actions[ActionId::VariableAdd]);
}

void VariableTablePanel::updateActions()
{
    const Actions &actions = *m_workspace.actions;
    const TDcEntity *entity = m_workspace.selection->entity();
    const TDcVariable *variable = m_workspace.selection->variable();
    const QList<TDcVariable *> selected = m_workspace.selection->variables();
    actions[ActionId::VariableAdd]->setEnabled(entity);
    actions[ActionId::VariableDuplicates]->setEnabled(entity);
    actions[ActionId::VariableDuplicate]->setEnabled(variable);
    actions[ActionId::VariableRemove]->setEnabled(variable);
    // What "up" means in a sorted table nobody could tell, nor what lies between where a filter hides rows.
    const bool ordered = entity && m_proxy->sortColumn() < 0 && !isFiltered();
    actions[ActionId::VariableMoveUp]->setEnabled(
        ordered && ListEdits::canMove(*entity->getVariables(), selected, true));
    actions[ActionId::VariableMoveDown]->setEnabled(
        ordered && ListEdits::canMove(*entity->getVariables(), selected, false));
    for (const Role &role : roles) {
        actions[role.action]->setEnabled(variable && selected.size() == 1);
        actions[role.action]->setChecked(variable && VariableEdits::has(*entity, *variable, role.role));
    }
}

void VariableTablePanel::addVariable()
{
    TDcEntity *entity = m_workspace.selection->entity();
    const QString name = NewNames::variable(m_workspace.document->root(), entity, tr("VARIABLE"));
    TDcVariable *added = nullptr;
    m_workspace.document->edit(tr("adding %1").arg(name), [&] { added = VariableEdits::add(entity, name); });
    m_filter->clear();
    m_workspace.selection->select(entity, added);
    m_view->setFocus();
    m_view->edit(m_view->currentIndex());
}

void VariableTablePanel::duplicateVariables()
{
    TDcEntity *entity = m_workspace.selection->entity();
    const QList<TDcVariable *> variables = m_workspace.selection->variables();
    QList<TDcVariable *> copies;
    m_workspace.document->edit(
        stepText(tr("duplicating %1"), tr("duplicating %L1 variables"), variables),
        [&] { copies = VariableEdits::duplicate(m_workspace.document->root(), entity, variables); });
    m_workspace.selection->setVariables(copies, copies.value(0));
}

void VariableTablePanel::removeVariables()
{
    TDcEntity *entity = m_workspace.selection->entity();
    const QList<TDcVariable *> variables = m_workspace.selection->variables();
    const QString text = stepText(tr("removing %1"), tr("removing %L1 variables"), variables);
    m_workspace.document->edit(text, [&] { VariableEdits::remove(*entity, variables); });
}

void VariableTablePanel::moveVariables(bool up)
{
    TDcEntity *entity = m_workspace.selection->entity();
    const QList<TDcVariable *> variables = m_workspace.selection->variables();
    m_workspace.document->edit(stepText(tr("moving %1"), tr("moving %L1 variables"), variables),
                               [&] { ListEdits::move(*entity->getVariables(), variables, up); });
}

void VariableTablePanel::toggleRole(VariableEdits::Role role)
{
    TDcEntity *entity = m_workspace.selection->entity();
    VariableEdits::toggle(*entity, *m_workspace.selection->variable(), role);
    m_workspace.document->commit({}, entity);
    updateActions();
}

void VariableTablePanel::importFields(const QMimeData *payload)
{
    if (m_model)
        m_model->dropMimeData(payload, Qt::CopyAction, -1, -1, {});
}

void VariableTablePanel::takeImport()
{
    const int fields = std::exchange(m_imported, 0);
    if (fields == 0)
        return;
    TDcEntity *entity = m_workspace.selection->entity();
    const QString text = fields == 1 ? tr("import of a field") : tr("import of %L1 fields").arg(fields);
    // The person may have refused all of them.
    if (m_workspace.document->commit(text, entity))
        m_workspace.selection->select(entity, entity->getVariables()->last());
    showSelection();
    updateCount();
}
