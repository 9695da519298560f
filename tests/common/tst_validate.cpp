#include "common/Validate.h"
#include "tests/support/MessageBoxAnswer.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_Validate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasAMetaObjectOfItsOwn()
    {
        const Validate validate;
        QCOMPARE(QString::fromLatin1(validate.metaObject()->className()), u"Validate"_s);
    }

    void emptyCountsBlanksAsEmpty_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("passes");
        QTest::addRow("nothing") << QString() << false;
        QTest::addRow("blanks") << u" \t\n "_s << false;
        QTest::addRow("a letter") << u"a"_s << true;
        QTest::addRow("a letter among blanks") << u"  a "_s << true;
    }
    void emptyCountsBlanksAsEmpty()
    {
        QFETCH(QString, text);
        QFETCH(bool, passes);
        QCOMPARE(Validate().validateEmpty(text), passes);
    }

    void namesBeginWithALetterOrAnUnderscore_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("passes");
        QTest::addRow("nothing") << QString() << false;
        QTest::addRow("blanks") << u"  "_s << false;
        QTest::addRow("a letter") << u"x"_s << true;
        QTest::addRow("an underscore") << u"_x"_s << true;
        QTest::addRow("a digit") << u"1x"_s << false;
        QTest::addRow("a sign") << u"-x"_s << false;
        QTest::addRow("blanks before a letter") << u"  x"_s << true;
        QTest::addRow("blanks before a digit") << u"  1"_s << false;
        QTest::addRow("the rest is not its concern") << u"x y-z!"_s << true;
        QTest::addRow("a letter of another script") << u"ñandú"_s << true;
        QTest::addRow("a letter beyond the basic plane") << u"𝒳"_s << true;
        QTest::addRow("half a letter") << QString(QChar(0xd835)) << false;
    }
    void namesBeginWithALetterOrAnUnderscore()
    {
        QFETCH(QString, text);
        QFETCH(bool, passes);
        QCOMPARE(Validate().validateName(text), passes);
    }

    void namesHoldLettersDigitsAndUnderscores_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("passes");
        QTest::addRow("nothing") << QString() << true;
        QTest::addRow("letters, digits, underscores") << u"Age_10"_s << true;
        QTest::addRow("digits alone") << u"10"_s << true;
        QTest::addRow("surrounding blanks") << u" AGE "_s << true;
        QTest::addRow("a blank inside") << u"A B"_s << false;
        QTest::addRow("a hyphen") << u"A-B"_s << false;
        QTest::addRow("a dot") << u"A.B"_s << false;
        QTest::addRow("a line feed inside") << u"A\nB"_s << false;
        QTest::addRow("letters of another script") << u"población"_s << true;
        QTest::addRow("a letter beyond the basic plane") << u"a𝒳"_s << true;
        QTest::addRow("an emoji") << u"a😀"_s << false;
    }
    void namesHoldLettersDigitsAndUnderscores()
    {
        QFETCH(QString, text);
        QFETCH(bool, passes);
        QCOMPARE(Validate().validateStringC(text), passes);
    }

    void compareFindsAClash_data()
    {
        QTest::addColumn<QStringList>("list");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("clashes");
        QTest::addRow("the same") << QStringList{u"A"_s, u"AGE"_s} << u"AGE"_s << true;
        QTest::addRow("another") << QStringList{u"AGE"_s} << u"SEX"_s << false;
        QTest::addRow("letter case is ignored") << QStringList{u"Age"_s} << u"aGE"_s << true;
        QTest::addRow("surrounding blanks are ignored") << QStringList{u" AGE "_s} << u"\tAGE"_s << true;
        QTest::addRow("inner blanks are not") << QStringList{u"A GE"_s} << u"AGE"_s << false;
        QTest::addRow("part of a name") << QStringList{u"AGED"_s} << u"AGE"_s << false;
        QTest::addRow("an empty list") << QStringList() << u"AGE"_s << false;
        QTest::addRow("case beyond ASCII") << QStringList{u"AÑO"_s} << u"año"_s << true;
        QTest::addRow("upper case decides") << QStringList{u"STRASSE"_s} << u"straße"_s << true;
    }
    void compareFindsAClash()
    {
        QFETCH(QStringList, list);
        QFETCH(QString, text);
        QFETCH(bool, clashes);
        QCOMPARE(Validate().compare(list, text), clashes);
    }

    void failuresShowNoMessage()
    {
        MessageBoxAnswer answer;
        Validate validate;
        QVERIFY(!validate.validateEmpty({}));
        QVERIFY(!validate.validateName(u"1"_s));
        QVERIFY(!validate.validateStringC(u"-"_s));
        QCoreApplication::processEvents();
        QVERIFY(answer.shown().isEmpty());
    }
};

QTEST_MAIN(tst_Validate)

#include "tst_validate.moc"
