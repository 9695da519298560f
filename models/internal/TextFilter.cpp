#include "models/internal/TextFilter.h"

#include <QStringView>

#include <algorithm>
#include <optional>

namespace
{
bool isAscii(QChar character)
{
    return character.unicode() < 0x80;
}

bool isAsciiLower(QChar character)
{
    return character >= u'a' && character <= u'z';
}

/// The text that \a pattern stands for, where it holds nothing but plain characters and escaped punctuation.
std::optional<QString> literalText(QStringView pattern)
{
    QString text;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const bool escaped = pattern.at(i) == u'\\';
        if (escaped && ++i == pattern.size())
            return {};
        const QChar character = pattern.at(i);
        // An escaped letter or digit is an operator; an unescaped operator is one too.
        if (escaped ? isAscii(character) && character.isLetterOrNumber()
                    : QStringView(u"^$.[|()?*+{").contains(character))
            return {};
        text += character;
    }
    return text;
}
} // namespace

void TextFilter::setExpression(const QRegularExpression &expression)
{
    if (expression == m_expression)
        return;
    m_expression = expression;
    m_kind = classify();
}

TextFilter::Kind TextFilter::classify()
{
    using Option = QRegularExpression::PatternOption;

    const QString pattern = m_expression.pattern();
    if (pattern.isEmpty())
        return Kind::Everything;
    if (!m_expression.isValid())
        return Kind::Nothing;

    const QRegularExpression::PatternOptions options = m_expression.patternOptions();
    const std::optional<QString> literal = literalText(pattern);
    if (!literal || (options & ~QRegularExpression::PatternOptions(Option::CaseInsensitiveOption)))
        return Kind::Expression;

    m_literal = *literal;
    m_case = options.testFlag(Option::CaseInsensitiveOption) ? Qt::CaseInsensitive : Qt::CaseSensitive;
    if (m_case == Qt::CaseSensitive)
        return std::any_of(literal->cbegin(), literal->cend(), isAsciiLower) ? Kind::Nothing : Kind::Literal;
    // Beyond ASCII, expressions and strings may fold case differently.
    return std::all_of(literal->cbegin(), literal->cend(), isAscii) ? Kind::Literal : Kind::Expression;
}

bool TextFilter::matches(const QString &text) const
{
    if (m_kind == Kind::Everything || m_kind == Kind::Nothing)
        return m_kind == Kind::Everything;
    const QString compared = text.toUpper().trimmed();
    if (m_kind == Kind::Expression)
        return m_expression.match(compared).hasMatch();
    // An expression finds nothing in malformed UTF-16; neither does its literal.
    return compared.contains(m_literal, m_case) && compared.isValidUtf16();
}
