#include "models/internal/ExpressionMatch.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QStringList>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace
{
QStringList &messages()
{
    static QStringList texts;
    return texts;
}

void keepMessage(QtMsgType, const QMessageLogContext &, const QString &text)
{
    messages().append(text);
}
} // namespace

class TestExpressionMatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsTheFirstWholeMatch_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<int>("place");
        QTest::addRow("plain") << u"SEX"_s << 1;
        QTest::addRow("part of a text") << u"SE"_s << -1;
        QTest::addRow("other letter case") << u"sex"_s << -1;
        QTest::addRow("any character") << u"S.X"_s << 1;
        QTest::addRow("anything") << u".*"_s << 0;
        QTest::addRow("alternatives are whole matches") << u"A|SEX"_s << 1;
        QTest::addRow("option inside") << u"(?i)sex"_s << 1;
        QTest::addRow("special character as itself") << u"A\\.B"_s << 2;
        QTest::addRow("special character with its meaning") << u"A.B"_s << 2;
        QTest::addRow("none") << QString() << -1;
        QTest::addRow("before a line end is not the end") << u"LINE"_s << -1;
        QTest::addRow("dollar") << u"SEX$"_s << 1;
        QTest::addRow("invalid") << u"A["_s << -1;
        QTest::addRow("unbalanced, valid when wrapped") << u"a)(?:b"_s << 4;
        QTest::addRow("valid alone, invalid when wrapped") << u"(?x)SEX #"_s << -1;
        QTest::addRow("half a character") << QString(QChar(0xd800)) << -1;
        QTest::addRow("plain beyond letters") << u"a-b c}]'<>"_s << 5;
    }
    void findsTheFirstWholeMatch()
    {
        QFETCH(const QString, pattern);
        const QStringList texts{u"AGE"_s, u"SEX"_s, u"A.B"_s, u"LINE\n"_s, u"ab"_s, u"a-b c}]'<>"_s};
        messages().clear();
        const auto before = qInstallMessageHandler(keepMessage);
        const qsizetype place = ExpressionMatch::indexOf(texts, pattern);
        qInstallMessageHandler(before);
        QTEST(int(place), "place");
        QCOMPARE(messages(), QStringList());
    }

    void agreesWithTheListsOwnSearch()
    {
        QRandomGenerator random(99);
        const QString characters = uR"(AB_.*+?()[]{}|^$\1,- )"_s;
        const auto text = [&random, &characters](int longest) {
            QString made;
            for (int i = random.bounded(longest + 1); i > 0; --i)
                made += characters.at(random.bounded(int(characters.size())));
            return made;
        };
        int found = 0;
        for (int round = 0; round < 20'000; ++round) {
            QStringList texts;
            for (int i = random.bounded(6); i > 0; --i)
                texts += text(3);
            const QString pattern = text(4);
            const QRegularExpression expression(pattern);
            // The list's search warns of invalid patterns and finds nothing.
            const bool valid = QRegularExpression(QRegularExpression::anchoredPattern(pattern)).isValid();
            const auto expected = valid ? texts.indexOf(expression) : -1;
            QVERIFY2(ExpressionMatch::indexOf(texts, pattern) == expected,
                     qPrintable(pattern + u" in "_s + texts.join(u' ')));
            found += expected >= 0;
        }
        QVERIFY(found > 100);
    }

    void givesUpExpensivePatterns()
    {
        // Each of these names alone takes a tenth of a second: all of them would take over three minutes.
        const QStringList texts(2000, QString(40, u'A') + u'B');
        QCOMPARE(ExpressionMatch::indexOf(texts, u"(A|AA)+$"_s), -1);
    }
};

QTEST_GUILESS_MAIN(TestExpressionMatch)
#include "tst_expressionmatch.moc"
