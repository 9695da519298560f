#include "documents/sources/SourceReader.h"
#include "SourceFiles.h"
#include "tests/support/Growth.h"

#include <QStringEncoder>

using namespace Qt::Literals::StringLiterals;

class tst_CsvSource : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void guessesTypes_data();
    void guessesTypes();
    void countsPositionsAndNamesTheRecord();
    void detectsTheDelimiter_data();
    void detectsTheDelimiter();
    void aRowThatTheSampleCutsSaysNothingAboutTheDelimiter();
    void aLineMayNameTheDelimiter_data();
    void aLineMayNameTheDelimiter();
    void aCallerOverrulesTheDelimiter();
    void detectsTheEncoding_data();
    void detectsTheEncoding();
    void aDamagedCharacterDoesNotChangeTheEncoding();
    void aCallerOverrulesTheEncoding();
    void readsWithoutHeader();
    void withoutDataTheFirstRowsDecide();
    void takesQuotedCells();
    void namesNamelessColumns();
    void notesRepeatedNames();
    void refuses_data();
    void refuses();
    void aLongLineTakesTimeInProportion();
    void canBeCancelled();
    void everyTruncationGivesFieldsOrAnError();
};

void tst_CsvSource::guessesTypes_data()
{
    QTest::addColumn<QByteArray>("cells"); // of a column called x
    QTest::addColumn<QString>("field");
    QTest::addRow("whole numbers") << QByteArray("1\n-20\n3\n") << u"x|INTEGER|3.0|-20:3|||"_s;
    QTest::addRow("decimals") << QByteArray("1.50\n2\n") << u"x|REAL|4.2|1.5:2|||"_s;
    QTest::addRow("decimal commas") << QByteArray("\"1,5\"\n\"2,25\"\n") << u"x|REAL|4.2|1.5:2.25|||"_s;
    QTest::addRow("point and comma are text") << QByteArray("1.5\n\"2,5\"\n") << u"x|STRING|3.0|:|||"_s;
    QTest::addRow("exponents") << QByteArray("1e3\n2\n") << u"x|REAL|3.0|2:1000|||"_s;
    QTest::addRow("leading zeros are codes") << QByteArray("007\n12\n") << u"x|STRING|3.0|:|||"_s;
    QTest::addRow("a zero alone is a number") << QByteArray("0\n0.5\n") << u"x|REAL|3.1|0:0.5|||"_s;
    QTest::addRow("more than 32 bits") << QByteArray("1\n2147483648\n") << u"x|REAL|10.0|1:2147483648|||"_s;
    QTest::addRow("more than a number holds") << QByteArray("1234567890123456\n") << u"x|STRING|16.0|:|||"_s;
    QTest::addRow("empty cells say nothing") << QByteArray("5\n\"\"\n7\n") << u"x|INTEGER|1.0|5:7|||"_s;
    QTest::addRow("all empty") << QByteArray("\"\"\n\"\"\n") << u"x|STRING|0.0|:|||"_s;
    QTest::addRow("one word") << QByteArray("5\nn/a\n") << u"x|STRING|3.0|:|||"_s;
    QTest::addRow("nan and inf are words") << QByteArray("nan\ninf\n") << u"x|STRING|3.0|:|||"_s;
    QTest::addRow("too large") << QByteArray("1e999\n") << u"x|STRING|5.0|:|||"_s;
    QTest::addRow("a sign alone") << QByteArray("-\n") << u"x|STRING|1.0|:|||"_s;
    QTest::addRow("a point alone") << QByteArray(".\n") << u"x|STRING|1.0|:|||"_s;
    QTest::addRow("width in characters") << QByteArray("a\xc3\xb1o\n") << u"x|STRING|3.0|:|||"_s;
    QTest::addRow("blanks around numbers") << QByteArray("  5 \n 6\n") << u"x|INTEGER|1.0|5:6|||"_s;
}

