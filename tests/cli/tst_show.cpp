#include "tests/cli/Program.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace
{
const auto survey =
    json("{'root': [ "
         "{'name': 'HOUSEHOLD', 'label': 'Household', 'codeVar': 'HH', 'labelVar': 'NAME', 'weightVar': 'W', "
         "'documentation': 'Who lives together.', 'selectable': true, "
         "'variables': [ "
         "{'name': 'HH', 'type': 'integer', 'label': 'Number', 'missing': 99, 'notapp': 98, "
         "'metadata': {'length': 2, 'range': [{'min': 1, 'max': 20}, {'min': 30.5, 'max': 40}]}}, "
         "{'name': 'NAME', 'type': 'string', 'size': 30}, "
         "{'name': 'W', 'type': 'real', 'group': 'Weights', 'metadata': {'length': 8, 'decimals': 2}}], "
         "'entities': [ "
         "{'name': 'PERSON', 'virtual': true, 'selectable': true, 'variables': [ "
         "{'name': 'SEX', 'type': 'integer', 'label': '性別', "
         "'valueLabels': [{'value': 1, 'label': 'Male'}, {'value': 10, 'label': 'Female'}]}], "
         "'entities': [{'name': 'TRIP'}]}, "
         "{'name': 'CAR'}]}]}");
} // namespace

