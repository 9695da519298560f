#include "workbench/Theme.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

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
} // namespace

bool Theme::apply(const QString &name)
{
    if (name == "system"_L1)
        return true;
    if (name != "light"_L1 && name != "dark"_L1)
        return false;
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    QApplication::setPalette(paletteOf(name == "dark"_L1 ? dark : light));
    return true;
}
