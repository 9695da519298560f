#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>

class TDcEntity;

/// Says in words what is wrong with an expression. Whoever writes it may go on all the same.
///
/// An expression compares and combines references, numbers and texts in quotation marks with = <> < <= > >=,
/// + - * /, AND, OR, NOT and parentheses.
class ExpressionCheck
{
    Q_DECLARE_TR_FUNCTIONS(ExpressionCheck)

public:
    struct Fault {
        QString message; ///< A sentence for the person.
        qsizetype start = 0; ///< Where in the text it is.
        qsizetype length = 0; ///< At least 1, except in an empty text.
    };

    /// What is wrong with \a text as an expression over the dictionary under \a root, from left to right.
    /// Nothing is wrong with an empty text.
    [[nodiscard]] static QList<Fault> check(TDcEntity *root, const QString &text);
};
