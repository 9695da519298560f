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

/// Keeps `text.toUpper().trimmed()`. Latin-1, which most texts are, goes without a new text for each.
void TextFilter::setCompared(const QString &text)
{
    const QStringView trimmed = QStringView(text).trimmed();
    m_compared.resize(trimmed.size());
    bool simple = true; // Latin-1, and so are its capitals.
    std::transform(trimmed.utf16(), trimmed.utf16() + trimmed.size(),
                   reinterpret_cast<char16_t *>(m_compared.data()), [&simple](char16_t c) {
                       simple &= c < u'ÿ' && c != u'µ' && c != u'ß';
                       const bool small = (c >= u'a' && c <= u'z') || (c >= u'à' && c <= u'þ' && c != u'÷');
                       return char16_t(small ? c - (u'a' - u'A') : c);
                   });
    if (!simple)
        m_compared = text.toUpper().trimmed();
    m_wellFormed = simple || m_compared.isValidUtf16();
}

bool TextFilter::matches(const QString &text)
{
    if (m_kind == Kind::Everything || m_kind == Kind::Nothing)
        return m_kind == Kind::Everything;
    setCompared(text);
    if (!m_wellFormed) // Expressions find nothing in it, so neither may a literal.
        return false;
    if (m_kind == Kind::Literal)
        return m_compared.contains(m_literal, m_case);
    return m_expression
        .match(m_compared, 0, QRegularExpression::NormalMatch,
               QRegularExpression::DontCheckSubjectStringMatchOption)
        .hasMatch();
}
