#pragma once

#include <QAbstractItemView>
#include <QPainter>
#include <QPaintEvent>
#include <QString>

/// Adds to an item view a text that is shown while there are no rows, so that an empty view says what to do.
template <typename View>
class EmptyText : public View
{
public:
    using View::View;

    [[nodiscard]] const QString &emptyText() const { return m_text; }
    void setEmptyText(const QString &text)
    {
        m_text = text;
        this->viewport()->update();
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        View::paintEvent(event);
        if (this->model() && this->model()->rowCount(this->rootIndex()) > 0)
            return;
        QPainter painter(this->viewport());
        painter.setPen(this->palette().color(QPalette::PlaceholderText));
        painter.drawText(this->viewport()->rect().adjusted(12, 8, -12, -8),
                         Qt::AlignCenter | Qt::TextWordWrap, m_text);
    }

private:
    QString m_text;
};
