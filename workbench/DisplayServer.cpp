#include "workbench/DisplayServer.h"

#include <QByteArray>
#include <QtGlobal>

#include <algorithm>

bool DisplayServer::find(int count, char *const *arguments)
{
    const auto isSet = [](const char *name) { return !qEnvironmentVariableIsEmpty(name); };
    const auto names = [](QByteArrayView argument) {
        return argument.endsWith("-platform") || argument.endsWith("-display");
    };
#if !defined(Q_OS_UNIX) || defined(Q_OS_DARWIN)
    return true;
#endif
    if (isSet("DISPLAY") || isSet("WAYLAND_DISPLAY") || isSet("QT_QPA_PLATFORM")
        || std::any_of(arguments, arguments + count, names))
        return true;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return false;
}
