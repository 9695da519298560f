#pragma once

#include "model/TDcVariable.h"
#include "workbench/operations/LabelSets.h"
#include "workbench/Workspace.h"

#include <QDialog>
#include <QHash>
#include <QList>

class QAbstractItemModel;
class QIdentityProxyModel;
class QLabel;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QTableView;

/// Lists the sets of value labels that several variables share, and changes one in all of them at once.
class LabelSetsDialog : public QDialog
{
    Q_OBJECT

public:
    /// Lets the action open it.
    static void addTo(const Workspace &workspace);

    explicit LabelSetsDialog(const Workspace &workspace);
    ~LabelSetsDialog() override;
    Q_DISABLE_COPY_MOVE(LabelSetsDialog)

    /// Asks about labels that are edited but not written yet.
    void reject() override;

private:
    QWidget *createSets();
    QWidget *createLabels();
    QPushButton *addButton(QLayout *layout, const QString &text, void (LabelSetsDialog::*slot)());
    /// Lists the sets and shows the one that \a member has, or else the one in \a row or the last.
    void list(int row, const TDcVariable *member = nullptr);
    void showSet(int row);
    void showLabels(int current);
    void updateButtons();

    void addLabel();
    void removeLabels();
    void moveUp() { move(true); }
    void moveDown() { move(false); }
    void move(bool up);
    void takeBack();
    void apply();

    [[nodiscard]] QList<ValueLabelElement *> selected() const;
    [[nodiscard]] QList<LabelSets::Edited> edited() const;
    [[nodiscard]] bool isChanged() const;

    Workspace m_workspace;
    QList<LabelSets::Set> m_sets;
    int m_set = -1; // The one that is shown; -1 for none.
    TDcVariable m_draft; // Holds the labels while they are edited.
    QHash<const ValueLabelElement *, int> m_origins; // Rows of the draft's labels in the set.
    QAbstractItemModel *m_model = nullptr; // Of the draft; owned by the dialog.
    QIdentityProxyModel *m_titled; // Between it and the view.
    QListWidget *m_list;
    QLabel *m_pending; // Says why the list is off.
    QPlainTextEdit *m_members;
    QTableView *m_view;
    QPushButton *m_add;
    QPushButton *m_remove;
    QPushButton *m_up;
    QPushButton *m_down;
    QPushButton *m_apply;
    QPushButton *m_takeBack;
};
