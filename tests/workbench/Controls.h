#pragma once

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QString>
#include <QStringList>
#include <QToolButton>
#include <QWidget>

#include <algorithm>

/// What a window has to press and to read aloud.
namespace Controls
{
/// The first button of \a window with \a text, mnemonics left out; null when there is none.
template <typename Button = QAbstractButton>
Button *button(const QWidget *window, const QString &text)
{
    const QList<Button *> buttons = window->findChildren<Button *>();
    const auto found = std::find_if(buttons.cbegin(), buttons.cend(), [&text](const Button *each) {
        return each->text().remove(u'&') == text;
    });
    return found == buttons.cend() ? nullptr : *found;
}

/// The controls of \a window that take the focus and have no name to be read aloud. Parts of others are named
/// by those.
inline QStringList nameless(const QWidget *window)
{
    QStringList found;
    const QList<QWidget *> widgets = window->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const QWidget *parent = widget->parentWidget();
        const bool inside =
            qobject_cast<const QAbstractSpinBox *>(parent) || qobject_cast<const QComboBox *>(parent);
        if (widget->focusPolicy() == Qt::NoFocus || inside
            || widget->objectName().startsWith(QLatin1StringView("qt_"))
            || widget->objectName().startsWith(QLatin1StringView("__qt")))
            continue;
        const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
        if (!accessible || accessible->text(QAccessible::Name).isEmpty())
            found.append(QStringLiteral("%1 %2 in %3")
                             .arg(QLatin1StringView(widget->metaObject()->className()), widget->objectName(),
                                  parent->objectName()));
    }
    return found;
}

/// The names of the controls of \a window that are not hidden, in the order in which Tab goes through them.
inline QStringList tabOrder(const QWidget *window)
{
    QStringList order;
    const QWidget *start = window->window();
    for (QWidget *widget = start->nextInFocusChain(); widget != start; widget = widget->nextInFocusChain()) {
        if (window->isAncestorOf(widget) && (widget->focusPolicy() & Qt::TabFocus) && !widget->isHidden())
            order.append(QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name));
    }
    return order;
}
} // namespace Controls
