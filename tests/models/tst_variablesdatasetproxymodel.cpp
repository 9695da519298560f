#include "models/VariablesDatasetProxyModel.h"

#include "model/TDcSourceField.h"
#include "models/DatasetPropertiesFieldsModel.h"
#include "tests/support/ProxyContract.h"

using namespace Qt::Literals::StringLiterals;

class TestVariablesDatasetProxyModel : public QObject
{
    Q_OBJECT

    VariablesDatasetProxyModel m_proxy;

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }

    void searchesItsColumns() { checkSearchContract(m_proxy, 3); }
    void searchesAsThePlainestWayDoes() { checkRandomSearches(m_proxy, 3); }
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
        struct Open : VariablesDatasetProxyModel {
            using VariablesDatasetProxyModel::lessThan;
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

    void sortsAndSearchesFieldsInAView()
    {
        QList<TDcSourceField *> fields;
        for (const QString &name : {u"V10"_s, u"V9"_s, u"ñu"_s, u"nube"_s, u"oro"_s}) {
            fields.append(new TDcSourceField);
            fields.last()->name = name;
            fields.last()->label = u"label of "_s + name;
        }
        {
            DatasetPropertiesFieldsModel source(nullptr, &fields, u"*"_s);
            m_proxy.setSourceModel(&source);
            QCOMPARE(m_proxy.rowCount(), 5);
            const QStringList order{u"nube"_s, u"ñu"_s, u"oro"_s, u"V10"_s, u"V9"_s};
            QStringList shown = sortedByClick(m_proxy, 0);
            QCOMPARE(shown, order);
            m_proxy.setFilterRegularExpression(u"ÑU|V1"_s);
            QCOMPARE(columnTexts(m_proxy), (QStringList{u"ñu"_s, u"V10"_s}));
            m_proxy.setSourceModel(nullptr);
        }
        qDeleteAll(fields);
    }
};

QTEST_MAIN(TestVariablesDatasetProxyModel)
#include "tst_variablesdatasetproxymodel.moc"
