#pragma once

#include "workbench/Actions.h"
#include "workbench/panels/ColumnMemory.h"
#include "workbench/panels/EmptyText.h"
#include "workbench/Workspace.h"

#include <QList>
#include <QTableView>
#include <QWidget>

#include <memory>

class QAbstractItemModel;
class QSortFilterProxyModel;
class TDcVariable;

/// A small table of what belongs to the current variable, with buttons to add, remove and move rows.
///
/// The layer's models of these tables copy the variable's list once, so a new one is made for each variable
/// and after each change of the list.
class ItemsPanel : public QWidget
{
    Q_OBJECT

public:
    /// The actions of the buttons.
    struct Buttons {
        ActionId add, remove, moveUp, moveDown;
    };
    /// What the table is called, what it says when it is empty, and what completes "Undo"; %1 is the
    /// variable.
    struct Texts {
        QString title, empty, adding, removing, moving;
    };

    [[nodiscard]] QTableView *view() const { return m_view; }
    /// Selects the rows of \a items, as far as they are there. Addresses are only compared.
    void select(const QList<void *> &items);

protected:
    /// \a name is the table's in the settings.
    ItemsPanel(const Workspace &workspace, const QString &name, const Texts &texts,
               QSortFilterProxyModel *proxy, Buttons buttons, QWidget *parent);

    /// To be called at the end of the derived constructor.
    void start();

    /// The layer's model of the items of \a variable.
    virtual QAbstractItemModel *createModel(TDcVariable *variable) = 0;
    [[nodiscard]] virtual QList<void *> items(TDcVariable *variable) const = 0;
    virtual void add(TDcVariable *variable) = 0;
    virtual void remove(TDcVariable *variable, const QList<void *> &items) = 0;
    virtual void move(TDcVariable *variable, const QList<void *> &items, bool up) = 0;
    [[nodiscard]] virtual bool canMove(TDcVariable *variable, const QList<void *> &items, bool up) const = 0;

    Workspace m_workspace;
    EmptyText<QTableView> *m_view;

private:
    void showVariable();
    void updateActions();
    void addRow();
    void removeRows();
    void moveRows(bool up);
    void refresh();
    /// Makes a step of what was done; \a text is one of m_texts.
    void commit(const QString &text);
    [[nodiscard]] QList<void *> selected() const;

    Texts m_texts;
    Buttons m_buttons;
    QSortFilterProxyModel *m_proxy;
    QAbstractItemModel *m_model = nullptr; // Owned by the panel.
    TDcVariable *m_variable = nullptr; // Not owned.
    std::unique_ptr<ColumnMemory> m_columns;
    bool m_committing = false; // An edit of the table itself is under way.
};
