#include "workbench/panels/EntityTreePanel.h"

#include "model/TDcEntity.h"
#include "models/DictionaryTreeModel.h"
#include "workbench/Actions.h"
#include "workbench/Document.h"
#include "workbench/operations/EntityEdits.h"
#include "workbench/operations/ListEdits.h"
#include "workbench/operations/NewNames.h"
#include "workbench/operations/Places.h"
#include "workbench/panels/Widgets.h"
#include "workbench/proxies/RealRowProxy.h"
#include "workbench/Selection.h"

#include <QAction>
#include <QTreeView>
#include <QVBoxLayout>

EntityTreePanel::EntityTreePanel(const Workspace &workspace, QWidget *parent)
    : QWidget(parent), m_workspace(workspace), m_view(new QTreeView(this)), m_proxy(new RealRowProxy(this))
{
    Widgets::setUpTree(m_view, tr("Entities"));
    m_view->setModel(m_proxy);
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view);

    connect(workspace.document, &Document::structureAboutToChange, this, &EntityTreePanel::forgetTree);
    connect(workspace.document, &Document::structureChanged, this, &EntityTreePanel::showTree);
    connect(workspace.document, &Document::contentChanged, m_view->viewport(), qOverload<>(&QWidget::update));
    connect(workspace.selection, &Selection::entityChanged, this, &EntityTreePanel::showCurrent);
    connect(m_proxy, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex &index) { m_workspace.document->commit({}, entityAt(index)); });
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &current) {
                if (current.isValid())
                    m_workspace.selection->setEntity(entityAt(current));
            });
    connectActions();
    showTree();
}

void EntityTreePanel::connectActions()
{
    const Actions &actions = *m_workspace.actions;
    const auto act = [this, &actions](ActionId id, auto &&slot) {
        connect(actions[id], &QAction::triggered, this, slot);
        m_view->addAction(actions[id]);
    };
    act(ActionId::EntityAdd, [this] { addEntity(); });
    act(ActionId::EntityDuplicate, [this] { duplicateEntity(); });
    act(ActionId::EntityRename, [this] {
        m_view->setFocus();
        m_view->edit(m_view->currentIndex());
    });
    act(ActionId::EntityRemove, [this] { removeEntity(); });
    act(ActionId::EntityMoveUp, [this] { moveEntity(true); });
    act(ActionId::EntityMoveDown, [this] { moveEntity(false); });
    m_view->addAction(actions[ActionId::EntityMoveTo]);
    Widgets::bindKey(m_view, QKeySequence::Delete, actions[ActionId::EntityRemove]);
    Widgets::bindKey(m_view, Qt::Key_Insert, actions[ActionId::EntityAdd]);
}

TDcEntity *EntityTreePanel::entityAt(const QModelIndex &index) const
{
    return index.isValid() ? static_cast<TDcEntity *>(index.internalPointer()) : nullptr;
}

void EntityTreePanel::forgetTree()
{
    m_collapsed.clear();
    m_proxy->visit([this](const QModelIndex &node) {
        // A leaf is never expanded, and may have children when the tree is back.
        if (m_proxy->hasChildren(node) && !m_view->isExpanded(node))
            m_collapsed.insert(node.internalPointer());
    });
    m_proxy->setSourceModel(nullptr);
    delete m_model;
    m_model = nullptr;
}

void EntityTreePanel::showTree()
{
    m_model = new DictionaryTreeModel(this, m_workspace.document->root());
    m_proxy->setSourceModel(m_model);
    m_view->expandAll();
    m_proxy->visit([this](const QModelIndex &node) {
        if (m_collapsed.contains(node.internalPointer()))
            m_view->collapse(node);
    });
    showCurrent(m_workspace.selection->entity());
}

void EntityTreePanel::showCurrent(const TDcEntity *entity)
{
    if (m_model && entity && entityAt(m_view->currentIndex()) != entity)
        m_view->setCurrentIndex(m_proxy->indexOf(entity));
    updateActions();
}

void EntityTreePanel::updateActions()
{
    TDcEntity *entity = m_workspace.selection->entity();
    const TDcEntity *parent = entity ? Places::parentOf(m_workspace.document->root(), entity) : nullptr;
    const Actions &actions = *m_workspace.actions;
    actions[ActionId::EntityAdd]->setEnabled(entity);
    actions[ActionId::EntityRename]->setEnabled(entity);
    // There is one root, so it cannot be removed, and nothing can stand beside it.
    actions[ActionId::EntityDuplicate]->setEnabled(parent);
    actions[ActionId::EntityRemove]->setEnabled(parent);
    actions[ActionId::EntityMoveUp]->setEnabled(
        parent && ListEdits::canMove(*parent->getChildren(), {entity}, true));
    actions[ActionId::EntityMoveDown]->setEnabled(
        parent && ListEdits::canMove(*parent->getChildren(), {entity}, false));
}

void EntityTreePanel::addEntity()
{
    TDcEntity *parent = m_workspace.selection->entity();
    const QString name = NewNames::entity(m_workspace.document->root(), tr("ENTITY"));
    TDcEntity *added = nullptr;
    m_workspace.document->edit(tr("adding %1").arg(name), [&] { added = EntityEdits::add(parent, name); });
    m_workspace.selection->setEntity(added);
    m_view->setFocus();
    m_view->edit(m_view->currentIndex());
}

void EntityTreePanel::duplicateEntity()
{
    TDcEntity *entity = m_workspace.selection->entity();
    TDcEntity *copy = nullptr;
    m_workspace.document->edit(tr("duplicating %1").arg(entity->getName()),
                               [&] { copy = EntityEdits::duplicate(m_workspace.document->root(), entity); });
    m_workspace.selection->setEntity(copy);
}

void EntityTreePanel::removeEntity()
{
    TDcEntity *entity = m_workspace.selection->entity();
    m_workspace.document->edit(tr("removing %1").arg(entity->getName()), [&] {
        ListEdits::remove(*Places::parentOf(m_workspace.document->root(), entity)->getChildren(), {entity});
    });
}

void EntityTreePanel::moveEntity(bool up)
{
    TDcEntity *entity = m_workspace.selection->entity();
    m_workspace.document->edit(tr("moving %1").arg(entity->getName()), [&] {
        ListEdits::move(*Places::parentOf(m_workspace.document->root(), entity)->getChildren(), {entity}, up);
    });
}
