#include "models/VarRangeProxyModel.h"

#include "models/VarRangeModel.h"
#include "tests/support/ProxyContract.h"
#include "tests/support/Variables.h"

using namespace Qt::Literals::StringLiterals;

class TestVarRangeProxyModel : public QObject
{
    Q_OBJECT

    VarRangeProxyModel m_proxy;

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }

    void searchesItsColumns() { checkSearchContract(m_proxy, 2); }
    void searchesAsThePlainestWayDoes() { checkRandomSearches(m_proxy, 2); }
    void sortsAsThePlainestWayDoes() { checkRandomTextOrder(m_proxy); }
    void sortsAliasesByTheirAddress() { checkAddressOrder(m_proxy); }
    void sortsDatesByTime() { checkDateOrder(m_proxy, 1); }

    void sortsIntegersByValue()
    {
        for (const int column : {0, 1, 4})
            QCOMPARE(sorted(m_proxy, column, {10, -2, 9}), (QStringList{u"-2"_s, u"9"_s, u"10"_s}));
    }
    void letsTheLeftValueDecideWhatIsCompared()
    {
        struct Open : VarRangeProxyModel {
            using VarRangeProxyModel::lessThan;
        } proxy;
        QStandardItemModel source;
        setColumn(source, 0, {10, u"9"_s, u"abc"_s});
        const QModelIndex ten = source.index(0, 0);
        const QModelIndex nineAsText = source.index(1, 0);
        const QModelIndex word = source.index(2, 0);
        QVERIFY(!proxy.lessThan(ten, nineAsText)); // 10 < 9: an int is on the left.
        QVERIFY(!proxy.lessThan(nineAsText, ten)); // "9" < "10": a text is on the left.
        QVERIFY(!proxy.lessThan(ten, word)); // 10 < 0.
    }
    void sortsOtherNumbersAsTexts()
    {
        QCOMPARE(sorted(m_proxy, 0, {10.5, 9.5}), (QStringList{u"10.5"_s, u"9.5"_s}));
        QCOMPARE(sorted(m_proxy, 0, {10LL, 9LL}), (QStringList{u"10"_s, u"9"_s}));
    }

    void sortsWholeBoundsByValueInAView()
    {
        const auto variable = makeRanged(u"INTEGER"_s, {{10, 11}, {9, 100}, {-1, 20}});
        VarRangeModel source(nullptr, variable.get());
        m_proxy.setSourceModel(&source);
        QCOMPARE(sortedByClick(m_proxy, 0), (QStringList{u"-1"_s, u"9"_s, u"10"_s}));
        QCOMPARE(sortedByClick(m_proxy, 1), (QStringList{u"11"_s, u"20"_s, u"100"_s}));
        m_proxy.setFilterRegularExpression(u"1"_s); // In either column.
        QCOMPARE(columnTexts(m_proxy), (QStringList{u"10"_s, u"-1"_s, u"9"_s}));
        m_proxy.setFilterRegularExpression(u"^9"_s);
        QCOMPARE(columnTexts(m_proxy), QStringList{u"9"_s});
        m_proxy.setFilterRegularExpression(QString());
        m_proxy.setSourceModel(nullptr);
    }

    void sortsDecimalBoundsAsTextsOnPurpose()
    {
        const auto variable = makeRanged(u"REAL"_s, {{9.5, 1}, {10.5, 2}});
        VarRangeModel source(nullptr, variable.get());
        m_proxy.setSourceModel(&source);
        m_proxy.sort(0);
        QCOMPARE(columnTexts(m_proxy), (QStringList{u"10.5"_s, u"9.5"_s}));
        m_proxy.setSourceModel(nullptr);
    }
};

QTEST_MAIN(TestVarRangeProxyModel)
#include "tst_varrangeproxymodel.moc"
