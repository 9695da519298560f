#pragma once

#include "workbench/Workspace.h"

#include <QSet>
#include <QWidget>

class DictionaryTreeModel;
class QModelIndex;
class QTreeView;
class RealRowProxy;
class TDcEntity;

/// The entities of the dictionary as a tree. Renames in place; adds, copies, removes and moves.
class EntityTreePanel : public QWidget
{
    Q_OBJECT

public:
    explicit EntityTreePanel(const Workspace &workspace, QWidget *parent = nullptr);

    [[nodiscard]] QTreeView *view() const { return m_view; }

private:
    void connectActions();
    void forgetTree();
    void showTree();
    void showCurrent(const TDcEntity *entity);
    void updateActions();

    void addEntity();
    void duplicateEntity();
    void removeEntity();
    void moveEntity(bool up);

    [[nodiscard]] TDcEntity *entityAt(const QModelIndex &index) const;

    Workspace m_workspace;
    QTreeView *m_view;
    RealRowProxy *m_proxy;
    DictionaryTreeModel *m_model = nullptr; // Owned by the panel.
    QSet<const void *> m_collapsed; // Addresses of entities; compared, never followed.
};
