#pragma once

#include <QColor>

#include <algorithm>
#include <cmath>

/// How well colours can be told apart, as the accessibility guidelines for the web measure it. What a control
/// is known by stands out by 3 at least.
namespace Contrast
{
inline double luminance(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
        + 0.0722 * linear(colour.blueF());
}

/// 1 for equal colours, 21 for black on white.
inline double between(const QColor &left, const QColor &right)
{
    const auto [less, more] = std::minmax({luminance(left), luminance(right)});
    return (more + 0.05) / (less + 0.05);
}
} // namespace Contrast
