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

/// Whether a document may be written although some of it is lost.
enum class Losses { Refused, Accepted };

/// Adds the verb "convert" to \a app. It prints on \a output and sets \a status to 1 when it keeps from
/// writing because something would be lost.
void addConvert(CLI::App &app, Output &output, int &status);

/// Reads the dictionary document at \a in through the layer and writes it to \a out, and prints every value
/// that this changes or drops. If there is any, nothing is written unless losses are accepted. Whether it was
/// written is the result. Throws Failure; then a file at \a out is as it was.
bool convert(const QString &in, const QString &out, Losses losses, Overwrite overwrite, Output &output);
} // namespace Cli
