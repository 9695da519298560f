#include "model/ValueLabelElement.h"
#include "tests/support/VariableTable.h"

#include <QJsonArray>
#include <QSignalSpy>
#include <QTest>

#include <climits>

using namespace Qt::Literals::StringLiterals;

namespace
{
QString rangeText(const QString &type, const QVariant &min, const QVariant &max)
{
    return objectText({{u"name"_s, u"V"_s},
                       {u"fieldType"_s, type},
                       {u"fieldRangeMin"_s, min.toJsonValue()},
                       {u"fieldRangeMax"_s, max.toJsonValue()}});
}
} // namespace

/// What a dropped field becomes.
class TestFieldImport : public QObject, VariableTable
{
    Q_OBJECT

    [[nodiscard]] std::unique_ptr<TDcVariable> read(const QString &text, int position = 0)
    {
        return std::unique_ptr<TDcVariable>(m_model->getVariableFromJsonDrop(text, position));
    }

private Q_SLOTS:
    void init() { makeTable(); }
    void cleanup() { clearTable(); }

    void announcesEachFieldThatIsRead()
    {
        const QSignalSpy dropped(m_model.get(), &VariableDiccionaryModel::signalVariableDropped);
        const QSignalSpy modified(m_model.get(), &VariableDiccionaryModel::signalVariablesModified);
        (void)read(fieldText(u"A"_s));
        QCOMPARE(dropped.size(), 1);
        QVERIFY(modified.isEmpty());
        QCOMPARE(variables().size(), 2);
    }

    void partsNameAndAlias_data()
    {
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<QString>("splitter");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("alias");
        QTest::addRow("at the splitter") << true << u"_"_s << u"HH_AGE"_s << u"HH"_s << u"AGE"_s;
        QTest::addRow("at the first splitter") << true << u"_"_s << u"A_B_C"_s << u"A"_s << u"B_C"_s;
        QTest::addRow("not at position 0") << true << u"_"_s << u"_AGE"_s << u"_AGE"_s << QString();
        QTest::addRow("not at position 0, and nowhere else then")
            << true << u"_"_s << u"_A_B"_s << u"_A_B"_s << QString();
        QTest::addRow("splitter at the end") << true << u"_"_s << u"AGE_"_s << u"AGE"_s << QString();
        QTest::addRow("no splitter") << true << u"_"_s << u"AGE"_s << u"AGE"_s << QString();
        QTest::addRow("disabled") << false << u"_"_s << u"HH_AGE"_s << u"HH_AGE"_s << QString();
        QTest::addRow("long splitter: one character is skipped")
            << true << u"--"_s << u"HH--AGE"_s << u"HH"_s << u"-AGE"_s;
        QTest::addRow("letter case counts") << true << u"x"_s << u"AXBxC"_s << u"AXB"_s << u"C"_s;
        QTest::addRow("empty splitter") << true << QString() << u"HH_AGE"_s << u"HH_AGE"_s << QString();
        QTest::addRow("no pattern") << true << u"."_s << u"HH.AGE"_s << u"HH"_s << u"AGE"_s;
    }
    void partsNameAndAlias()
    {
        QFETCH(const bool, enabled);
        QFETCH(const QString, splitter);
        QFETCH(const QString, field);
        m_model->setSplitterEnabled(enabled);
        m_model->setSplitterCharacter(splitter);
        const auto variable = read(fieldText(field, u"The label"_s));
        QTEST(variable->getName(), "name");
        QTEST(variable->getAlias(), "alias");
        QCOMPARE(variable->getLabel(), u"The label"_s);
        QCOMPARE(variable->getMetadataVariables()->getField(), field); // Always the whole name.
    }

