#pragma once

#include "documents/sources/SourceResult.h"
#include "workbench/panels/ColumnMemory.h"

#include <QWidget>

#include <memory>

class QAbstractItemModel;
class QAction;
class QBoxLayout;
class QMimeData;
class QSortFilterProxyModel;
class QTableView;
class QToolButton;

template <typename View>
class EmptyText;

/// One tab of the sources: a list to filter, whose rows are dragged onto the variable table.
class SourceTab : public QWidget
{
    Q_OBJECT

public:
    /// \a name is the list's in the settings, \a title what it is called. \a proxy, which the tab takes over,
    /// sorts and filters the rows. The buttons for \a actions stand before the filter.
    SourceTab(const QString &name, const QString &title, QSortFilterProxyModel *proxy,
              const QList<QAction *> &actions, QWidget *parent = nullptr);

    [[nodiscard]] QTableView *view() const;
    /// Shows \a model, which the tab takes over, instead of the one before.
    void setModel(QAbstractItemModel *model);
    /// Offers to show what was read, but not as the file has it. Without \a notes nothing is offered.
    void setNotes(const QList<SourceProblem> &notes);
    /// Puts \a control before the filter.
    void addControl(QWidget *control);
    /// What a drag of the selected rows carries, the caller's; null when nothing is selected.
    [[nodiscard]] QMimeData *payload() const;

Q_SIGNALS:
    void selectionChanged();
    /// A row was activated by double click or key.
    void activated();

private:
    void updateEmptyText();
    /// Lets Tab go through the bar, then to the list.
    void chainControls();

    QBoxLayout *m_bar;
    EmptyText<QTableView> *m_view;
    std::unique_ptr<ColumnMemory> m_columns;
    QSortFilterProxyModel *m_proxy;
    QAbstractItemModel *m_model = nullptr; // Owned by the tab.
    QToolButton *m_notesButton;
    QList<SourceProblem> m_notes; // Of the file that is shown.
};
