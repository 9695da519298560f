#pragma once

#include <QString>

namespace CLI
{
class App;
}

namespace Cli
{
class Output;
enum class Overwrite;

/// Adds the verb "codebook" to \a app; it prints on \a output.
void addCodebook(CLI::App &app, Output &output);

/// Writes a codebook of the dictionary in the file at \a in to \a out, whose ending says whether it becomes a
/// page (.html) or a PDF document (.pdf). Throws Failure; then a file at \a out is as it was.
void codebook(const QString &in, const QString &out, Overwrite overwrite, Output &output);
} // namespace Cli