    void tagsFollowTheHighest_data()
    {
        QTest::addColumn<QList<int>>("existing");
        QTest::addColumn<int>("position");
        QTest::addColumn<int>("tag");
        QTest::addRow("no variables") << QList<int>() << 0 << 1;
        QTest::addRow("no variables, third") << QList<int>() << 2 << 3;
        QTest::addRow("after the highest") << QList<int>{7, 3} << 0 << 8;
        QTest::addRow("after the highest, third") << QList<int>{3, 7} << 2 << 10;
        QTest::addRow("negative ones count") << QList<int>{-5, -9} << 0 << -4;
        QTest::addRow("no overflow") << QList<int>{INT_MAX} << 0 << INT_MAX;
    }
    void tagsFollowTheHighest()
    {
        QFETCH(const QList<int>, existing);
        QFETCH(const int, position);
        qDeleteAll(std::exchange(variables(), {}));
        for (const int tag : existing) {
            m_person->addVariables(makeVariable(u"V"_s));
            variables().last()->setTag(tag);
        }
        const QString text = objectText({{u"name"_s, u"A"_s}, {u"tag"_s, 500}}); // Its own tag is not used.
        QTEST(read(text, position)->getTag(), "tag");
    }

    void theTypeIsTheFieldsOrThatOfANewVariable()
    {
        QCOMPARE(read(fieldText(u"A"_s, {}, u"REAL"_s))->getVarType(), u"REAL"_s);
        QCOMPARE(read(fieldText(u"A"_s, {}, u"real"_s))->getVarType(), u"real"_s);
        QCOMPARE(read(u"{\"name\": \"A\"}"_s)->getVarType(), TDcVariable().getVarType());
    }

