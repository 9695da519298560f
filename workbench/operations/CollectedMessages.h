#pragma once

#include <QObject>
#include <QStringList>

/// While it lives, message boxes are not shown: each is answered with its default button at once, and what it
/// said is kept. So the layer's rules can be asked many times, and the answers be told together.
class CollectedMessages : public QObject
{
public:
    CollectedMessages();
    ~CollectedMessages() override;
    Q_DISABLE_COPY_MOVE(CollectedMessages)

    /// What the boxes said since the last call.
    [[nodiscard]] QStringList take() { return std::exchange(m_texts, {}); }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QStringList m_texts;
};
