#pragma once

#include "workbench/Workspace.h"

#include <QDialog>
#include <QList>
#include <QSet>

class QLabel;
class QPushButton;
class QTreeView;
class RealRowProxy;
class TDcEntity;
class TDcVariable;

/// Moves the current entity, or the selected variables, to another entity, which is chosen in the tree.
class MoveDialog : public QDialog
{
    Q_OBJECT

public:
    enum class What { Entity, Variables };

    /// Lets the actions open it.
    static void addTo(const Workspace &workspace);

    MoveDialog(const Workspace &workspace, What what);

    void accept() override;

private:
    [[nodiscard]] static QSet<TDcEntity *> targets(const Workspace &workspace, What what);
    void addTree();
    void refresh();
    [[nodiscard]] TDcEntity *target() const;
    [[nodiscard]] QString preview() const;
    [[nodiscard]] QString stepText() const;

    Workspace m_workspace;
    What m_what;
    TDcEntity *m_entity; // The one to move, or that of the variables; not owned.
    QList<TDcVariable *> m_variables; // Not owned.
    QSet<TDcEntity *> m_targets; // Those that can be chosen; not owned.
    RealRowProxy *m_proxy;
    QTreeView *m_view;
    QLabel *m_preview;
    QPushButton *m_ok;
};
