#include "business/ProcessDictionaryBusiness.h"
#include "tests/support/JsonCompare.h"
#include "tests/support/ModelDump.h"

using namespace ModelDump;
using namespace Qt::Literals::StringLiterals;

namespace
{
/// What the entity reader makes of a document, as a dump.
QJsonValue entities(const QString &document, int parentLevel = 0)
{
    const QVariantMap map = variant(document).toMap();
    return dumpAndFree(
        ProcessDictionaryBusiness().recorrerNodosJsonYCargaEstructuraEntidades(map, parentLevel));
}

QJsonValue variables(const QVariant &value)
{
    return dumpAndFree(ProcessDictionaryBusiness().recorrerVariablesNodosJson(value));
}

QJsonValue ranges(const QVariant &value)
{
    return dumpAndFree(ProcessDictionaryBusiness().itemVariableSubitemRange(value));
}

QJsonValue labels(const QVariant &value)
{
    return dumpAndFree(ProcessDictionaryBusiness().recorrerValoresPorVariablesNodosJson(value));
}

QJsonValue labelVector(const QVariant &value)
{
    return dumpAndFree(ProcessDictionaryBusiness().recorrerVectorValoresPorVariablesNodosJson(value));
}

void addInputAndResult()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("result");
}
} // namespace

/// Dumps show what differs from a new object.
class tst_ProcessDictionaryBusiness_Reader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entityDocuments_data()
    {
        addInputAndResult();
        QTest::addRow("no key yields no list") << u"{'name': 'A'}"_s << u"null"_s;
        QTest::addRow("empty document yields no list") << u"{}"_s << u"null"_s;
        QTest::addRow("keys are case-sensitive") << u"{'Entities': [{}], 'ROOT': [{}]}"_s << u"null"_s;
        QTest::addRow("empty array yields an empty list") << u"{'root': []}"_s << u"[]"_s;
        QTest::addRow("empty object yields an empty list") << u"{'entities': {}}"_s << u"[]"_s;
        QTest::addRow("number yields an empty list") << u"{'entities': 5}"_s << u"[]"_s;
        QTest::addRow("null yields an empty list") << u"{'root': null}"_s << u"[]"_s;
        QTest::addRow("a text is the list of its characters") << u"{'root': 'abc'}"_s << u"[{}, {}, {}]"_s;
        QTest::addRow("array under root")
            << u"{'root': [{'name': 'A'}, {'name': 'B'}]}"_s << u"[{'name': 'A'}, {'name': 'B'}]"_s;
        QTest::addRow("array under entities") << u"{'entities': [{'name': 'A'}]}"_s << u"[{'name': 'A'}]"_s;
        QTest::addRow("single object under root") << u"{'root': {'name': 'A'}}"_s << u"[{'name': 'A'}]"_s;
        QTest::addRow("single object under entities")
            << u"{'entities': {'name': 'A'}}"_s << u"[{'name': 'A'}]"_s;
        QTest::addRow("entities wins over root")
            << u"{'root': [{'name': 'R'}], 'entities': [{'name': 'E'}]}"_s << u"[{'name': 'E'}]"_s;
        QTest::addRow("empty entities wins over root")
            << u"{'root': [{'name': 'R'}], 'entities': []}"_s << u"[]"_s;
        QTest::addRow("elements that are no objects give empty entities")
            << u"{'root': [5, 'text', null, [], {}]}"_s << u"[{}, {}, {}, {}, {}]"_s;
        QTest::addRow("every key of an element")
            << u"{'root': [{'name': 'A', 'alias': 'a', 'label': 'L', 'codeVar': 'C', 'labelVar': 'V',"
               "'weightVar': 'W', 'documentation': 'D', 'virtual': true, 'selectable': true}]}"_s
            << u"[{'name': 'A', 'alias': 'a', 'label': 'L', 'refCode': 'C', 'refLabel': 'V',"
               "'weightVariable': 'W', 'documentationEntity': 'D', 'isvirtual': true, 'selectable': true}]"_s;
        QTest::addRow("every key of a single object")
            << u"{'root': {'name': 'A', 'alias': 'a', 'label': 'L', 'codeVar': 'C', 'labelVar': 'V',"
               "'weigthVar': 'W', 'documentation': 'D', 'virtual': true, 'selectable': true}}"_s
            << u"[{'name': 'A', 'alias': 'a', 'label': 'L', 'refCode': 'C', 'refLabel': 'V',"
               "'weightVariable': 'W', 'documentationEntity': 'D', 'isvirtual': true, 'selectable': true}]"_s;
        QTest::addRow("unknown keys are ignored")
            << u"{'root': [{'Name': 'A', 'NAME': 'A', 'zzz': 1, 'aaa': {}, 'checkDelete': true, 'names': 2}]}"_s
            << u"[{}]"_s;
        QTest::addRow("asymmetry 1: an element keeps weightVar, not weigthVar")
            << u"{'root': [{'weightVar': 'W', 'weigthVar': 'misspelt'}]}"_s << u"[{'weightVariable': 'W'}]"_s;
        QTest::addRow("asymmetry 1: a single object loses weightVar and reads weigthVar")
            << u"{'root': {'weightVar': 'W', 'weigthVar': 'misspelt'}}"_s
            << u"[{'weightVariable': 'misspelt'}]"_s;
        QTest::addRow("asymmetry 1: a single object with weightVar alone has no weight")
            << u"{'root': {'weightVar': 'W'}}"_s << u"[{}]"_s;
        QTest::addRow("asymmetry 1: the form of each level counts")
            << u"{'root': {'weightVar': 'A', 'entities': [{'weightVar': 'B'}]}}"_s
            << u"[{'children': [{'level': 2, 'weightVariable': 'B'}]}]"_s;
        QTest::addRow("asymmetry 7: root is read inside an entity too")
            << u"{'root': [{'name': 'A', 'root': [{'name': 'B'}]}]}"_s
            << u"[{'name': 'A', 'children': [{'name': 'B', 'level': 2}]}]"_s;
        QTest::addRow("asymmetry 10: levels come from the depth, never from the document")
            << u"{'root': [{'level': 7, 'entities': [{'level': 7, 'entities': {'level': 7, 'x': 1}}]}]}"_s
            << u"[{'children': [{'level': 2, 'children': [{'level': 3}]}]}]"_s;
        QTest::addRow("children of both forms, in order")
            << u"{'root': {'entities': [{'name': 'B'}, {'name': 'A'}, {'entities': {'name': 'C'}}]}}"_s
            << u"[{'children': [{'level': 2, 'name': 'B'}, {'level': 2, 'name': 'A'},"
               "{'level': 2, 'children': [{'level': 3, 'name': 'C'}]}]}]"_s;
        QTest::addRow("an entity with both keys ends with the children of entities, once")
            << u"{'root': [{'entities': [{'name': 'E'}], 'root': [{'name': 'R'}, {}]}]}"_s
            << u"[{'children': [{'level': 2, 'name': 'E'}]}]"_s;
        QTest::addRow("variables as an array")
            << u"{'root': [{'variables': [{'name': 'X'}, {'name': 'Y'}]}]}"_s
            << u"[{'variables': [{'name': 'X'}, {'name': 'Y'}]}]"_s;
        QTest::addRow("a single variable")
            << u"{'root': [{'variables': {'name': 'X'}}]}"_s << u"[{'variables': [{'name': 'X'}]}]"_s;
        QTest::addRow("conversions: numbers as text, text as flags")
            << u"{'root': [{'name': 12, 'label': 1.5, 'alias': true, 'virtual': 'yes', 'selectable': 'false'}]}"_s
            << u"[{'name': '12', 'label': '1.5', 'alias': 'true', 'isvirtual': true}]"_s;
        QTest::addRow("wrong types give empty text, false, no variables, no children")
            << u"{'root': [{'name': [], 'label': {}, 'alias': null, 'virtual': [1], 'selectable': {'a': 1},"
               "'variables': 5, 'entities': null, 'weightVar': [1]}]}"_s
            << u"[{}]"_s;
    }
    void entityDocuments()
    {
        QFETCH(QString, input);
        QFETCH(QString, result);
        COMPARE_JSON(entities(input), json(result));
    }

    void levelsFollowTheParentLevel()
    {
        COMPARE_JSON(entities(u"{'root': [{'entities': [{}]}]}"_s, 4),
                     json(u"[{'level': 5, 'children': [{'level': 6}]}]"_s));
        COMPARE_JSON(entities(u"{'root': {'name': 'A', 'root': {'name': 'B'}}}"_s, -2),
                     json(u"[{'level': -1, 'name': 'A', 'children': [{'level': 0, 'name': 'B'}]}]"_s));
    }

    void theDocumentIsNotChanged()
    {
        const QVariantMap map = variant(u"{'root': [{'name': 'A'}]}"_s).toMap();
        const QVariantMap copy = map;
        COMPARE_JSON(
            dumpAndFree(ProcessDictionaryBusiness().recorrerNodosJsonYCargaEstructuraEntidades(map, 0)),
            json(u"[{'name': 'A'}]"_s));
        QCOMPARE(map, copy);
    }

    void variableValues_data()
    {
        addInputAndResult();
        QTest::addRow("empty array") << u"[]"_s << u"[]"_s;
        QTest::addRow("empty object") << u"{}"_s << u"[]"_s;
        QTest::addRow("null") << u"null"_s << u"[]"_s;
        QTest::addRow("number") << u"5"_s << u"[]"_s;
        QTest::addRow("a text is the list of its characters") << u"'ab'"_s << u"[{}, {}]"_s;
        QTest::addRow("elements that are no objects")
            << u"[1, 'x', null, [], {}]"_s << u"[{}, {}, {}, {}, {}]"_s;
        QTest::addRow("texts")
            << u"[{'name': 'N', 'label': 'L', 'group': 'G', 'alias': 'A', 'type': 'real'}]"_s
            << u"[{'name': 'N', 'label': 'L', 'group': 'G', 'alias': 'A',"
               "'varType': 'real'}]"_s;
        QTest::addRow("single object") << u"{'name': 'N', 'tag': 3}"_s << u"[{'name': 'N', 'tag': 3}]"_s;
        QTest::addRow("type is stored as it stands")
            << u"{'type': 'INTEGER'}"_s << u"[{'varType': 'INTEGER'}]"_s;
        QTest::addRow("numbers") << u"{'size': 4, 'notapp': 98, 'missing': -99, 'tag': 2}"_s
                                 << u"[{'size': 4, 'notappl': 98, 'missing': -99, 'tag': 2}]"_s;
        QTest::addRow("fractions are rounded, not cut")
            << u"{'size': 1.9, 'tag': 2.5, 'missing': -1.5, 'metadata': {'length': 1.5}}"_s
            << u"[{'size': 2, 'missing': -2, 'tag': 3, 'fieldSize': 2, 'metadata': {'length': 2}}]"_s;
        QTest::addRow("numbers as text") << u"{'size': '4', 'notapp': ' 98 ', 'missing': 'x', 'tag': '1.9'}"_s
                                         << u"[{'size': 4, 'notappl': 98}]"_s;
        QTest::addRow("asymmetry 2: fileName and local are stored as found")
            << u"{'fileName': 'a.dat', 'local': true}"_s << u"[{'fileName': 'a.dat', 'local': true}]"_s;
        QTest::addRow("asymmetry 3: documentation is not read") << u"{'documentation': 'D'}"_s << u"[{}]"_s;
        QTest::addRow("asymmetry 4: size is read for every type")
            << u"{'type': 'integer', 'size': 9}"_s << u"[{'varType': 'integer', 'size': 9}]"_s;
        QTest::addRow("asymmetry 4: decimals are read for every type")
            << u"{'type': 'string', 'metadata': {'decimals': 2}}"_s
            << u"[{'varType': 'string', 'decimals': 2, 'metadata': {}}]"_s;
        QTest::addRow("decimals outside metadata and size inside are ignored")
            << u"{'decimals': 2, 'metadata': {'size': 3}}"_s << u"[{'metadata': {}}]"_s;
        QTest::addRow("empty metadata is attached") << u"{'metadata': {}}"_s << u"[{'metadata': {}}]"_s;
        QTest::addRow("metadata of another type is attached empty")
            << u"{'metadata': 5}"_s << u"[{'metadata': {}}]"_s;
        QTest::addRow("asymmetry 6: length goes to metadata and variable")
            << u"{'metadata': {'length': 8}}"_s << u"[{'fieldSize': 8, 'metadata': {'length': 8}}]"_s;
        QTest::addRow("asymmetry 7: record is read")
            << u"{'metadata': {'record': 'R'}}"_s << u"[{'metadata': {'record': 'R'}}]"_s;
        QTest::addRow("field and lookup") << u"{'metadata': {'field': 'F', 'lookup': true}}"_s
                                          << u"[{'metadata': {'field': 'F', 'lookup': true}}]"_s;
        QTest::addRow("unknown metadata keys are ignored")
            << u"{'metadata': {'Field': 'F', 'name': 'x', 'zz': 1, 'a': 2}}"_s << u"[{'metadata': {}}]"_s;
        QTest::addRow("ranges in metadata") << u"{'metadata': {'range': [{'min': 0.5, 'max': 9.5}, {}]}}"_s
                                            << u"[{'metadata': {'range': [[0.5, 9.5], [0, 0]]}}]"_s;
        QTest::addRow("value labels") << u"{'valueLabels': [{'value': 1}, {'label': 'L'}]}"_s
                                      << u"[{'valueLabels': [{'value': '1'}, {'label': 'L'}]}]"_s;
        QTest::addRow("a single value label") << u"{'valueLabels': {'value': 1, 'label': 'Yes'}}"_s
                                              << u"[{'valueLabels': [{'value': '1', 'label': 'Yes'}]}]"_s;
        QTest::addRow("unknown keys are ignored")
            << u"{'Name': 'N', 'checked': 2, 'level': 3, 'zz': 1, 'aa': 1}"_s << u"[{}]"_s;
        QTest::addRow("wrong types") << u"{'name': [], 'type': {}, 'local': [], 'size': [1], 'tag': {'a': 1},"
                                        "'metadata': {'start': [], 'lookup': {}, 'range': 1, 'length': 'x',"
                                        "'decimals': null, 'field': []}, 'valueLabels': 7}"_s
                                     << u"[{'metadata': {}}]"_s;
        QTest::addRow("numbers beyond int pass through the conversion")
            << u"{'size': 1e300, 'tag': 4294967297}"_s << u"[{'tag': 1}]"_s;
    }
    void variableValues()
    {
        QFETCH(QString, input);
        QFETCH(QString, result);
        COMPARE_JSON(variables(variant(input)), json(result));
    }

    void asymmetry5_startResetsTheVariablesPosition_data()
    {
        QTest::addColumn<QString>("start");
        QTest::addColumn<int>("stored");
        QTest::addRow("1 is not stored") << u"1"_s << 0;
        QTest::addRow("2 is") << u"2"_s << 2;
        QTest::addRow("12") << u"12"_s << 12;
        QTest::addRow("negative") << u"-5"_s << 0;
        QTest::addRow("no number") << u"'x'"_s << 0;
    }
    void asymmetry5_startResetsTheVariablesPosition()
    {
        QFETCH(QString, start);
        TDcVariable variable;
        variable.setFieldRelativePosition(77);
        const QVariantMap object = variant(u"{'metadata': {'start': %1}}"_s.arg(start)).toMap();
        ProcessDictionaryBusiness().loadItemFromVariables(u"metadata"_s, &variable, object);
        QTEST(variable.getMetadataVariables()->getStart(), "stored");
        QCOMPARE(variable.getFieldRelativePosition(), 1);
    }

    void positionStaysWithoutStart()
    {
        TDcVariable variable;
        variable.setFieldRelativePosition(77);
        ProcessDictionaryBusiness().loadItemFromVariables(u"metadata"_s, &variable,
                                                          variant(u"{'metadata': {'length': 1}}"_s).toMap());
        QCOMPARE(variable.getFieldRelativePosition(), 77);
    }

    void loadItemAppliesOneKeyOnly()
    {
        TDcVariable variable;
        const QVariantMap object = variant(u"{'name': 'N', 'label': 'L', 'unknown': 1}"_s).toMap();
        ProcessDictionaryBusiness business;
        business.loadItemFromVariables(u"label"_s, &variable, object);
        COMPARE_JSON(dump(variable), json(u"{'label': 'L'}"_s));
        // Nor does a key apply that the object has not: no empty metadata is made.
        for (const auto &key : {u"unknown"_s, u"Name"_s, u"size"_s, u"metadata"_s, QString()})
            business.loadItemFromVariables(key, &variable, object);
        COMPARE_JSON(dump(variable), json(u"{'label': 'L'}"_s));
    }

    void loadItemReplacesMetadataAndAppendsValueLabels()
    {
        TDcVariable variable;
        const QVariantMap object =
            variant(u"{'metadata': {'field': 'F'}, 'valueLabels': {'value': 1}}"_s).toMap();
        ProcessDictionaryBusiness business;
        for (int i = 0; i < 2; ++i) {
            business.loadItemFromVariables(u"metadata"_s, &variable, object);
            business.loadItemFromVariables(u"valueLabels"_s, &variable, object);
        }
        COMPARE_JSON(
            dump(variable),
            json(u"{'metadata': {'field': 'F'}, 'valueLabels': [{'value': '1'}, {'value': '1'}]}"_s));
    }

    void rangeValues_data()
    {
        addInputAndResult();
        QTest::addRow("empty array") << u"[]"_s << u"[]"_s;
        QTest::addRow("empty object") << u"{}"_s << u"[]"_s;
        QTest::addRow("null") << u"null"_s << u"[]"_s;
        QTest::addRow("asymmetry 8: doubles in an array")
            << u"[{'min': 0.5, 'max': 9.5}]"_s << u"[[0.5, 9.5]]"_s;
        QTest::addRow("asymmetry 8: fractions are cut off in a single object")
            << u"{'min': 0.5, 'max': 9.5}"_s << u"[[0, 9]]"_s;
        QTest::addRow("cut off, not rounded") << u"{'min': 1.9, 'max': 5.5}"_s << u"[[1, 5]]"_s;
        QTest::addRow("1.9 to 5.5 in an array") << u"[{'min': 1.9, 'max': 5.5}]"_s << u"[[1.9, 5.5]]"_s;
        QTest::addRow("negative fractions are cut off towards 0")
            << u"{'min': -2.5, 'max': -0.9}"_s << u"[[-2, 0]]"_s;
        QTest::addRow("whole numbers in a single object") << u"{'min': -3, 'max': 12}"_s << u"[[-3, 12]]"_s;
        QTest::addRow("numbers as text") << u"[{'min': '1.5', 'max': 'x'}]"_s << u"[[1.5, 0]]"_s;
        QTest::addRow("whole numbers as text in a single object")
            << u"{'min': '2', 'max': '2.5'}"_s << u"[[2, 0]]"_s;
        QTest::addRow("beyond int in a single object")
            << u"{'min': 1e300, 'max': 4294967297}"_s << u"[[0, 1]]"_s;
        QTest::addRow("several in order")
            << u"[{'min': 5}, {'max': 3}, {}]"_s << u"[[5, 0], [0, 3], [0, 0]]"_s;
        QTest::addRow("elements that are no objects") << u"[1, 'x', []]"_s << u"[[0, 0], [0, 0], [0, 0]]"_s;
        QTest::addRow("unknown keys") << u"[{'Min': 1, 'MAX': 2, 'a': 1, 'z': 1}]"_s << u"[[0, 0]]"_s;
        QTest::addRow("a single object of unknown keys") << u"{'x': 1}"_s << u"[[0, 0]]"_s;
    }
    void rangeValues()
    {
        QFETCH(QString, input);
        QFETCH(QString, result);
        COMPARE_JSON(ranges(variant(input)), json(result));
    }

    void sourceChoices_data()
    {
        addInputAndResult();
        const QString before = u"{'dataProvider': 'old', 'recType': 'old', 'field': 'old', 'start': 5}"_s;
        QTest::addRow("no such key") << u"{'Choice': {'field': 'F'}}"_s << before;
        QTest::addRow("empty object") << u"{'choice': {}}"_s << before;
        QTest::addRow("no object") << u"{'choice': [{'field': 'F'}]}"_s << before;
        QTest::addRow("every key")
            << u"{'choice': {'dataProvider': 'CSV', 'recType': 'P', 'field': 'F', 'start': 0}}"_s
            << u"{'dataProvider': 'CSV', 'recType': 'P', 'field': 'F'}"_s;
        QTest::addRow("one key leaves the others") << u"{'choice': {'start': '7', 'Field': 'F', 'x': 1}}"_s
                                                   << u"{'dataProvider': 'old', 'recType': 'old',"
                                                      "'field': 'old', 'start': 7}"_s;
    }
    void sourceChoices()
    {
        QFETCH(QString, input);
        QFETCH(QString, result);
        VarWipChoice choice;
        choice.setDataProvider(u"old"_s);
        choice.setRecType(u"old"_s);
        choice.setField(u"old"_s);
        choice.setStart(5);
        ProcessDictionaryBusiness().loadItemVariableSubitemVarWipChoice(&choice, variant(input).toMap(),
                                                                        u"choice"_s);
        COMPARE_JSON(dump(choice), json(result));
    }

    void valueLabelValues_data()
    {
        addInputAndResult();
        QTest::addRow("empty array") << u"[]"_s << u"[]"_s;
        QTest::addRow("empty object") << u"{}"_s << u"[]"_s;
        QTest::addRow("null") << u"null"_s << u"[]"_s;
        QTest::addRow("number") << u"3"_s << u"[]"_s;
        QTest::addRow("single object")
            << u"{'value': 1, 'label': 'Yes'}"_s << u"[{'value': '1', 'label': 'Yes'}]"_s;
        QTest::addRow("asymmetry 9: values are read as text")
            << u"[{'value': 3}, {'value': 2.5}, {'value': true}, {'value': '7'}, {'value': 7}]"_s
            << u"[{'value': '3'}, {'value': '2.5'}, {'value': 'true'}, {'value': '7'}, {'value': '7'}]"_s;
        QTest::addRow("without label or value")
            << u"[{}, {'value': null}, {'label': 2}, {'x': 1}]"_s << u"[{}, {}, {'label': '2'}, {}]"_s;
        QTest::addRow("elements that are no objects") << u"[1, 'text', [1]]"_s << u"[{}, {}, {}]"_s;
        QTest::addRow("a text is the list of its characters") << u"'ab'"_s << u"[{}, {}]"_s;
        QTest::addRow("keys are case-sensitive") << u"{'Value': 1, 'LABEL': 'x'}"_s << u"[{}]"_s;
    }
    void valueLabelValues()
    {
        QFETCH(QString, input);
        QFETCH(QString, result);
        COMPARE_JSON(labels(variant(input)), json(result));
    }

    void valueLabelVectors_data()
    {
        addInputAndResult();
        QTest::addRow("empty array") << u"[]"_s << u"[]"_s;
        QTest::addRow("empty object") << u"{}"_s << u"[]"_s;
        QTest::addRow("array and single object, joined in order")
            << u"[{'valueLabelElement': [{'value': 1}]}, {'valueLabelElement': {'value': 2}}]"_s
            << u"[{'value': '1'}, {'value': '2'}]"_s;
        QTest::addRow("a single vector object") << u"{'valueLabelElement': [{'value': 1}, {'value': 2}]}"_s
                                                << u"[{'value': '1'}, {'value': '2'}]"_s;
        QTest::addRow("without the key nothing") << u"[{'valueLabels': [{'value': 1}]}, {}, 5]"_s << u"[]"_s;
        QTest::addRow("the key is case-sensitive") << u"{'ValueLabelElement': [{'value': 1}]}"_s << u"[]"_s;
    }
    void valueLabelVectors()
    {
        QFETCH(QString, input);
        QFETCH(QString, result);
        COMPARE_JSON(labelVector(variant(input)), json(result));
    }
};

QTEST_APPLESS_MAIN(tst_ProcessDictionaryBusiness_Reader)

#include "tst_processdictionarybusiness_reader.moc"
