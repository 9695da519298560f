#pragma once

#include "workbench/operations/VariableEdits.h"
#include "workbench/panels/ColumnMemory.h"
#include "workbench/panels/EmptyText.h"
#include "workbench/Workspace.h"

#include <QTableView>

#include <functional>
#include <memory>

class QLabel;
class QLineEdit;
class QMimeData;
class TDcEntity;
class TDcVariable;
class VariableDiccionaryModel;
class VariablesDictionaryProxyModel;

/// The variables of the current entity: a table to sort, to filter, to edit in place and to drop fields on.
class VariableTablePanel : public QWidget
{
    Q_OBJECT

public:
    explicit VariableTablePanel(const Workspace &workspace, QWidget *parent = nullptr);

    [[nodiscard]] QTableView *view() const { return m_view; }
    [[nodiscard]] QLineEdit *filterField() const { return m_filter; }
    /// The model behind the view; null while there is no entity. Drops go through it.
    [[nodiscard]] VariableDiccionaryModel *model() const { return m_model; }
    /// Makes variables of the fields in \a payload, as dropping it on the view does.
    void importFields(const QMimeData *payload);

private:
    void connectActions();
    void connectModel();
    void takeImport();
    void arrangeColumns();
    void refresh();
    void showEntity(TDcEntity *entity);
    void showSelection();
    void takeSelection();
    void adoptSelection();
    void setFilter(const QString &text);
    /// Does \a work, which filters or sorts anew. What is still shown stays selected.
    void arrange(const std::function<void()> &work);
    /// Selects something in what the filter leaves.
    void goOnWithWhatIsShown();
    void updateEmptyText();
    void updateCount();
    void updateActions();

    void addVariable();
    void duplicateVariables();
    void removeVariables();
    void moveVariables(bool up);
    void toggleRole(VariableEdits::Role role);

    [[nodiscard]] bool isFiltered() const;
    /// The rows of the view with \a variables, from the top; a filter may hide some of them.
    [[nodiscard]] QList<int> shownRows(const QList<TDcVariable *> &variables) const;
    /// The row of the view with the next shown variable after \a variable, or else with the last one.
    [[nodiscard]] int shownRowNear(const TDcVariable *variable) const;
    /// Selects \a rows of the view; the one without a current row is -1.
    void select(const QList<int> &rows, int currentRow);
    void selectRows(const QList<int> &rows);

    Workspace m_workspace;
    QLineEdit *m_filter;
    QLabel *m_count;
    EmptyText<QTableView> *m_view;
    VariablesDictionaryProxyModel *m_proxy;
    VariableDiccionaryModel *m_model = nullptr; // Owned by the panel.
    int m_imported = 0; // Fields of the drop that is under way.
    std::unique_ptr<ColumnMemory> m_columns;
    const TDcEntity *m_shown = nullptr; // Shown last; its address is only compared.
    int m_scroll = 0; // How far it was scrolled then.
    bool m_committing = false; // An edit of the table itself is under way.
    bool m_showing = false; // The view follows the selection, not the other way round.
};
