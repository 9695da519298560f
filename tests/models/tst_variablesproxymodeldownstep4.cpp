#include "models/VariablesProxyModelDownStep4.h"

#include "models/VariableModelDownStep4.h"
#include "tests/support/ProxyContract.h"
#include "tests/support/Trees.h"

using namespace Qt::Literals::StringLiterals;

class TestVariablesProxyModelDownStep4 : public QObject
{
    Q_OBJECT

    VariablesProxyModelDownStep4 m_proxy;

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }

    void filtersAsItsBaseDoes()
    {
        QStandardItemModel source;
        setColumn(source, 0, {u"water"_s, u"WATER"_s, u"fire"_s});
        setColumn(source, 1, {u"x"_s, u"x"_s, u"water"_s});
        m_proxy.setSourceModel(&source);
        QSortFilterProxyModel plain;
        plain.setSourceModel(&source);
        int hits = 0;
        for (const int column : {0, 1, -1}) {
            for (const QString &pattern : {u"water"_s, u"WATER"_s, u"w.t"_s, u""_s, u"NOWHERE"_s}) {
                for (QSortFilterProxyModel *proxy :
                     {&plain, static_cast<QSortFilterProxyModel *>(&m_proxy)}) {
                    proxy->setFilterKeyColumn(column);
                    proxy->setFilterRegularExpression(pattern);
                }
                QCOMPARE(shownRows(m_proxy), shownRows(plain));
                hits += int(m_proxy.rowCount() == 1);
            }
        }
        QVERIFY(hits > 3);
        // Unlike a text search, it finds lower case.
        m_proxy.setFilterKeyColumn(0);
        m_proxy.setFilterRegularExpression(u"water"_s);
        QCOMPARE(shownRows(m_proxy), QList{0});
        m_proxy.setFilterRegularExpression(QString());
        m_proxy.setSourceModel(nullptr);
    }

    void sortsAsThePlainestWayDoes() { checkRandomTextOrder(m_proxy); }
    void sortsAliasesByTheirAddress() { checkAddressOrder(m_proxy); }
    void sortsDatesByTime() { checkDateOrder(m_proxy, 1); }

    void sortsNumbersAsTexts()
    {
        for (const int column : {0, 4})
            QCOMPARE(sorted(m_proxy, column, {10, 9, 100}), (QStringList{u"10"_s, u"100"_s, u"9"_s}));
    }

    void sortsWizardVariablesInAView()
    {
        TDcEntity entity;
        for (const QString &name : {u"oro"_s, u"ñu"_s, u"nube"_s})
            entity.addVariables(makeVariable(name, {}, u"label of "_s + name));
        VariableModelDownStep4 source(nullptr, &entity, entity.getVariables());
        m_proxy.setSourceModel(&source);
        QCOMPARE(sortedByClick(m_proxy, 0), (QStringList{u"nube"_s, u"ñu"_s, u"oro"_s}));
        m_proxy.setFilterRegularExpression(u"^n"_s);
        QCOMPARE(columnTexts(m_proxy), QStringList{u"nube"_s});
        m_proxy.setSourceModel(nullptr);
    }
};

QTEST_MAIN(TestVariablesProxyModelDownStep4)
#include "tst_variablesproxymodeldownstep4.moc"
