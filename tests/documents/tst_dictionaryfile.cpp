#include "business/ProcessDictionaryBusiness.h"
#include "documents/DictionaryCopy.h"
#include "documents/DictionaryEquality.h"
#include "documents/DictionaryFile.h"
#include "tests/documents/Files.h"
#include "tests/documents/RandomDocument.h"
#include "tests/documents/RandomEdits.h"
#include "tests/support/Growth.h"
#include "tests/support/Trees.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace
{
/// JSON with ' for ", for texts in tests.
QJsonDocument json(QByteArray text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text.replace('\'', '"'), &error);
    if (error.error != QJsonParseError::NoError)
        qFatal("%s in %s", qPrintable(error.errorString()), text.constData());
    return document;
}

QString shown(const QJsonDocument &document)
{
    return QString::fromUtf8(document.toJson());
}

/// What reading and writing with the layer alone makes of a document under "root".
QJsonDocument plainRoundTrip(const QJsonDocument &document)
{
    const std::unique_ptr<QList<TDcEntity *>> entities(
        ProcessDictionaryBusiness().recorrerNodosJsonYCargaEstructuraEntidades(
            document.object().toVariantMap(), 0));
    QJsonObject written;
    ProcessDictionaryBusiness().getStructuraTreeRootToJson(entities->constFirst(), &written);
    qDeleteAll(*entities);
    const bool isArray = document[u"root"].isArray();
    return QJsonDocument(
        QJsonObject{{u"root"_s, isArray ? QJsonValue(QJsonArray{written}) : QJsonValue(written)}});
}

/// An open file of \a document.
struct Opened {
    TemporaryFile file;
    DictionaryFile dictionary;

    explicit Opened(const QJsonDocument &document) : file(document.toJson()) { open(); }
    explicit Opened(const QByteArray &bytes) : file(bytes) { open(); }

    void open() { QVERIFY2(dictionary.open(file.path()), qPrintable(dictionary.errorText())); }
    [[nodiscard]] TDcEntity &root() const { return *dictionary.root(); }
    [[nodiscard]] TDcVariable &variable() const { return *root().getVariables()->constFirst(); }
    [[nodiscard]] QJsonDocument saved() const { return QJsonDocument::fromJson(dictionary.content()); }
};

/// A document with one variable, which holds \a keys beside what the layer always writes.
QJsonDocument withVariable(const QByteArray &keys)
{
    return json(
        "{'root': [{'selectable': false, 'virtual': false, 'variables': [{'fileName': '', 'local': false,"
        "'missing': 0, 'notapp': 0, 'type': 'integer'"
        + (keys.isEmpty() ? QByteArray() : ", " + keys) + "}]}]}");
}

struct Edit {
    const char *name;
    QByteArray before;
    void (*apply)(TDcVariable &);
    QByteArray after;
};

