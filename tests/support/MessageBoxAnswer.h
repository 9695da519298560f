#pragma once

#include <QList>
#include <QMessageBox>
#include <QObject>
#include <QStringList>

#include <functional>

/// What a message box showed when it was answered. Button texts are without mnemonics.
struct ShownBox {
    QString title;
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    Qt::TextFormat format = Qt::AutoText;
    QStringList buttons; ///< In the order in which they were added or, for standard ones, of their values.
    QList<QMessageBox::ButtonRole> roles; ///< Of `buttons`, in the same order.
    QString defaultButton; ///< Empty when no button is the default one.
    QString escapeButton; ///< Empty when Escape does nothing.
    bool modal = false;
    bool hasParent = false;
};

/// Answers every message box that opens while it lives, and keeps what each one said.
///
/// Each box takes the next of the answers; the last one serves all further boxes. An answer is the text of a
/// button; an empty one closes the box as Escape does. A box without the asked button fails the test and is
/// closed, so that no test hangs.
class MessageBoxAnswer : public QObject
{
public:
    /// Makes the answer to a box.
    using Choose = std::function<QString(const ShownBox &)>;

    explicit MessageBoxAnswer(QStringList answers = {QString()});
    explicit MessageBoxAnswer(Choose choose);
    ~MessageBoxAnswer() override;
    Q_DISABLE_COPY_MOVE(MessageBoxAnswer)

    [[nodiscard]] const QList<ShownBox> &shown() const { return m_shown; }
    [[nodiscard]] QStringList texts() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void answer(QMessageBox &box);

    Choose m_choose;
    QList<ShownBox> m_shown;
};