void tst_CsvSource::guessesTypes()
{
    QFETCH(QByteArray, cells);
    const SourceFiles files;
    const SourceFields result = SourceReader::read(files.write(u"a.csv"_s, "x\n" + cells));
    QCOMPARE(messages(result.errors), QString());
    QFETCH(QString, field);
    QCOMPARE(fieldLines(result), QStringList{field});
}

void tst_CsvSource::countsPositionsAndNamesTheRecord()
{
    const SourceFiles files;
    const SourceFields result = SourceReader::read(files.write(u"hh.2020.csv"_s, "id,age\n1,30\n"));
    QCOMPARE(result.list()->size(), 2);
    QCOMPARE(result.list()->at(0)->relativePosition, 1);
    QCOMPARE(result.list()->at(1)->relativePosition, 2);
    QCOMPARE(result.list()->at(1)->record, u"hh.2020"_s);
    QCOMPARE(result.list()->at(1)->getDataProviderType(), u"CSV"_s);
}

void tst_CsvSource::detectsTheDelimiter_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("columns");
    QTest::addRow("comma") << QByteArray("a,b,c\n1,2,3\n") << 3;
    QTest::addRow("semicolon") << QByteArray("a;b\n1,5;2\n2,5;3\n") << 2;
    QTest::addRow("tab") << QByteArray("a\tb\n1\t2\n") << 2;
    QTest::addRow("bar") << QByteArray("a|b|c|d\n1|2|3|4\n") << 4;
    QTest::addRow("none") << QByteArray("a\n1\n") << 1;
    QTest::addRow("commas in quotes do not count") << QByteArray("a;\"b,c,d\"\n1;\"x,y,z\"\n") << 2;
    QTest::addRow("commas in some rows") << QByteArray("name;note\nAna;x, y, z\nEva;-\n") << 2;
    QTest::addRow("line ends of old") << QByteArray("a;b;c\r1;2;3\r") << 3;
    QTest::addRow("line ends of old, decimal commas") << QByteArray("a;b\r1,5;2\r2,5;3") << 2;
    QTest::addRow("one row without a line end") << QByteArray("a;b;c") << 3;
    QTest::addRow("a last row without a line end") << QByteArray("a;b,c\n1;2") << 2;
    QTest::addRow("line feeds in quotes") << QByteArray("a;b\n\"x\ny\nz\";1\n") << 2;
}

void tst_CsvSource::detectsTheDelimiter()
{
    QFETCH(QByteArray, content);
    const SourceFiles files;
    const SourceFields result = SourceReader::read(files.write(u"a.csv"_s, content));
    QCOMPARE(messages(result.errors), QString());
    QTEST(int(result.list()->size()), "columns");
}

void tst_CsvSource::aRowThatTheSampleCutsSaysNothingAboutTheDelimiter()
{
    // Each row of 1000 bytes has one comma and two semicolons. The sample ends where a row has one of both.
    QByteArray content = "x,y;b;" + QByteArray(524, 'c') + '\n';
    for (int i = 0; i < 80; ++i)
        content += "1,5;2;" + QByteArray(993, 'x') + '\n';
    QCOMPARE(content.left(1 << 16).right(5), "1,5;2");
    const SourceFiles files;
    QCOMPARE(SourceReader::read(files.write(u"a.csv"_s, content)).list()->size(), 3);
}

void tst_CsvSource::aLineMayNameTheDelimiter_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("fields");
    const QStringList two{u"a,b|REAL|3.1|1.5:1.5|||"_s, u"c|INTEGER|1.0|2:2|||"_s};
    QTest::addRow("semicolon") << QByteArray("sep=;\na,b;c\n1,5;2\n") << two;
    QTest::addRow("one that would not be guessed") << QByteArray("SEP=:\r\na,b:c\r\n1,5:2") << two;
    QTest::addRow("line ends of old") << QByteArray("sep=;\ra,b;c\r1,5;2\r") << two;
    QTest::addRow("a column of that name")
        << QByteArray("sep=;b\n1;2\n")
        << QStringList{u"sep=|INTEGER|1.0|1:1|||"_s, u"b|INTEGER|1.0|2:2|||"_s};
    QTest::addRow("a quotation mark cannot separate") << QByteArray("sep=\"\n1\n") << QStringList();
}

