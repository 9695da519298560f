#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

class QFile;

/// Files to be read, and why they cannot be. Only regular ones are: a device might never end, and a pipe lets
/// its reader wait and can be read only once.
class InputFile
{
    Q_DECLARE_TR_FUNCTIONS(InputFile)

public:
    /// Opens \a file, which has its name, for reading. Returns why that cannot be, empty when it can.
    [[nodiscard]] static QString open(QFile &file);

    /// The whole content of the file at \a path; null with \a problem set when it cannot be had.
    [[nodiscard]] static QByteArray read(const QString &path, QString *problem);
};
