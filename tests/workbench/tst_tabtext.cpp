#include "workbench/clipboard/TabText.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

using Rows = QList<QStringList>;

class TestTabText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parses_data();
    void parses();
    void tellsWhereRowsBegin();
    void refuses_data();
    void refuses();
    void quotesWhatNeedsIt();
    void readsBackWhatItWrites();
    void readsAMillionCells();
};

void TestTabText::parses_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Rows>("rows");
    const QString none;
    QTest::addRow("nothing") << QString() << Rows{};
    QTest::addRow("a cell") << u"a"_s << Rows{{u"a"_s}};
    QTest::addRow("a line end at the end adds no row") << u"a\tb\n"_s << Rows{{u"a"_s, u"b"_s}};
    QTest::addRow("Windows line ends") << u"a\r\nb\r\n"_s << Rows{{u"a"_s}, {u"b"_s}};
    QTest::addRow("old line ends") << u"a\rb"_s << Rows{{u"a"_s}, {u"b"_s}};
    QTest::addRow("empty cells") << u"\ta\t\n\t"_s << Rows{{none, u"a"_s, none}, {none, none}};
    QTest::addRow("an empty line has no cells") << u"a\n\nb"_s << Rows{{u"a"_s}, {}, {u"b"_s}};
    QTest::addRow("ragged") << u"a\nb\tc\td\n"_s << Rows{{u"a"_s}, {u"b"_s, u"c"_s, u"d"_s}};
    QTest::addRow("a tab in quotation marks") << u"\"a\tb\"\tc"_s << Rows{{u"a\tb"_s, u"c"_s}};
    QTest::addRow("line ends in quotation marks") << u"\"a\r\nb\"\r\nc"_s << Rows{{u"a\nb"_s}, {u"c"_s}};
    QTest::addRow("doubled quotation marks") << u"\"say \"\"so\"\"\""_s << Rows{{u"say \"so\""_s}};
    QTest::addRow("an empty quoted cell") << u"\"\"\ta"_s << Rows{{none, u"a"_s}};
    QTest::addRow("inches are no quotation") << u"5\" pipe\tb"_s << Rows{{u"5\" pipe"_s, u"b"_s}};
    QTest::addRow("letters after a quotation") << u"\"a\" b\tc"_s << Rows{{u"a b"_s, u"c"_s}};
    QTest::addRow("blanks are kept") << u" a \t b"_s << Rows{{u" a "_s, u" b"_s}};
    QTest::addRow("a counted zero at the end") << u"a\n"_s + QChar(QChar::Null) << Rows{{u"a"_s}};
}

void TestTabText::parses()
{
    QFETCH(const QString, text);
    QFETCH(const Rows, rows);
    const TabText table = TabText::parse(text);
    QCOMPARE(table.error, QString());
    Rows cells;
    for (const TabText::Row &row : table.rows)
        cells.append(row.cells);
    QCOMPARE(cells, rows);
}

void TestTabText::tellsWhereRowsBegin()
{
    const TabText table = TabText::parse(u"a\n\"b\nb\nb\"\tc\nd\n\ne"_s);
    QList<int> lines;
    for (const TabText::Row &row : table.rows)
        lines.append(row.line);
    QCOMPARE(lines, QList<int>({1, 2, 5, 6, 7}));
}

void TestTabText::refuses_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("error");
    const QString open = u"The quotation mark that a cell of line %1 begins with is never closed."_s;
    QTest::addRow("never closed") << u"a\n\"b\tc\nd"_s << open.arg(2);
    QTest::addRow("doubled at the end") << u"\"a\"\""_s << open.arg(1);
    QTest::addRow("alone") << u"\""_s << open.arg(1);
    const QString binary = u"The clipboard does not hold a table but characters that are no text."_s;
    QTest::addRow("zeros") << QString(QChar(QChar::Null)) + u'a' << binary;
    QTest::addRow("controls") << u"PNG\r\n\u001a\n"_s << binary;
}

void TestTabText::refuses()
{
    QFETCH(const QString, text);
    QFETCH(const QString, error);
    const TabText table = TabText::parse(text);
    QCOMPARE(table.error, error);
    QVERIFY(table.rows.isEmpty());
}

void TestTabText::quotesWhatNeedsIt()
{
    QCOMPARE(TabText::write({{u"a"_s, u"b c"_s}, {u"d\te"_s, u"f\"g"_s, u"h\ni"_s}}),
             u"a\tb c\n\"d\te\"\t\"f\"\"g\"\t\"h\ni\"\n"_s);
    QCOMPARE(TabText::write({}), QString());
}

void TestTabText::readsBackWhatItWrites()
{
    QRandomGenerator random(7);
    const QString letters = u"ab \t\n\"ñ"_s;
    for (int round = 0; round < 500; ++round) {
        Rows rows;
        for (quint32 row = 0; row < 1 + random.bounded(4U); ++row) {
            QStringList cells;
            for (quint32 cell = 0; cell < 2 + random.bounded(3U); ++cell) {
                QString text;
                for (quint32 length = random.bounded(6U); length > 0; --length)
                    text += letters.at(random.bounded(int(letters.size())));
                cells.append(text);
            }
            rows.append(cells);
        }
        const TabText table = TabText::parse(TabText::write(rows));
        Rows read;
        for (const TabText::Row &row : table.rows)
            read.append(row.cells);
        QCOMPARE(read, rows);
    }
}

void TestTabText::readsAMillionCells()
{
    const TabText table = TabText::parse(u"x\t"_s.repeated(1000000) + u'\n');
    QCOMPARE(table.rows.size(), 1);
    QCOMPARE(table.rows.first().cells.size(), 1000001);
}

QTEST_GUILESS_MAIN(TestTabText)
#include "tst_tabtext.moc"
