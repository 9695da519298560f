#pragma once

#include <QRegularExpression>
#include <QString>

/// Whether cells match a filter expression. Cells are compared in upper case and without surrounding blanks,
/// the expression as it is: an expression in lower case that minds case matches nothing, on purpose.
///
/// What kind of expression it is, is found out once and kept for as long as the expression stays the same.
class TextFilter
{
public:
    void setExpression(const QRegularExpression &expression);

    /// False for every text where the expression is invalid, without a warning.
    [[nodiscard]] bool matches(const QString &text);

    [[nodiscard]] bool matchesEverything() const { return m_kind == Kind::Everything; }
    [[nodiscard]] bool matchesNothing() const { return m_kind == Kind::Nothing; }

private:
    enum class Kind { Everything, Nothing, Literal, Expression };
    [[nodiscard]] Kind classify();
    void setCompared(const QString &text);

    Kind m_kind = Kind::Everything;
    QRegularExpression m_expression;
    QString m_literal; // What a Kind::Literal looks for.
    Qt::CaseSensitivity m_case = Qt::CaseSensitive;
    QString m_compared; // A text as it is compared, in memory that serves one after the other.
    bool m_wellFormed = true; // Whether m_compared is.
};
