#include "models/VariablesProxyModel.h"

#include "models/VariableModel.h"
#include "tests/support/ProxyContract.h"
#include "tests/support/Trees.h"

#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;

class TestVariablesProxyModel : public QObject
{
    Q_OBJECT

    VariablesProxyModel m_proxy;

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }

    void searchesFourColumns() { checkSearchContract(m_proxy, 4); }
    void searchesAsThePlainestWayDoes() { checkRandomSearches(m_proxy, 4); }

    void sortsTextsInTheOrderOfTheLocale()
    {
        QCOMPARE(sorted(m_proxy, 0, {u"oro"_s, u"ñu"_s, u"nube"_s, u"Nadie"_s, u"árbol"_s, u"b"_s}),
                 (QStringList{u"árbol"_s, u"b"_s, u"Nadie"_s, u"nube"_s, u"ñu"_s, u"oro"_s}));
    }
    void sortsAsThePlainestWayDoes() { checkRandomTextOrder(m_proxy); }
    void sortsAliasesByTheirAddress() { checkAddressOrder(m_proxy); }
    void sortsDatesByTime() { checkDateOrder(m_proxy, 0); }
    void sortsDatesByTimeInTheTagColumnToo() { checkDateOrder(m_proxy, 4); }
    void sortsNumbersOutsideTheTagColumnAsTexts()
    {
        QCOMPARE(sorted(m_proxy, 2, {10, 9, 100}), (QStringList{u"10"_s, u"100"_s, u"9"_s}));
    }

    void ordersATagAgainstAnotherColumnByText()
    {
        QStandardItemModel source;
        setColumn(source, 3, {10});
        setColumn(source, 4, {9});
        m_proxy.setSourceModel(&source);
        QVERIFY(!comesBefore(m_proxy, source.index(0, 4), source.index(0, 3)));
        QVERIFY(comesBefore(m_proxy, source.index(0, 3), source.index(0, 4)));
        m_proxy.setSourceModel(nullptr);
    }

    void sortsTags_data()
    {
        QTest::addColumn<QVariantList>("tags");
        QTest::addColumn<QStringList>("order");
        QTest::addRow("numbers before texts")
            << QVariantList{u"10"_s, u"9"_s, u"abc"_s} << QStringList{u"9"_s, u"10"_s, u"abc"_s};
        QTest::addRow("texts after numbers, however they begin")
            << QVariantList{u"!"_s, u"5x"_s, u"500"_s} << QStringList{u"500"_s, u"!"_s, u"5x"_s};
        QTest::addRow("ints") << QVariantList{10, -3, 9} << QStringList{u"-3"_s, u"9"_s, u"10"_s};
        QTest::addRow("ints among texts")
            << QVariantList{u"a"_s, 10, u"9"_s} << QStringList{u"9"_s, u"10"_s, u"a"_s};
        QTest::addRow("blanks around") << QVariantList{u" 10"_s, u"9 "_s} << QStringList{u"9 "_s, u" 10"_s};
        QTest::addRow("texts by locale")
            << QVariantList{u"o"_s, u"ñ"_s, u"n"_s} << QStringList{u"n"_s, u"ñ"_s, u"o"_s};
        QTest::addRow("too large to be a number")
            << QVariantList{u"99999999999"_s, u"200"_s} << QStringList{u"200"_s, u"99999999999"_s};
        QTest::addRow("group separators of the locale are read")
            << QVariantList{u"20.000"_s, u"3000"_s} << QStringList{u"3000"_s, u"20.000"_s};
        QTest::addRow("fractions are texts")
            << QVariantList{u"1,5"_s, u"30"_s} << QStringList{u"30"_s, u"1,5"_s};
    }
    void sortsTags()
    {
        QFETCH(QVariantList, tags);
        QFETCH(QStringList, order);
        QCOMPARE(sorted(m_proxy, 4, tags), order);
        std::reverse(tags.begin(), tags.end());
        QCOMPARE(sorted(m_proxy, 4, tags), order);
    }

    void readsTagsInTheDefaultLocale()
    {
        const QVariantList tags{u"20.000"_s, u"3000"_s, u"x"_s};
        QLocale::setDefault(QLocale::c()); // Where a point ends a whole number.
        QCOMPARE(sorted(m_proxy, 4, tags), (QStringList{u"3000"_s, u"20.000"_s, u"x"_s}));
        QCOMPARE(sorted(m_proxy, 4, {u"20.000"_s, u"30000"_s}), (QStringList{u"30000"_s, u"20.000"_s}));
        QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
        QCOMPARE(sorted(m_proxy, 4, {u"30000"_s, u"20.000"_s}), (QStringList{u"20.000"_s, u"30000"_s}));
    }

    void knowsWhatLiesBetweenItsDates_data()
    {
        QTest::addColumn<QDate>("minimum");
        QTest::addColumn<QDate>("maximum");
        QTest::addColumn<QDate>("date");
        QTest::addColumn<bool>("inRange");
        const QDate first(2024, 1, 1);
        const QDate last(2024, 12, 31);
        const QDate none;
        QTest::addRow("no bounds") << none << none << first << true;
        QTest::addRow("the minimum itself") << first << none << first << false;
        QTest::addRow("after the minimum") << first << none << first.addDays(1) << true;
        QTest::addRow("before the minimum") << first << none << first.addDays(-1) << false;
        QTest::addRow("the maximum itself") << none << last << last << false;
        QTest::addRow("before the maximum") << none << last << last.addDays(-1) << true;
        QTest::addRow("after the maximum") << none << last << last.addDays(1) << false;
        QTest::addRow("between") << first << last << QDate(2024, 6, 1) << true;
        QTest::addRow("no date within no bounds") << none << none << none << true;
    }
    void knowsWhatLiesBetweenItsDates()
    {
        QFETCH(QDate, minimum);
        QFETCH(QDate, maximum);
        QFETCH(QDate, date);
        VariablesProxyModel proxy;
        proxy.setFilterMinimumDate(minimum);
        proxy.setFilterMaximumDate(maximum);
        QTEST(proxy.dateInRange(date), "inRange");
    }

    void filtersAgainWhenADateIsSet()
    {
        struct Counting : VariablesProxyModel {
            mutable int asked = 0;
            bool filterAcceptsRow(int row, const QModelIndex &parent) const override
            {
                ++asked;
                return VariablesProxyModel::filterAcceptsRow(row, parent);
            }
        } proxy;
        QStandardItemModel source;
        setColumn(source, 0, {u"a"_s, u"b"_s});
        proxy.setSourceModel(&source);
        QCOMPARE(proxy.rowCount(), 2);
        proxy.asked = 0;
        proxy.setFilterMinimumDate(QDate(2024, 1, 1));
        QCOMPARE(proxy.asked, 2);
        proxy.setFilterMaximumDate(QDate(2024, 1, 1));
        QCOMPARE(proxy.asked, 4);
        QCOMPARE(proxy.rowCount(), 2); // The filter does not look at dates.
    }

    void sortsWizardVariablesInAView()
    {
        TDcEntity entity;
        for (const int tag : {10, 9, 100}) {
            TDcVariable *variable = makeVariable(u"V%1"_s.arg(tag), u"x%1"_s.arg(-tag), u"Años"_s);
            variable->setTag(tag);
            entity.addVariables(variable);
        }
        VariableModel source(nullptr, &entity, entity.getVariables());
        m_proxy.setSourceModel(&source);
        QCOMPARE(sortedByClick(m_proxy, 4), (QStringList{u"9"_s, u"10"_s, u"100"_s}));
        QCOMPARE(sortedByClick(m_proxy, 0), (QStringList{u"V10"_s, u"V100"_s, u"V9"_s}));
        m_proxy.setFilterRegularExpression(u"AÑOS"_s);
        QCOMPARE(m_proxy.rowCount(), 3);
        m_proxy.setFilterRegularExpression(u"V10"_s);
        QCOMPARE(columnTexts(m_proxy), (QStringList{u"V10"_s, u"V100"_s}));
        m_proxy.setSourceModel(nullptr);
    }
};

QTEST_MAIN(TestVariablesProxyModel)
#include "tst_variablesproxymodel.moc"
