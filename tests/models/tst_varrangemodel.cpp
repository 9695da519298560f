#include "models/VarRangeModel.h"

#include "tests/support/EditorContract.h"
#include "tests/support/Variables.h"

#include <limits>

using namespace Qt::Literals::StringLiterals;

class TestVarRangeModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTheContract()
    {
        const auto variable = makeRanged(u"REAL"_s, {{1, 2}, {3, 4}, {5, 6}});
        const VarRangeModel model(nullptr, variable.get());
        checkRowListContract(model, *variable->getMetadataVariables()->getRange(), 2);
    }

    void showsNothingOfAVariableWithoutRanges()
    {
        const auto variable = makeRanged(u"INTEGER"_s, {});
        const VarRangeModel model(nullptr, variable.get());
        checkRowListContract(model, QList<Range *>(), 2);
        checkHeaderContract(model, {u"Minimum"_s, u"Maximum"_s});
    }

    void showsNothingOfAVariableWithoutMetadata()
    {
        TDcVariable variable;
        const VarRangeModel model(nullptr, &variable);
        checkRowListContract(model, QList<Range *>(), 2);
        checkHeaderContract(model, {u"Minimum"_s, u"Maximum"_s});
    }

    void shows_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<double>("stored");
        QTest::addColumn<QVariant>("shown");
        constexpr double infinite = std::numeric_limits<double>::infinity();
        constexpr int maximum = std::numeric_limits<int>::max();
        constexpr int minimum = std::numeric_limits<int>::min();
        QTest::addRow("integer is cut") << u"INTEGER"_s << 3.7 << QVariant(3);
        QTest::addRow("negative integer is cut towards zero") << u"INTEGER"_s << -3.7 << QVariant(-3);
        QTest::addRow("largest integer") << u"INTEGER"_s << 2147483647.9 << QVariant(maximum);
        QTest::addRow("too large for an integer") << u"INTEGER"_s << 1e12 << QVariant(maximum);
        QTest::addRow("too small for an integer") << u"INTEGER"_s << -1e12 << QVariant(minimum);
        QTest::addRow("infinite integer") << u"INTEGER"_s << infinite << QVariant(maximum);
        QTest::addRow("integer that is no number")
            << u"INTEGER"_s << std::numeric_limits<double>::quiet_NaN() << QVariant(0);
        QTest::addRow("real") << u"REAL"_s << 3.7 << QVariant(3.7);
        QTest::addRow("type words are compared exactly") << u"integer"_s << 3.7 << QVariant(3.7);
        QTest::addRow("with blanks") << u" INTEGER"_s << 3.7 << QVariant(3.7);
        QTest::addRow("text") << u"STRING"_s << 3.0 << QVariant(3.0);
        QTest::addRow("no type") << QString() << 0.5 << QVariant(0.5);
    }
    void shows()
    {
        QFETCH(QString, type);
        QFETCH(double, stored);
        QFETCH(QVariant, shown);
        const auto variable = makeRanged(type, {{stored, 7}, {7, stored}});
        const VarRangeModel model(nullptr, variable.get());
        for (const int role : {Qt::DisplayRole, Qt::EditRole}) {
            QCOMPARE(model.index(0, 0).data(role), shown);
            QCOMPARE(model.index(0, 0).data(role).typeId(), shown.typeId());
            QCOMPARE(model.index(1, 1).data(role), shown);
            QCOMPARE(model.index(0, 1).data(role).toDouble(), 7.0);
        }
    }

    void givesItemData()
    {
        const auto variable = makeRanged(u"REAL"_s, {{1, 2}});
        const VarRangeModel model(nullptr, variable.get());
        Range range;
        range.setRangeMax(9);
        QCOMPARE(model.getItemData(&range, 0), QVariant(0.0));
        QCOMPARE(model.getItemData(&range, 1), QVariant(9.0));
        QVERIFY(!model.getItemData(&range, 2).isValid());
        QVERIFY(!model.getItemData(&range, -1).isValid());
        QVERIFY(!model.getItemData(nullptr, 0).isValid());
    }

    void stores_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QVariant>("typed");
        QTest::addColumn<double>("stored");
        QTest::addRow("integer") << u"INTEGER"_s << QVariant(12) << 12.0;
        QTest::addRow("integer from text") << u"INTEGER"_s << QVariant(u"-12"_s) << -12.0;
        QTest::addRow("integer from a fraction is rounded") << u"INTEGER"_s << QVariant(1.9) << 2.0;
        QTest::addRow("integer from no number") << u"INTEGER"_s << QVariant(u"1.9"_s) << 0.0;
        QTest::addRow("real") << u"REAL"_s << QVariant(1.9) << 1.9;
        QTest::addRow("real from text") << u"REAL"_s << QVariant(u"1e3"_s) << 1000.0;
        QTest::addRow("real from no number") << u"REAL"_s << QVariant(u"abc"_s) << 0.0;
        QTest::addRow("lower-case integer") << u"integer"_s << QVariant(1.9) << 1.9;
    }
    void stores()
    {
        QFETCH(QString, type);
        QFETCH(QVariant, typed);
        QFETCH(double, stored);
        const auto variable = makeRanged(type, {{5, 6}});
        VarRangeModel model(nullptr, variable.get());
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        const Range *range = variable->getMetadataVariables()->getRange()->first();

        QVERIFY(model.setData(model.index(0, 0), typed));
        QCOMPARE(range->getRangeMin(), stored);
        QCOMPARE(range->getRangeMax(), 6.0);
        QVERIFY(model.setData(model.index(0, 1), typed));
        QCOMPARE(range->getRangeMax(), stored);
        QCOMPARE(changed.size(), 2);
        QCOMPARE(changed.at(1).at(0).toModelIndex(), model.index(0, 1));
        QCOMPARE(changed.at(1).at(1).toModelIndex(), model.index(0, 1));
    }

    void storesAMinimumAboveTheMaximum()
    {
        const auto variable = makeRanged(u"INTEGER"_s, {{1, 2}});
        VarRangeModel model(nullptr, variable.get());
        QVERIFY(model.setData(model.index(0, 0), 100));
        QCOMPARE(variable->getMetadataVariables()->getRange()->first()->getRangeMin(), 100.0);
        QCOMPARE(variable->getMetadataVariables()->getRange()->first()->getRangeMax(), 2.0);
    }

    void announcesRolesThatStoreNothing()
    {
        const auto variable = makeRanged(u"INTEGER"_s, {{1, 2}});
        VarRangeModel model(nullptr, variable.get());
        checkSilentRolesContract(model, 50);
    }

    void doesNotSeeLaterChangesOfTheList()
    {
        const auto variable = makeRanged(u"INTEGER"_s, {{1, 2}});
        const VarRangeModel model(nullptr, variable.get());
        variable->getMetadataVariables()->addItemRange(new Range);
        QCOMPARE(model.rowCount(), 1);
    }

    void answersIndexesOfOtherModelsAsInvalid()
    {
        const auto variable = makeRanged(u"INTEGER"_s, {{1, 2}});
        VarRangeModel model(nullptr, variable.get());
        const VarRangeModel other(nullptr, variable.get());
        QVERIFY(!model.data(other.index(0, 0)).isValid());
        QVERIFY(!model.setData(other.index(0, 0), 5));
    }
};

QTEST_MAIN(TestVarRangeModel)
#include "tst_varrangemodel.moc"
