#include "workbench/operations/Numbers.h"

#include <QLocale>

#include <cmath>
#include <limits>

std::optional<double> Numbers::real(const QString &text)
{
    bool ok = false;
    double number = QLocale().toDouble(text.trimmed(), &ok);
    if (!ok)
        number = QLocale::c().toDouble(text.trimmed(), &ok);
    return ok && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::optional<int> Numbers::whole(const QString &text)
{
    using Limits = std::numeric_limits<int>;
    const auto number = real(text);
    const bool fits =
        number && std::trunc(*number) == *number && *number >= Limits::min() && *number <= Limits::max();
    return fits ? std::optional(int(*number)) : std::nullopt;
}

QString Numbers::text(double number)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(number, 'g', QLocale::FloatingPointShortest);
}