const QList<Edit> &edits()
{
    static const QList<Edit> list{
        {"label among unknown keys", "'label': 'a', 'id': 7, 'x': {'y': [null]}",
         [](TDcVariable &variable) { variable.setLabel(u"b"_s); },
         "'label': 'b', 'id': 7, 'x': {'y': [null]}"},
        {"label taken away", "'label': 'a', 'id': 7", [](TDcVariable &variable) { variable.setLabel({}); },
         "'id': 7"},
        {"value of a wrong type", "'label': 5, 'group': [1], 'tag': '12'",
         [](TDcVariable &variable) { variable.setLabel(u"b"_s); }, "'label': 'b', 'group': [1], 'tag': '12'"},
        {"number that was a text", "'tag': '12', 'size': '3'",
         [](TDcVariable &variable) { variable.setTag(13); }, "'tag': 13, 'size': '3'"},
        {"size of an integer", "'size': 3", [](TDcVariable &variable) { variable.setSize(4); }, "'size': 4"},
        {"documentation", "'documentation': 'a'",
         [](TDcVariable &variable) { variable.setDocumentation(u"b"_s); }, "'documentation': 'b'"},
        {"record", "'metadata': {'record': 'R', 'x': 1}",
         [](TDcVariable &variable) { variable.getMetadataVariables()->setRecord(u"S"_s); },
         "'metadata': {'record': 'S', 'x': 1}"},
        {"record taken away", "'metadata': {'record': 'R', 'field': 'F'}",
         [](TDcVariable &variable) { variable.getMetadataVariables()->setRecord({}); },
         "'metadata': {'field': 'F'}"},
        {"position", "'metadata': {'start': 12}",
         [](TDcVariable &variable) { variable.setFieldRelativePosition(20); }, "'metadata': {'start': 20}"},
        {"position back to the first", "'metadata': {'start': 12}",
         [](TDcVariable &variable) { variable.setFieldRelativePosition(1); }, "'metadata': {}"},
        {"start of the layout", "'metadata': {'start': 12}",
         [](TDcVariable &variable) { variable.getMetadataVariables()->setStart(20); },
         "'metadata': {'start': 20}"},
        {"start of the layout taken away", "'metadata': {'start': 12}",
         [](TDcVariable &variable) { variable.getMetadataVariables()->setStart(0); }, "'metadata': {}"},
        {"field size", "'metadata': {'length': 8}", [](TDcVariable &variable) { variable.setFieldSize(9); },
         "'metadata': {'length': 9}"},
        {"field size taken away", "'metadata': {'length': 8}",
         [](TDcVariable &variable) { variable.setFieldSize(0); }, "'metadata': {}"},
        {"length of the layout", "'metadata': {'length': 8}",
         [](TDcVariable &variable) { variable.getMetadataVariables()->setLength(9); },
         "'metadata': {'length': 9}"},
        {"length of the layout taken away", "'metadata': {'length': 8}",
         [](TDcVariable &variable) { variable.getMetadataVariables()->setLength(0); }, "'metadata': {}"},
        {"decimals without a layout", "'label': 'a'", [](TDcVariable &variable) { variable.setDecimals(2); },
         "'label': 'a', 'metadata': {'decimals': 2}"},
        {"layout that was no object", "'metadata': 5",
         [](TDcVariable &variable) { variable.getMetadataVariables()->setField(u"F"_s); },
         "'metadata': {'field': 'F'}"},
        {"layout taken away", "'metadata': {'x': 5}",
         [](TDcVariable &variable) { variable.setMetadataVariables(nullptr); }, ""},
        {"bound of a single range", "'metadata': {'range': {'min': 1.9, 'max': 5.5, 'x': 1}}",
         [](TDcVariable &variable) {
             variable.getMetadataVariables()->getRange()->first()->setRangeMin(2.5);
         },
         "'metadata': {'range': {'min': 2.5, 'max': 5.5, 'x': 1}}"},
        {"second range beside a single one", "'metadata': {'range': {'min': 1.9, 'max': 5.5}}",
         [](TDcVariable &variable) { variable.getMetadataVariables()->addItemRange(new Range); },
         "'metadata': {'range': [{'min': 1.9, 'max': 5.5}, {'min': 0, 'max': 0}]}"},
        {"bound that is missing", "'metadata': {'range': [{'min': 1}, {'max': '7'}]}",
         [](TDcVariable &variable) { variable.getMetadataVariables()->getRange()->first()->setRangeMax(9); },
         "'metadata': {'range': [{'min': 1, 'max': 9}, {'max': '7'}]}"},
        {"bound that is no number", "'metadata': {'range': [{'min': 1, 'max': 2}]}",
         [](TDcVariable &variable) {
             variable.getMetadataVariables()->getRange()->first()->setRangeMax(qInf());
         },
         "'metadata': {'range': [{'min': 1, 'max': 'inf'}]}"},
        {"one code that is no number for another", "'valueLabels': [{'value': 'B', 'id': 1}, {'value': 2}]",
         [](TDcVariable &variable) { variable.getValueLabelElementList()->first()->setValue(u"A"_s); },
         "'valueLabels': [{'value': 'A', 'id': 1}, {'value': 2}]"},
        {"code typed as text", "'valueLabels': [{'value': '1'}, {'value': '2'}]",
         [](TDcVariable &variable) { variable.getValueLabelElementList()->first()->setValue(u"3"_s); },
         "'valueLabels': [{'value': 3}, {'value': '2'}]"},
        {"label among elements that are no objects", "'valueLabels': [null, {'value': 1}, 7, [{}]]",
         [](TDcVariable &variable) { variable.getValueLabelElementList()->at(1)->setLabel(u"One"_s); },
         "'valueLabels': [null, {'value': 1, 'label': 'One'}, 7, [{}]]"},
        {"element that was no object", "'valueLabels': [null, 7]",
         [](TDcVariable &variable) { variable.getValueLabelElementList()->at(1)->setLabel(u"One"_s); },
         "'valueLabels': [null, {'label': 'One'}]"},
        {"elements of a text", "'valueLabels': 'abc'",
         [](TDcVariable &variable) { delete variable.getValueLabelElementList()->takeAt(1); },
         "'valueLabels': ['a', 'c']"},
        {"labels change places", "'valueLabels': [{'value': 1, 'id': 'a'}, {'value': 2, 'id': 'b'}]",
         [](TDcVariable &variable) { variable.getValueLabelElementList()->move(1, 0); },
         "'valueLabels': [{'value': 2, 'id': 'b'}, {'value': 1, 'id': 'a'}]"},
        {"label removed and another added", "'valueLabels': [{'value': 1, 'id': 'a'}]",
         [](TDcVariable &variable) {
             delete variable.getValueLabelElementList()->takeFirst();
             variable.addValueLabelElement(new ValueLabelElement);
         },
         "'valueLabels': [{}]"},
        {"all labels removed", "'valueLabels': [{'value': 1}]",
         [](TDcVariable &variable) { delete variable.getValueLabelElementList()->takeFirst(); }, ""},
        {"type", "'size': 3, 'valueLabels': [{'value': 1}, {'value': 'A'}]",
         [](TDcVariable &variable) { variable.setVarType(u"real"_s); },
         "'type': 'real', 'size': 3, 'valueLabels': [{'value': 1}, {'value': 'A'}]"},
    };
    return list;
}

