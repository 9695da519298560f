#pragma once

#include <QString>
#include <QStringList>

namespace Cli
{
/// Those of \a names that somebody who typed \a wanted may have meant, the nearest first and three at most:
/// equal but for letter case, a few letters off, or beginning alike.
[[nodiscard]] QStringList nearMatches(const QString &wanted, const QStringList &names);

/// The end of a message that there is nothing called \a wanted: `; did you mean "AGE" or "AGES"?`, empty when
/// nothing is near.
[[nodiscard]] QString didYouMean(const QString &wanted, const QStringList &names);
} // namespace Cli
