#include "models/VariablesDictionaryProxyModel.h"

#include "models/VariableDiccionaryModel.h"
#include "tests/support/ProxyContract.h"
#include "tests/support/Trees.h"

using namespace Qt::Literals::StringLiterals;

class TestVariablesDictionaryProxyModel : public QObject
{
    Q_OBJECT

    VariablesDictionaryProxyModel m_proxy;

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }

    void searchesItsColumns() { checkSearchContract(m_proxy, 5); }
    void searchesAsThePlainestWayDoes() { checkRandomSearches(m_proxy, 5); }
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
        struct Open : VariablesDictionaryProxyModel {
            using VariablesDictionaryProxyModel::lessThan;
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

    void sortsAndSearchesVariablesInAView()
    {
        TDcEntity entity;
        for (const int tag : {10, 9, 100}) {
            TDcVariable *variable = makeVariable(u"V%1"_s.arg(tag), u"%1 a.%2@x"_s.arg(tag).arg(200 - tag));
            variable->setTag(tag);
            entity.addVariables(variable);
        }
        VariableDiccionaryModel source(nullptr, &entity, &entity);
        m_proxy.setSourceModel(&source);
        QCOMPARE(sortedByClick(m_proxy, 4), (QStringList{u"9"_s, u"10"_s, u"100"_s}));
        QCOMPARE(sortedByClick(m_proxy, 1), (QStringList{u"100 a.100@x"_s, u"10 a.190@x"_s, u"9 a.191@x"_s}));
        m_proxy.setFilterRegularExpression(u"^9$"_s); // The tag, as a text.
        QCOMPARE(columnTexts(m_proxy), QStringList{u"V9"_s});
        m_proxy.setFilterRegularExpression(u"19[01]@X"_s);
        QCOMPARE(columnTexts(m_proxy), (QStringList{u"V10"_s, u"V9"_s}));

        // An edit through the proxy finds its new place.
        QVERIFY(m_proxy.setData(m_proxy.index(0, 1), u"z.5@x"_s));
        QCOMPARE(columnTexts(m_proxy), QStringList{u"V9"_s});
        m_proxy.setSourceModel(nullptr);
    }
};

QTEST_MAIN(TestVariablesDictionaryProxyModel)
#include "tst_variablesdictionaryproxymodel.moc"