/// Makes the same of what a document cannot tell apart: marks of a session, spellings of a number, and what
/// the layer always writes.
void normalise(TDcVariable &variable)
{
    variable.setChecked(0);
    variable.setLevel(0);
    if (variable.getVarType().isEmpty())
        variable.setVarType(u"integer"_s);
    if (variable.getVarType() == u"string"_s && variable.getSize() == 0)
        variable.setSize(1);
    if (!variable.getMetadataVariables())
        variable.setMetadataVariables(new MetadataVariables);
    // Which of these counts is tested edit by edit.
    variable.setFieldSize(0);
    variable.setFieldRelativePosition(1);
    variable.getMetadataVariables()->setLength(0);
    variable.getMetadataVariables()->setStart(0);
    for (ValueLabelElement *label : std::as_const(*variable.getValueLabelElementList())) {
        bool isNumber = false;
        if (const qlonglong code = label->getValue().toLongLong(&isNumber);
            isNumber && variable.getVarType() == u"integer"_s)
            label->setValue(QString::number(code));
        if (const double code = label->getValue().toDouble(&isNumber);
            isNumber && std::isfinite(code) && variable.getVarType() == u"real"_s)
            label->setValue(QVariant(code).toString());
    }
}

void normalise(TDcEntity &root)
{
    preOrder(&root, [](TDcEntity *entity) {
        entity->setCheckDelete(false);
        entity->setLevel(0);
        for (TDcVariable *variable : std::as_const(*entity->getVariables()))
            normalise(*variable);
    });
}
} // namespace

