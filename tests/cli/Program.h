#pragma once

#include <QFile>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <stdexcept>

/// JSON from text with single quotes for double ones, which reads better in a source.
[[nodiscard]] inline QByteArray json(const char *text)
{
    return QByteArray(text).replace('\'', '"');
}

/// How the program ended and what it said.
struct ProgramRun {
    int status;
    QString output;
    QString errors;
};

/// Runs the program that was built with the tests, with \a input on its standard input. A crash has the
/// status -1.
[[nodiscard]] inline ProgramRun runProgram(const QStringList &arguments, const QByteArray &input = {})
{
    QProcess process;
    process.start(QStringLiteral(QUILLON_PROGRAM), arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(120'000))
        throw std::runtime_error("the program does not end");
    const int status = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    return {status, QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

/// A folder of its own for a test's files.
class TestFolder
{
public:
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    /// Writes a file and returns its path.
    [[nodiscard]] QString write(const QString &name, const QByteArray &content) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            throw std::runtime_error("cannot write a test's file");
        return file.fileName();
    }

    [[nodiscard]] QByteArray read(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QTemporaryDir m_folder;
};
