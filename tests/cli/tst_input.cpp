#include "cli/Failure.h"
#include "cli/Input.h"
#include "tests/cli/Program.h"

#include <QTest>

#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;
using namespace Cli;

namespace
{
QString failureOf(const QString &path)
{
    try {
        (void)Input::readAll(path);
    } catch (const Failure &failure) {
        return failure.message();
    }
    return {};
}
} // namespace

class TestInput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsFiles()
    {
        const TestFolder folder;
        QCOMPARE(Input::readAll(folder.write(u"d"_s, "a\r\n\0b"_ba)), "a\r\n\0b"_ba);
        QCOMPARE(Input::readAll(folder.write(u"empty"_s, {})), QByteArray());
    }

    void aFileMayBeCalledAsStandardInputIs()
    {
        QVERIFY(Input::isStandard(u"-"_s));
        QVERIFY(!Input::isStandard(u"./-"_s));
        const TestFolder folder;
        QCOMPARE(Input::readAll(folder.write(u"-"_s, "x")), "x"_ba);
    }

    void saysWhyAFileCannotBeRead()
    {
        const TestFolder folder;
        QCOMPARE(failureOf(folder.path(u"."_s)), folder.path(u"."_s) + u": is a directory, not a file"_s);
        const QString missing = folder.path(u"missing.mvdb"_s);
        QCOMPARE(failureOf(missing), missing + u": cannot be opened: No such file or directory"_s);
        // Opens for everybody, and fails to be read even for the superuser.
        const QString unreadable = failureOf(u"/proc/self/mem"_s);
        QVERIFY2(unreadable.startsWith(u"/proc/self/mem: cannot be read: "_s), qPrintable(unreadable));
    }

    void everyVerbReadsStandardInput_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addRow("check") << QStringList{u"check"_s, u"-"_s};
        QTest::addRow("show") << QStringList{u"show"_s, u"-"_s};
        QTest::addRow("codebook") << QStringList{u"codebook"_s, u"-"_s, u"-o"_s, u"OUT.html"_s, u"--force"_s};
    }
    void everyVerbReadsStandardInput()
    {
        QFETCH(QStringList, arguments);
        const TestFolder folder;
        arguments.replaceInStrings(u"OUT"_s, folder.path(u"out"_s));
        const ProgramRun run = runProgram(arguments, R"({"name": "A", "label": "B", "variables": []})");
        QCOMPARE(run.errors, QString());
        QVERIFY2(run.status == 0 || run.status == 1, qPrintable(run.output)); // There may be findings.
        if (arguments.first() != "codebook"_L1)
            QVERIFY2(run.output.contains(u"standard input: "_s), qPrintable(run.output));
        const ProgramRun broken = runProgram(arguments, "{");
        QVERIFY2(broken.errors.startsWith(u"quillon: standard input:"_s), qPrintable(broken.errors));
        QCOMPARE(broken.status, 2);
    }

    void refusesDevices_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addRow("that never ends") << u"/dev/zero"_s;
        QTest::addRow("that is empty") << u"/dev/null"_s;
    }
    void refusesDevices()
    {
        QFETCH(QString, path);
        for (const QString &verb : {u"show"_s, u"check"_s}) {
            const ProgramRun run = runProgram({verb, path});
            QCOMPARE(run.errors, u"quillon: %1: is a device, not a file\n"_s.arg(path));
            QCOMPARE(run.status, 2);
        }
        QProcess process;
        process.setStandardInputFile(path);
        process.start(QStringLiteral(QUILLON_PROGRAM), {u"check"_s, u"-"_s});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 2);
        QCOMPARE(process.readAllStandardError(), "quillon: standard input: is a device, not a file\n"_ba);
    }

    void readsNamedPipes()
    {
        const TestFolder folder;
        const QString pipe = folder.path(u"pipe"_s);
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QProcess reader;
        reader.start(QStringLiteral(QUILLON_PROGRAM), {u"show"_s, pipe});
        QFile writer(pipe);
        QVERIFY(writer.open(QIODevice::WriteOnly)); // Waits for the reader.
        const QByteArray text = R"({"name": "A", "variables": []})";
        QCOMPARE(writer.write(text), text.size());
        writer.close();
        QVERIFY(reader.waitForFinished());
        QVERIFY(reader.readAllStandardOutput().startsWith(QFile::encodeName(pipe) + ": 1 entity"));
    }
};

QTEST_APPLESS_MAIN(TestInput)
#include "tst_input.moc"
