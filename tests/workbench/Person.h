#pragma once

#include <QPoint>
#include <QString>
#include <QStringList>

#include <functional>

class QAbstractItemView;
class QMenuBar;
class QWidget;

/// Somebody at the mouse and the keyboard of an X display.
///
/// What it does goes to the X server, and from there to the program as from any device: the program is not
/// told which widget is meant. The person acts in a thread of its own, and so goes on when the program asks
/// something and waits for the answer.
class Person
{
public:
    /// Lets the person do \a task, whose calls are those below. Returns when that is done; false when
    /// something that it looked for was not there, and then says what.
    [[nodiscard]] bool does(const std::function<void()> &task);

    /// Gives the keyboard to \a window. Afterwards it goes to dialogs while they are open, and back again, as
    /// a window manager would have it.
    void lookAt(QWidget *window);
    /// Gives the keyboard to the dialog that is open, or else to the window.
    void takeKeyboard();

    // The mouse.
    void click(QWidget *widget);
    void click(QAbstractItemView *view, int row, int column, int times = 1);
    /// Clicks in the current row.
    void clickCurrent(QAbstractItemView *view, int column, int times);
    /// Clicks the tool button of the action called \a action in \a parent.
    void clickButton(QWidget *parent, const QString &action);
    /// Opens the menu called \a menu and clicks \a action in it.
    void clickMenu(QMenuBar *bar, const QString &menu, const QString &action);
    /// Clicks a row of the list called \a list in the dialog that is open.
    void clickRow(const QString &list, int row);
    /// Clicks the lowest line of text in the dialog that is open.
    void clickLastField();
    /// Drags a row onto the free space of \a target, or onto its middle when there is none.
    void drag(QAbstractItemView *view, int row, QAbstractItemView *target);

    // The keyboard.
    /// Presses keys one after the other, each written as in "ctrl+shift+s", "Return" or "alt+v".
    void press(const QStringList &keys);
    void type(const QString &text);
    /// Pastes \a text over what is there.
    void paste(const QString &text);

    /// Waits for a dialog and presses its button called \a button, by the mouse or with Tab and Space.
    void answer(const QString &button, bool byMouse);
    /// Waits until \a condition, which looks at the program, holds.
    void waitUntil(const std::function<bool()> &condition, const char *what);

private:
    void perform(const QStringList &command);
    void clickAt(const std::function<QPoint()> &place, int times);
    void closeDialogs();

    QWidget *m_window = nullptr;
    QString m_missed; // What was not there; empty as long as all is well.
};
