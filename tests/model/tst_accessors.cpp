#include "model/Config.h"
#include "model/SelectionTreeUnit.h"
#include "model/TDcEntity.h"
#include "model/TDcLookup.h"
#include "model/TDcSourceField.h"
#include "model/VarWipChoice.h"
#include "tests/support/Accessors.h"

#include <QTest>

#include <tuple>
#include <type_traits>

using namespace Qt::Literals::StringLiterals;

/// The classes that only keep what they are given.
class tst_Accessors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyARangeIsAPlainValue()
    {
        static_assert(std::is_copy_constructible_v<Range> && std::is_copy_assignable_v<Range>);
        const auto isFixed = []<typename... Class>(std::tuple<Class *...>) {
            return ((
                !std::is_copy_constructible_v<
                    Class> && !std::is_move_constructible_v<Class> && !std::is_copy_assignable_v<Class> && !std::is_move_assignable_v<Class>)&&...);
        };
        static_assert(
            isFixed(std::tuple<Config *, ConfigDb *, ConfigEntities *, ConfigOptions *, MetadataVariables *,
                               SelectionTreeUnit *, TDcEntity *, TDcLookup *, TDcSourceField *, TDcVariable *,
                               ValueLabelElement *, VarWipChoice *>()));
    }

    void range()
    {
        Range range;
        CHECK_ACCESSORS(range, RangeMin, 0.0, -1.5);
        CHECK_ACCESSORS(range, RangeMax, 0.0, 9.25);
        const Range copy = range; // A plain value.
        QCOMPARE(copy.getRangeMin(), -1.5);
        QCOMPARE(copy.getRangeMax(), 9.25);
    }

    void valueLabelElement()
    {
        ValueLabelElement element;
        CHECK_ACCESSORS(element, Value, QString(), u"007"_s);
        CHECK_ACCESSORS(element, Label, QString(), u"Seven"_s);
    }

    void varWipChoice()
    {
        VarWipChoice choice;
        CHECK_ACCESSORS(choice, DataProvider, QString(), u"CSV"_s);
        CHECK_ACCESSORS(choice, RecType, QString(), u"PERSON"_s);
        CHECK_ACCESSORS(choice, Field, QString(), u"F1"_s);
        CHECK_ACCESSORS(choice, Start, 0, 12);
    }

    void sourceField()
    {
        TDcSourceField field;
        CHECK_ACCESSORS(field, DataProviderType, QString(), u"CSV"_s);
        CHECK_ACCESSORS(field, FieldType, QString(), u"INTEGER"_s);
        for (const QString *text : {&field.name, &field.label, &field.categories, &field.rangeMin,
                                    &field.rangeMax, &field.missing, &field.notApp, &field.record})
            QVERIFY(text->isEmpty());
        for (const int *number : {&field.tag, &field.relativePosition, &field.decimals, &field.size})
            QCOMPARE(*number, 0);
    }

    void lookup()
    {
        TDcLookup lookup;
        CHECK_ACCESSORS(lookup, Id, QString(), u"L1"_s);
        CHECK_ACCESSORS(lookup, Label, QString(), u"Countries"_s);
    }

    void configDb()
    {
        ConfigDb dataBase;
        CHECK_ACCESSORS(dataBase, Name, QString(), u"name"_s);
        CHECK_ACCESSORS(dataBase, Label, QString(), u"label"_s);
        CHECK_ACCESSORS(dataBase, Author, QString(), u"author"_s);
        CHECK_ACCESSORS(dataBase, Filter, QString(), u"filter"_s);
        CHECK_ACCESSORS(dataBase, SelectFilter, QString(), u"selectFilter"_s);
        CHECK_ACCESSORS(dataBase, FileFilter, QString(), u"fileFilter"_s);
        CHECK_ACCESSORS(dataBase, Folder, QString(), u"folder"_s);
        CHECK_ACCESSORS(dataBase, Project, QString(), u"project"_s);
        CHECK_ACCESSORS(dataBase, SourceFile, QString(), u"sourceFile"_s);
        CHECK_ACCESSORS(dataBase, Password, QString(), u"password"_s);
        QCOMPARE(dataBase.getName(), u"name"_s);
        QCOMPARE(dataBase.getFilter(), u"filter"_s);
    }

    void configOptions()
    {
        ConfigOptions options;
        CHECK_ACCESSORS(options, CreateNotAppMissingInRange, false, true);
        QCOMPARE(options.getCreateNoRanges(), false);
        CHECK_ACCESSORS(options, CreateNoRanges, false, true);
    }
};

QTEST_APPLESS_MAIN(tst_Accessors)

#include "tst_accessors.moc"
