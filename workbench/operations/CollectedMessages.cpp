#include "workbench/operations/CollectedMessages.h"

#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

CollectedMessages::CollectedMessages()
{
    qApp->installEventFilter(this);
}

CollectedMessages::~CollectedMessages() = default;

bool CollectedMessages::eventFilter(QObject *watched, QEvent *event)
{
    auto *box = qobject_cast<QMessageBox *>(watched);
    if (!box)
        return false;
    if (event->type() == QEvent::Polish)
        box->setAttribute(Qt::WA_DontShowOnScreen);
    if (event->type() != QEvent::Show)
        return false;
    m_texts.append(box->text());
    // Once the box runs its own event loop: before, there is nothing to end.
    QTimer::singleShot(0, box, [box] {
        if (QPushButton *button = box->defaultButton())
            button->click();
        else
            box->reject();
    });
    return true;
}