void tst_CsvSource::aLineMayNameTheDelimiter()
{
    QFETCH(QByteArray, content);
    const SourceFiles files;
    const QString path = files.write(u"a.csv"_s, content);
    const SourceFields result = SourceReader::read(path);
    QTEST(fieldLines(result), "fields");
    QCOMPARE(result.ok(), !result.list()->isEmpty());

    // It is no row either when a caller knows better.
    SourceOptions options;
    options.delimiter = u',';
    if (content.startsWith("sep=;\n"))
        QCOMPARE(SourceReader::read(path, options).list()->first()->name, u"a"_s);
}

void tst_CsvSource::aCallerOverrulesTheDelimiter()
{
    const SourceFiles files;
    const QString path = files.write(u"a.csv"_s, "a;b,c\n1;2,3\n");
    SourceOptions options;
    options.delimiter = u',';
    const SourceFields result = SourceReader::read(path, options);
    QCOMPARE(result.list()->first()->name, u"a;b"_s);
    options.delimiter = u'"';
    QCOMPARE(messages(SourceReader::read(path, options).errors),
             u"a.csv: The character \"\"\" cannot separate cells."_s);
    options.delimiter = u'…';
    QVERIFY(!SourceReader::read(path, options).ok());
}

void tst_CsvSource::detectsTheEncoding_data()
{
    QTest::addColumn<QByteArray>("content");
    const QString text = u"año,b\n1,2\n"_s;
    QTest::addRow("UTF-8") << text.toUtf8();
    QTest::addRow("UTF-8 with mark") << "\xef\xbb\xbf" + text.toUtf8();
    QTest::addRow("Windows-1252") << text.toLatin1();
    for (const char *const name : {"UTF-16LE", "UTF-16BE"}) {
        QStringEncoder plain(name);
        QTest::addRow("%s", name) << QByteArray(plain(text));
        QStringEncoder marked(name, QStringConverter::Flag::WriteBom);
        QTest::addRow("%s with mark", name) << QByteArray(marked(text));
    }
}

void tst_CsvSource::detectsTheEncoding()
{
    QFETCH(QByteArray, content);
    const SourceFiles files;
    const SourceFields result = SourceReader::read(files.write(u"a.csv"_s, content));
    QCOMPARE(messages(result.errors), QString());
    QCOMPARE(fieldLines(result), (QStringList{u"año|INTEGER|1.0|1:1|||"_s, u"b|INTEGER|1.0|2:2|||"_s}));
}

void tst_CsvSource::aDamagedCharacterDoesNotChangeTheEncoding()
{
    const SourceFiles files;
    const QString path = files.write(u"a.csv"_s, "a\xc3\xb1o,b\r\nx\xff,1\r\n");
    const SourceFields result = SourceReader::read(path);
    QCOMPARE(messages(result.errors), u"a.csv, line 2: The text is not valid in the encoding UTF-8."_s);
    QVERIFY(result.list()->isEmpty());
    SourceOptions options;
    options.encoding = u"windows-1252"_s;
    QCOMPARE(SourceReader::read(path, options).list()->first()->name, u"a\u00c3\u00b1o"_s);
    // Here most of it is no UTF-8.
    const QString other = files.write(u"b.csv"_s, "a\xf1o,\xe9t\xe9\n\xc3\xb1,1\n");
    QCOMPARE(SourceReader::read(other).list()->first()->name, u"a\u00f1o"_s);
}

