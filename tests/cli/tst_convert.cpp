#include "tests/cli/Program.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QTest>

#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace
{
const auto lossless = json("{'entities': [{'name': 'A', 'selectable': true, 'virtual': false}]}");
const auto lossy =
    json("{'entities': [{'name': 'A', 'variables': [{'name': 'V', 'documentation': 'why'}]}]}");
} // namespace

class TestConvert : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesWhatLosesNothing()
    {
        const TestFolder folder;
        const QString in = folder.write(u"in.mvdb"_s, lossless);
        const QString out = folder.path(u"out.mvdb"_s);
        const ProgramRun run = runProgram({u"convert"_s, in, out});
        QCOMPARE(run.errors, QString());
        QCOMPARE(run.output, out + u": written, nothing lost\n"_s);
        QCOMPARE(run.status, 0);
        QCOMPARE(QJsonDocument::fromJson(folder.read(u"out.mvdb"_s)), QJsonDocument::fromJson(lossless));
        QCOMPARE(folder.read(u"in.mvdb"_s), lossless);
    }

    void keepsFromWritingWhatLosesSomething()
    {
        const TestFolder folder;
        const QString in = folder.write(u"in.mvdb"_s, lossy);
        const QString out = folder.write(u"out.mvdb"_s, "precious");
        const ProgramRun run = runProgram({u"convert"_s, u"--force"_s, in, out});
        QCOMPARE(run.errors, QString());
        QCOMPARE(run.output,
                 u"entities[0]/variables[0] \"V\": documentation: dropped (was \"why\")\n"
                 "%1: not written, 1 value lost (--lossy writes it all the same)\n"_s.arg(out));
        QCOMPARE(run.status, 1);
        QCOMPARE(folder.read(u"out.mvdb"_s), "precious"_ba);
    }

    void writesWithLossesWhenToldTo()
    {
        const TestFolder folder;
        const QString in = folder.write(u"in.mvdb"_s, lossy);
        const QString out = folder.path(u"out.mvdb"_s);
        const ProgramRun run = runProgram({u"convert"_s, u"--lossy"_s, in, out});
        QCOMPARE(run.status, 0);
        QCOMPARE(
            run.output,
            u"entities[0]/variables[0] \"V\": documentation: dropped (was \"why\")\n%1: written, 1 value lost\n"_s
                .arg(out));
        const QByteArray written = folder.read(u"out.mvdb"_s);
        QVERIFY(written.contains("\"name\": \"V\""));
        QVERIFY(!written.contains("why"));
    }

    void aByteOrderMarkInsideATextIsLostToo()
    {
        const TestFolder folder;
        const QString in = folder.write(
            u"in.mvdb"_s,
            json(
                "{'root': [{'name': 'A', 'label': '\xEF\xBB\xBFx', 'selectable': true, 'virtual': false}]}"));
        const ProgramRun run = runProgram({u"convert"_s, in, folder.path(u"out.mvdb"_s)});
        QVERIFY2(run.output.startsWith(u"root[0] \"A\": label: changed from "_s), qPrintable(run.output));
        QCOMPARE(run.status, 1);
        QVERIFY(!QFile::exists(folder.path(u"out.mvdb"_s)));
    }

    void whatTheParserDropsIsLostToo()
    {
        const TestFolder folder;
        const QString in = folder.write(
            u"in.mvdb"_s,
            json("{'root': [{'name': 'A', 'name': 'B', 'selectable': true, 'virtual': false}]}"));
        const QString out = folder.path(u"out.mvdb"_s);
        const ProgramRun run = runProgram({u"convert"_s, in, out});
        QCOMPARE(run.output,
                 u"line 1, column 25: root[0].name is there more than once; only the last is kept\n"
                 "%1: not written, 1 value lost (--lossy writes it all the same)\n"_s.arg(out));
        QCOMPARE(run.status, 1);
        QVERIFY(!QFile::exists(out));
        QCOMPARE(runProgram({u"convert"_s, u"--lossy"_s, in, out}).status, 0);
    }

    void writesOverAFileOnlyWhenToldTo()
    {
        const TestFolder folder;
        const QString in = folder.write(u"in.mvdb"_s, lossless);
        const QString out = folder.write(u"out.mvdb"_s, "precious");
        const ProgramRun refused = runProgram({u"convert"_s, u"--lossy"_s, in, out});
        QCOMPARE(refused.errors, u"quillon: %1: is there already (--force writes over it)\n"_s.arg(out));
        QCOMPARE(refused.status, 2);
        QCOMPARE(folder.read(u"out.mvdb"_s), "precious"_ba);
        QCOMPARE(runProgram({u"convert"_s, in, out, u"--force"_s}).status, 0);
        QCOMPARE(QJsonDocument::fromJson(folder.read(u"out.mvdb"_s)), QJsonDocument::fromJson(lossless));
    }

    void overwritingKeepsThePermissions()
    {
        const TestFolder folder;
        const QString in = folder.write(u"in.mvdb"_s, lossless);
        const QString out = folder.write(u"out.mvdb"_s, "old");
        const auto own = QFile::ReadOwner | QFile::WriteOwner;
        QVERIFY(QFile::setPermissions(out, own));
        QCOMPARE(runProgram({u"convert"_s, in, out, u"--force"_s}).status, 0);
        QCOMPARE(QFile::permissions(out) & ~(QFile::ReadUser | QFile::WriteUser), QFile::Permissions(own));
    }

    void anErrorLeavesTheTargetAsItWas_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("error");
        QTest::addRow("malformed") << "{\n  \"a\": tru}"_ba
                                   << u"quillon: IN: line 2, column 8: illegal value\n"_s;
        QTest::addRow("no dictionary") << "{}"_ba << u"quillon: IN: There is no root entity.\n"_s;
    }
    void anErrorLeavesTheTargetAsItWas()
    {
        QFETCH(QByteArray, content);
        const TestFolder folder;
        const QString in = folder.write(u"in.mvdb"_s, content);
        const QString out = folder.write(u"out.mvdb"_s, "precious");
        ProgramRun run = runProgram({u"convert"_s, u"--lossy"_s, u"--force"_s, in, out});
        QCOMPARE(run.status, 2);
        QCOMPARE(run.output, QString());
        QTEST(run.errors.replace(in, u"IN"_s), "error");
        QCOMPARE(folder.read(u"out.mvdb"_s), "precious"_ba);
    }

    void refusesToWriteOverTheDocumentItself()
    {
        const TestFolder folder;
        const QString in = folder.write(u"in.mvdb"_s, lossless);
        QVERIFY(QFile::link(in, folder.path(u"symbolic.mvdb"_s)));
        QCOMPARE(::link(QFile::encodeName(in).constData(),
                        QFile::encodeName(folder.path(u"hard.mvdb"_s)).constData()),
                 0);
        for (const QString &out : {in, folder.path(u"./in.mvdb"_s), folder.path(u"symbolic.mvdb"_s),
                                   folder.path(u"hard.mvdb"_s)}) {
            const ProgramRun run = runProgram({u"convert"_s, in, out, u"--force"_s});
            QCOMPARE(run.errors, u"quillon: %1 and %2 are the same file\n"_s.arg(in, out));
            QCOMPARE(run.status, 2);
        }
        QCOMPARE(folder.read(u"in.mvdb"_s), lossless);
    }

    void refusesToWriteOverTheFileOnStandardInput()
    {
        const TestFolder folder;
        const QString in = folder.write(u"in.mvdb"_s, lossy);
        QProcess process;
        process.setStandardInputFile(in);
        process.start(QStringLiteral(QUILLON_PROGRAM),
                      {u"convert"_s, u"--lossy"_s, u"--force"_s, u"-"_s, in});
        QVERIFY(process.waitForFinished());
        QCOMPARE(QString::fromUtf8(process.readAllStandardError()),
                 u"quillon: standard input and %1 are the same file\n"_s.arg(in));
        QCOMPARE(process.exitCode(), 2);
        QCOMPARE(folder.read(u"in.mvdb"_s), lossy);
    }

    void writesAFileCalledAsStandardInputIs()
    {
        const TestFolder folder;
        QProcess process;
        process.setStandardInputFile(folder.write(u"in.mvdb"_s, lossless));
        process.setWorkingDirectory(QFileInfo(folder.write(u"-"_s, "old")).path());
        process.start(QStringLiteral(QUILLON_PROGRAM), {u"convert"_s, u"-"_s, u"./-"_s, u"--force"_s});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 0);
        QCOMPARE(QJsonDocument::fromJson(folder.read(u"-"_s)), QJsonDocument::fromJson(lossless));
    }

    void refusesTargetsThatAreNoFiles()
    {
        const TestFolder folder;
        const QString in = folder.write(u"in.mvdb"_s, lossless);
        const QString directory = folder.path(u"."_s);
        QCOMPARE(runProgram({u"convert"_s, in, directory}).errors,
                 u"quillon: %1: is a directory, not a file\n"_s.arg(directory));
        // A saved file would take the device's place.
        const ProgramRun device = runProgram({u"convert"_s, in, u"/dev/null"_s});
        QCOMPARE(device.errors, u"quillon: /dev/null: is not a regular file\n"_s);
        QCOMPARE(device.status, 2);
        // For some programs that is standard output; here it would quietly become a file of that name.
        const ProgramRun output = runProgram({u"convert"_s, in, u"-"_s});
        QCOMPARE(output.errors,
                 u"quillon: -: a file to write needs a name (./- if it is to be this one)\n"_s);
        QCOMPARE(output.status, 2);
    }

    void convertsStandardInput()
    {
        const TestFolder folder;
        const QString out = folder.path(u"out.mvdb"_s);
        const ProgramRun run = runProgram({u"convert"_s, u"-"_s, out}, lossless);
        QCOMPARE(run.errors, QString());
        QCOMPARE(run.status, 0);
        QCOMPARE(QJsonDocument::fromJson(folder.read(u"out.mvdb"_s)), QJsonDocument::fromJson(lossless));
    }

    void saysThatATargetCannotBeWritten()
    {
        const TestFolder folder;
        const QString in = folder.write(u"in.mvdb"_s, lossless);
        for (const QString &out : {folder.path(u"missing/out.mvdb"_s), u"/proc/out.mvdb"_s}) {
            const ProgramRun run = runProgram({u"convert"_s, in, out});
            QVERIFY2(run.errors.startsWith(u"quillon: %1: cannot be written: "_s.arg(out)),
                     qPrintable(run.errors));
            QCOMPARE(run.status, 2);
        }
    }

    void textsInTheReportCannotSteerTheTerminal()
    {
        const TestFolder folder;
        const QString in =
            folder.write(u"in.mvdb"_s,
                         json("{'root': [{'name': 'A\\u009b\\u202e', '\\u001b[31m': '\\u001b[0m\\u009c'}]}"));
        const ProgramRun run = runProgram({u"convert"_s, in, folder.path(u"out.mvdb"_s)});
        QVERIFY(run.output.startsWith(
            u"root[0] \"A\\x9b\\u202e\": \\x1b[31m: dropped (was \"\\u001b[0m\\x9c\")\n"_s));
    }
};

QTEST_APPLESS_MAIN(TestConvert)
#include "tst_convert.moc"
