#include "workbench/Panes.h"

#include "workbench/Actions.h"

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>

#include <algorithm>

namespace
{
bool canTakeKeyboard(const QWidget *widget, const QWidget *pane)
{
    return widget && pane->isAncestorOf(widget) && widget->isEnabled() && widget->isVisibleTo(pane)
        && (widget->focusPolicy() & Qt::TabFocus);
}

/// Where the keyboard was in \a pane last, or else the first control in it; null when there is none.
QWidget *target(QWidget *pane)
{
    if (QWidget *last = pane->focusWidget(); canTakeKeyboard(last, pane))
        return last;
    QWidget *widget = pane->nextInFocusChain();
    while (widget != pane && !canTakeKeyboard(widget, pane))
        widget = widget->nextInFocusChain();
    return widget == pane ? nullptr : widget;
}
} // namespace

Panes::Panes(QMainWindow *window, const Actions &actions) : QObject(window), m_window(window)
{
    connect(actions[ActionId::ViewNextPane], &QAction::triggered, this, [this] { go(1); });
    connect(actions[ActionId::ViewPreviousPane], &QAction::triggered, this, [this] { go(-1); });
}

int Panes::place(QWidget *pane) const
{
    auto *dock = qobject_cast<QDockWidget *>(pane);
    switch (dock ? m_window->dockWidgetArea(dock) : Qt::NoDockWidgetArea) {
    case Qt::LeftDockWidgetArea:
        return 0;
    case Qt::TopDockWidgetArea:
        return 1;
    case Qt::RightDockWidgetArea:
        return 3;
    case Qt::BottomDockWidgetArea:
        return 4;
    default:
        return 2;
    }
}

/// The panes that are not closed, as one reads them.
QList<QWidget *> Panes::inOrder() const
{
    QList<QWidget *> panes;
    std::copy_if(m_panes.cbegin(), m_panes.cend(), std::back_inserter(panes),
                 [](const QWidget *pane) { return !pane->isHidden(); });
    std::stable_sort(panes.begin(), panes.end(),
                     [this](QWidget *left, QWidget *right) { return place(left) < place(right); });
    return panes;
}

void Panes::go(int step)
{
    const QList<QWidget *> panes = inOrder();
    const QWidget *focus = QApplication::focusWidget();
    const auto current = std::find_if(panes.cbegin(), panes.cend(),
                                      [focus](const QWidget *pane) { return pane->isAncestorOf(focus); });
    // From outside, the first one of all is the next, and the last one the one before.
    const qsizetype count = panes.size();
    qsizetype row = current == panes.cend() ? (step > 0 ? -1 : count) : current - panes.cbegin();
    for (qsizetype tried = 0; tried < count; ++tried) {
        row = (row + step + count) % count;
        QWidget *pane = panes.at(row);
        if (qobject_cast<QDockWidget *>(pane))
            pane->raise();
        if (QWidget *widget = target(pane)) {
            widget->activateWindow(); // Of a dock that floats.
            widget->setFocus(Qt::ShortcutFocusReason);
            return;
        }
    }
}
