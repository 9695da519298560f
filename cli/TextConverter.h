#pragma once

#include <QString>

namespace Cli
{
class Output;

/// Prints the document in the file at \a path for version control: a line for each value, with its place.
/// Places are made of names, so that what is inserted or moved leaves the lines of everything else as they
/// are. Keys that are not known are there too.
///
/// A file that is no JSON object is printed as it is: version control asks for every version there ever was,
/// and gives up when one of them cannot be converted. Throws Failure only when the file cannot be read.
void convertToText(const QString &path, Output &output);
} // namespace Cli
