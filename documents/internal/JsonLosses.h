#pragma once

#include <QByteArray>
#include <QStringList>

/// What is lost of a JSON text when its value is written again.
namespace JsonLosses
{
/// One line for each key that its object has more than once and for each number that has more digits than a
/// number in memory. \a text is well formed, with or without a byte order mark.
[[nodiscard]] QStringList of(const QByteArray &text);
} // namespace JsonLosses
