#include "documents/sources/internal/FieldText.h"

#include "common/Constants.h"
#include "model/TDcSourceField.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace
{
constexpr int MostDecimals = 9;
constexpr double MostPlain = 1e15; ///< From here on not every whole number has a double of its own.

struct Rounded {
    double value;
    int decimals;
};

/// \a value with the decimals that it has, but at least \a known: they only grow, so most values need one
/// comparison.
template <typename Number>
Rounded rounded(Number value, int known)
{
    for (int decimals = known; decimals < MostDecimals; ++decimals) {
        const double scale = std::pow(10, decimals);
        const double candidate = std::round(double(value) * scale) / scale;
        if (Number(candidate) == value)
            return {candidate, decimals};
    }
    return {double(value), MostDecimals};
}
} // namespace

QString FieldText::number(double value)
{
    const char format = std::abs(value) < MostPlain ? 'f' : 'g';
    return QString::number(value + 0.0, format, QLocale::FloatingPointShortest); // + 0.0: no "-0"
}

bool FieldText::appendCategory(QString &categories, const QString &code, const QString &label)
{
    const QString plainCode = code.trimmed();
    if (plainCode.isEmpty()
        || std::any_of(plainCode.cbegin(), plainCode.cend(), [](QChar c) { return c.isSpace(); }))
        return false;
    QString plainLabel = label.trimmed();
    std::replace_if(
        plainLabel.begin(), plainLabel.end(), [](QChar c) { return c.isSpace(); }, u' ');
    if (!categories.isEmpty())
        categories += Constants::tab;
    categories += plainCode;
    if (!plainLabel.isEmpty())
        categories += Constants::blank + plainLabel;
    return true;
}

void CodeList::append(const QString &code)
{
    if (code.isEmpty() || m_known.contains(code))
        return;
    m_known.insert(code);
    m_codes.append(code);
}

void CodeList::append(const CodeList &codes)
{
    for (const QString &code : codes.m_codes)
        append(code);
}

QString CodeList::text() const
{
    return m_codes.join(Constants::tab);
}

void ObservedNumbers::add(double value, int decimals)
{
    m_min = std::min(m_min, value);
    m_max = std::max(m_max, value);
    m_decimals = std::max(m_decimals, decimals);
}

void ObservedNumbers::add(double value)
{
    if (!std::isfinite(value))
        return;
    const Rounded number = rounded(value, m_decimals);
    add(number.value, number.decimals);
}

void ObservedNumbers::add(float value)
{
    if (!std::isfinite(value))
        return;
    const Rounded number = rounded(value, m_decimals);
    add(number.value, number.decimals);
}

bool ObservedNumbers::fitsInteger() const
{
    return isEmpty()
        || (m_min >= std::numeric_limits<int>::min() && m_max <= std::numeric_limits<int>::max());
}

int ObservedNumbers::width(int decimals) const
{
    if (isEmpty())
        return 0;
    const auto length = [decimals](double value) {
        const bool plain = std::abs(value) < MostPlain;
        return int((plain ? QString::number(value, 'f', decimals) : FieldText::number(value)).size());
    };
    return std::max(length(m_min), length(m_max));
}

void ObservedNumbers::writeRange(TDcSourceField &field) const
{
    if (isEmpty())
        return;
    field.rangeMin = FieldText::number(m_min);
    field.rangeMax = FieldText::number(m_max);
}
