#include "cli/Failure.h"
#include "cli/Table.h"

#include <QBuffer>
#include <QFile>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using Cli::Table;

namespace
{
QString printed(const Table &table, bool colours = false, int columns = 0)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    Cli::Output output(buffer, colours, columns);
    table.print(output);
    return QString::fromUtf8(buffer.data());
}
} // namespace

class TestTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void alignsColumnsByWhatTheyTakeOnTheScreen()
    {
        Table table({{u"Name"_s}, {u"Size"_s, Table::Right}, {u"Label"_s}});
        table.addRow({{u"年齢"_s}, {u"3"_s}, {u"x"_s}});
        table.addRow({{u"An\u0303o"_s}, {u"12345"_s}, {u"y"_s}});
        QCOMPARE(printed(table),
                 u"Name   Size  Label\n"
                 "年齢      3  x\n"
                 "An\u0303o   12345  y\n"_s);
    }

    void cellsOfSeveralLinesStayInTheirColumn()
    {
        Table table({{u"Name"_s}, {u"Values"_s}});
        table.addRow({{u"SEX"_s}, {u"1"_s, u"2"_s}});
        table.addRow({{u"AGE"_s}, {}});
        QCOMPARE(printed(table), u"Name  Values\nSEX   1\n      2\nAGE\n"_s);
    }

    void emptyColumnsAreNotShown()
    {
        Table table({{u"Name"_s}, {u"Group"_s}, {u"Type"_s}});
        table.addRow({{u"AGE"_s}, {QString()}, {u"integer"_s}});
        QCOMPARE(printed(table), u"Name  Type\nAGE   integer\n"_s);
    }

    void headingsAreFaintOnlyWithColours()
    {
        Table table({{u"Name"_s}});
        table.addRow({{u"AGE"_s}});
        QCOMPARE(printed(table, true), u"\x1b[2mName\x1b[0m\nAGE\n"_s);
        QCOMPARE(printed(table, false), u"Name\nAGE\n"_s);
    }

    void theWidestTextsGiveWayToTheTerminal()
    {
        Table table({{u"Name"_s}, {u"Size"_s, Table::Right}, {u"Label"_s}});
        table.addRow({{u"HOUSEHOLD"_s}, {u"12"_s}, {u"Those who live and eat together"_s}});
        QCOMPARE(printed(table, false, 31),
                 u"Name       Size  Label\n"
                 "HOUSEHOLD    12  Those who live\n"
                 "                 and eat\n"
                 "                 together\n"_s);
        QCOMPARE(printed(table, false, 48),
                 u"Name       Size  Label\nHOUSEHOLD    12  Those who live and eat together\n"_s);
    }

    void textsGoOnBelowThemselves()
    {
        Table table({{u"Values"_s, Table::Left, 10}});
        table.addRow({{Table::Line(u" 1  "_s, u"never married"_s), Table::Line(u"10  "_s, u"widow"_s)}});
        QCOMPARE(printed(table), u"Values\n 1  never\n    married\n10  widow\n"_s);
    }

    void columnsKeepSomeWidthOnANarrowTerminal()
    {
        Table table({{u"Name"_s}, {u"Label"_s}});
        table.addRow({{u"ABCDEFGHIJ"_s}, {u"abc def ghi"_s}});
        QCOMPARE(printed(table, false, 18), u"Name      Label\nABCDEFGH  abc def\nIJ        ghi\n"_s);
        QCOMPARE(printed(table, false, 14), u"Name    Label\nABCDEF  abc\nGHIJ    def\n        ghi\n"_s);
        QCOMPARE(printed(table, false, 1), u"Name  Labe\n      l\nABCD  abc\nEFGH  def\nIJ    ghi\n"_s);
    }

    void titlesOfNumbersGoOnInTheNextLineOnANarrowTerminal()
    {
        Table table({{u"Name"_s}, {u"Not appl."_s, Table::Right}});
        table.addRow({{u"ABC"_s}, {u"-98"_s}});
        QCOMPARE(printed(table, false, 11), u"Name    Not\n      appl.\nABC     -98\n"_s);
    }

    void outputThatCannotBeWrittenIsAFailure()
    {
        QFile full(u"/dev/full"_s);
        QVERIFY(full.open(QIODevice::WriteOnly));
        Cli::Output output(full, false);
        output.line(u"held back"_s);
        QVERIFY_EXCEPTION_THROWN(output.flush(), Cli::Failure);
    }
};

QTEST_APPLESS_MAIN(TestTable)
#include "tst_table.moc"
