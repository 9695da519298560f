#pragma once

#include <QString>

namespace CLI
{
class App;
}

namespace Cli
{
class Output;

enum class DiffForm { Text, Json };

/// Adds the verb "diff" to \a app. It prints on \a output and sets \a status to 1 when the dictionaries
/// differ.
void addDiff(CLI::App &app, Output &output, int &status);

/// Prints what turns the dictionary in the file at \a before into the one at \a after. Whether they are equal
/// is the result. Throws Failure.
bool diff(const QString &before, const QString &after, DiffForm form, Output &output);
} // namespace Cli
