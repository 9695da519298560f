#include "model/TDcVariable.h"
#include "model/ValueLabelElement.h"
#include "tests/support/Accessors.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_TDcVariable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void properties()
    {
        TDcVariable variable;
        CHECK_ACCESSORS(variable, Name, QString(), u"AGE"_s);
        CHECK_ACCESSORS(variable, Label, QString(), u"Age"_s);
        CHECK_ACCESSORS(variable, Alias, QString(), u"age"_s);
        CHECK_ACCESSORS(variable, Group, QString(), u"Persons"_s);
        CHECK_ACCESSORS(variable, VarType, QString(), u"any word"_s);
        CHECK_ACCESSORS(variable, Documentation, QString(), u"In years."_s);
        CHECK_ACCESSORS(variable, FileName, QString(), u"a.dat"_s);
        CHECK_ACCESSORS(variable, Size, 0, 10);
        CHECK_ACCESSORS(variable, Decimals, 0, 2);
        CHECK_ACCESSORS(variable, FieldSize, 0, 3);
        CHECK_ACCESSORS(variable, FieldRelativePosition, 1, 17);
        CHECK_ACCESSORS(variable, Missing, 0, 99);
        CHECK_ACCESSORS(variable, Notappl, 0, 98);
        CHECK_ACCESSORS(variable, Tag, 0, 7);
        CHECK_ACCESSORS(variable, Checked, 0, 2);
        CHECK_ACCESSORS(variable, Level, 0, 4);
        CHECK_ACCESSORS(variable, Local, false, true);
    }

    void newVariableHasNoMetadataAndNoValueLabels()
    {
        const TDcVariable variable;
        QVERIFY(!variable.getMetadataVariables());
        QVERIFY(variable.getValueLabelElementList());
        QVERIFY(variable.getValueLabelElementList()->isEmpty());
    }

    void metadataIsTakenOverAndReplaced()
    {
        TDcVariable variable;
        auto *first = new MetadataVariables;
        variable.setMetadataVariables(first);
        variable.setMetadataVariables(first); // The same one stays.
        first->setField(u"F"_s);
        QCOMPARE(variable.getMetadataVariables()->getField(), u"F"_s);
        auto *second = new MetadataVariables;
        variable.setMetadataVariables(second);
        QCOMPARE(variable.getMetadataVariables(), second);
        variable.setMetadataVariables(nullptr);
        QVERIFY(!variable.getMetadataVariables());
    }

    void addValueLabelElementAppendsToTheListReturnedEarlier()
    {
        TDcVariable variable;
        const auto *live = variable.getValueLabelElementList();
        variable.addValueLabelElement(new ValueLabelElement);
        auto *last = new ValueLabelElement;
        variable.addValueLabelElement(last);
        QCOMPARE(live->size(), 2);
        QCOMPARE(live->constLast(), last);
    }

    void setValueLabelElementListTakesTheListOver()
    {
        TDcVariable variable;
        variable.addValueLabelElement(new ValueLabelElement);
        auto *given = new QList<ValueLabelElement *>{new ValueLabelElement, new ValueLabelElement};
        variable.setValueLabelElementList(given);
        QCOMPARE(variable.getValueLabelElementList(), given);
    }

    void metadataProperties()
    {
        MetadataVariables metadata;
        CHECK_ACCESSORS(metadata, Record, QString(), u"R1"_s);
        CHECK_ACCESSORS(metadata, Field, QString(), u"F1"_s);
        CHECK_ACCESSORS(metadata, Start, 0, 12);
        CHECK_ACCESSORS(metadata, Length, 0, 3);
        CHECK_ACCESSORS(metadata, Lookup, false, true);
    }

    void addItemRangeAppendsToTheListReturnedEarlier()
    {
        MetadataVariables metadata;
        const auto *live = metadata.getRange();
        QVERIFY(live);
        QVERIFY(live->isEmpty());
        auto *range = new Range;
        metadata.addItemRange(range);
        QCOMPARE(live->size(), 1);
        QCOMPARE(live->constFirst(), range);
    }

    void setRangeReplacesTheList()
    {
        MetadataVariables metadata;
        metadata.addItemRange(new Range);
        auto *given = new QList<Range *>{new Range, new Range};
        metadata.setRange(given);
        QCOMPARE(metadata.getRange(), given);
    }
};

QTEST_APPLESS_MAIN(tst_TDcVariable)

#include "tst_tdcvariable.moc"
