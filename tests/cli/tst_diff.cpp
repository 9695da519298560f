#include "tests/cli/Program.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace
{
const auto before =
    json("{'name': 'A', 'unknown': {'key': [1]}, 'variables': ["
         "{'name': 'AGE', 'label': 'Age', 'valueLabels': [{'value': '1', 'label': 'Baby'}]}]}");
const auto after = QByteArray(before).replace("\"Age\"", "\"Age in years\\u009b\"");

/// Runs git where there is no configuration but the repository's own.
QString git(const TestFolder &folder, const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"HOME"_s, folder.path({}));
    environment.insert(u"GIT_CONFIG_NOSYSTEM"_s, u"1"_s);
    environment.insert(
        u"PATH"_s, QFileInfo(QStringLiteral(QUILLON_PROGRAM)).path() + u':' + qEnvironmentVariable("PATH"));
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder.path({}));
    process.start(u"git"_s, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        throw std::runtime_error("git: " + process.readAllStandardError().toStdString());
    return QString::fromUtf8(process.readAllStandardOutput());
}
} // namespace

class TestDiff : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void equalDictionariesHaveStatusZero()
    {
        const TestFolder folder;
        const QString left = folder.write(u"a.mvdb"_s, before);
        const QString right = folder.write(u"b.mvdb"_s, QJsonDocument::fromJson(before).toJson());
        const ProgramRun run = runProgram({u"diff"_s, left, right});
        QCOMPARE(run.errors, QString());
        QVERIFY(!run.output.trimmed().isEmpty()); // Says so.
        QCOMPARE(run.output.count(u'\n'), 1);
        QCOMPARE(run.status, 0);
    }

    void tellsWhatChanged()
    {
        const TestFolder folder;
        const ProgramRun run =
            runProgram({u"diff"_s, folder.write(u"a.mvdb"_s, before), folder.write(u"b.mvdb"_s, after)});
        QCOMPARE(run.errors, QString());
        QCOMPARE(run.output, u"Variable A/AGE: label changed from \"Age\" to \"Age in years\\x9b\"\n"_s);
        QCOMPARE(run.status, 1);
    }

    void printsJsonForOtherPrograms()
    {
        const TestFolder folder;
        const QString left = folder.write(u"a.mvdb"_s, before);
        const QString right = folder.write(u"b.mvdb"_s, after);
        const ProgramRun run = runProgram({u"diff"_s, u"--json"_s, left, right});
        QCOMPARE(run.status, 1);
        const QJsonObject content = QJsonDocument::fromJson(run.output.toUtf8()).object();
        QCOMPARE(content.value("before"_L1).toString(), left);
        QCOMPARE(content.value("after"_L1).toString(), right);
        QCOMPARE(content.value("changes"_L1).toArray().size(), 1);
        QJsonObject change = content.value("changes"_L1)[0].toObject();
        change.remove("text"_L1);
        QCOMPARE(change,
                 (QJsonObject{{"after"_L1, u"Age in years\u009b"_s},
                              {"before"_L1, u"Age"_s},
                              {"kind"_L1, u"changed"_s},
                              {"path"_L1, u"A/AGE"_s},
                              {"property"_L1, u"label"_s},
                              {"what"_L1, u"variable"_s}}));
        const ProgramRun same = runProgram({u"diff"_s, u"--json"_s, left, left});
        QCOMPARE(same.status, 0);
        QVERIFY(
            QJsonDocument::fromJson(same.output.toUtf8()).object().value("changes"_L1).toArray().isEmpty());
    }

    void readsPipes()
    {
        const TestFolder folder;
        const QString left = folder.write(u"a.mvdb"_s, before);
        const QString right = folder.write(u"b.mvdb"_s, after);
        const ProgramRun files = runProgram({u"diff"_s, left, right});
        const ProgramRun standard = runProgram({u"diff"_s, u"-"_s, right}, before);
        QCOMPARE(standard.errors, QString());
        QCOMPARE(standard.output, files.output);
        QCOMPARE(runProgram({u"diff"_s, left, u"-"_s}, after).output, files.output);
        QCOMPARE(runProgram({u"diff"_s, u"--textconv"_s, u"-"_s}, before).output,
                 runProgram({u"diff"_s, u"--textconv"_s, left}).output);
        const ProgramRun twice = runProgram({u"diff"_s, u"-"_s, u"-"_s}, before);
        QCOMPARE(twice.errors,
                 u"quillon: standard input can be read only once: give one of the two as a file\n"_s);
        QCOMPARE(twice.status, 2);
    }

    void theDocumentedComparisonOfVersionsWorks()
    {
        QFile page(QStringLiteral(QUILLON_SOURCE_DIR "/docs/version-control.md"));
        QVERIFY(page.open(QIODevice::ReadOnly));
        const QString line = QString::fromUtf8(page.readAll()).split(u'\n').filter(u"git show"_s).value(1);
        QVERIFY2(line.startsWith(u"quillon diff <("_s), qPrintable(line));
        const TestFolder folder;
        (void)git(folder, {u"init"_s, u"-q"_s, u"-b"_s, u"main"_s});
        (void)folder.write(u"survey.mvdb"_s, before);
        (void)git(folder, {u"add"_s, u"survey.mvdb"_s});
        (void)git(folder,
                  {u"-c"_s, u"user.name=n"_s, u"-c"_s, u"user.email=e"_s, u"commit"_s, u"-qm"_s, u"first"_s});
        (void)folder.write(u"survey.mvdb"_s, after);
        (void)folder.write(u"compare"_s, line.toUtf8() + "; test $? -eq 1\n");
        QCOMPARE(git(folder, {u"-c"_s, u"alias.run=!bash ./compare"_s, u"run"_s}),
                 u"Variable A/AGE: label changed from \"Age\" to \"Age in years\\x9b\"\n"_s);
    }

    void errorsHaveStatusTwo_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::addRow("missing") << QStringList{u"a.mvdb"_s, u"missing.mvdb"_s};
        QTest::addRow("malformed") << QStringList{u"malformed.mvdb"_s, u"a.mvdb"_s};
        QTest::addRow("one alone") << QStringList{u"a.mvdb"_s};
        QTest::addRow("none") << QStringList();
    }
    void errorsHaveStatusTwo()
    {
        QFETCH(QStringList, names);
        const TestFolder folder;
        (void)folder.write(u"a.mvdb"_s, before);
        (void)folder.write(u"malformed.mvdb"_s, "{");
        QStringList arguments{u"diff"_s};
        for (const QString &name : names)
            arguments.append(folder.path(name));
        const ProgramRun run = runProgram(arguments);
        QCOMPARE(run.output, QString());
        QVERIFY(!run.errors.isEmpty());
        QCOMPARE(run.status, 2);
    }

    void convertsToALineForEachValue()
    {
        const TestFolder folder;
        const ProgramRun run = runProgram({u"diff"_s, u"--textconv"_s, folder.write(u"a.mvdb"_s, before)});
        QCOMPARE(run.errors, QString());
        QCOMPARE(run.output,
                 u"name: \"A\"\n"
                 "unknown/key/[0]: 1\n"
                 "variables/AGE/label: \"Age\"\n"
                 "variables/AGE/name: \"AGE\"\n"
                 "variables/AGE/valueLabels/1/label: \"Baby\"\n"
                 "variables/AGE/valueLabels/1/value: \"1\"\n"_s);
        QCOMPARE(run.status, 0);
        const QString list = folder.write(u"list.mvdb"_s, "[" + before + "]");
        QVERIFY(runProgram({u"diff"_s, u"--textconv"_s, list}).output.startsWith(u"A/name: \"A\"\n"_s));
    }

    void aVersionThatIsNoJsonIsConvertedToItself()
    {
        const TestFolder folder;
        const ProgramRun run =
            runProgram({u"diff"_s, u"--textconv"_s, folder.write(u"a.mvdb"_s, "<<<<<<<\n{")});
        QCOMPARE(run.output, u"<<<<<<<\n{"_s);
        QCOMPARE(run.status, 0);
        QCOMPARE(runProgram({u"diff"_s, u"--textconv"_s, folder.path(u"missing"_s)}).status, 2);
        const QString directory = folder.path(u"."_s);
        QCOMPARE(runProgram({u"diff"_s, u"--textconv"_s, directory}).errors,
                 u"quillon: %1: is a directory, not a file\n"_s.arg(directory));
    }

    void theTwoLinesOfTheDocumentationMakeGitUseIt()
    {
        QFile page(QStringLiteral(QUILLON_SOURCE_DIR "/docs/version-control.md"));
        QVERIFY(page.open(QIODevice::ReadOnly));
        const QString lines = QString::fromUtf8(page.readAll()).section(u"```"_s, 1, 1).section(u'\n', 1);
        const TestFolder folder;
        (void)git(folder, {u"init"_s, u"-q"_s});
        (void)folder.write(u"setup"_s, lines.toUtf8());
        (void)git(folder, {u"-c"_s, u"alias.run=!sh ./setup"_s, u"run"_s});
        (void)folder.write(u"d.mvdb"_s, before);
        (void)git(folder, {u"add"_s, u"d.mvdb"_s});
        (void)folder.write(u"d.mvdb"_s, after);
        QStringList changed =
            git(folder, {u"diff"_s}).split(u'\n').filter(QRegularExpression(u"^[+-][a-z]"_s));
        QCOMPARE(changed,
                 QStringList(
                     {u"-variables/AGE/label: \"Age\""_s, u"+variables/AGE/label: \"Age in years\\x9b\""_s}));
    }
};

QTEST_APPLESS_MAIN(TestDiff)
#include "tst_diff.moc"
