#pragma once

#include <QList>
#include <QString>

/// Typed text that is read as a regular expression.
namespace ExpressionMatch
{
/// The place of the first of \a texts that \a pattern matches as a whole; -1 if there is none.
///
/// Finds what QStringList::indexOf() finds, but an invalid pattern matches nothing and warns nobody, text
/// without special characters is simply compared, and a pattern that takes seconds is given up.
[[nodiscard]] qsizetype indexOf(const QList<QString> &texts, const QString &pattern);
} // namespace ExpressionMatch