void tst_CsvSource::aCallerOverrulesTheEncoding()
{
    const SourceFiles files;
    const QString path = files.write(u"a.csv"_s, "x\n\"\x80 5\"\n\"\xc3\xb1\"\n");
    SourceOptions options;
    options.encoding = u"windows-1252"_s;
    QCOMPARE(fieldLines(SourceReader::read(path, options)), QStringList{u"x|STRING|3.0|:|||"_s});
    options.encoding = u"UTF-8"_s;
    QCOMPARE(messages(SourceReader::read(path, options).errors),
             u"a.csv, line 2: The text is not valid in the encoding UTF-8."_s);
    options.encoding = u"KLINGON"_s;
    QCOMPARE(messages(SourceReader::read(path, options).errors),
             u"a.csv: The encoding \"KLINGON\" is not known."_s);
}

void tst_CsvSource::readsWithoutHeader()
{
    const SourceFiles files;
    SourceOptions options;
    options.header = false;
    const SourceFields result = SourceReader::read(files.write(u"a.csv"_s, "1,x\n2,yy\n"), options);
    QCOMPARE(fieldLines(result), (QStringList{u"V1|INTEGER|1.0|1:2|||"_s, u"V2|STRING|2.0|:|||"_s}));
    QCOMPARE(messages(result.notes), QString());
}

void tst_CsvSource::withoutDataTheFirstRowsDecide()
{
    const SourceFiles files;
    QByteArray content("x\n");
    for (int i = 0; i < 2000; ++i)
        content += "5\n";
    content += "\"open";
    SourceOptions options;
    options.readData = false;
    const QString path = files.write(u"a.csv"_s, content);
    QCOMPARE(fieldLines(SourceReader::read(path, options)), QStringList{u"x|INTEGER|1.0|:|||"_s});
    QVERIFY(!SourceReader::read(path).ok());
}

void tst_CsvSource::takesQuotedCells()
{
    const SourceFiles files;
    const SourceFields result = SourceReader::read(
        files.write(u"a.csv"_s, "\"na\"\"me\",\"b,c\"\r\n\"two\r\nlines\",\"5\"\r\n\r\n\"x\",6"));
    QCOMPARE(messages(result.errors), QString());
    QCOMPARE(fieldLines(result), (QStringList{u"na\"me|STRING|10.0|:|||"_s, u"b,c|INTEGER|1.0|5:6|||"_s}));
}

void tst_CsvSource::namesNamelessColumns()
{
    const SourceFiles files;
    const SourceFields result = SourceReader::read(files.write(u"a.csv"_s, "a,,c\n1,2,3\n"));
    QCOMPARE(result.list()->at(1)->name, u"V2"_s);
    QCOMPARE(messages(result.notes), u"a.csv, column 2: The column has no name and is called V2."_s);
}

void tst_CsvSource::notesRepeatedNames()
{
    const SourceFiles files;
    const SourceFields result = SourceReader::read(files.write(u"a.csv"_s, "a,b,a\n1,2,3\n"));
    QVERIFY(result.ok());
    QCOMPARE(messages(result.notes), u"a.csv, column 3: Column 1 is called a too."_s);
}

