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
constexpr Colours dark{.window = 0x26292d,
                       .base = 0x1b1d20,
                       .alternate = 0x202226,
                       .text = 0xe4e6ea,
                       .faint = 0x9aa1ab,
                       .button = 0x1f2226,
                       .border = 0x4b4f56,
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

/// Fusion, where what it draws can be told apart on a dark ground too.
class ThemeStyle : public QProxyStyle
{
public:
    ThemeStyle() : QProxyStyle(u"Fusion"_s) { }

    /// Adds a frame to check boxes and radio buttons. The style's own is darker than a window, and so cannot
    /// be told from a dark list.
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        const bool round = element == PE_IndicatorRadioButton;
        if (!round && element != PE_IndicatorCheckBox && element != PE_IndicatorItemViewItemCheck)
            return;
        const QRect frame = option->rect.adjusted(0, 0, -1, -1);
        painter->save();
        painter->setPen(QPen(option->palette.color(QPalette::PlaceholderText), round ? 1.4 : 1));
        painter->setBrush(Qt::NoBrush);
        painter->setRenderHint(QPainter::Antialiasing, round);
        if (round)
            painter->drawEllipse(QRectF(frame).translated(0.5, 0.5));
        else
            painter->drawRect(frame);
        painter->restore();
    }

    /// A light shadow below disabled texts looks like a second text on a dark ground.
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                                QStyleHintReturn *data) const override
    {
        return hint == SH_EtchDisabledText ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
    }

    /// Disabled images are faint. The style's grey ones are brighter than the images on a dark ground.
    [[nodiscard]] QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap &pixmap,
                                              const QStyleOption *option) const override
    {
        if (mode != QIcon::Disabled)
            return QProxyStyle::generatedIconPixmap(mode, pixmap, option);
        QPixmap faint(pixmap.size());
        faint.setDevicePixelRatio(pixmap.devicePixelRatio());
        faint.fill(Qt::transparent);
        QPainter painter(&faint);
        painter.setOpacity(0.4);
        painter.drawPixmap(0, 0, pixmap);
        return faint;
    }
};
} // namespace

bool Theme::apply(const QString &name)
{
    if (name == "system"_L1)
        return true;
    if (name != "light"_L1 && name != "dark"_L1)
        return false;
    QApplication::setStyle(new ThemeStyle);
    QApplication::setPalette(paletteOf(name == "dark"_L1 ? dark : light));
    return true;
}
