#include "tests/cli/Program.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void helpAndVersionSucceed()
    {
        const ProgramRun help = runProgram({u"--help"_s});
        QCOMPARE(help.status, 0);
        QVERIFY(help.output.contains(u"convert"_s) && help.output.contains(u"show"_s));
        QCOMPARE(runProgram({u"convert"_s, u"--help"_s}).status, 0);
        const ProgramRun version = runProgram({u"--version"_s});
        QCOMPARE(version.status, 0);
        QVERIFY(version.output.startsWith(u"quillon "_s));
    }

    void wrongUseHasStatusTwo_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addRow("nothing") << QStringList();
        QTest::addRow("unknown verb") << QStringList{u"frobnicate"_s};
        QTest::addRow("no file") << QStringList{u"show"_s};
        QTest::addRow("no target") << QStringList{u"convert"_s, u"a.mvdb"_s};
        QTest::addRow("unknown option") << QStringList{u"show"_s, u"a.mvdb"_s, u"--frobnicate"_s};
    }
    void wrongUseHasStatusTwo()
    {
        QFETCH(QStringList, arguments);
        const ProgramRun run = runProgram(arguments);
        QCOMPARE(run.status, 2);
        QCOMPARE(run.output, QString());
        QVERIFY(!run.errors.isEmpty());
    }

    void namesTheUnknownVerbAndWhatIsNear()
    {
        QCOMPARE(
            runProgram({u"shwo"_s, u"a.mvdb"_s}).errors,
            u"quillon: there is no verb \"shwo\"; did you mean \"show\"? (quillon --help lists them)\n"_s);
        QCOMPARE(runProgram({u"frob\x1b"_s}).errors,
                 u"quillon: there is no verb \"frob\\x1b\" (quillon --help lists them)\n"_s);
    }

    void errorsGoToStandardErrorWithStatusTwo()
    {
        const TestFolder folder;
        const QString missing = folder.path(u"missing.mvdb"_s);
        const ProgramRun run = runProgram({u"show"_s, missing});
        QCOMPARE(run.output, QString());
        QCOMPARE(run.errors, u"quillon: %1: cannot be opened: No such file or directory\n"_s.arg(missing));
        QCOMPARE(run.status, 2);
    }

    void fileNamesCannotSteerTheTerminal()
    {
        const ProgramRun run = runProgram({u"show"_s, u"/missing/\x1b[31m\u009b"_s});
        QCOMPARE(run.errors,
                 u"quillon: /missing/\\x1b[31m\\x9b: cannot be opened: No such file or directory\n"_s);
    }

    void fullOutputIsAnError()
    {
        const TestFolder folder;
        QProcess process;
        process.setStandardOutputFile(u"/dev/full"_s);
        process.start(QStringLiteral(QUILLON_PROGRAM),
                      {u"show"_s, folder.write(u"d.mvdb"_s, R"({"entities": []})")});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 2);
        QVERIFY(process.readAllStandardError().startsWith("quillon: cannot write the output: "));
    }

    void helpThatCannotBePrintedIsAnError()
    {
        for (const QStringList &arguments :
             {QStringList{u"--help"_s}, QStringList{u"--version"_s}, QStringList{u"show"_s, u"--help"_s}}) {
            QProcess process;
            process.setStandardOutputFile(u"/dev/full"_s);
            process.start(QStringLiteral(QUILLON_PROGRAM), arguments);
            QVERIFY(process.waitForFinished());
            QCOMPARE(process.exitCode(), 2);
            QVERIFY(process.readAllStandardError().startsWith("quillon: cannot write the output: "));
        }
    }
};

QTEST_APPLESS_MAIN(TestProgram)
#include "tst_program.moc"
