#pragma once

#include <QString>

namespace CLI
{
class App;
}

namespace Cli
{
class Output;

enum class ShowForm { Text, Json };

/// Adds the verb "show" to \a app; it prints on \a output.
void addShow(CLI::App &app, Output &output);

/// Prints the dictionary at \a path with all its roots, or just the entities called \a entity if that is not
/// empty. Throws Failure.
void show(const QString &path, const QString &entity, ShowForm form, Output &output);
} // namespace Cli
