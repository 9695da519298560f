#pragma once

#include <QString>

#include <optional>

/// Numbers as spreadsheets exchange them: in the person's language, or with a decimal point.
namespace Numbers
{
/// The finite number that \a text is; nothing when it is none.
[[nodiscard]] std::optional<double> real(const QString &text);
/// The whole number that \a text is; nothing when it is none that an int holds.
[[nodiscard]] std::optional<int> whole(const QString &text);
/// \a number as briefly as real() gives it back.
[[nodiscard]] QString text(double number);
} // namespace Numbers
