#pragma once

#include "workbench/panels/EmptyText.h"
#include "workbench/run/RunPage.h"

#include <QModelIndexList>
#include <QTableView>

class CheckableProxy;
class CheckListModel;
class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QSortFilterProxyModel;
class TDcEntity;
class TDcVariable;

/// Which variables of the entities take part, in one of the three steps that show them. All three show the
/// same checks.
class VariablesPage : public RunPage
{
    Q_OBJECT

public:
    enum class Step {
        Choose, ///< Those without a role in their entity.
        Split, ///< All of them.
        Down ///< Those that take part and have no role, sorted.
    };

    VariablesPage(RunDraft *draft, Step step, QWidget *parent = nullptr);

protected:
    void initializePage() override;
    [[nodiscard]] QString problem() const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void describe();
    [[nodiscard]] QWidget *makeEntities();
    [[nodiscard]] QWidget *makeVariables();

    void showEntity();
    void arrangeColumns();
    void setFilter(const QString &text);
    /// Follows checks that were changed.
    void followChecks();
    void showCounts();
    /// Switches the checks of the selected rows to what the current one has not.
    void switchSelected();
    void check(const QModelIndexList &rows, bool checked);
    [[nodiscard]] QModelIndexList shownRows() const;
    [[nodiscard]] TDcEntity *current() const;

    const Step m_step;
    QListWidget *m_entities;
    QCheckBox *m_all;
    QLineEdit *m_filter;
    EmptyText<QTableView> *m_view = nullptr; // Made with the variables' side.
    QLabel *m_count;
    QHash<const TDcEntity *, QList<TDcVariable *>> m_offered;
    CheckListModel *m_model = nullptr;
    CheckableProxy *m_checkable;
    QSortFilterProxyModel *m_proxy;
};
