#include "business/ProcessDictionaryBusiness.h"
#include "tests/support/JsonCompare.h"
#include "tests/support/Trees.h"

#include "model/ValueLabelElement.h"

using namespace Qt::Literals::StringLiterals;

namespace
{
QJsonObject written(TDcEntity &entity)
{
    QJsonObject out;
    ProcessDictionaryBusiness().getStructuraTreeRootToJson(&entity, &out);
    return out;
}

/// The written form of a variable, without what every variable has.
QJsonObject written(TDcVariable *variable)
{
    TDcEntity entity;
    entity.addVariables(variable);
    return written(entity)[u"variables"_s][0].toObject();
}

TDcVariable *makeTyped(const QString &type)
{
    auto *variable = new TDcVariable;
    variable->setVarType(type);
    return variable;
}

void addLabel(TDcVariable *variable, const QString &value, const QString &label = {})
{
    auto *element = new ValueLabelElement;
    element->setValue(value);
    element->setLabel(label);
    variable->addValueLabelElement(element);
}
} // namespace

class tst_ProcessDictionaryBusiness_Writer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leafEntityYieldsItsTextsAndTheFlags()
    {
        TDcEntity entity;
        COMPARE_JSON(written(entity), json(u"{'selectable': false, 'virtual': false}"_s));
        entity.setName(u"PERSON"_s);
        entity.setAlias(u"pe"_s);
        entity.setLabel(u"Person"_s);
        entity.setWeightVariable(u"W"_s);
        entity.setDocumentationEntity(u"Doc"_s);
        entity.setSelectable(true);
        entity.setIsvirtual(true);
        entity.setRefCode(u"CODE"_s);
        entity.setRefLabel(u"LABEL"_s);
        entity.setLevel(4);
        entity.setCheckDelete(true);
        COMPARE_JSON(written(entity),
                     json(u"{'name': 'PERSON', 'alias': 'pe', 'label': 'Person', 'weightVar': 'W',"
                          "'documentation': 'Doc', 'selectable': true, 'virtual': true,"
                          "'codeVar': 'CODE', 'labelVar': 'LABEL'}"_s));
    }

    void childrenAreWrittenInTheOrderOfTheList()
    {
        const auto root = makeEntities(u"A\n    C\n        D\n    B\n");
        COMPARE_JSON(written(*root),
                     json(u"{'name': 'A', 'selectable': false, 'virtual': false, 'entities': ["
                          "{'name': 'C', 'selectable': false, 'virtual': false, 'entities': ["
                          "{'name': 'D', 'selectable': false, 'virtual': false}]},"
                          "{'name': 'B', 'selectable': false, 'virtual': false}]}"_s));
    }

    void nullsInListsArePassedOver()
    {
        TDcEntity entity;
        entity.getChildren()->append(nullptr);
        entity.addVariables(nullptr);
        COMPARE_JSON(written(entity), json(u"{'selectable': false, 'virtual': false}"_s));
    }

    void addsToWhatTheObjectHolds()
    {
        TDcEntity entity;
        QJsonObject out{{u"name"_s, u"old"_s}, {u"other"_s, 1}};
        ProcessDictionaryBusiness().getStructuraTreeRootToJson(&entity, &out);
        COMPARE_JSON(out, json(u"{'name': 'old', 'other': 1, 'selectable': false, 'virtual': false}"_s));
    }

    void depthIsNotLimited()
    {
        constexpr int depth = 3'000;
        auto root = std::make_unique<TDcEntity>();
        TDcEntity *last = root.get();
        for (int i = 0; i < depth; ++i) {
            last->getChildren()->append(new TDcEntity);
            last = last->getChildren()->constLast();
        }
        QJsonObject node = written(*root);
        int found = 0;
        for (; node.contains(u"entities"_s); ++found)
            node = node[u"entities"_s][0].toObject();
        QCOMPARE(found, depth);
    }

    void newVariableIsWrittenWithConstantsCodesAndType()
    {
        COMPARE_JSON(
            written(new TDcVariable),
            json(u"{'fileName': '', 'local': false, 'type': 'integer', 'notapp': 0, 'missing': 0}"_s));
    }

    void variableIsWrittenWithAllItHolds()
    {
        auto *variable = makeVariable(u"AGE"_s, u"age"_s, u"Age"_s, u"Group"_s);
        variable->setVarType(u"string"_s);
        variable->setSize(12);
        variable->setDocumentation(u"Doc"_s);
        variable->setTag(-3);
        variable->setNotappl(98);
        variable->setMissing(99);
        variable->setChecked(2);
        variable->setDecimals(2);
        COMPARE_JSON(written(variable),
                     json(u"{'fileName': '', 'local': false, 'name': 'AGE', 'alias': 'age', 'label': 'Age',"
                          "'group': 'Group', 'type': 'string', 'size': 12, 'documentation': 'Doc',"
                          "'tag': -3, 'notapp': 98, 'missing': 99}"_s));
    }

    void variablesAreWrittenInTheOrderOfTheList()
    {
        TDcEntity entity;
        for (const auto &name : {u"B"_s, u"A"_s, u"C"_s})
            entity.addVariables(makeVariable(name));
        const QJsonArray variables = written(entity)[u"variables"_s].toArray();
        QCOMPARE(variables.size(), 3);
        QCOMPARE(variables[0][u"name"_s], u"B"_s);
        QCOMPARE(variables[1][u"name"_s], u"A"_s);
        QCOMPARE(variables[2][u"name"_s], u"C"_s);
    }

    void asymmetry2_fileNameAndLocalAreConstants()
    {
        auto *variable = new TDcVariable;
        variable->setFileName(u"a.dat"_s);
        variable->setLocal(true);
        const QJsonObject object = written(variable);
        QCOMPARE(object[u"fileName"_s], QJsonValue(QString()));
        QVERIFY(object[u"fileName"_s].isString());
        QCOMPARE(object[u"local"_s], QJsonValue(false));
    }

    void typeIsWrittenAsItStands_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("inDocument");
        QTest::addRow("empty counts as integer") << QString() << u"integer"_s;
        QTest::addRow("upper case stays") << u"INTEGER"_s << u"INTEGER"_s;
        QTest::addRow("any word") << u"any word"_s << u"any word"_s;
    }
    void typeIsWrittenAsItStands()
    {
        QFETCH(QString, type);
        QFETCH(QString, inDocument);
        QCOMPARE(written(makeTyped(type))[u"type"_s], inDocument);
    }

    void asymmetry4_sizeIsWrittenForStringOnly_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<int>("size");
        QTest::addColumn<QString>("inDocument");
        QTest::addRow("string") << u"string"_s << 7 << u"7"_s;
        QTest::addRow("string of size 0 has size 1") << u"string"_s << 0 << u"1"_s;
        QTest::addRow("string of negative size") << u"string"_s << -2 << u"-2"_s;
        QTest::addRow("integer") << u"integer"_s << 7 << u"nothing"_s;
        QTest::addRow("real") << u"real"_s << 7 << u"nothing"_s;
        QTest::addRow("no type") << QString() << 7 << u"nothing"_s;
        QTest::addRow("upper case is another type") << u"STRING"_s << 7 << u"nothing"_s;
    }
    void asymmetry4_sizeIsWrittenForStringOnly()
    {
        QFETCH(QString, type);
        QFETCH(int, size);
        auto *variable = makeTyped(type);
        variable->setSize(size);
        QTEST(compact(written(variable).value(u"size"_s)), "inDocument");
    }

    void withoutMetadataNothingOfTheLayoutIsWritten()
    {
        auto *variable = makeTyped(u"real"_s);
        variable->setDecimals(2);
        variable->setFieldSize(3);
        variable->setFieldRelativePosition(4);
        COMPARE_JSON(written(variable),
                     json(u"{'fileName': '', 'local': false, 'type': 'real', 'notapp': 0, 'missing': 0}"_s));
    }

    void metadata_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<int>("position");
        QTest::addColumn<int>("fieldSize");
        QTest::addColumn<bool>("filled");
        QTest::addColumn<QString>("inDocument");
        QTest::addRow("nothing to report") << u"integer"_s << 1 << 0 << false << u"{}"_s;
        QTest::addRow("position below 1, negative size") << u"integer"_s << -1 << -4 << false << u"{}"_s;
        QTest::addRow("asymmetry 5: start is the variable's position")
            << u"integer"_s << 2 << 0 << false << u"{'start': 2}"_s;
        QTest::addRow("asymmetry 6: length is the variable's field size")
            << u"integer"_s << 1 << 1 << false << u"{'length': 1}"_s;
        QTest::addRow("asymmetry 4: decimals for real only")
            << u"real"_s << 1 << 0 << false << u"{'decimals': 3}"_s;
        QTest::addRow("upper case is another type") << u"REAL"_s << 1 << 0 << false << u"{}"_s;
        QTest::addRow("asymmetry 7: record is never written; all else")
            << u"real"_s << 17 << 3 << true
            << u"{'start': 17, 'length': 3, 'decimals': 3, 'field': 'F', 'lookup': true,"
               "'range': [{'min': 0.5, 'max': 9}, {'min': -2, 'max': -1.25}]}"_s;
    }
    void metadata()
    {
        QFETCH(QString, type);
        QFETCH(int, position);
        QFETCH(int, fieldSize);
        QFETCH(bool, filled);
        QFETCH(QString, inDocument);
        auto *variable = makeTyped(type);
        variable->setFieldRelativePosition(position);
        variable->setFieldSize(fieldSize);
        variable->setDecimals(3);
        auto *metadata = new MetadataVariables;
        metadata->setStart(99);
        metadata->setLength(99);
        variable->setMetadataVariables(metadata);
        if (filled) {
            metadata->setField(u"F"_s);
            metadata->setRecord(u"R"_s);
            metadata->setLookup(true);
            for (const auto &[min, max] : {std::pair(0.5, 9.0), std::pair(-2.0, -1.25)}) {
                metadata->addItemRange(new Range);
                metadata->getRange()->constLast()->setRangeMin(min);
                metadata->getRange()->constLast()->setRangeMax(max);
            }
        }
        const QJsonObject object = written(variable);
        COMPARE_JSON(object[u"metadata"_s], json(inDocument));
        QVERIFY(!object.contains(u"decimals"_s)); // Only inside the metadata.
    }

    void asymmetry9_valuesAreTypedByTheVariable_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("inDocument");
        QTest::addRow("no type: text") << QString() << u"7"_s << u"\"7\""_s;
        QTest::addRow("string: text") << u"string"_s << u"7"_s << u"\"7\""_s;
        QTest::addRow("upper case: text") << u"INTEGER"_s << u"7"_s << u"\"7\""_s;
        QTest::addRow("integer") << u"integer"_s << u"7"_s << u"7"_s;
        QTest::addRow("integer with zeros") << u"integer"_s << u"007"_s << u"7"_s;
        QTest::addRow("negative integer") << u"integer"_s << u"-7"_s << u"-7"_s;
        QTest::addRow("integer beyond int") << u"integer"_s << u"5000000000"_s << u"5000000000"_s;
        QTest::addRow("integer: no number is 0") << u"integer"_s << u"A"_s << u"0"_s;
        QTest::addRow("integer: a fraction is no integer") << u"integer"_s << u"1.5"_s << u"0"_s;
        QTest::addRow("integer: hexadecimal is not base 10") << u"integer"_s << u"0x10"_s << u"0"_s;
        QTest::addRow("real") << u"real"_s << u"2.5"_s << u"2.5"_s;
        QTest::addRow("real: no number is 0") << u"real"_s << u"A"_s << u"0"_s;
        QTest::addRow("real: what JSON cannot say is null") << u"real"_s << u"inf"_s << u"null"_s;
        QTest::addRow("empty: no key") << u"integer"_s << QString() << u"nothing"_s;
    }
    void asymmetry9_valuesAreTypedByTheVariable()
    {
        QFETCH(QString, type);
        QFETCH(QString, value);
        auto *variable = makeTyped(type);
        addLabel(variable, value);
        QTEST(compact(written(variable)[u"valueLabels"_s][0][u"value"_s]), "inDocument");
    }

    void valueLabelsKeepTheirOrderAndEmptyOnesStay()
    {
        auto *variable = makeTyped(u"integer"_s);
        addLabel(variable, u"2"_s, u"No"_s);
        addLabel(variable, {}, {});
        addLabel(variable, {}, u"Label alone"_s);
        addLabel(variable, u"1"_s);
        COMPARE_JSON(written(variable)[u"valueLabels"_s],
                     json(u"[{'value': 2, 'label': 'No'}, {}, {'label': 'Label alone'}, {'value': 1}]"_s));
    }

    void keysAscendInEveryObject()
    {
        auto *variable = makeVariable(u"n"_s, u"a"_s, u"l"_s, u"g"_s);
        variable->setMetadataVariables(new MetadataVariables);
        const QStringList keys = written(variable).keys();
        QVERIFY(std::is_sorted(keys.cbegin(), keys.cend()));
    }

    void modelIsNotChanged()
    {
        const auto root = makeEntities(u"A\n    B\n");
        root->addVariables(new TDcVariable);
        const QJsonObject first = written(*root);
        COMPARE_JSON(written(*root), first);
        QCOMPARE(root->getVariables()->constFirst()->getVarType(), QString());
    }
};

QTEST_APPLESS_MAIN(tst_ProcessDictionaryBusiness_Writer)

#include "tst_processdictionarybusiness_writer.moc"
