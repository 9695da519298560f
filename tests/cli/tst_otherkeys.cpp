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
} // namespace

class TestOtherKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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

    void codesThatAnotherTypeWritesAsNumbersAreNoOtherValues()
    {
        const auto variable = [](const char *type) {
            return json("{'variables': [{'name': 'V', 'type': '") + type
                + json("', 'valueLabels': [{'value': '01', 'label': 'x'}, {'value': '1.50', 'label': "
                       "'y'}]}]}");
        };
        const TestFolder folder;
        const QString text = folder.write(u"a.mvdb"_s, variable("string"));
        for (const char *type : {"integer", "real"}) {
            const QString number = folder.write(u"b.mvdb"_s, variable(type));
            for (const QStringList &files : {QStringList{text, number}, QStringList{number, text}}) {
                const ProgramRun run = runProgram(QStringList{u"diff"_s} + files);
                QVERIFY2(!run.output.contains(u"Other value"_s), qPrintable(run.output));
                QVERIFY2(run.output.contains(u"type changed"_s), qPrintable(run.output));
            }
        }
    }
};

QTEST_APPLESS_MAIN(TestOtherKeys)
#include "tst_otherkeys.moc"
