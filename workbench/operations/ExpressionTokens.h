#pragma once

#include <QList>
#include <QString>

/// The words of an expression.
namespace ExpressionTokens
{
enum class Kind {
    Reference, ///< `name`, and after a dot perhaps `member`.
    Value, ///< A number or a text in quotation marks.
    Infix, ///< Stands between two operands.
    Minus, ///< Stands between two operands or before one.
    Not, ///< Stands before an operand.
    Open,
    Close,
    Unclosed, ///< A quotation mark or bracket without its end.
    Unknown, ///< A character that means nothing.
};

struct Token {
    Kind kind = Kind::Unknown;
    qsizetype start = 0;
    qsizetype length = 0;
    QString name = {}; ///< Without brackets.
    QString member = {}; ///< Without brackets.
    bool dotted = false; ///< Whether there is a dot, even if no name stands behind it.
};

[[nodiscard]] QList<Token> split(const QString &text);
} // namespace ExpressionTokens