class TestShow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTreeAndVariables()
    {
        const TestFolder folder;
        const QString path = folder.write(u"d.mvdb"_s, survey);
        const ProgramRun run = runProgram({u"show"_s, path});
        QCOMPARE(run.errors, QString());
        QCOMPARE(run.status, 0);
        const QString expected = uR"(: 4 entities, 4 variables

Entity      Label      Level  Reference code  Reference label  Weight  Marks                Variables
HOUSEHOLD   Household      1  HH              NAME             W       selectable                   3
├─ PERSON                  2                                           selectable, virtual          1
│  └─ TRIP                 3                                                                        0
└─ CAR                     2                                                                        0

HOUSEHOLD  Household
Who lives together.
Variable  Role    Group    Label   Type     Size  Range       Missing  Not appl.
HH        code             Number  integer     2  1 to 20          99         98
                                                  30.5 to 40
NAME      label                    string     30                    0          0
W         weight  Weights          real      8.2                    0          0

PERSON
Variable  Label  Type     Missing  Not appl.  Values
SEX       性別   integer        0          0   1  Male
                                              10  Female

TRIP
No variables.

CAR
No variables.
)"_s;
        QCOMPARE(run.output, path + expected);
    }

    void showsWhatTheFileSaysThoughTheLayerDropsIt()
    {
        // A single root object and a single range lose the weight and the fractions in the layer's reader.
        const TestFolder folder;
        const QString path = folder.write(
            u"d.mvdb"_s,
            json("{'root': {'name': 'HH', 'weightVar': 'W', 'variables': [{'name': 'W', 'type': 'real', "
                 "'documentation': 'why', 'metadata': {'start': 7, 'range': {'min': 0.5, 'max': 2.5}}}]}}"));
        QCOMPARE(runProgram({u"show"_s, path}).output, path + uR"(: 1 entity, 1 variable

Entity  Level  Weight  Variables
HH          1  W               1

HH
Variable  Role    Type  Range       Missing  Not appl.
W         weight  real  0.5 to 2.5        0          0
)"_s);
        const ProgramRun run = runProgram({u"show"_s, u"--json"_s, path});
        const QJsonValue entity =
            QJsonDocument::fromJson(run.output.toUtf8()).object().value("entities"_L1)[0];
        QCOMPARE(entity["weightVar"_L1].toString(), u"W"_s);
        const QJsonValue variable = entity["variables"_L1][0];
        QCOMPARE(variable["documentation"_L1].toString(), u"why"_s);
        QCOMPARE(variable["layout"_L1]["ranges"_L1][0]["min"_L1].toDouble(), 0.5);
        QCOMPARE(variable["layout"_L1]["start"_L1].toInt(), 7);
    }

    void showsEachOfSeveralRoots_data()
    {
        QTest::addColumn<QByteArray>("entities");
        QTest::addColumn<QString>("names");
        QTest::addRow("two") << json("[{'name': 'A', 'variables': [{'name': 'V', 'documentation': 'why'}]}, "
                                     "{'name': 'B', 'entities': [{'name': 'C'}]}]")
                             << u"A B C"_s;
        QTest::addRow("one that is no object") << json("[{'name': 'A'}, 5]") << u"A "_s;
        QTest::addRow("none") << "[]"_ba << QString();
    }
    void showsEachOfSeveralRoots()
    {
        QFETCH(QByteArray, entities);
        const TestFolder folder;
        for (const char *key : {"root", "entities"}) {
            const QByteArray text = "{\"" + QByteArray(key) + "\": " + entities + "}";
            const ProgramRun run = runProgram({u"show"_s, u"--json"_s, folder.write(u"d.mvdb"_s, text)});
            QCOMPARE(run.errors, QString());
            const QJsonArray shown =
                QJsonDocument::fromJson(run.output.toUtf8()).object().value("entities"_L1).toArray();
            QStringList names;
            for (const QJsonValue &entity : shown)
                names.append(entity["name"_L1].toString());
            QTEST(names.join(u' '), "names");
            if (names.size() == 3)
                QCOMPARE(shown[0]["variables"_L1][0]["documentation"_L1].toString(), u"why"_s);
        }
    }

    void showsAListThatIsTheDocument()
    {
        const TestFolder folder;
        for (const char *text : {"[{'name': 'A'}]", "[{'name': 'A'}, {'name': 'B'}]"})
            QVERIFY(
                runProgram({u"show"_s, folder.write(u"d.mvdb"_s, json(text))}).output.contains(u"\nA "_s));
    }

    void showsOneEntity()
    {
        const TestFolder folder;
        const QString path = folder.write(u"d.mvdb"_s, survey);
        const ProgramRun run = runProgram({u"show"_s, path, u"--entity"_s, u"CAR"_s});
        QCOMPARE(run.output, path + uR"(: 1 entity, 0 variables

Entity  Level  Variables
CAR         2          0

CAR
No variables.
)"_s);
    }

    void namesWhatIsNearAnUnknownEntity()
    {
        const TestFolder folder;
        const QString path = folder.write(u"d.mvdb"_s, survey);
        const ProgramRun near = runProgram({u"show"_s, path, u"--entity"_s, u"persn"_s});
        QCOMPARE(near.errors,
                 u"quillon: %1: there is no entity \"persn\"; did you mean \"PERSON\"?\n"_s.arg(path));
        QCOMPARE(near.output, QString());
        QCOMPARE(near.status, 2);
        const ProgramRun far = runProgram({u"show"_s, path, u"--entity"_s, u"ZZZ"_s, u"--json"_s});
        QCOMPARE(far.errors, u"quillon: %1: there is no entity \"ZZZ\"\n"_s.arg(path));
        QCOMPARE(far.status, 2);
    }

    void printsJsonForOtherPrograms()
    {
        const TestFolder folder;
        const QString path = folder.write(u"d.mvdb"_s, survey);
        const ProgramRun run = runProgram({u"show"_s, u"--json"_s, path});
        QCOMPARE(run.status, 0);
        const QJsonObject content = QJsonDocument::fromJson(run.output.toUtf8()).object();
        QCOMPARE(content.value("file"_L1).toString(), path);
        const QJsonArray entities = content.value("entities"_L1).toArray();
        QStringList tree;
        for (const QJsonValue &entity : entities)
            tree.append(u"%1 %2 %3"_s.arg(entity["level"_L1].toInt())
                            .arg(entity["name"_L1].toString(), entity["parent"_L1].toString(u"-"_s)));
        QCOMPARE(tree,
                 (QStringList{u"1 HOUSEHOLD -"_s, u"2 PERSON HOUSEHOLD"_s, u"3 TRIP PERSON"_s,
                              u"2 CAR HOUSEHOLD"_s}));
        QCOMPARE(entities.at(0)["weightVar"_L1].toString(), u"W"_s);
        const QJsonObject number = entities.at(0)["variables"_L1][0].toObject();
        QCOMPARE(number.value("missing"_L1).toInt(), 99);
        QCOMPARE(number["layout"_L1]["ranges"_L1][1]["min"_L1].toDouble(), 30.5);
        QVERIFY(entities.at(0)["variables"_L1][1]["layout"_L1].isNull());
        QCOMPARE(entities.at(1)["variables"_L1][0]["valueLabels"_L1][1]["value"_L1].toString(), u"10"_s);
    }

    void controlCharactersDoNotReachTheTerminal_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addRow("text") << QStringList();
        QTest::addRow("JSON") << QStringList{u"--json"_s};
    }
    void controlCharactersDoNotReachTheTerminal()
    {
        QFETCH(QStringList, options);
        const QByteArray evil = json("'\\u001b]0;x\\u0007\\u009b\\u202e\\u007f'");
        const TestFolder folder;
        const QString path = folder.write(
            u"d.mvdb"_s,
            QByteArray(json("{'root': [{'name': E, 'label': E, 'codeVar': E, 'labelVar': E, 'weightVar': E, "
                            "'documentation': E, 'variables': [{'name': E, 'label': E, 'group': E, 'type': "
                            "E, 'alias': E, "
                            "'valueLabels': [{'value': E, 'label': E}]}]}]}"))
                .replace("E", evil));
        const ProgramRun run = runProgram(QStringList{u"show"_s, path} + options);
        QCOMPARE(run.status, 0);
        QVERIFY(run.output.contains(u"]0;x"_s));
        for (const QChar c : run.output)
            QVERIFY2(c == u'\n'
                         || (c.category() != QChar::Other_Control && c.category() != QChar::Other_Format),
                     qPrintable(QString::number(c.unicode(), 16)));
    }

    void aDictionaryWithoutEntitiesIsShownAsSuch()
    {
        const TestFolder folder;
        const QString path = folder.write(u"d.mvdb"_s, json("{'entities': []}"));
        QCOMPARE(runProgram({u"show"_s, path}).output, path + u": 0 entities, 0 variables\n"_s);
    }

    void showsTheDeepestTreeThatCanBeRead()
    {
        QByteArray text = json("{'name': 'A', 'variables': []}");
        for (int i = 0; i < 1000; ++i)
            text = json("{'name': 'A', 'entities':") + text + "}";
        const TestFolder folder;
        const QString path = folder.write(u"deep.mvdb"_s, text);
        QVERIFY(runProgram({u"show"_s, path}).output.startsWith(path + u": 1001 entities, 0 variables\n"_s));
        QCOMPARE(runProgram({u"show"_s, u"--json"_s, path}).status, 0);
    }

    void usesColoursOnlyOnATerminal_data()
    {
        QTest::addColumn<QString>("environment");
        QTest::addColumn<bool>("colours");
        QTest::addRow("terminal") << u"env -u NO_COLOR TERM=xterm"_s << true;
        QTest::addRow("NO_COLOR") << u"env NO_COLOR=1 TERM=xterm"_s << false;
        QTest::addRow("dumb terminal") << u"env -u NO_COLOR TERM=dumb"_s << false;
    }
    void usesColoursOnlyOnATerminal()
    {
        QFETCH(QString, environment);
        QFETCH(bool, colours);
        const TestFolder folder;
        const QString path = folder.write(u"d.mvdb"_s, survey);
        QVERIFY(!runProgram({u"show"_s, path}).output.contains(u'\x1b'));
        // script(1) runs a command on a terminal of its own.
        QProcess terminal;
        terminal.start(u"script"_s,
                       {u"-qec"_s,
                        u"%1 '%2' show '%3'"_s.arg(environment, QStringLiteral(QUILLON_PROGRAM), path),
                        u"/dev/null"_s});
        QVERIFY(terminal.waitForFinished());
        const QByteArray output = terminal.readAllStandardOutput();
        QVERIFY(output.contains("HOUSEHOLD"));
        QCOMPARE(output.contains("\x1b[1m"), colours);
    }
};

QTEST_APPLESS_MAIN(TestShow)
#include "tst_show.moc"
