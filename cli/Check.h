#pragma once

#include <QString>

namespace CLI
{
class App;
}

namespace Cli
{
class Output;

enum class CheckForm { Text, Json };

/// Adds the verb "check" to \a app. It prints on \a output and sets \a status to 1 when something is wrong
/// with the dictionary.
void addCheck(CLI::App &app, Output &output, int &status);

/// Prints what is wrong with the dictionary in the file at \a path. Whether nothing is, is the result. Throws
/// Failure.
bool check(const QString &path, CheckForm form, Output &output);
} // namespace Cli
