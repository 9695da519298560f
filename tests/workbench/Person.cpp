#include "tests/workbench/Person.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDeadlineTimer>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QProcess>
#include <QTest>
#include <QThread>
#include <QToolButton>
#include <QWindow>

#include <algorithm>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr int patience = 10'000; // Milliseconds; a loaded machine may be slow.
constexpr int animation = 100; // Milliseconds that a button stays down when a key presses it.

/// What \a look sees in the program, whose thread is another one.
template <typename Value>
Value see(const std::function<Value()> &look)
{
    Value value{};
    QMetaObject::invokeMethod(
        qApp, [&value, &look] { value = look(); }, Qt::BlockingQueuedConnection);
    return value;
}

QStringList moveTo(const QPoint &place)
{
    return {u"mousemove"_s, QString::number(place.x()), QString::number(place.y())};
}

QPoint middle(const QWidget *widget)
{
    return widget->mapToGlobal(widget->rect().center());
}

QPoint middle(QAbstractItemView *view, const QModelIndex &index)
{
    view->scrollTo(index);
    return view->viewport()->mapToGlobal(view->visualRect(index).center());
}

/// Where rows dragged to the end of \a view are let go.
QPoint dropPlace(const QAbstractItemView *view)
{
    const QAbstractItemModel *model = view->model();
    const QRect last = view->visualRect(model->index(model->rowCount() - 1, 0));
    const QRect area = view->viewport()->rect();
    const bool free = last.bottom() < area.bottom() - 20;
    return view->viewport()->mapToGlobal(free ? area.bottomLeft() + QPoint(40, -10) : area.center());
}

bool isCalled(const QString &shown, const QString &name)
{
    return QString(shown).remove(u'&') == name;
}

QAbstractButton *buttonOf(const QWidget *dialog, const QString &name)
{
    const QList<QAbstractButton *> buttons = dialog->findChildren<QAbstractButton *>();
    const auto found = std::find_if(buttons.cbegin(), buttons.cend(), [&name](const QAbstractButton *button) {
        return button->isVisible() && isCalled(button->text(), name);
    });
    return found == buttons.cend() ? nullptr : *found;
}
} // namespace

bool Person::does(const std::function<void()> &task)
{
    m_missed.clear();
    const std::unique_ptr<QThread> thread(QThread::create([this, &task] {
        task();
        closeDialogs();
    }));
    thread->start();
    while (!thread->wait(0))
        QTest::qWait(5);
    if (!m_missed.isEmpty())
        qWarning("%s", qUtf8Printable(m_missed));
    return m_missed.isEmpty();
}

void Person::closeDialogs()
{
    // What asks and waits would hold up the whole test.
    const auto close = [this]() -> bool {
        QWidget *dialog = QApplication::activeModalWidget();
        if (!dialog)
            return false;
        m_missed += u" Still open: "_s + dialog->windowTitle() + u'.';
        if (auto *box = qobject_cast<QMessageBox *>(dialog))
            m_missed += u" It says: "_s + box->text();
        dialog->hide();
        return true;
    };
    while (see<bool>(close)) { }
}

void Person::perform(const QStringList &command)
{
    QProcess process;
    process.start(u"xdotool"_s, command);
    if (!process.waitForFinished(patience) || process.exitCode() != 0)
        m_missed += u" xdotool "_s + command.join(u' ');
    QThread::msleep(50); // The server delivers what was done.
    see<bool>([] { return true; }); // And the program has taken it.
}

void Person::lookAt(QWidget *window)
{
    m_window = window;
    takeKeyboard();
}

void Person::takeKeyboard()
{
    const auto front = [this] {
        QWidget *dialog = QApplication::activeModalWidget();
        return dialog ? dialog : m_window;
    };
    // A window that is not on the screen yet does not take the keyboard, so it is offered again. A window
    // that has it and did not hear of it is told when it comes back from another one.
    const QDeadlineTimer deadline(patience);
    // A popup, such as the list of a completer, has the keyboard in place of the window below it.
    const auto hasKeyboard = [front] {
        return QApplication::activePopupWidget() || front()->isActiveWindow();
    };
    while (!see<bool>(hasKeyboard)) {
        if (deadline.hasExpired()) {
            m_missed += u" waited in vain for the active window"_s;
            return;
        }
        QThread::msleep(20);
        if (see<bool>([front] { return front()->windowHandle() && front()->windowHandle()->isExposed(); }))
            perform({u"windowfocus"_s, QString::number(see<WId>([this] { return m_window->winId(); })),
                     u"windowfocus"_s, QString::number(see<WId>([front] { return front()->winId(); }))});
    }
}

void Person::clickAt(const std::function<QPoint()> &place, int times)
{
    perform(moveTo(see<QPoint>(place))
            << u"click"_s << u"--repeat"_s << QString::number(times) << u"--delay"_s << u"60"_s << u"1"_s);
}

void Person::click(QWidget *widget)
{
    clickAt([widget] { return middle(widget); }, 1);
}

