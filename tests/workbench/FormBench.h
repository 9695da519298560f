#pragma once

#include "tests/workbench/Bench.h"

#include <QLineEdit>
#include <QTest>

#include <algorithm>

/// A form on a bench, shown and with the keyboard, whose controls are found by what they are called aloud.
template <typename Form>
struct FormBench : Bench {
    Form form{workspace()};

    /// Shows the form for \a selected, which Selection::select() understands.
    FormBench(const QString &selected, QSize size)
    {
        selection.select(selected);
        form.resize(size);
        form.show();
        form.activateWindow();
    }

    /// Lets the keys for undo and redo do so, as the window does.
    void addUndo()
    {
        for (ActionId id : {ActionId::EditUndo, ActionId::EditRedo}) {
            form.addAction(actions[id]);
            QObject::connect(actions[id], &QAction::triggered, document.undoStack(),
                             id == ActionId::EditUndo ? &QUndoStack::undo : &QUndoStack::redo);
        }
    }

    [[nodiscard]] bool isActive() { return QTest::qWaitForWindowActive(&form); }

    /// Null when no control of this kind has the name.
    template <typename Control>
    [[nodiscard]] Control *control(const QString &name) const
    {
        const QList<Control *> all = form.template findChildren<Control *>();
        const auto found = std::find_if(all.cbegin(), all.cend(),
                                        [&name](Control *one) { return one->accessibleName() == name; });
        return found == all.cend() ? nullptr : *found;
    }

    static void type(QLineEdit *field, const QString &text)
    {
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, text);
        QTest::keyClick(field, Qt::Key_Return);
    }
};
