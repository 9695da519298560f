#pragma once

#include "workbench/Actions.h"

#include <QKeySequence>
#include <QList>
#include <QString>

/// What there is to say about one action; a line of the table.
struct Actions::Row {
    /// A shortcut: the platform's own for what every program has, or the given one.
    struct Keys {
        Keys() = default;
        Keys(QKeySequence::StandardKey key) : sequences(QKeySequence::keyBindings(key)) { }
        Keys(const char *text) : sequences{QKeySequence(QLatin1StringView(text))} { }
        QList<QKeySequence> sequences;
    };
    enum Place { MenuOnly, ToolBar, GroupStart, ToolBarGroup };

    ActionId id;
    MenuId menu;
    Place place; ///< GroupStart and ToolBarGroup: a separator stands before it.
    const char *icon; ///< Name of the image; null for none.
    Keys keys;
    const char *text;
    const char *tip;
};
