#include "documents/TextPosition.h"

#include <QJsonDocument>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace
{
QString shown(TextPosition position)
{
    return u"%1:%2"_s.arg(position.line).arg(position.column);
}

/// JSON with ' for ", for texts in tests.
QByteArray json(QByteArray text)
{
    return text.replace('\'', '"');
}
} // namespace

class tst_TextPosition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsWhereTextIsNotJson_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("place");
        QTest::addRow("bad word") << json("{'a': tru}") << u"1:7"_s;
        QTest::addRow("text without quotes") << json("{'a': x}") << u"1:7"_s;
        QTest::addRow("comma before the end of an object") << "{\"a\": 1,\n}"_ba << u"2:1"_s;
        QTest::addRow("comma before the end of a list") << "[1,]"_ba << u"1:4"_s;
        QTest::addRow("comma missing in an object") << json("{'a': 1 'b': 2}") << u"1:9"_s;
        QTest::addRow("comma missing in a list") << "[1 2]"_ba << u"1:4"_s;
        QTest::addRow("colon missing") << json("{'a' 1}") << u"1:6"_s;
        QTest::addRow("value missing") << json("{'a': }") << u"1:7"_s;
        QTest::addRow("wrong bracket") << json("{'a': [1}}") << u"1:9"_s;
        QTest::addRow("name without quotes") << "{a: 1}"_ba << u"1:2"_s;
        QTest::addRow("leading zero") << json("{'a': 01}") << u"1:8"_s;
        QTest::addRow("number that breaks off") << json("{'a': 1.x}") << u"1:9"_s;
        QTest::addRow("escape") << json("{'a': '\\u12g4'}") << u"1:12"_s;
        QTest::addRow("bytes that are not UTF-8") << "{\"\xc3\xa9\": \"\xff\"}"_ba << u"1:8"_s;
        QTest::addRow("something behind") << "{}\n  x"_ba << u"2:3"_s;
        QTest::addRow("ends in an object") << "{\"a\": 1,\n \"b\": {}"_ba << u"2:9"_s;
        QTest::addRow("ends behind a line end") << "{\"a\": 1,\n"_ba << u"2:1"_s;
        QTest::addRow("ends in a text") << "{\"a\": \"xy"_ba << u"1:10"_s;
        QTest::addRow("ends in a number") << "[12"_ba << u"1:4"_s;
        QTest::addRow("characters, not bytes")
            << "{\"\xc3\xb1\xe5\xb9\xb4\xf0\x9f\x9a\x9c\": tru}"_ba << u"1:9"_s;
        QTest::addRow("byte order mark") << "\xef\xbb\xbf{\"a\": tru}"_ba << u"1:7"_s;
        QTest::addRow("line ends of Windows") << "{\r\n\"a\": tru}"_ba << u"2:6"_s;
        QTest::addRow("line ends of old") << "{\r\"a\": tru}"_ba << u"2:6"_s;
        QTest::addRow("nested too deeply") << QByteArray(1100, '[') << u"1:1025"_s;
    }

    void tellsWhereTextIsNotJson()
    {
        QFETCH(QByteArray, text);
        QJsonParseError error;
        QVERIFY(QJsonDocument::fromJson(text, &error).isNull());
        QTEST(shown(TextPosition::of(text, error)), "place");
    }

    void positionsOutsideTheTextAreItsEnds()
    {
        const QByteArray text("ab\nc");
        QCOMPARE(shown(TextPosition::of(text, 100)), u"2:2"_s);
        QCOMPARE(shown(TextPosition::of(text, -1)), u"1:1"_s);
    }

    void everyPlaceIsTheSameOnTheWay()
    {
        const QByteArray text("\xef\xbb\xbf\xc3\xb1"
                              "b\r\n\r\n\nc\rd\n\re");
        TextPositions positions(text);
        for (qsizetype offset = 0; offset <= text.size(); ++offset) {
            const TextPosition place = positions.at(offset);
            QCOMPARE(shown(place), shown(TextPosition::of(text, offset)));
            QCOMPARE(place.toString(), u"line %1, column %2"_s.arg(place.line).arg(place.column));
        }
        QCOMPARE(shown(positions.at(text.size())), u"7:2"_s);
    }
};

QTEST_GUILESS_MAIN(tst_TextPosition)
#include "tst_textposition.moc"
