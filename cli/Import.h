#pragma once

#include "documents/sources/SourceOptions.h"

#include <QString>

namespace CLI
{
class App;
}

namespace Cli
{
class Output;

/// What "import" makes of a data file, and how.
struct ImportOptions {
    QString dataFile;
    QString dictionary;
    QString entity; ///< Empty: the data file's base name.
    QString record; ///< Only the fields of this one; "*" for all.
    bool splitNames = true;
    QString splitter; ///< One character; empty: the one that a drop uses.
    bool overwrite = false;
    SourceOptions source;
};

/// Adds the verb "import" to \a app; it prints on \a output.
void addImport(CLI::App &app, Output &output);

/// Reads the fields of a data file, makes variables of them as if they had been dropped onto a new entity,
/// and saves that as a dictionary. Throws Failure; then a file at the dictionary's path is as it was.
void import(const ImportOptions &options, Output &output);
} // namespace Cli
