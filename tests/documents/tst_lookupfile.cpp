#include "documents/sources/LookupFile.h"
#include "SourceFiles.h"

using namespace Qt::Literals::StringLiterals;

class tst_LookupFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reads_data();
    void reads();
    void withoutHeaderTheFirstColumnsCount();
    void refuses_data();
    void refuses();
    void everyTruncationGivesLookupsOrAnError();
};

namespace
{
QString lines(const SourceLookups &result)
{
    QStringList lines;
    for (const TDcLookup *lookup : std::as_const(*result.list()))
        lines.append(lookup->getId() + u'-' + lookup->getLabel());
    return lines.join(u'\n');
}
} // namespace

void tst_LookupFile::reads_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addRow("plain") << QByteArray("id,label\n12,Regions\n13,\n");
    QTest::addRow("other order, letter case and columns") << QByteArray("x;LABEL;Id\n;Regions;12\n;;13\n");
}

void tst_LookupFile::reads()
{
    QFETCH(QByteArray, content);
    const SourceFiles files;
    const SourceLookups result = LookupFile::read(files.write(u"a.csv"_s, content));
    QCOMPARE(messages(result.errors), QString());
    QCOMPARE(lines(result), u"12-Regions\n13-"_s);
}

void tst_LookupFile::withoutHeaderTheFirstColumnsCount()
{
    const SourceFiles files;
    SourceOptions options;
    options.header = false;
    const SourceLookups result = LookupFile::read(files.write(u"a.csv"_s, "12,Regions\n13,Towns\n"), options);
    QCOMPARE(lines(result), u"12-Regions\n13-Towns"_s);
}

void tst_LookupFile::refuses_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("error");
    QTest::addRow("no id") << QByteArray("code,label\n1,x\n")
                           << u"a.csv, line 1: No column is called \"id\"."_s;
    QTest::addRow("empty id") << QByteArray("id,label\n1,x\n,y\n") << u"a.csv, line 3: The id is empty."_s;
    QTest::addRow("cells without text")
        << QByteArray("id\tlabel\n1\tx\n\n\t\n") << u"a.csv, line 4: The id is empty."_s;
    QTest::addRow("twice") << QByteArray("id,label\n1,x\n2,y\n1,z\n")
                           << u"a.csv, line 4: The id \"1\" stands in line 2 too."_s;
    QTest::addRow("ragged") << QByteArray("id,label\n1\n")
                            << u"a.csv, line 2: Number of cells: 1, in the first row: 2."_s;
}

void tst_LookupFile::refuses()
{
    QFETCH(QByteArray, content);
    const SourceFiles files;
    const SourceLookups result = LookupFile::read(files.write(u"a.csv"_s, content));
    QTEST(messages(result.errors), "error");
    QVERIFY(result.list()->isEmpty());
}

void tst_LookupFile::everyTruncationGivesLookupsOrAnError()
{
    const SourceFiles files;
    const QByteArray content("id,label\n12,\"Regions, all\"\n13,\"Towns\"\n");
    for (qsizetype length = 0; length < content.size(); ++length) {
        const SourceLookups result = LookupFile::read(files.write(u"a.csv"_s, content.left(length)));
        const bool headerAlone = !content.left(length).trimmed().contains('\n');
        QCOMPARE(result.list()->isEmpty(), headerAlone || !result.errors.isEmpty());
    }
}

QTEST_GUILESS_MAIN(tst_LookupFile)
#include "tst_lookupfile.moc"
