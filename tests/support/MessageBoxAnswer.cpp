#include "tests/support/MessageBoxAnswer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <algorithm>

namespace
{
QString plainText(const QAbstractButton *button)
{
    return button ? button->text().remove(u'&') : QString();
}

ShownBox describe(QMessageBox &box)
{
    ShownBox shown{.title = box.windowTitle(),
                   .text = box.text(),
                   .icon = box.icon(),
                   .format = box.textFormat(),
                   .buttons = {},
                   .roles = {},
                   .defaultButton = plainText(box.defaultButton()),
                   .escapeButton = plainText(box.escapeButton()),
                   .modal = box.isModal(),
                   .hasParent = box.parentWidget() != nullptr};
    const auto buttons = box.buttons();
    for (QAbstractButton *button : buttons) {
        shown.buttons.append(plainText(button));
        shown.roles.append(box.buttonRole(button));
    }
    return shown;
}
} // namespace

MessageBoxAnswer::MessageBoxAnswer(QStringList answers)
    : MessageBoxAnswer([answers = std::move(answers)](const ShownBox &) mutable {
          return answers.size() > 1 ? answers.takeFirst() : answers.constFirst();
      })
{
}

MessageBoxAnswer::MessageBoxAnswer(Choose choose) : m_choose(std::move(choose))
{
    qApp->installEventFilter(this);
}

MessageBoxAnswer::~MessageBoxAnswer() = default;

QStringList MessageBoxAnswer::texts() const
{
    QStringList texts;
    std::transform(m_shown.cbegin(), m_shown.cend(), std::back_inserter(texts),
                   [](const ShownBox &box) { return box.text; });
    return texts;
}

bool MessageBoxAnswer::eventFilter(QObject *watched, QEvent *event)
{
    auto *box = qobject_cast<QMessageBox *>(watched);
    if (box && event->type() == QEvent::Show) {
        // Once the box runs its own event loop.
        QTimer::singleShot(0, this, [this, guarded = QPointer<QMessageBox>(box)] {
            if (guarded)
                answer(*guarded);
        });
    }
    return QObject::eventFilter(watched, event);
}

void MessageBoxAnswer::answer(QMessageBox &box)
{
    m_shown.append(describe(box));
    const QString wanted = m_choose(m_shown.constLast());
    if (wanted.isEmpty()) {
        QTest::keyClick(&box, Qt::Key_Escape);
        return;
    }
    const auto buttons = box.buttons();
    const auto found = std::find_if(buttons.cbegin(), buttons.cend(), [&wanted](QAbstractButton *button) {
        return plainText(button) == wanted;
    });
    if (found != buttons.cend()) {
        (*found)->click();
        return;
    }
    QTest::qFail(qPrintable(u"The box \"%1\" has no button \"%2\""_qs.arg(box.text(), wanted)), __FILE__,
                 __LINE__);
    box.done(QMessageBox::Cancel);
}
