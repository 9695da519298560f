#include "cli/DocumentReader.h"
#include "cli/Failure.h"
#include "cli/RoundTrip.h"
#include "tests/cli/Program.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace Cli;

namespace
{
QStringList lossesOf(const QByteArray &text)
{
    const TestFolder folder;
    QStringList lines;
    const RoundTrip trip = roundTrip(readDocument(folder.write(u"d.mvdb"_s, text)));
    for (const Difference &loss : trip.losses)
        lines.append(loss.toString());
    return lines;
}

/// A document with one variable that has these keys besides its name.
QByteArray withVariable(const QByteArray &keys)
{
    return json("{'entities': [{'name': 'PERSON', 'variables': [{'name': 'AGE',") + keys + "}]}]}";
}
} // namespace

class TestRoundTrip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsWhatAVariableLoses_data()
    {
        QTest::addColumn<QByteArray>("keys");
        QTest::addColumn<QString>("loss");
        const auto row = [](const char *name, const QByteArray &keys, const QString &loss) {
            QTest::newRow(name) << keys << loss;
        };
        row("documentation is never read", json("'documentation': 'why'"),
            u"documentation: dropped (was \"why\")"_s);
        row("file name is written as a constant", json("'fileName': 'a.dat'"),
            u"fileName: changed from \"a.dat\" to \"\""_s);
        row("local is written as a constant", json("'local': true"), u"local: changed from true to false"_s);
        row("size is written for texts only", json("'type': 'integer', 'size': 4"),
            u"size: dropped (was 4)"_s);
        row("size of a text is never 0", json("'type': 'string', 'size': 0"), u"size: changed from 0 to 1"_s);
        row("empty type becomes integer", json("'type': ''"), u"type: changed from \"\" to \"integer\""_s);
        row("decimals are written for reals only", json("'type': 'integer', 'metadata': {'decimals': 2}"),
            u"metadata/decimals: dropped (was 2)"_s);
        row("start is read into the metadata alone", json("'metadata': {'start': 12}"),
            u"metadata/start: dropped (was 12)"_s);
        row("record is never written", json("'metadata': {'record': 'PER'}"),
            u"metadata/record: dropped (was \"PER\")"_s);
        row("a range on its own loses fractions", json("'metadata': {'range': {'min': 0, 'max': 9.5}}"),
            u"metadata/range/max: changed from 9.5 to 9"_s);
        row("code that is no integer",
            json("'type': 'integer', 'valueLabels': [{'value': 'A', 'label': 'x'}]"),
            u"valueLabels[0]/value: changed from \"A\" to 0"_s);
        row("code that is no real", json("'type': 'real', 'valueLabels': [{'value': 1}, {'value': 'A'}]"),
            u"valueLabels[1]/value: changed from \"A\" to 0"_s);
        row("number in a text variable", json("'type': 'string', 'size': 1, 'valueLabels': [{'value': 7}]"),
            u"valueLabels[0]/value: changed from 7 to \"7\""_s);
        row("missing code beyond an int", json("'missing': 4294967297"),
            u"missing: changed from 4294967297 to 1"_s);
        row("missing code with a fraction", json("'missing': 1.9"), u"missing: changed from 1.9 to 2"_s);
        row("text for a number", json("'tag': 'abc'"), u"tag: dropped (was \"abc\")"_s);
        row("number for a text", json("'label': 7"), u"label: changed from 7 to \"7\""_s);
        row("key that nobody knows", json("'unit': 'years'"), u"unit: dropped (was \"years\")"_s);
        row("key that nobody knows, empty", json("'unit': ''"), u"unit: dropped (was \"\")"_s);
        row("key in other letter case", json("'Label': 'x'"), u"Label: dropped (was \"x\")"_s);
        row("key that nobody knows in a label",
            json("'valueLabels': [{'value': '1', 'label': 'x', 'note': {'a': 1}}]"),
            u"valueLabels[0]/note: dropped (was {\"a\":1})"_s);
    }
    void tellsWhatAVariableLoses()
    {
        QFETCH(QByteArray, keys);
        QFETCH(QString, loss);
        QCOMPARE(lossesOf(withVariable(keys)), QStringList{u"entities[0]/variables[0] \"AGE\": "_s + loss});
    }

    void tellsWhatADocumentLoses_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("losses");
        QTest::addRow("weight variable of an entity on its own")
            << json("{'root': {'name': 'A', 'weightVar': 'W'}}")
            << QStringList{u"root \"A\": weightVar: dropped (was \"W\")"_s};
        QTest::addRow("misspelt weight variable in a list")
            << json("{'root': [{'name': 'A', 'weigthVar': 'W'}]}")
            << QStringList{u"root[0] \"A\": weigthVar: dropped (was \"W\")"_s};
        QTest::addRow("root beside entities") << json("{'entities': [], 'root': [{'name': 'A'}]}")
                                              << QStringList{u"root: dropped (was [{\"name\":\"A\"}])"_s};
        QTest::addRow("key of the document")
            << json("{'entities': [], 'version': 2}") << QStringList{u"version: dropped (was 2)"_s};
        QTest::addRow("key of an entity that is the document")
            << json("{'name': 'A', 'variables': [], 'version': 2}")
            << QStringList{u"\"A\": version: dropped (was 2)"_s};
        QTest::addRow("entity in a list that is the document")
            << json("[{'name': 'A', 'version': 2}]") << QStringList{u"[0] \"A\": version: dropped (was 2)"_s};
        QTest::addRow("known key that means nothing where it is")
            << json("{'root': [{'name': 'A', 'variables': [{'name': 'V', 'entities': []}]}]}")
            << QStringList{u"root[0]/variables[0] \"V\": entities: dropped (was [])"_s};
        QTest::addRow("nested entity without a name")
            << json("{'root': [{'entities': [{'label': 1}]}]}")
            << QStringList{u"root[0]/entities[0]: label: changed from 1 to \"1\""_s};
        QTest::addRow("variable that is no object")
            << json("{'root': [{'name': 'A', 'variables': [5]}]}")
            << QStringList{
                   u"root[0] \"A\": variables[0]: changed from 5 to "
                   "{\"fileName\":\"\",\"local\":false,\"missing\":0,\"notapp\":0,\"type\":\"integer\"}"_s};
        QTest::addRow("long text") << json("{'entities': [], 'note': '") + QByteArray(200, 'x') + "\"}"
                                   << QStringList{u"note: dropped (was \"%1…)"_s.arg(QString(79, u'x'))};
    }
    void tellsWhatADocumentLoses()
    {
        QFETCH(QByteArray, text);
        QTEST(lossesOf(text), "losses");
    }

    void whatSaysTheSameIsNoLoss_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addRow("no defaults spelt out") << withVariable(json("'type': 'integer'"));
        QTest::addRow("empty texts") << withVariable(json("'label': '', 'documentation': '', 'tag': 0"));
        QTest::addRow("empty lists") << json("{'root': [{'name': 'A', 'variables': [], 'entities': []}]}");
        QTest::addRow("layout that says nothing")
            << withVariable(json("'metadata': {'start': 1, 'length': 0, 'lookup': false, 'record': '', "
                                 "'range': [], 'field': null}"));
        QTest::addRow("variable on its own") << json("{'root': [{'name': 'A', 'variables': {'name': 'V'}}]}");
        QTest::addRow("range on its own in whole numbers")
            << withVariable(json("'metadata': {'range': {'min': 1, 'max': 5.0}}"));
        QTest::addRow("children under root") << json("{'root': [{'name': 'A', 'root': [{'name': 'B'}]}]}");
        QTest::addRow("misspelt weight variable on its own")
            << json("{'root': {'name': 'A', 'weigthVar': 'W'}}");
        QTest::addRow("half a character") << withVariable(json("'label': '\\ud800'"));
        QTest::addRow("everything that is kept") << json(
            "{'entities': [{'name': 'A', 'alias': 'a', 'label': 'l', "
            "'weightVar': 'W', 'documentation': 'd', 'selectable': true, 'virtual': true, 'codeVar': 'C', "
            "'labelVar': 'L', 'variables': [{'name': 'V', 'alias': 'v', 'label': 'l', 'group': 'g', "
            "'type': 'real', 'tag': 3, 'notapp': -1, 'missing': -2, 'fileName': '', 'local': false, "
            "'metadata': {'range': [{'min': 0.5, 'max': 9.5}], 'field': 'f', 'length': 8, 'decimals': 2, "
            "'lookup': true}, 'valueLabels': [{'value': 1.5, 'label': 'x'}]}]}]}");
    }
    void whatSaysTheSameIsNoLoss()
    {
        QFETCH(QByteArray, text);
        QCOMPARE(lossesOf(text), QStringList());
    }

    void theShapeOfTheDocumentStays_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("written");
        QTest::addRow("under entities")
            << json("{'entities': [{'name': 'A'}]}")
            << json("{'entities': [{'name': 'A', 'selectable': false, 'virtual': false}]}");
        QTest::addRow("under root, as a list, which keeps the weight variable")
            << json("{'root': {'name': 'A', 'weigthVar': 'W'}}")
            << json("{'root': [{'name': 'A', 'selectable': false, 'virtual': false, 'weightVar': 'W'}]}");
        QTest::addRow("the entity itself") << json("{'name': 'A', 'virtual': true}")
                                           << json("{'name': 'A', 'selectable': false, 'virtual': true}");
        QTest::addRow("a list") << json("[{'name': 'A'}, {'name': 'B', 'weightVar': 'W'}]")
                                << json("[{'name': 'A', 'selectable': false, 'virtual': false}, "
                                        "{'name': 'B', 'selectable': false, 'virtual': false, "
                                        "'weightVar': 'W'}]");
        QTest::addRow("no entities") << json("{'root': []}") << json("{'root': []}");
    }
    void theShapeOfTheDocumentStays()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, written);
        const TestFolder folder;
        const RoundTrip trip = roundTrip(readDocument(folder.write(u"d.mvdb"_s, text)));
        QCOMPARE(QJsonDocument::fromJson(trip.written), QJsonDocument::fromJson(written));
    }

    void refusesToWriteWhatCouldNotBeReadAgain()
    {
        // A single object in place of a list costs one level of nesting, the list that is written two.
        QByteArray text = json("{'name': 'A', 'selectable': true}");
        for (int i = 0; i < 600; ++i)
            text = json("{'name': 'A', 'entities':") + text + "}";
        const TestFolder folder;
        const DictionaryDocument document = readDocument(folder.write(u"deep.mvdb"_s, text));
        QVERIFY_EXCEPTION_THROWN((void)roundTrip(document), Failure);
    }

    void aSecondRoundTripLosesNothing()
    {
        const QByteArray text =
            withVariable(json("'type': 'string', 'documentation': 'd', 'metadata': {'start': 9, 'range': "
                              "{'min': 0.5}}, 'valueLabels': {'value': 'A'}"));
        const TestFolder folder;
        const RoundTrip first = roundTrip(readDocument(folder.write(u"a.mvdb"_s, text)));
        QVERIFY(!first.losses.isEmpty());
        const RoundTrip second = roundTrip(readDocument(folder.write(u"b.mvdb"_s, first.written)));
        QVERIFY(second.losses.isEmpty());
        QCOMPARE(second.written, first.written);
    }
};

QTEST_APPLESS_MAIN(TestRoundTrip)
#include "tst_roundtrip.moc"
