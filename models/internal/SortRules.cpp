#include "models/internal/SortRules.h"

#include <QDateTime>
#include <QLocale>

#include <algorithm>
#include <iterator>
#include <utility>

namespace
{
constexpr int addressColumn = 1;
constexpr int tagColumn = 4;

bool isAddressCharacter(QChar character)
{
    const char16_t c = character.unicode();
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') || c == u'_'
        || c == u'.';
}

/// The first match of "[\w\.]*@[\w\.]*" in \a text; all of it where there is none.
///
/// Found by hand: the expression tries every position of a text without '@', twice per comparison. Like any
/// expression it matches nothing in malformed UTF-16.
QString address(QString text)
{
    const qsizetype at = text.indexOf(u'@');
    if (at < 0 || !text.isValidUtf16())
        return text;
    const auto sign = text.cbegin() + at;
    const auto begin =
        std::find_if_not(std::make_reverse_iterator(sign), text.crend(), isAddressCharacter).base();
    const auto end = std::find_if_not(sign + 1, text.cend(), isAddressCharacter);
    return text.mid(begin - text.cbegin(), end - begin);
}

QString comparedText(const SortRules::Cell &cell)
{
    QString text = cell.value.toString();
    return cell.column == addressColumn ? address(std::move(text)) : text;
}

bool lessInLocale(const QString &left, const QString &right)
{
    return QString::localeAwareCompare(left, right) < 0;
}
/// The number that a tag's text is in the default locale.
std::optional<int> tagNumber(const QVariant &tag)
{
    if (tag.typeId() == QMetaType::Int)
        return tag.toInt(); // Every locale reads plain digits as they are.
    bool isNumber = false;
    const int number = QLocale().toInt(tag.toString().trimmed(), &isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}
} // namespace

bool SortRules::less(const QModelIndex &left, const QModelIndex &right, std::initializer_list<Rule> rules)
{
    const Cell leftCell{left.data(), left.column()};
    const Cell rightCell{right.data(), right.column()};
    for (const Rule rule : rules) {
        if (const std::optional<bool> answer = rule(leftCell, rightCell))
            return *answer;
    }
    return false;
}

std::optional<bool> SortRules::numbers(const Cell &left, const Cell &right)
{
    if (!left.value.canConvert<double>())
        return {};
    QVariant number = left.value;
    number.convert(QMetaType::fromType<double>()); // What does not convert becomes an empty double: 0.
    return number.toDouble() < right.value.toDouble();
}

std::optional<bool> SortRules::integers(const Cell &left, const Cell &right)
{
    if (left.value.typeId() != QMetaType::Int)
        return {};
    return left.value.toInt() < right.value.toInt();
}

std::optional<bool> SortRules::dates(const Cell &left, const Cell &right)
{
    if (left.value.typeId() != QMetaType::QDateTime)
        return {};
    return left.value.toDateTime() < right.value.toDateTime();
}

std::optional<bool> SortRules::tags(const Cell &left, const Cell &right)
{
    if (left.column != tagColumn || right.column != tagColumn)
        return {};
    const std::optional<int> leftNumber = tagNumber(left.value);
    const std::optional<int> rightNumber = tagNumber(right.value);
    if (leftNumber && rightNumber)
        return *leftNumber < *rightNumber;
    if (leftNumber || rightNumber)
        return leftNumber.has_value();
    return lessInLocale(left.value.toString().trimmed(), right.value.toString().trimmed());
}

std::optional<bool> SortRules::texts(const Cell &left, const Cell &right)
{
    return lessInLocale(comparedText(left), comparedText(right));
}