class tst_DictionaryFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomDocumentsAreSavedEqual()
    {
        for (quint32 seed = 0; seed < 1000; ++seed) {
            const QJsonDocument document = RandomDocument(seed).document();
            Opened opened(document);
            QCOMPARE(opened.dictionary.losses(), QStringList());
            if (seed % 50 == 0) // Waiting for the disk takes most of the time.
                QVERIFY2(opened.dictionary.save(), qPrintable(opened.dictionary.errorText()));
            const QJsonDocument saved = seed % 50 == 0 ? opened.file.json() : opened.saved();
            QVERIFY2(saved == document, qPrintable(u"seed %1:\n%2"_s.arg(seed).arg(shown(saved))));
        }
    }

    void randomEditsAreFoundAgain()
    {
        for (quint32 seed = 0; seed < 400; ++seed) {
            Opened opened(RandomDocument(seed).document());
            RandomEdits(seed).apply(opened.root(), 8);
            const Opened again(opened.saved());
            const auto edited = DictionaryCopy::copy(opened.root());
            normalise(*edited);
            normalise(again.root());
            QVERIFY2(DictionaryEquality::equal(*edited, again.root()), qPrintable(QString::number(seed)));
        }
    }

    void newDictionariesAreFoundAgain()
    {
        for (quint32 seed = 0; seed < 200; ++seed) {
            DictionaryFile file;
            file.setRoot(RandomDictionary(seed).entity());
            const Opened again(QJsonDocument::fromJson(file.content()));
            const auto original = DictionaryCopy::copy(*file.root());
            normalise(*original);
            normalise(again.root());
            QVERIFY2(DictionaryEquality::equal(*original, again.root()), qPrintable(QString::number(seed)));
        }
    }

    void keepsWhatAPlainRoundTripLoses_data()
    {
        QTest::addColumn<QJsonDocument>("document");
        const auto variable = [](const char *name, const QByteArray &keys) {
            QTest::addRow("%s", name) << withVariable(keys);
        };
        const auto entity = [](const char *name, const QByteArray &root) {
            QTest::addRow("%s", name) << json("{'root': " + root + "}");
        };
        entity("weight variable of a single object",
               "{'selectable': true, 'virtual': false, 'weightVar': 'W'}");
        entity("misspelt weight variable of a single object",
               "{'selectable': true, 'virtual': false, 'weigthVar': 'W'}");
        entity("both spellings in a single object",
               "{'selectable': true, 'virtual': false, 'weigthVar': 'W', 'weightVar': 'V'}");
        entity("misspelt weight variable in a list",
               "[{'selectable': true, 'virtual': false, 'weigthVar': 'W'}]");
        variable("file name", "'fileName': 'data.csv'");
        variable("local", "'local': true");
        variable("documentation", "'documentation': 'What was asked'");
        variable("size of an integer", "'size': 3");
        variable("decimals of an integer", "'metadata': {'decimals': 2}");
        variable("start", "'metadata': {'start': 12}");
        variable("start that is no position", "'metadata': {'start': 1}");
        variable("length that is none", "'metadata': {'length': -1}");
        variable("record", "'metadata': {'record': 'R1'}");
        variable("lookup that is false", "'metadata': {'lookup': false}");
        variable("fractions of a single range", "'metadata': {'range': {'min': 1.9, 'max': 5.5}}");
        variable("range with further keys", "'metadata': {'range': [{'min': 1, 'max': 5, 'step': 2}]}");
        variable("range with one bound", "'metadata': {'range': [{'min': 1}]}");
        variable("bounds as texts", "'metadata': {'range': [{'min': '1', 'max': '05'}]}");
        variable("single value label", "'valueLabels': {'value': 1, 'label': 'Yes'}");
        variable("no value labels", "'valueLabels': []");
        variable("code that is no number", "'valueLabels': [{'value': 'A'}]");
        variable("code as text", "'valueLabels': [{'value': '1'}]");
        variable("code with a fraction", "'valueLabels': [{'value': 1.5}]");
        variable("null as code", "'valueLabels': [{'value': null, 'label': 'Missing'}]");
        variable("value labels that are none", "'valueLabels': [null, 1, 'a', []]");
        variable("value labels as text", "'valueLabels': 'abc'");
        variable("value label vector", "'valueLabelElement': [{'value': 1}]");
        variable("unknown keys", "'id': 7, 'Name': 'x', 'source': {'recType': 'R', 'start': 2}");
        variable("metadata that is none", "'metadata': 'none'");
        variable("null", "'label': null");
        variable("number as name", "'name': 12");
        variable("tag of 0", "'tag': 0");
        variable("missing code as text", "'missing': '99'");
        variable("number beyond int", "'notapp': 4294967297");
        entity("children under root",
               "[{'selectable': true, 'virtual': false, 'root': [{'selectable': true, 'virtual': true}]}]");
        entity("root beside entities",
               "[{'selectable': true, 'virtual': false, 'entities': [{'selectable': true, 'virtual': false}],"
               " 'root': [{'name': 'ignored'}]}]");
        entity("single child",
               "[{'selectable': true, 'virtual': false, 'entities': {'selectable': false,"
               " 'virtual': false, 'weigthVar': 'W'}}]");
        entity("missing flags", "[{'name': 'A'}]");
        entity("variables as text", "[{'selectable': true, 'virtual': false, 'variables': 'ab'}]");
        entity("missing keys of a variable", "[{'selectable': true, 'virtual': false, 'variables': [{}]}]");
    }

    void keepsWhatAPlainRoundTripLoses()
    {
        QFETCH(QJsonDocument, document);
        QVERIFY(plainRoundTrip(document) != document);
        QCOMPARE(shown(Opened(document).saved()), shown(document));
    }

    void putsBackWhatTheReaderDrops()
    {
        const Opened opened(withVariable("'documentation': 'd', 'fileName': 'f', 'local': true, 'metadata':"
                                         "{'start': 12, 'record': 'R', 'range': {'min': 1.9, 'max': 5.5}}"));
        const TDcVariable &variable = opened.variable();
        QCOMPARE(variable.getDocumentation(), u"d"_s);
        QCOMPARE(variable.getFileName(), u"f"_s);
        QVERIFY(variable.getLocal());
        QCOMPARE(variable.getFieldRelativePosition(), 12);
        QCOMPARE(variable.getMetadataVariables()->getStart(), 12);
        QCOMPARE(variable.getMetadataVariables()->getRecord(), u"R"_s);
        QCOMPARE(variable.getMetadataVariables()->getRange()->constFirst()->getRangeMin(), 1.9);
        QCOMPARE(variable.getMetadataVariables()->getRange()->constFirst()->getRangeMax(), 5.5);

        QCOMPARE(Opened(json("{'root': {'weightVar': 'W'}}")).root().getWeightVariable(), u"W"_s);
        QCOMPARE(Opened(json("{'name': 'A', 'weightVar': 'W'}")).root().getWeightVariable(), u"W"_s);
        QCOMPARE(Opened(json("{'root': {'weightVar': 'W', 'weigthVar': 'V'}}")).root().getWeightVariable(),
                 u"V"_s);
        QCOMPARE(Opened(json("{'root': [{'weightVar': 'W', 'weigthVar': 'V'}]}")).root().getWeightVariable(),
                 u"W"_s);
    }

    void anEditChangesJustWhatItEdits_data()
    {
        QTest::addColumn<int>("number");
        for (int i = 0; i < edits().size(); ++i)
            QTest::addRow("%s", edits().at(i).name) << i;
    }

    void anEditChangesJustWhatItEdits()
    {
        QFETCH(int, number);
        const Edit &edit = edits().at(number);
        const Opened opened(withVariable(edit.before));
        edit.apply(opened.variable());
        QCOMPARE(shown(opened.saved()), shown(withVariable(edit.after)));
    }

    void anEditOfTheWeightChangesTheKeyThatCounts()
    {
        const auto edited = [](const QByteArray &document, const QString &weight) {
            const Opened opened(json(document));
            opened.root().setWeightVariable(weight);
            return shown(opened.saved());
        };
        const QByteArray flags = "'selectable': false, 'virtual': false";
        QCOMPARE(edited("{'root': {" + flags + ", 'weigthVar': 'V', 'weightVar': 'W'}}", u"X"_s),
                 shown(json("{'root': {" + flags + ", 'weigthVar': 'X', 'weightVar': 'W'}}")));
        QCOMPARE(edited("{'root': {" + flags + ", 'weigthVar': 'V', 'weightVar': 'W'}}", {}),
                 shown(json("{'root': {" + flags + ", 'weigthVar': '', 'weightVar': 'W'}}")));
        QCOMPARE(edited("{'root': {" + flags + ", 'weightVar': 'W'}}", u"X"_s),
                 shown(json("{'root': {" + flags + ", 'weightVar': 'X'}}")));
        QCOMPARE(edited("{'root': [{" + flags + ", 'weigthVar': 'V'}]}", u"X"_s),
                 shown(json("{'root': [{" + flags + ", 'weigthVar': 'V', 'weightVar': 'X'}]}")));
    }

    void aSiblingMakesAListOfASingleChildThatKeepsItsWeight()
    {
        const QByteArray flags = "'selectable': false, 'virtual': false";
        const Opened opened(json("{" + flags + ", 'entities': {" + flags + ", 'weigthVar': 'V'}}"));
        opened.root().getChildren()->append(new TDcEntity);
        QCOMPARE(shown(opened.saved()),
                 shown(json("{" + flags + ", 'entities': [{" + flags
                            + ", 'weigthVar': 'V', 'weightVar': 'V'}, {" + flags + "}]}")));
    }

    void childrenStayUnderTheirKey()
    {
        const QByteArray entity = "{'selectable': false, 'virtual': false}";
        const Opened underRoot(json("{'virtual': false, 'root': [" + entity + "]}"));
        underRoot.root().getChildren()->append(new TDcEntity);
        QCOMPARE(shown(underRoot.saved()),
                 shown(json("{'virtual': false, 'root': [" + entity + ", " + entity + "]}")));

        // What stands under "root" must not become the children when these are gone.
        const Opened both(json("{'virtual': false, 'entities': [" + entity + "], 'root': [{'name': 'x'}]}"));
        delete both.root().getChildren()->takeFirst();
        QCOMPARE(shown(both.saved()),
                 shown(json("{'virtual': false, 'entities': [], 'root': [{'name': 'x'}]}")));
    }

    void unknownKeysGoWithTheirObject()
    {
        const Opened opened(
            json("{'virtual': false, 'selectable': false, 'entities': [{'name': 'A', 'variables':"
                 "[{'name': 'v', 'id': 7}]}, {'name': 'B'}]}"));
        TDcEntity &first = *opened.root().getChildren()->at(0);
        TDcEntity &second = *opened.root().getChildren()->at(1);
        second.addVariables(DictionaryCopy::copy(*first.getVariables()->constFirst()).release());
        second.addVariables(first.getVariables()->takeFirst());
        QCOMPARE(
            shown(opened.saved()),
            shown(json("{'virtual': false, 'selectable': false, 'entities': [{'name': 'A'}, {'name': 'B',"
                       "'variables': [{'name': 'v', 'id': 7}, {'name': 'v', 'id': 7}]}]}")));
    }

    void aNewObjectInheritsNothingFromADeletedOne()
    {
        // The next object often gets the memory of the last one.
        for (int i = 0; i < 100; ++i) {
            const Opened opened(withVariable("'id': 7, 'label': 5"));
            delete opened.root().getVariables()->takeFirst();
            opened.root().addVariables(new TDcVariable);
            QCOMPARE(shown(opened.saved()), shown(withVariable("")));
        }
    }

    void rootsStandInManyPlaces_data()
    {
        QTest::addColumn<QByteArray>("text");
        const QByteArray entity = "{\"name\":\"A\",\"virtual\":true}";
        QTest::addRow("the document") << entity;
        QTest::addRow("the document, named only") << QByteArray("{\"name\":\"A\"}");
        QTest::addRow("a named entity with children")
            << QByteArray("{\"entities\":[{\"name\":\"B\"}],\"name\":\"A\"}");
        QTest::addRow("an array") << "[" + entity + "]";
        QTest::addRow("object under root") << "{\"root\":" + entity + "}";
        QTest::addRow("array under root") << "{\"root\":[" + entity + "]}";
        QTest::addRow("object under entities") << "{\"entities\":" + entity + "}";
        QTest::addRow("array under entities") << "{\"entities\":[" + entity + "]}";
        QTest::addRow("named frame") << "{\"name\":\"Census\",\"root\":" + entity + "}";
        QTest::addRow("frame with more in it") << "{\"format\":1,\"root\":[" + entity + "],\"z\":null}";
        QTest::addRow("both keys") << "{\"entities\":[" + entity + "],\"root\":[1,2]}";
    }

    void rootsStandInManyPlaces()
    {
        QFETCH(QByteArray, text);
        const Opened opened(text);
        QCOMPARE(opened.root().getName(), u"A"_s);
        QCOMPARE(opened.root().getLevel(), 1);
        QCOMPARE(opened.dictionary.content(), text);
    }

    void refusesDocumentsWithoutOneRoot_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<DocumentFile::Error>("error");
        QTest::addColumn<QString>("message");
        using enum DocumentFile::Error;
        const QString none = u"There is no root entity."_s;
        QTest::addRow("empty object") << QByteArray("{}") << NoRoot << none;
        QTest::addRow("empty array") << QByteArray("[]") << NoRoot << none;
        QTest::addRow("no list") << QByteArray("{\"root\": []}") << NoRoot << none;
        QTest::addRow("empty root") << QByteArray("{\"root\": {}}") << NoRoot << none;
        QTest::addRow("text") << QByteArray("{\"root\": \"a\"}") << NoRoot << none;
        QTest::addRow("unknown keys") << QByteArray("{\"foo\": 1}") << NoRoot << none;
        QTest::addRow("run configuration")
            << QByteArray("{\"database\":{},\"type\":\"config\",\"entities\":[{\"name\":\"A\"}]}") << NoRoot
            << u"This is a run configuration, not a dictionary."_s;
        QTest::addRow("two") << QByteArray("{\"root\": [{}, {}]}") << SeveralRoots
                             << u"There are 2 root entities instead of one."_s;
        QTest::addRow("nothing") << QByteArray() << Malformed << u"The file is empty."_s;
        QTest::addRow("blanks") << QByteArray(" \n") << Malformed << u"The file is empty."_s;
        QTest::addRow("a mark alone") << QByteArray("\xEF\xBB\xBF") << Malformed << u"The file is empty."_s;
        QTest::addRow("no JSON") << QByteArray("<xml/>") << Malformed << u"line 1, column 1: illegal value"_s;
        QTest::addRow("comma") << QByteArray("{\n  \"ä\": [1,]\n}") << Malformed
                               << u"line 2, column 11: object is missing after a comma"_s;
        QTest::addRow("garbage") << QByteArray("\xEF\xBB\xBF{} x") << Malformed
                                 << u"line 1, column 4: garbage at the end of the document"_s;
        QTest::addRow("bytes") << QByteArray("{\"a\": \"\xff\"}") << Malformed
                               << u"line 1, column 8: invalid UTF8 string"_s;
        QTest::addRow("deep") << QByteArray(2000, '[') << Malformed
                              << u"line 1, column 1025: too deeply nested document"_s;
    }

    void refusesDocumentsWithoutOneRoot()
    {
        QFETCH(QByteArray, text);
        QFETCH(DocumentFile::Error, error);
        QFETCH(QString, message);
        const TemporaryFile file(text);
        Opened opened(withVariable(""));
        QVERIFY(!opened.dictionary.open(file.path()));
        QCOMPARE(opened.dictionary.error(), error);
        QCOMPARE(opened.dictionary.errorText(), file.path() + u": "_s + message);
        QCOMPARE(opened.dictionary.path(), opened.file.path()); // The document before is still there.
        QCOMPARE(opened.root().getVariables()->size(), 1);
    }

    void everyTruncationGivesAResultOrAnError()
    {
        const QByteArray whole = RandomDocument(3).document().toJson();
        for (qsizetype size = 0; size < whole.size(); ++size) {
            const TemporaryFile file(whole.first(size));
            DictionaryFile dictionary;
            QCOMPARE(dictionary.open(file.path()), whole.sliced(size).trimmed().isEmpty());
            QCOMPARE(dictionary.errorText().isEmpty(), dictionary.error() == DocumentFile::Error::None);
        }
    }

    void tellsWhatSavingWouldLose()
    {
        Opened opened(QByteArray(
            "{\"virtual\": true, \"variables\": [{}, {\"label\": \"a\",\n"
            "\"label\": \"b\"}], \"id\": 12345678901234567890,\n"
            "\"n\": [0.1, 1.50, 1e3, 0.12345678901234567890123, 9007199254740993], \"\\u0069d\": 1}"));
        const QStringList losses{
            u"line 2, column 1: variables[1].label is there more than once; only the last is kept"_s,
            u"line 2, column 23: id 12345678901234567890 has more digits than can be kept"_s,
            u"line 3, column 23: n[3] 0.12345678901234567890123 has more digits than can be kept"_s,
            u"line 3, column 69: id is there more than once; only the last is kept"_s,
        };
        QCOMPARE(opened.dictionary.losses(), losses);
        const QByteArray before = opened.file.bytes();
        QVERIFY(!opened.dictionary.save());
        QCOMPARE(opened.dictionary.error(), DocumentFile::Error::LosesContent);
        QVERIFY(opened.dictionary.errorText().endsWith(losses.join(u'\n')));
        QCOMPARE(opened.file.bytes(), before);
        QVERIFY(opened.dictionary.save(DocumentFile::AcceptLosses));
        QVERIFY(opened.dictionary.losses().isEmpty());
        QVERIFY(opened.dictionary.save());
    }

    void findingLossesTakesTimeInProportion_data()
    {
        QTest::addColumn<QByteArray>("separator");
        QTest::addRow("in lines of their own") << QByteArray(",\n");
        QTest::addRow("in one line") << QByteArray(",");
    }

    void findingLossesTakesTimeInProportion()
    {
        QFETCH(QByteArray, separator);
        const auto find = [&separator](int count) {
            const QByteArray text = "[0" + (separator + "0.1234567890123456789").repeated(count) + "]";
            QCOMPARE(DocumentFile::lossesOf(text).size(), count);
        };
        QVERIFY(growth(find, 1000, 10000) < 30); // 100 when each loss looks at all that stands before it.
    }

    void looksAsItLooked()
    {
        const QByteArray compact = withVariable("'id': 1").toJson(QJsonDocument::Compact);
        QCOMPARE(Opened(compact).dictionary.content(), compact);
        const QByteArray indented = withVariable("'id': 1").toJson();
        QCOMPARE(Opened(indented).dictionary.content(), indented);
        QCOMPARE(Opened("\xEF\xBB\xBF" + compact).dictionary.content(), "\xEF\xBB\xBF" + compact);
    }

    void theCharacterOfAMarkInsideATextIsKept()
    {
        const QByteArray text = "{\"label\":\"\xEF\xBB\xBFx\",\"virtual\":true}";
        const Opened opened(text);
        QCOMPARE(opened.root().getLabel(), QChar(0xFEFF) + u"x"_s);
        QCOMPARE(opened.dictionary.content(), QByteArray(text).replace("\xEF\xBB\xBF", "\\ufeff"));
    }

    void aNewDictionaryCanBeReadByTheLayer()
    {
        DictionaryFile file;
        file.root()->setName(u"A"_s);
        file.root()->setWeightVariable(u"W"_s);
        QCOMPARE(shown(QJsonDocument::fromJson(file.content())),
                 shown(json(
                     "{'root': [{'name': 'A', 'selectable': false, 'virtual': false, 'weightVar': 'W'}]}")));
    }

    void theRootChangesHands()
    {
        DictionaryFile file;
        file.setRoot(RandomDictionary(1).entity());
        const std::unique_ptr<TDcEntity> root = file.takeRoot();
        QVERIFY(DictionaryEquality::equal(*root, *RandomDictionary(1).entity()));
        QVERIFY(DictionaryEquality::equal(*file.root(), TDcEntity()));
    }
};

QTEST_GUILESS_MAIN(tst_DictionaryFile)
#include "tst_dictionaryfile.moc"
