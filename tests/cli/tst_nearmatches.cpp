#include "cli/NearMatches.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestNearMatches : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsWhatMayHaveBeenMeant_data()
    {
        QTest::addColumn<QString>("wanted");
        QTest::addColumn<QStringList>("matches");
        QTest::addRow("letter case") << u"person"_s << QStringList{u"PERSON"_s};
        QTest::addRow("left out") << u"PERSN"_s << QStringList{u"PERSON"_s};
        QTest::addRow("too many") << u"DWELLINGS"_s << QStringList{u"DWELLING"_s};
        QTest::addRow("exchanged") << u"PERSNO"_s << QStringList{u"PERSON"_s};
        QTest::addRow("exchanged in a short word") << u"CRA"_s << QStringList{u"CAR"_s};
        QTest::addRow("beginning") << u"HOUSE"_s << QStringList{u"HOUSEHOLD"_s};
        QTest::addRow("nearest first") << u"PARCEL2BX"_s << QStringList{u"PARCEL2B"_s, u"PARCEL"_s};
        QTest::addRow("nothing alike") << u"VEHICLE"_s << QStringList();
        QTest::addRow("empty") << QString() << QStringList();
    }
    void findsWhatMayHaveBeenMeant()
    {
        QFETCH(QString, wanted);
        const QStringList names{u"DWELLING"_s, u"HOUSEHOLD"_s, u"PERSON"_s, QString(),
                                u"PARCEL"_s,   u"PARCEL2B"_s,  u"CAR"_s};
        QTEST(Cli::nearMatches(wanted, names), "matches");
    }

    void givesThreeAtMostAndEachOnce()
    {
        const QStringList names{u"AB1"_s, u"AB2"_s, u"AB3"_s, u"AB4"_s, u"AB1"_s};
        QCOMPARE(Cli::nearMatches(u"AB"_s, names), (QStringList{u"AB1"_s, u"AB2"_s, u"AB3"_s}));
    }
};

QTEST_APPLESS_MAIN(TestNearMatches)
#include "tst_nearmatches.moc"
