#include "cli/Input.h"

#include "cli/Failure.h"

#include <QFile>
#include <QFileInfo>

#include <filesystem>

#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace
{
/// Asked before it is opened: for some devices that alone does something.
bool isDevice(const std::filesystem::path &path)
{
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(path, error);
    return std::filesystem::is_character_file(status) || std::filesystem::is_block_file(status);
}
} // namespace

namespace Cli
{
bool Input::isStandard(const QString &path)
{
    return path == "-"_L1;
}

QString Input::pathOf(const QString &path)
{
    return isStandard(path) ? u"/dev/stdin"_s : path;
}

QString Input::nameOf(const QString &path)
{
    return isStandard(path) ? u"standard input"_s : path;
}

QByteArray Input::readAll(const QString &path)
{
    const bool standard = isStandard(path);
    const QFileInfo info(pathOf(path));
    if (info.isDir())
        throw Failure(u"%1: is a directory, not a file"_s.arg(nameOf(path)));
    const bool terminal = standard && isatty(STDIN_FILENO);
    if (!terminal && isDevice(info.filesystemFilePath()))
        throw Failure(u"%1: is a device, not a file"_s.arg(nameOf(path)));
    QFile file(path);
    if (!(standard ? file.open(STDIN_FILENO, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly)))
        throw Failure(u"%1: cannot be opened: %2"_s.arg(nameOf(path), file.errorString()));
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        throw Failure(u"%1: cannot be read: %2"_s.arg(nameOf(path), file.errorString()));
    return bytes;
}
} // namespace Cli
