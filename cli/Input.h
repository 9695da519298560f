#pragma once

#include <QByteArray>
#include <QString>

/// Where a verb reads a document from: a file, a pipe, or standard input.
namespace Cli::Input
{
/// What help says about an argument that is a document.
inline constexpr auto optionText = "The dictionary document; - reads it from standard input";

/// Whether \a path is "-", which stands for standard input. A file of that name is "./-".
[[nodiscard]] bool isStandard(const QString &path);

/// Where what \a path names can be found among the files.
[[nodiscard]] QString pathOf(const QString &path);

/// What \a path is called in messages.
[[nodiscard]] QString nameOf(const QString &path);

/// Everything there is to read at \a path. Standard input and pipes give that only once. Throws Failure when
/// it cannot be read, also for a device, most of which never end; only standard input may be a terminal.
[[nodiscard]] QByteArray readAll(const QString &path);
} // namespace Cli::Input
