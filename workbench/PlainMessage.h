#pragma once

#include <QMessageBox>
#include <QPushButton>

/// A message box that shows its texts as they are: what a name or a file holds is no markup.
class PlainMessage : public QMessageBox
{
public:
    /// \a more is said below \a text in smaller letters; empty for nothing.
    PlainMessage(Icon icon, const QString &title, const QString &text, const QString &more,
                 StandardButtons buttons, QWidget *parent)
        : QMessageBox(icon, title, text, buttons, parent)
    {
        setTextFormat(Qt::PlainText);
        setInformativeText(more);
    }

    /// Offers \a button beside Cancel, which is the default, and waits. Whether the person chose it.
    [[nodiscard]] bool isConfirmed(const QString &button, ButtonRole role = DestructiveRole)
    {
        const QAbstractButton *yes = addButton(button, role);
        setDefaultButton(Cancel);
        exec();
        return clickedButton() == yes;
    }
};
