#include "workbench/Actions.h"

#include "workbench/ActionTable.h"

#include <QAction>
#include <QIcon>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include <algorithm>
#include <iterator>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr MenuId menuOrder[] = {MenuId::File,     MenuId::Edit,   MenuId::Entity,
                                MenuId::Variable, MenuId::Values, MenuId::Sources,
                                MenuId::Tools,    MenuId::View,   MenuId::Help};
} // namespace

Actions::Actions(QObject *parent) : QObject(parent)
{
    const QList<Row> rows = table();
    for (const Row &row : rows) {
        auto *action = new QAction(tr(row.text), this);
        if (row.icon)
            action->setIcon(QIcon(u":/icons/res/icons/%1.png"_s.arg(QLatin1StringView(row.icon))));
        action->setShortcuts(row.keys.sequences);
        action->setToolTip(tr(row.tip));
        action->setStatusTip(tr(row.tip));
        m_actions.insert(row.id, action);
    }
}

QString Actions::text(ActionId id) const
{
    return m_actions.value(id)->text().remove(u'&');
}

QList<QAction *> Actions::all() const
{
    QList<QAction *> actions;
    const QList<Row> rows = table();
    std::transform(rows.cbegin(), rows.cend(), std::back_inserter(actions),
                   [this](const Row &row) { return m_actions.value(row.id); });
    return actions;
}

void Actions::place(QMainWindow *window)
{
    using enum Row::Place;
    auto *toolBar = window->addToolBar(tr("Main Tool Bar"));
    toolBar->setObjectName(u"mainToolBar"_s);
    toolBar->setIconSize(QSize(20, 20));
    for (MenuId id : menuOrder)
        m_menus.insert(id, window->menuBar()->addMenu(tr(menuTitle(id))));
    const QList<Row> rows = table();
    for (const Row &row : rows) {
        QMenu *menu = m_menus.value(row.menu);
        if (row.place == GroupStart || row.place == ToolBarGroup)
            menu->addSeparator();
        menu->addAction(m_actions.value(row.id));
        if (row.place == ToolBarGroup)
            toolBar->addSeparator();
        if (row.place == ToolBar || row.place == ToolBarGroup)
            toolBar->addAction(m_actions.value(row.id));
    }
    for (QMenu *menu : std::as_const(m_menus)) {
        menu->setToolTipsVisible(true);
        menu->menuAction()->setVisible(!menu->isEmpty());
    }
}
