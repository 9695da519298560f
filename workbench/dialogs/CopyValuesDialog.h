#pragma once

#include "workbench/operations/ValueCopies.h"
#include "workbench/Workspace.h"

#include <QDialog>
#include <QList>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSortFilterProxyModel;
class QStandardItemModel;
class QTableView;

/// Copies value labels, ranges and missing codes of the current variable to others, which are ticked in a
/// list of all variables of the dictionary. Those that are selected in the variable table are ticked to begin
/// with.
class CopyValuesDialog : public QDialog
{
    Q_OBJECT

public:
    /// Lets the action open it.
    static void addTo(const Workspace &workspace);

    explicit CopyValuesDialog(const Workspace &workspace);

    void accept() override;

private:
    QWidget *createChoices();
    void addList();
    void fill();
    void tick(bool on);
    void refresh();
    [[nodiscard]] QList<TDcVariable *> targets() const;
    [[nodiscard]] ValueCopies::What what() const;

    Workspace m_workspace;
    TDcVariable *m_source; // Not owned.
    QList<TDcVariable *> m_variables; // By row of the model; not owned.
    QCheckBox *m_labels;
    QCheckBox *m_ranges;
    QCheckBox *m_missing;
    QRadioButton *m_replace;
    QRadioButton *m_add;
    QLineEdit *m_filter;
    QTableView *m_view;
    QStandardItemModel *m_model;
    QSortFilterProxyModel *m_proxy;
    QLabel *m_preview;
    QPushButton *m_ok;
};
