#pragma once

#include <QIcon>
#include <QKeySequence>
#include <QString>

class QAbstractItemView;
class QAction;
class QLineEdit;
class QListView;
class QSortFilterProxyModel;
class QTableView;
class QToolButton;
class QTreeView;
class QWidget;

/// How controls look and behave everywhere in the workbench.
namespace Widgets
{
/// A flat button for \a action, reachable by Tab.
[[nodiscard]] QToolButton *button(QAction *action, QWidget *parent);
/// A line to type a filter into, with a button that clears it. \a name is what it is called aloud.
[[nodiscard]] QLineEdit *filterField(const QString &name, const QString &placeholder, QWidget *parent);
/// Leaves the rows that hold \a text, in any case and without the blanks around it.
void filterBy(QSortFilterProxyModel *proxy, const QString &text);
/// An area in which \a form scrolls up and down where it is too high. Its controls take the focus, it does
/// not.
[[nodiscard]] QWidget *scrolled(QWidget *form, QWidget *parent);
/// Sets up a table of rows: whole rows are selected, a click on a header sorts, a third one stops sorting.
void setUpTable(QTableView *table, const QString &name);
/// Sets up a tree of names.
void setUpTree(QTreeView *tree, const QString &name);
/// Sets up a list of names: what does not fit is cut short.
void setUpList(QListView *list, const QString &name);
/// Enters what is being typed into a control of \a window, which may be null. The focus stays.
void finishEditing(const QWidget *window);
/// Lets \a key trigger \a action while \a view has the focus. Editors in the view keep the key for
/// themselves.
void bindKey(QAbstractItemView *view, const QKeySequence &key, QAction *action);
} // namespace Widgets