    void rangesAndCodesFollowTheType_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QVariant>("minText");
        QTest::addColumn<QVariant>("maxText");
        QTest::addColumn<QList<double>>("range");
        QTest::addColumn<int>("notappl");
        QTest::addColumn<int>("missing");
        const auto row = [](const char *name, const QString &type, const QVariant &minText,
                            const QVariant &maxText, const QList<double> &range, int notappl, int missing) {
            QTest::addRow("%s", name) << type << minText << maxText << range << notappl << missing;
        };
        const QString integer = u"INTEGER"_s;
        const QString real = u"REAL"_s;
        row("from 1", integer, u"1"_s, u"9"_s, {1, 9}, 0, 10);
        row("from 0", integer, u"0"_s, u"99"_s, {0, 99}, 101, 100);
        row("from above 1", integer, u"5"_s, u"9"_s, {5, 9}, 0, 1);
        row("from below 0", integer, u"-5"_s, u"9"_s, {-5, 9}, 11, 10);
        row("all below 0", integer, u"-9"_s, u"-5"_s, {-9, -5}, -3, -4);
        row("blanks around", integer, u" 1 "_s, u"9\t"_s, {1, 9}, 0, 10);
        row("fraction is no integer", integer, u"1.5"_s, u"9"_s, {0, 9}, 11, 10);
        row("word is none", integer, u"low"_s, u"high"_s, {0, 0}, 2, 1);
        row("hexadecimal is none", integer, u"0x10"_s, u"0x20"_s, {0, 0}, 2, 1);
        row("leading zeros are decimal", integer, u"010"_s, u"020"_s, {10, 20}, 0, 1);
        row("beyond an int", integer, u"0"_s, u"99999999999"_s, {0, 99999999999.0}, INT_MAX, INT_MAX);
        row("longer than a long long", integer, u"0"_s, u"99999999999999999999"_s, {0, 0}, 2, 1);
        row("bounds as numbers", integer, 1, 9, {1, 9}, 0, 10);
        row("real", real, u"0.5"_s, u"9.75"_s, {0.5, 9.75}, 0, 10);
        row("real from 1", real, u"1.0"_s, u"2.5"_s, {1, 2.5}, 0, 3);
        row("real just above 1", real, u"1.01"_s, u"2.5"_s, {1.01, 2.5}, 0, 1);
        row("real below 0 is cut towards 0", real, u"-9"_s, u"-3.5"_s, {-9, -3.5}, -1, -2);
        row("real sum is cut, not its parts", real, u"-9"_s, u"-0.5"_s, {-9, -0.5}, 1, 0);
        row("real with exponent", real, u"0"_s, u"1e3"_s, {0, 1000}, 1002, 1001);
        row("real beyond an int", real, u"-1"_s, u"1e300"_s, {-1, 1e300}, INT_MAX, INT_MAX);
        row("real below an int", real, u"-1e300"_s, u"-1e299"_s, {-1e300, -1e299}, INT_MIN, INT_MIN);
        row("real with a comma is none", real, u"0,5"_s, u"1,5"_s, {0, 0}, 2, 1);
        row("other types are as REAL", u"integer"_s, u"0.5"_s, u"1.5"_s, {0.5, 1.5}, 0, 2);
        row("no type is as REAL", QString(), u"0.5"_s, u"1.5"_s, {0.5, 1.5}, 0, 2);
        row("no bounds", real, QString(), QString(), {0, 0}, 2, 1);
        row("string has none", u"STRING"_s, u"1"_s, u"9"_s, {}, 0, 0);
        row("string is compared exactly", u"String"_s, u"1"_s, u"9"_s, {1, 9}, 0, 10);
    }
    void rangesAndCodesFollowTheType()
    {
        QFETCH(const QString, type);
        QFETCH(const QVariant, minText);
        QFETCH(const QVariant, maxText);
        const auto variable = read(rangeText(type, minText, maxText));
        QList<double> range;
        for (const Range *each : std::as_const(*variable->getMetadataVariables()->getRange()))
            range += {each->getRangeMin(), each->getRangeMax()};
        QTEST(range, "range");
        QTEST(variable->getNotappl(), "notappl");
        QTEST(variable->getMissing(), "missing");
    }

    void aBoundThatIsNotANumberIsHarmless()
    {
        const auto variable = read(rangeText(u"REAL"_s, u"nan"_s, u"nan"_s));
        QCOMPARE(variable->getNotappl(), 0);
        QCOMPARE(variable->getMissing(), 0);
    }

    void sizesAndDecimalsAreTheFields()
    {
        const auto variable = read(objectText({{u"fieldDecimals"_s, 2},
                                               {u"fieldSize"_s, 12},
                                               {u"fieldRelativePosition"_s, 44},
                                               {u"fieldMissing"_s, u"97"_s},
                                               {u"fieldNotApp"_s, u"98"_s},
                                               {u"fieldType"_s, u"STRING"_s}}));
        QCOMPARE(variable->getDecimals(), 2);
        QCOMPARE(variable->getFieldSize(), 12);
        QCOMPARE(variable->getSize(), 12);
        QCOMPARE(variable->getFieldRelativePosition(), 1); // On purpose; so are the codes.
        QCOMPARE(variable->getMissing(), 0);
        QCOMPARE(variable->getNotappl(), 0);
    }

    void aLookupBecomesAText()
    {
        const auto variable = read(lookupText(u"12"_s, u"Regions"_s));
        QCOMPARE(variable->getName(), u"12"_s);
        QCOMPARE(variable->getLabel(), u"Regions"_s);
        QCOMPARE(variable->getVarType(), u"STRING"_s);
        QVERIFY(variable->getMetadataVariables()->getLookup());
        QCOMPARE(variable->getFieldSize(), 64);
        QCOMPARE(variable->getSize(), 64);
        QCOMPARE(variable->getMissing(), 0);
        QCOMPARE(variable->getNotappl(), 0);
    }
    void aLookupKeepsTheRangeThatItGotBefore()
    {
        const auto variable = read(lookupText(u"12"_s));
        QCOMPARE(variable->getMetadataVariables()->getRange()->size(), 1);
        QCOMPARE(variable->getMetadataVariables()->getRange()->first()->getRangeMax(), 0.0);
    }
    void onlyTheExactWordMakesALookup()
    {
        for (const QString &type : {u"lookup"_s, u"LOOKUP "_s, QString()})
            QVERIFY(!read(objectText({{u"type"_s, type}}))->getMetadataVariables()->getLookup());
        QVERIFY(!read(fieldText(u"A"_s, {}, u"LOOKUP"_s))->getMetadataVariables()->getLookup());
    }

    void whatIsNoObjectMakesANamelessVariable_data()
    {
        QTest::addColumn<QString>("text");
        for (const QString &text :
             {u""_s, u"no JSON"_s, u"[{\"name\": \"A\"}]"_s, u"{\"name\": \"A\""_s, u"{}"_s})
            QTest::addRow("%s", qPrintable(text)) << text;
    }
    void whatIsNoObjectMakesANamelessVariable()
    {
        QFETCH(const QString, text);
        const auto variable = read(text, 1);
        QCOMPARE(variable->getName(), QString());
        QCOMPARE(variable->getVarType(), QString());
        QCOMPARE(variable->getTag(), 9);
        QCOMPARE(variable->getMetadataVariables()->getField(), QString());
        QCOMPARE(variable->getMetadataVariables()->getRange()->size(), 1);
        QCOMPARE(variable->getNotappl(), 2);
        QCOMPARE(variable->getMissing(), 1);
        QVERIFY(variable->getValueLabelElementList()->isEmpty());
        QVERIFY(!variable->getMetadataVariables()->getLookup());
    }

    void loadsCategories_data()
    {
        QTest::addColumn<QVariant>("categories");
        QTest::addColumn<QStringList>("loaded");
        const auto category = [](const QVariant &code, const QVariant &label) {
            return QVariant(QVariantMap{{u"codigoCategoria"_s, code}, {u"nombreCategoria"_s, label}});
        };
        const QVariant male = category(u"1"_s, u"Male"_s);
        const QVariant female = category(u"2"_s, u"Female"_s);
        QTest::addRow("list") << QVariant(QVariantList{male, female})
                              << QStringList{u"1|Male"_s, u"2|Female"_s};
        QTest::addRow("single one without a list") << male << QStringList{u"1|Male"_s};
        QTest::addRow("empty list") << QVariant(QVariantList()) << QStringList();
        QTest::addRow("nothing") << QVariant() << QStringList();
        QTest::addRow("text") << QVariant(u"abc"_s) << QStringList();
        QTest::addRow("without a code")
            << QVariant(QVariantList{category(QString(), u"x"_s), male, QVariantMap()})
            << QStringList{u"1|Male"_s};
        QTest::addRow("without a label") << category(u"9"_s, {}) << QStringList{u"9|"_s};
        QTest::addRow("blank is a code") << category(u" "_s, u"x"_s) << QStringList{u" |x"_s};
        QTest::addRow("number as a code") << category(3, u"Three"_s) << QStringList{u"3|Three"_s};
        QTest::addRow("repeated") << QVariant(QVariantList{male, male})
                                  << QStringList{u"1|Male"_s, u"1|Male"_s};
    }
    void loadsCategories()
    {
        QFETCH(const QVariant, categories);
        QFETCH(const QStringList, loaded);
        const auto lines = [](const QList<ValueLabelElement *> &elements) {
            QStringList texts;
            for (const ValueLabelElement *element : elements)
                texts += element->getValue() + u'|' + element->getLabel();
            return texts;
        };
        const std::unique_ptr<QList<ValueLabelElement *>> elements(m_model->loadCategories(categories));
        QCOMPARE(lines(*elements), loaded);
        qDeleteAll(*elements);

        const auto variable = read(objectText({{u"categories"_s, QJsonValue::fromVariant(categories)}}));
        QCOMPARE(lines(*variable->getValueLabelElementList()), loaded);
    }
};

QTEST_MAIN(TestFieldImport)
#include "tst_fieldimport.moc"
