#include "cli/Target.h"

#include "cli/Failure.h"
#include "cli/Input.h"
#include "cli/Interruption.h"

#include <QFileInfo>
#include <QSaveFile>

#include <filesystem>

using namespace Qt::Literals::StringLiterals;

void Cli::checkTarget(const QString &in, const QString &out, Overwrite overwrite)
{
    if (Input::isStandard(out))
        throw Failure(u"-: a file to write needs a name (./- if it is to be this one)"_s);
    const QFileInfo target(out);
    if (target.isDir())
        throw Failure(u"%1: is a directory, not a file"_s.arg(out));
    const QFileInfo source(Input::pathOf(in));
    std::error_code error;
    if (std::filesystem::equivalent(source.filesystemFilePath(), target.filesystemFilePath(), error))
        throw Failure(u"%1 and %2 are the same file"_s.arg(Input::nameOf(in), out));
    if (target.exists() && !target.isFile())
        throw Failure(u"%1: is not a regular file"_s.arg(out));
    if (target.exists() && overwrite == Overwrite::Never)
        throw Failure(u"%1: is there already (--force writes over it)"_s.arg(out));
}

void Cli::save(const QString &path, const QByteArray &bytes)
{
    const Uninterrupted held;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        throw Failure(u"%1: cannot be written: %2"_s.arg(path, file.errorString()));
}
