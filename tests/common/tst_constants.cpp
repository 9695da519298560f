#include "common/Constants.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_Constants : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data()
    {
        QTest::addColumn<QString>("constant");
        QTest::addColumn<QString>("text");
        QTest::addRow("yes") << Constants::yes << u"YES"_s;
        QTest::addRow("colon") << Constants::colon << u":"_s;
        QTest::addRow("comma") << Constants::comma << u","_s;
        QTest::addRow("lineEnd") << Constants::lineEnd << u"\r\n"_s;
        QTest::addRow("equalsSign") << Constants::equalsSign << u"="_s;
        QTest::addRow("dataExtension") << Constants::dataExtension << u".dat"_s;
        QTest::addRow("jsonExtension") << Constants::jsonExtension << u".json"_s;
        QTest::addRow("configExtension") << Constants::configExtension << u".lsd.json"_s;
        QTest::addRow("configFileType") << Constants::configFileType << u"Morva Config"_s;
        QTest::addRow("configFilter") << Constants::configFilter << u"Morva Config(*.lsd.json);;"_s;
        QTest::addRow("dictionaryExtension") << Constants::dictionaryExtension << u".mvdb"_s;
        QTest::addRow("dictionaryFileType") << Constants::dictionaryFileType << u"Morva Dictionary"_s;
        QTest::addRow("dictionaryFilter") << Constants::dictionaryFilter << u"Morva Dictionary(*.mvdb);;"_s;
        QTest::addRow("textExtension") << Constants::textExtension << u".txt"_s;
        QTest::addRow("hierarchyExtension") << Constants::hierarchyExtension << u".wip.json"_s;
        QTest::addRow("hierarchyFileType") << Constants::hierarchyFileType << u"Morva Hierarchy"_s;
        QTest::addRow("hierarchyFilter") << Constants::hierarchyFilter << u"Morva Hierarchy(*.wip.json);;"_s;
        QTest::addRow("semicolon") << Constants::semicolon << u";"_s;
        QTest::addRow("typeInteger") << Constants::typeInteger << u"INTEGER"_s;
        QTest::addRow("blank") << Constants::blank << u" "_s;
        QTest::addRow("typeReal") << Constants::typeReal << u"REAL"_s;
        QTest::addRow("typeString") << Constants::typeString << u"STRING"_s;
        QTest::addRow("tab") << Constants::tab << u"\t"_s;
        QTest::addRow("underscore") << Constants::underscore << u"_"_s;
    }
    void texts()
    {
        QFETCH(QString, constant);
        QFETCH(QString, text);
        QCOMPARE(constant, text);
    }

    void joinedFiltersOfferSeveralTypesInOneDialog()
    {
        QCOMPARE(Constants::configFilter + Constants::dictionaryFilter,
                 u"Morva Config(*.lsd.json);;Morva Dictionary(*.mvdb);;"_s);
    }

    void filtersAreBuiltFromLabelAndExtension()
    {
        QCOMPARE(Constants::fileDialogFilter(u"Label"_s, u".x"_s), u"Label(*.x);;"_s);
    }
};

QTEST_APPLESS_MAIN(tst_Constants)

#include "tst_constants.moc"
