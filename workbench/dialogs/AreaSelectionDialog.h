#pragma once

#include "workbench/panels/EmptyText.h"
#include "workbench/Workspace.h"

#include <QDialog>
#include <QTreeView>

#include <memory>

class AreaTreeProxy;
class QCheckBox;
class QLabel;
class QLineEdit;
class QSortFilterProxyModel;
class SelectionBuilderTreeModel;
class SelectionTreeUnit;

/// Selects area units of a file. A selected unit stands for all below it.
class AreaSelectionDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AreaSelectionDialog(QWidget *parent = nullptr);
    ~AreaSelectionDialog() override;
    Q_DISABLE_COPY_MOVE(AreaSelectionDialog)

    /// Lets the action of the workspace open the dialog.
    static void addTo(const Workspace &workspace);

    /// Shows the units in the file at \a path, none of them selected. False, and nothing changes, when the
    /// file cannot be read or the person cancels it.
    bool load(const QString &path);
    /// Writes the selected units to \a path. False when that fails; the person was told.
    bool save(const QString &path);
    /// The fewest codes that stand for the selection, one to a line.
    [[nodiscard]] QString text() const;

    [[nodiscard]] QTreeView *view() const { return m_view; }

private:
    void addTree();
    QLayout *addBar();
    QWidget *addButtons();
    void showUnits(std::unique_ptr<SelectionTreeUnit> root);
    void applyFilter(const QString &text);
    void refresh();
    void chooseAndLoad();
    void chooseAndSave();

    std::unique_ptr<SelectionTreeUnit> m_root; // Null until a file is loaded.
    std::unique_ptr<SelectionBuilderTreeModel> m_model;
    AreaTreeProxy *m_tree;
    QSortFilterProxyModel *m_filtered;
    EmptyText<QTreeView> *m_view;
    QLineEdit *m_filter;
    QCheckBox *m_codes;
    QCheckBox *m_names;
    QLabel *m_count;
    QList<QWidget *> m_needUnits; ///< What is of use only once there are units.
    QList<QWidget *> m_needSelection; ///< What is of use only once some are selected.
};
