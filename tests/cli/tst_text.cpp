#include "cli/Text.h"

#include <QJsonDocument>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace Cli;

class TestText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsWhatSteersATerminalAsAnEscape_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown");
        QTest::addRow("plain") << u"Niño 年齢 🚜"_s << u"Niño 年齢 🚜"_s;
        QTest::addRow("escape sequence") << u"a\x1b[31mb"_s << u"a\\x1b[31mb"_s;
        QTest::addRow("bell and null") << u"\a"_s + QChar(u'\0') << u"\\x07\\x00"_s;
        QTest::addRow("delete") << u"\x7f"_s << u"\\x7f"_s;
        QTest::addRow("one-character escape sequence") << u"\u009b31m"_s << u"\\x9b31m"_s;
        QTest::addRow("direction override") << u"a\u202eb"_s << u"a\\u202eb"_s;
        QTest::addRow("line separator") << u"a\u2028b"_s << u"a\\u2028b"_s;
        QTest::addRow("byte order mark") << u"\ufeff"_s << u"\\ufeff"_s;
        QTest::addRow("tag character") << u"\U000e0041"_s << u"\\ue0041"_s;
        QTest::addRow("line ends and tabs") << u"a\r\nb\tc"_s << u"a  b c"_s;
        QTest::addRow("joiner") << u"👩\u200d🌾"_s << u"👩\u200d🌾"_s;
        QTest::addRow("half a character") << QString(QChar(0xd800)) << u"\ufffd"_s;
    }
    void showsWhatSteersATerminalAsAnEscape()
    {
        QFETCH(QString, text);
        QTEST(Text::printable(text), "shown");
    }

    void printableJsonParsesToTheSame()
    {
        const QByteArray json =
            QJsonDocument::fromJson(R"({"a": "x\u009b\u202e\u007f\u2028y", "b": "\udb40\udc41"})").toJson();
        const QByteArray shown = Text::printableJson(json);
        QCOMPARE(QJsonDocument::fromJson(shown), QJsonDocument::fromJson(json));
        QVERIFY(shown.contains(R"(x\u009b\u202e\u007f\u2028y)"));
        QVERIFY(shown.contains(R"(\udb40\udc41)"));
    }

    void countsColumns_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("columns");
        QTest::addRow("empty") << QString() << 0;
        QTest::addRow("latin") << u"Año"_s << 3;
        QTest::addRow("combining accent") << u"An\u0303o"_s << 3;
        QTest::addRow("wide") << u"年齢"_s << 4;
        QTest::addRow("hangul") << u"나이"_s << 4;
        QTest::addRow("emoji") << u"🚜"_s << 2;
        QTest::addRow("tree") << u"├─ "_s << 3;
    }
    void countsColumns()
    {
        QFETCH(QString, text);
        QTEST(Text::width(text), "columns");
    }

    void wraps_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("lines");
        QTest::addRow("empty") << QString() << QStringList{QString()};
        QTest::addRow("fits") << u"abc def"_s << QStringList{u"abc def"_s};
        QTest::addRow("at a blank") << u"abc defgh"_s << QStringList{u"abc"_s, u"defgh"_s};
        QTest::addRow("blank just behind") << u"abcdefg hij"_s << QStringList{u"abcdefg"_s, u"hij"_s};
        QTest::addRow("one long word") << u"abcdefghij"_s << QStringList{u"abcdefg"_s, u"hij"_s};
        QTest::addRow("wide") << u"年齢年齢"_s << QStringList{u"年齢年"_s, u"齢"_s};
        QTest::addRow("surrogates stay together") << u"🚜🚜🚜🚜"_s << QStringList{u"🚜🚜🚜"_s, u"🚜"_s};
    }
    void wraps()
    {
        QFETCH(QString, text);
        QTEST(Text::wrapped(text, 7), "lines");
    }

    void elides_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown");
        QTest::addRow("fits") << u"abcdefg"_s << u"abcdefg"_s;
        QTest::addRow("too long") << u"abcdefgh"_s << u"abcdef…"_s;
        QTest::addRow("wide") << u"年齢年齢"_s << u"年齢年…"_s;
        QTest::addRow("surrogates stay together") << u"abcde🚜🚜"_s << u"abcde…"_s;
    }
    void elides()
    {
        QFETCH(QString, text);
        QTEST(Text::elided(text, 7), "shown");
        QCOMPARE(Text::elided(u"ab"_s, 1), u"…"_s);
    }

    void wrappingComesToAnEndInTheNarrowestColumn() { QCOMPARE(Text::wrapped(u"年齢"_s, 1).size(), 2); }

    void countsThings()
    {
        QCOMPARE(Text::counted(0, u"entity"_s, u"entities"_s), u"0 entities"_s);
        QCOMPARE(Text::counted(1, u"entity"_s, u"entities"_s), u"1 entity"_s);
    }

    void numbersAreAsShortAsTheyCanBe()
    {
        QCOMPARE(Text::number(9), u"9"_s);
        QCOMPARE(Text::number(0.1), u"0.1"_s);
        QCOMPARE(Text::number(-99999.99), u"-99999.99"_s);
    }
};

QTEST_APPLESS_MAIN(TestText)
#include "tst_text.moc"
