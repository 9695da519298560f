#include "models/VarValueLabelDiccionaryProxyModel.h"

#include "models/VarValueLabelDiccionaryModel.h"
#include "tests/support/ProxyContract.h"
#include "tests/support/Variables.h"

using namespace Qt::Literals::StringLiterals;

class TestVarValueLabelDiccionaryProxyModel : public QObject
{
    Q_OBJECT

    VarValueLabelDiccionaryProxyModel m_proxy;

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

    void sorts_data()
    {
        QTest::addColumn<QVariantList>("values");
        QTest::addColumn<QStringList>("order");
        QTest::addRow("codes by value")
            << QVariantList{u"2"_s, u"10"_s, u"1"_s} << QStringList{u"1"_s, u"2"_s, u"10"_s};
        QTest::addRow("no number counts as 0")
            << QVariantList{u"1"_s, u"A"_s, u"-1"_s} << QStringList{u"-1"_s, u"A"_s, u"1"_s};
        QTest::addRow("labels stay as they are")
            << QVariantList{u"Yes"_s, u"No"_s, u"Any"_s} << QStringList{u"Yes"_s, u"No"_s, u"Any"_s};
        QTest::addRow("a label that begins with a digit is no number")
            << QVariantList{u"1"_s, u"5 or more"_s, u"5"_s, u"4"_s}
            << QStringList{u"5 or more"_s, u"1"_s, u"4"_s, u"5"_s};
        QTest::addRow("blanks around and exponents")
            << QVariantList{u"1e2"_s, u" 50 "_s, u".5"_s} << QStringList{u".5"_s, u" 50 "_s, u"1e2"_s};
        QTest::addRow("empty code") << QVariantList{u"1"_s, QString(), u"-1"_s}
                                    << QStringList{u"-1"_s, QString(), u"1"_s};
        QTest::addRow("comma is no decimal point")
            << QVariantList{u"1"_s, u"2,5"_s} << QStringList{u"2,5"_s, u"1"_s};
        QTest::addRow("ints") << QVariantList{10, 9} << QStringList{u"9"_s, u"10"_s};
        QTest::addRow("addresses play no part where texts convert")
            << QVariantList{u"z b@x"_s, u"a c@x"_s} << QStringList{u"z b@x"_s, u"a c@x"_s};
    }
    void sorts()
    {
        QFETCH(QVariantList, values);
        QTEST(sorted(m_proxy, 0, values), "order");
        QTEST(sorted(m_proxy, 1, values), "order");
    }

    void findsLabelsEqualInEitherOrder()
    {
        QStandardItemModel source;
        setColumn(source, 1, {u"Yes"_s, u"No"_s, u"5"_s, u"5 or more"_s});
        struct Open : VarValueLabelDiccionaryProxyModel {
            using VarValueLabelDiccionaryProxyModel::lessThan;
        } proxy;
        const auto less = [&](int left, int right) {
            return proxy.lessThan(source.index(left, 1), source.index(right, 1));
        };
        QVERIFY(!less(0, 1));
        QVERIFY(!less(1, 0));
        QVERIFY(less(0, 2));
        QVERIFY(less(3, 2));
        QVERIFY(!less(2, 3));
        QVERIFY(!less(3, 0));
    }

    /// A date-time converts to no number, so the rules after the numeric one apply.
    void sortsDatesByTime() { checkDateOrder(m_proxy, 1); }
    void sortsWhatConvertsToNoNumberAsTexts()
    {
        const QVariantList dates{QDate(2024, 2, 1), QDate(2023, 5, 1)};
        QCOMPARE(sorted(m_proxy, 0, dates), (QStringList{u"2023-05-01"_s, u"2024-02-01"_s}));
    }

    void survivesCodesThatAreNotANumber()
    {
        QRandomGenerator random(3);
        QVariantList codes;
        for (int i = 0; i < 3000; ++i)
            codes += random.bounded(3) == 0 ? u"nan"_s : QString::number(random.bounded(100));
        const qsizetype count = codes.count(QVariant(u"nan"_s));
        QVERIFY(count > 100);
        const QStringList order = sorted(m_proxy, 0, codes);
        QCOMPARE(order.size(), codes.size());
        QCOMPARE(order.count(u"nan"_s), count);
    }

    void sortsCategoriesInAView()
    {
        const auto variable = makeLabelled({{u"10"_s, u"Ten"_s}, {u"9"_s, u"3"_s}, {u"A"_s, u"1"_s}});
        VarValueLabelDiccionaryModel source(nullptr, variable.get());
        m_proxy.setSourceModel(&source);
        QCOMPARE(sortedByClick(m_proxy, 0), (QStringList{u"A"_s, u"9"_s, u"10"_s}));
        QCOMPARE(sortedByClick(m_proxy, 1), (QStringList{u"Ten"_s, u"1"_s, u"3"_s}));
        // Sorted again when a code is edited through the proxy.
        QVERIFY(m_proxy.setData(m_proxy.index(2, 1), u"-3"_s));
        QCOMPARE(columnTexts(m_proxy, 1), (QStringList{u"-3"_s, u"Ten"_s, u"1"_s}));
        m_proxy.setSourceModel(nullptr);
    }
};

QTEST_MAIN(TestVarValueLabelDiccionaryProxyModel)
#include "tst_varvaluelabeldiccionaryproxymodel.moc"
