#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Texts from documents on their way to a terminal.
namespace Cli::Text
{
/// \a text as it may be shown: blanks for tabs and line ends, and an escape such as \x1b or \u202e for what
/// would steer the terminal or reorder the line.
[[nodiscard]] QString printable(const QString &text);

/// Serialised JSON with everything in its texts that would steer a terminal written as \uXXXX. It parses to
/// the same value.
[[nodiscard]] QByteArray printableJson(const QByteArray &json);

/// The number of terminal columns that \a text takes: none for combining characters, two for wide ones.
[[nodiscard]] int width(QStringView text);

/// \a text in lines of at most \a columns, broken at blanks where there are any. At least one line.
[[nodiscard]] QStringList wrapped(const QString &text, int columns);

/// \a text, or its beginning with "…" so that it takes at most \a columns.
[[nodiscard]] QString elided(const QString &text, int columns);

/// A number in its shortest form.
[[nodiscard]] QString number(double value);

/// "1 variable", "2 variables", "3 entities".
[[nodiscard]] QString counted(qsizetype count, const QString &one, const QString &many);
} // namespace Cli::Text
