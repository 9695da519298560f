#pragma once

#include <QByteArray>
#include <QString>

namespace Cli
{
/// Whether a file that is there already may be written over.
enum class Overwrite { Never, Allowed };

/// Refuses what must not be written to: \a in by whatever name, anything that is no regular file and, unless
/// it may be written over, any file that is there. Throws Failure. To be called before long work.
void checkTarget(const QString &in, const QString &out, Overwrite overwrite);

/// Writes \a bytes to the file at \a path, all of them or none. Throws Failure.
void save(const QString &path, const QByteArray &bytes);
} // namespace Cli