void Person::click(QAbstractItemView *view, int row, int column, int times)
{
    clickAt([view, row, column] { return middle(view, view->model()->index(row, column)); }, times);
}

void Person::clickCurrent(QAbstractItemView *view, int column, int times)
{
    clickAt([view, column] { return middle(view, view->currentIndex().siblingAtColumn(column)); }, times);
}

void Person::clickButton(QWidget *parent, const QString &action)
{
    auto *button = see<QToolButton *>([parent, &action]() -> QToolButton * {
        const QList<QToolButton *> buttons = parent->findChildren<QToolButton *>();
        const auto found =
            std::find_if(buttons.cbegin(), buttons.cend(), [&action](const QToolButton *other) {
                return other->isVisible() && other->defaultAction()
                    && isCalled(other->defaultAction()->text(), action);
            });
        return found == buttons.cend() ? nullptr : *found;
    });
    if (button)
        click(button);
    else
        m_missed += u" no button "_s + action;
}

void Person::clickMenu(QMenuBar *bar, const QString &menu, const QString &action)
{
    const auto find = [](const QList<QAction *> &actions, const QString &name) {
        const auto found = std::find_if(actions.cbegin(), actions.cend(), [&name](const QAction *other) {
            return isCalled(other->text(), name);
        });
        return found == actions.cend() ? nullptr : *found;
    };
    auto *title = see<QAction *>([bar, &find, &menu] { return find(bar->actions(), menu); });
    auto *entry = title
        ? see<QAction *>([title, &find, &action] { return find(title->menu()->actions(), action); })
        : nullptr;
    if (!entry) {
        m_missed += u" no menu entry "_s + action;
        return;
    }
    clickAt([bar, title] { return bar->mapToGlobal(bar->actionGeometry(title).center()); }, 1);
    waitUntil([title] { return title->menu()->isVisible(); }, "the menu");
    clickAt(
        [title, entry] { return title->menu()->mapToGlobal(title->menu()->actionGeometry(entry).center()); },
        1);
}

void Person::clickRow(const QString &list, int row)
{
    auto *view = see<QAbstractItemView *>([&list]() -> QAbstractItemView * {
        const auto views = QApplication::activeModalWidget()->findChildren<QAbstractItemView *>(list);
        const auto shown = std::find_if(views.cbegin(), views.cend(),
                                        [](const QAbstractItemView *other) { return other->isVisible(); });
        return shown == views.cend() ? nullptr : *shown;
    });
    if (view)
        click(view, row, 0);
    else
        m_missed += u" no list "_s + list;
}

void Person::clickLastField()
{
    clickAt(
        [] {
            QList<QLineEdit *> fields = QApplication::activeModalWidget()->findChildren<QLineEdit *>();
            fields.removeIf([](const QLineEdit *field) { return !field->isVisible(); });
            return middle(fields.constLast());
        },
        1);
}

void Person::drag(QAbstractItemView *view, int row, QAbstractItemView *target)
{
    const QPoint from = see<QPoint>([view, row] { return middle(view, view->model()->index(row, 0)); });
    const QPoint to = see<QPoint>([target] { return dropPlace(target); });
    perform(moveTo(from) << u"mousedown"_s << u"1"_s);
    constexpr int steps = 8;
    for (int step = 1; step <= steps; ++step)
        perform(moveTo(from + (to - from) * step / steps));
    perform({u"mouseup"_s, u"1"_s});
}

void Person::press(const QStringList &keys)
{
    for (const QString &key : keys) {
        takeKeyboard();
        perform({u"key"_s, key});
        QThread::msleep(animation);
    }
}

void Person::type(const QString &text)
{
    takeKeyboard();
    perform({u"type"_s, u"--delay"_s, u"12"_s, text});
}

void Person::paste(const QString &text)
{
    see<bool>([&text] {
        QGuiApplication::clipboard()->setText(text);
        return true;
    });
    press({u"ctrl+a"_s, u"ctrl+v"_s});
}

void Person::answer(const QString &button, bool byMouse)
{
    const auto dialog = [] {
        QWidget *widget = QApplication::activeModalWidget();
        return widget && widget->windowHandle() && widget->windowHandle()->isExposed() ? widget : nullptr;
    };
    waitUntil([dialog] { return dialog() != nullptr; }, "a dialog");
    if (!m_missed.isEmpty())
        return;
    auto *found = see<QAbstractButton *>([dialog, &button] { return buttonOf(dialog(), button); });
    if (!found) {
        m_missed += u" no button "_s + button;
    } else if (byMouse) {
        click(found);
    } else {
        constexpr int far = 12; // No dialog has so many controls.
        for (int step = 0; step < far && !see<bool>([found] { return found->hasFocus(); }); ++step)
            press({u"Tab"_s});
        press({u"space"_s});
    }
}

void Person::waitUntil(const std::function<bool()> &condition, const char *what)
{
    const QDeadlineTimer deadline(patience);
    while (!see<bool>(condition)) {
        if (deadline.hasExpired()) {
            m_missed += u" waited in vain for "_s + QString::fromUtf8(what);
            return;
        }
        QThread::msleep(20);
    }
}
