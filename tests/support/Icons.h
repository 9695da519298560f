#pragma once

#include <QString>
#include <QVariant>

/// The path of the file that the icon in \a value was made from; empty if there is no icon in it, or if its
/// file is none of those that a front end supplies (icons.qrc lists them).
[[nodiscard]] QString iconFile(const QVariant &value);
