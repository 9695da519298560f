#include "workbench/Theme.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOption>

using namespace Qt::Literals::StringLiterals;

namespace
{
struct Colours {
    QRgb window, base, alternate, text, faint, button, border, highlight, highlighted, link;
};

// Selections are pale in light and deep in dark, so that the images stay readable on them.
constexpr Colours light{.window = 0xf3f4f6,
                        .base = 0xffffff,
                        .alternate = 0xf7f8fa,
                        .text = 0x1f2328,
                        .faint = 0x6b727b,
                        .button = 0xf8f9fa,
                        .border = 0xc9ced6,
                        .highlight = 0xcfe2f9,
                        .highlighted = 0x10233a,
                        .link = 0x1f62b0};
constexpr Colours dark{.window = 0x34373c,
                       .base = 0x212327,
                       .alternate = 0x26282d,
                       .text = 0xe4e6ea,
                       .faint = 0x9aa1ab,
                       .button = 0x43474e,
                       .border = 0x54585f,
                       .highlight = 0x244467,
                       .highlighted = 0xffffff,
                       .link = 0x6fb0f5};

QPalette paletteOf(const Colours &colours)
{
    QPalette palette(QColor(colours.button), QColor(colours.window));
    palette.setColor(QPalette::WindowText, colours.text);
    palette.setColor(QPalette::Base, colours.base);
    palette.setColor(QPalette::AlternateBase, colours.alternate);
    palette.setColor(QPalette::Text, colours.text);
    palette.setColor(QPalette::PlaceholderText, colours.faint);
    palette.setColor(QPalette::ButtonText, colours.text);
    palette.setColor(QPalette::ToolTipBase, colours.base);
    palette.setColor(QPalette::ToolTipText, colours.text);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::Highlight, colours.highlight);
    palette.setColor(QPalette::HighlightedText, colours.highlighted);
    palette.setColor(QPalette::Link, colours.link);
    palette.setColor(QPalette::Mid, colours.border);
    for (auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText})
        palette.setColor(QPalette::Disabled, role, colours.faint);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, colours.border);
    return palette;
}

/// Draws a frame around check boxes that can be seen on any ground. The style's own is darker than a window,
/// and so cannot be told from a dark list.
class FramedBoxes : public QProxyStyle
{
public:
    FramedBoxes() : QProxyStyle(u"Fusion"_s) { }

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        if (element != PE_IndicatorCheckBox && element != PE_IndicatorItemViewItemCheck)
            return;
        painter->save();
        painter->setPen(option->palette.color(QPalette::PlaceholderText));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
        painter->restore();
    }
};
} // namespace

bool Theme::apply(const QString &name)
{
    if (name == "system"_L1)
        return true;
    if (name != "light"_L1 && name != "dark"_L1)
        return false;
    QApplication::setStyle(new FramedBoxes);
    QApplication::setPalette(paletteOf(name == "dark"_L1 ? dark : light));
    return true;
}