void tst_CsvSource::refuses_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("error");
    QTest::addRow("empty") << QByteArray() << u"a.csv, line 1: The file holds no rows."_s;
    QTest::addRow("blank lines") << QByteArray("\n\n \n") << u"a.csv, line 1: The file holds no rows."_s;
    QTest::addRow("too few cells") << QByteArray("a,b\n1,2\n3\n")
                                   << u"a.csv, line 3: Number of cells: 1, in the first row: 2."_s;
    QTest::addRow("too many cells") << QByteArray("a,b\n1,2,3\n")
                                    << u"a.csv, line 2: Number of cells: 3, in the first row: 2."_s;
    QTest::addRow("the line of a row over several lines, after a blank one")
        << QByteArray("a,b\n\n\"x\ny\"\n1,2\n")
        << u"a.csv, line 3: Number of cells: 1, in the first row: 2."_s;
    QTest::addRow("too few cells, with line ends of Windows")
        << QByteArray("a,b\r\n1,2\r\n3\r\n") << u"a.csv, line 3: Number of cells: 1, in the first row: 2."_s;
    QTest::addRow("too few cells, with line ends of old")
        << QByteArray("a,b\r1,2\r3\r") << u"a.csv, line 3: Number of cells: 1, in the first row: 2."_s;
    QTest::addRow("too few cells, below the name of the delimiter")
        << QByteArray("sep=,\na,b\n3\n") << u"a.csv, line 3: Number of cells: 1, in the first row: 2."_s;
    QTest::addRow("the name of the delimiter alone")
        << QByteArray("sep=,\n") << u"a.csv, line 1: The file holds no rows."_s;
    QTest::addRow("quote inside") << QByteArray("a,b\n1,x\"y\n")
                                  << u"a.csv, line 2: A quotation mark stands where none may stand."_s;
    QTest::addRow("text after a quote")
        << QByteArray("a,b\n1,\"x\"y\n") << u"a.csv, line 2: A quotation mark stands where none may stand."_s;
    QTest::addRow("open quote")
        << QByteArray("a,b\n1,2\n3,\"x\n4,5\n")
        << u"a.csv, line 3: The quotation marks that this row opens are never closed."_s;
    QTest::addRow("zero byte") << QByteArray(
        "a,b\n1,\0\n", 8) << u"a.csv, line 2: A zero byte: this is no text file, or of another encoding."_s;
    QTest::addRow("ends inside a character") << QByteArray("a\nse\xc3\xb1or\ni\xc3")
                                             << u"a.csv: The file is damaged: it ends inside a character."_s;
}

void tst_CsvSource::refuses()
{
    QFETCH(QByteArray, content);
    const SourceFiles files;
    const SourceFields result = SourceReader::read(files.write(u"a.csv"_s, content));
    QTEST(messages(result.errors), "error");
    QVERIFY(result.list()->isEmpty());
}

void tst_CsvSource::aLongLineTakesTimeInProportion()
{
    const SourceFiles files;
    const auto read = [&files](int megabytes) {
        const QString path = files.write(u"a.csv"_s, "a\n\"" + QByteArray(megabytes << 20, 'x') + "\"\n");
        QVERIFY(SourceReader::read(path).ok());
    };
    QVERIFY(growth(read, 2, 16) < 16); // 30 when every piece is searched from the start of the line.
}

void tst_CsvSource::canBeCancelled()
{
    const SourceFiles files;
    SourceOptions options;
    int calls = 0;
    options.progress = [&calls](double part) {
        Q_ASSERT(part >= 0 && part <= 1);
        return ++calls < 2;
    };
    const QString path = files.write(u"a.csv"_s, QByteArray("x\n").repeated(100000));
    const SourceFields result = SourceReader::read(path, options);
    QCOMPARE(calls, 2);
    QVERIFY(result.cancelled);
    QVERIFY(result.list()->isEmpty());
    QCOMPARE(messages(result.errors), QString());
}

void tst_CsvSource::everyTruncationGivesFieldsOrAnError()
{
    const SourceFiles files;
    const QByteArray content =
        QStringLiteral("id,name,area\n1,\"Peña, Ana\",3\n2,\"Li \"\"X\"\"\",4.5\n").toUtf8();
    for (qsizetype length = 0; length < content.size(); ++length) {
        const SourceFields result = SourceReader::read(files.write(u"a.csv"_s, content.left(length)));
        QVERIFY(result.list()->isEmpty() != result.errors.isEmpty());
        // Cut inside a row only its last cell can look whole.
        const bool wholeRow = content.left(length).endsWith('\n') || content.at(length) == '\n';
        const bool lastCell = content.left(length).count(',') == content.left(length + 1).count(',')
            && content.left(length).lastIndexOf(',') > content.left(length).lastIndexOf('\n');
        QVERIFY2(!result.ok() || wholeRow || lastCell || length < 13, qPrintable(QString::number(length)));
    }
}

QTEST_GUILESS_MAIN(tst_CsvSource)
#include "tst_csvsource.moc"
