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

    void keysThatAreNotKnownCount_data()
    {
        QTest::addColumn<QByteArray>("changed");
        QTest::addColumn<QString>("text");
        const auto edited = [](const char *from, const char *to) {
            return QByteArray(before).replace(json(from), json(to));
        };
        QTest::addRow("changed") << edited("[1]", "[2]")
                                 << u"Other key A: unknown: changed from {\"key\":[1]} to {\"key\":[2]}\n"_s;
        QTest::addRow("dropped") << edited("'unknown': {'key': [1]}, ", "")
                                 << u"Other key A: unknown: dropped (was {\"key\":[1]})\n"_s;
        QTest::addRow("added to a variable")
            << edited("'AGE', ", "'AGE', 'id': 7, ") << u"Other key A/AGE: id: added (7)\n"_s;
        QTest::addRow("added to a category") << edited("'Baby'", "'Baby', 'colour': 'red'")
                                             << u"Other key A/AGE [1]: colour: added (\"red\")\n"_s;
        QTest::addRow("of an added layout")
            << edited("'AGE', ", "'AGE', 'metadata': {'x': 1}, ") << u"Layout A/AGE added\n"_s;
        QTest::addRow("around the root")
            << "{\"format\": 2, \"root\": [" + before + "]}" << u"Other key format: added (2)\n"_s;
        QTest::addRow("of a renamed variable")
            << edited("'AGE', ", "'YEARS', 'id': 7, ")
            << u"Variable A/AGE renamed to \"YEARS\"\nOther key A/YEARS: id: added (7)\n"_s;
        QTest::addRow("of an added variable")
            << edited("'variables': [", "'variables': [{'name': 'B', 'id': 7}, ")
            << u"Variable A/B added\n"_s;
    }
    void keysThatAreNotKnownCount()
    {
        QFETCH(QByteArray, changed);
        const TestFolder folder;
        const ProgramRun run =
            runProgram({u"diff"_s, folder.write(u"a.mvdb"_s, before), folder.write(u"b.mvdb"_s, changed)});
        QCOMPARE(run.errors, QString());
        QTEST(run.output, "text");
        QCOMPARE(run.status, 1);
    }

    void keysThatAreNotKnownCountInLayoutsAndRangesToo()
    {
        const QByteArray layout =
            json("{'name': 'A', 'variables': [{'name': 'V', 'metadata': {'x': 1, 'range': "
                 "{'min': 1, 'max': 2, 'step': 1}}}]}");
        const QByteArray other = QByteArray(layout).replace("\"x\": 1", "\"x\": 2").replace("step", "steps");
        const TestFolder folder;
        const ProgramRun run =
            runProgram({u"diff"_s, folder.write(u"a.mvdb"_s, layout), folder.write(u"b.mvdb"_s, other)});
        QCOMPARE(run.output,
                 u"Other key A/V: x: changed from 1 to 2\n"
                 "Other key A/V [1 - 2]: step: dropped (was 1)\n"
                 "Other key A/V [1 - 2]: steps: added (1)\n"_s);
        QCOMPARE(run.status, 1);
    }

    void keysThatAreNotKnownStandInTheJson()
    {
        const TestFolder folder;
        const QString left = folder.write(u"a.mvdb"_s, before);
        const QString right = folder.write(u"b.mvdb"_s, QByteArray(before).replace("unknown", "known"));
        const ProgramRun run = runProgram({u"diff"_s, u"--json"_s, left, right});
        QCOMPARE(run.status, 1);
        const QJsonArray others =
            QJsonDocument::fromJson(run.output.toUtf8()).object().value("otherKeys"_L1).toArray();
        QCOMPARE(others.size(), 2);
        QCOMPARE(others[0]["key"_L1].toString(), u"unknown"_s);
        QVERIFY(others[0]["before"_L1].isObject() && others[0]["after"_L1].isUndefined());
        QCOMPARE(others[1]["path"_L1].toString(), u"A"_s);
        QVERIFY(others[1]["after"_L1].isObject() && others[1]["before"_L1].isUndefined());
    }

    void valuesThatCannotStandWhereTheyDoCount_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, const char *left, const char *right, const QString &text) {
            QTest::newRow(name) << json(left) << json(right) << text;
        };
        const auto variable = [](const char *keys) {
            return "{'name': 'A', 'variables': [{'name': 'V', " + QByteArray(keys) + "}]}";
        };
        row("list and object for a label", "{'name': 'A', 'label': ['x'], 'entities': []}",
            "{'name': 'A', 'label': {'y': 2}, 'entities': []}",
            u"Other value A: label: changed from [\"x\"] to {\"y\":2}\n"_s);
        row("number for a category", variable("'valueLabels': [7]"), variable("'valueLabels': [{}]"),
            u"Other value A/V: valueLabels[0]: changed from 7 to {}\n"_s);
        row("text for a number", variable("'tag': 'x'"), variable("'tag': 'y'"),
            u"Other value A/V: tag: changed from \"x\" to \"y\"\n"_s);
        row("text for a number that is not there", variable("'tag': 'x'"), variable("'size': 0"),
            u"Other value A/V: tag: dropped (was \"x\")\n"_s);
        row("fraction of a code", variable("'missing': 1.9"), variable("'missing': 2"),
            u"Other value A/V: missing: changed from 1.9 to 2\n"_s);
        row("layout that is no object", variable("'metadata': 5"), variable("'metadata': {}"),
            u"Other value A/V: metadata: changed from 5 to {}\n"_s);
        row("variables that are no list", "{'name': 'A', 'variables': 5}", "{'name': 'A', 'variables': []}",
            u"Other value A: variables: changed from 5 to []\n"_s);
        row("root beside entities", "{'name': 'A', 'variables': [], 'entities': [], 'root': [1]}",
            "{'name': 'A', 'variables': [], 'entities': []}", u"Other value A: root: dropped (was [1])\n"_s);
    }
    void valuesThatCannotStandWhereTheyDoCount()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        const TestFolder folder;
        const QStringList files{folder.write(u"a.mvdb"_s, before), folder.write(u"b.mvdb"_s, after)};
        const ProgramRun run = runProgram(QStringList{u"diff"_s} + files);
        QCOMPARE(run.errors, QString());
        QTEST(run.output, "text");
        QCOMPARE(run.status, 1);
        const QJsonObject asJson =
            QJsonDocument::fromJson(runProgram(QStringList{u"diff"_s, u"--json"_s} + files).output.toUtf8())
                .object();
        QCOMPARE(asJson.value("otherValues"_L1)[0]["text"_L1].toString() + u'\n', run.output);
        QVERIFY(asJson.value("otherKeys"_L1).toArray().isEmpty());
    }

    void waysOfWritingTheSameDoNotCount_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        const auto row = [](const char *name, const char *left, const char *right) {
            QTest::newRow(name) << json(left) << json(right);
        };
        row("number as text", "{'variables': [{'label': 7, 'tag': '3'}]}",
            "{'variables': [{'label': '7', 'tag': 3}]}");
        row("flag as number", "{'selectable': 1}", "{'selectable': true}");
        row("nothing", "{'variables': [{'label': null, 'tag': 0, 'metadata': {'start': 1}}]}",
            "{'variables': [{'alias': '', 'missing': 0, 'metadata': {'range': []}}]}");
        row("without a list", "{'variables': {'name': 'V', 'metadata': {'range': {'min': 0.5}}}}",
            "{'variables': [{'name': 'V', 'metadata': {'range': [{'min': 0.5}]}}]}");
        row("children", "{'name': 'A', 'variables': [], 'entities': [{'name': 'B'}]}",
            "{'name': 'A', 'variables': [], 'root': {'name': 'B'}}");
        row("weight", "{'weightVar': 'W'}", "{'weigthVar': 'W'}");
    }
    void waysOfWritingTheSameDoNotCount()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        const TestFolder folder;
        const QString left = folder.write(u"a.mvdb"_s, before);
        const QString right = folder.write(u"b.mvdb"_s, after);
        QCOMPARE(runProgram({u"diff"_s, left, right}).output, runProgram({u"diff"_s, left, left}).output);
        QCOMPARE(runProgram({u"diff"_s, right, left}).status, 0);
    }

    void whereTheRootStandsDoesNotCount()
    {
        const TestFolder folder;
        const QByteArray entity =
            json("{'label': 'HH', 'codeVar': 'K', 'entities': [{'name': 'C', 'variables': []}]}");
        const QString alone = folder.write(u"a.mvdb"_s, entity);
        for (const QByteArray &frame : {"[" + entity + "]", "{\"root\": [" + entity + "]}",
                                        "{\"root\": " + entity + "}", "{\"entities\": [" + entity + "]}"}) {
            const ProgramRun run = runProgram({u"diff"_s, alone, folder.write(u"b.mvdb"_s, frame)});
            QCOMPARE(run.errors, QString());
            QCOMPARE(run.output, u"No differences.\n"_s);
            QCOMPARE(run.status, 0);
        }
    }

    void whatTheLayerSpellsOutIsNoOtherValue()
    {
        // With another type the layer writes a size and a type where the file has none.
        const TestFolder folder;
        const QString left =
            folder.write(u"a.mvdb"_s, json("{'variables': [{'name': 'V', 'type': 'real'}]}"));
        for (const char *type : {"", ", 'type': 'string'"}) {
            const QString right =
                folder.write(u"b.mvdb"_s, json("{'variables': [{'name': 'V'") + json(type) + "}]}");
            for (const QStringList &files : {QStringList{left, right}, QStringList{right, left}}) {
                const ProgramRun run = runProgram(QStringList{u"diff"_s} + files);
                QCOMPARE(run.output.count(u'\n'), 1);
                QVERIFY2(run.output.contains(u"type changed"_s), qPrintable(run.output));
            }
        }
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
