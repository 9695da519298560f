#pragma once

#include <QList>
#include <QObject>

class Actions;
class QMainWindow;

/// The parts of the window that its keys go round: its docks, in their places around the central widget.
/// What is behind a tab comes to the front; what is closed is left out.
class Panes : public QObject
{
public:
    /// \a window is not owned, and outlives this.
    Panes(QMainWindow *window, const Actions &actions);

    /// Adds \a pane, a dock of the window or its central widget; not owned.
    void add(QWidget *pane) { m_panes.append(pane); }

private:
    [[nodiscard]] QList<QWidget *> inOrder() const;
    [[nodiscard]] int place(QWidget *pane) const;
    void go(int step);

    QMainWindow *m_window; // Not owned.
    QList<QWidget *> m_panes; // In the order in which they were added.
};
