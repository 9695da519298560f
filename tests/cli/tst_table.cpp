#include "cli/Failure.h"
#include "cli/Table.h"

#include <QBuffer>
#include <QFile>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using Cli::Table;

namespace
{
QString printed(const Table &table, bool colours = false)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    Cli::Output output(buffer, colours);
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
