#include "workbench/operations/ExpressionTokens.h"

#include "workbench/operations/ExpressionText.h"

#include <algorithm>
#include <optional>
#include <utility>

using namespace Qt::Literals::StringLiterals;
using namespace ExpressionTokens;

namespace
{
class Splitter
{
public:
    explicit Splitter(QStringView text) : m_text(text) { }

    [[nodiscard]] QList<Token> split()
    {
        QList<Token> tokens;
        for (skipBlanks(); m_at < m_text.size(); skipBlanks()) {
            const qsizetype start = m_at;
            Token token = next();
            token.start = start;
            token.length = m_at - start;
            tokens.append(token);
        }
        return tokens;
    }

private:
    static bool startsName(QChar character)
    {
        return character.isLetter() || character == u'_' || character == u'[';
    }
    static bool inName(QChar character) { return character.isLetterOrNumber() || character == u'_'; }
    static bool inNumber(QChar character) { return character.isDigit() || character == u'.'; }

    [[nodiscard]] QChar peek() const { return m_at < m_text.size() ? m_text.at(m_at) : QChar(); }

    void skipBlanks()
    {
        (void)take([](QChar character) { return character.isSpace(); });
    }

    template <typename Belongs>
    QString take(Belongs belongs)
    {
        const auto *end = std::find_if_not(m_text.cbegin() + m_at, m_text.cend(),
                                           [&belongs](QChar c) { return belongs(c); });
        const qsizetype from = std::exchange(m_at, end - m_text.cbegin());
        return m_text.sliced(from, m_at - from).toString();
    }

    /// Goes behind the next \a end. False, and to the end of the text, when there is none.
    bool goBehind(QChar end)
    {
        const qsizetype found = m_text.indexOf(end, m_at + 1);
        m_at = found < 0 ? m_text.size() : found + 1;
        return found >= 0;
    }

    Token next()
    {
        const QChar first = peek();
        if (startsName(first))
            return word();
        if (first.isDigit()) {
            (void)take(inNumber);
            return {Kind::Value};
        }
        if (first == u'"' || first == u'\'')
            return quoted(first);
        static constexpr QLatin1StringView infixes[] = {"<>"_L1, "<="_L1, ">="_L1, "<"_L1, ">"_L1,
                                                        "="_L1,  "+"_L1,  "*"_L1,  "/"_L1};
        const QStringView rest = m_text.sliced(m_at);
        const auto *infix = std::find_if(std::cbegin(infixes), std::cend(infixes),
                                         [rest](QLatin1StringView text) { return rest.startsWith(text); });
        if (infix != std::cend(infixes)) {
            m_at += infix->size();
            return {Kind::Infix};
        }
        m_at += first.isHighSurrogate() && rest.size() > 1 ? 2 : 1;
        switch (first.unicode()) {
        case u'-':
            return {Kind::Minus};
        case u'(':
            return {Kind::Open};
        case u')':
            return {Kind::Close};
        default:
            return {Kind::Unknown};
        }
    }

    /// A doubled quotation mark stands for one and ends nothing.
    Token quoted(QChar mark)
    {
        do {
            if (!goBehind(mark))
                return {Kind::Unclosed};
        } while (peek() == mark);
        return {Kind::Value};
    }

    /// Nothing when a bracket is not closed.
    std::optional<QString> name()
    {
        if (peek() != u'[')
            return take(inName);
        const qsizetype from = m_at + 1;
        if (!goBehind(u']'))
            return {};
        return m_text.sliced(from, m_at - 1 - from).toString();
    }

    Token word()
    {
        const bool bracketed = peek() == u'[';
        const std::optional<QString> first = name();
        if (!first)
            return {Kind::Unclosed};
        if (!bracketed && ExpressionText::isKeyword(*first))
            return {first->compare("NOT"_L1, Qt::CaseInsensitive) == 0 ? Kind::Not : Kind::Infix};
        Token token{Kind::Reference};
        token.name = *first;
        token.dotted = peek() == u'.';
        if (!token.dotted)
            return token;
        ++m_at;
        const std::optional<QString> second = name();
        if (!second)
            return {Kind::Unclosed};
        token.member = *second;
        return token;
    }

    QStringView m_text;
    qsizetype m_at = 0;
};
} // namespace

QList<Token> ExpressionTokens::split(const QString &text)
{
    return Splitter(text).split();
}
