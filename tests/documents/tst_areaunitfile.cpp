#include "documents/sources/AreaUnitFile.h"
#include "SourceFiles.h"

using namespace Qt::Literals::StringLiterals;

class tst_AreaUnitFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsATree_data();
    void readsATree();
    void aParentMayStandBelowItsChildren();
    void keepsSeveralRoots();
    void emptyColumnsTakeOtherTexts();
    void withoutHeaderTheColumnsStandInOrder();
    void aLongChainIsNoTrouble();
    void refuses_data();
    void refuses();
    void reportsEverythingThatIsWrong();
    void everyTruncationGivesUnitsOrAnError();
};

namespace
{
/// The tree as indented lines: level, code, name, areas.
void appendLines(const QList<SelectionTreeUnit *> &units, int depth, QStringList &lines)
{
    for (const SelectionTreeUnit *unit : units) {
        const auto area = unit->getArea();
        lines.append(QString(depth * 2, u' ')
                     + QStringList{QString::number(unit->getLevel()), unit->getCode(), unit->getName(),
                                   QString::fromStdString(area.first), QString::fromStdString(area.second)}
                           .join(u'|'));
        appendLines(*unit->getChildren(), depth + 1, lines);
    }
}

QString tree(const SourceAreaUnits &result)
{
    QStringList lines;
    appendLines(*result.list(), 0, lines);
    return lines.join(u'\n');
}
} // namespace

void tst_AreaUnitFile::readsATree_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addRow("in order") << QByteArray("code,parent,name,area1,area2\n"
                                            "1,,Land,00,Whole land\n"
                                            "10,1,North,N,The north\n"
                                            "101,10,A\xc3\xb1il,A,Town\n"
                                            "20,1,South,S,The south\n");
    QTest::addRow("other order") << QByteArray("AREA;Area1;Parent;x;NAME;Code\n"
                                               "Whole land;00;;x;Land;1\n"
                                               "The north;N;1;;North;10\n"
                                               "Town;A;10;;A\xc3\xb1il;101\n"
                                               "The south;S;1;;South;20\n");
}

void tst_AreaUnitFile::readsATree()
{
    QFETCH(QByteArray, content);
    const SourceFiles files;
    const SourceAreaUnits result = AreaUnitFile::read(files.write(u"a.csv"_s, content));
    QCOMPARE(messages(result.errors), QString());
    QCOMPARE(tree(result),
             u"1|1|Land|00|Whole land\n"
             "  2|10|North|N|The north\n"
             "    3|101|Añil|A|Town\n"
             "  2|20|South|S|The south"_s);
    QCOMPARE(result.list()->first()->getUnitState(), Qt::Unchecked);
}

void tst_AreaUnitFile::aParentMayStandBelowItsChildren()
{
    const SourceFiles files;
    const SourceAreaUnits result =
        AreaUnitFile::read(files.write(u"a.csv"_s, "code,parent\n3,2\n2,1\n4,2\n1,\n"));
    QCOMPARE(tree(result), u"1|1|1|1|1\n  2|2|2|2|2\n    3|3|3|3|3\n    3|4|4|4|4"_s);
}

void tst_AreaUnitFile::keepsSeveralRoots()
{
    const SourceFiles files;
    const SourceAreaUnits result = AreaUnitFile::read(files.write(u"a.csv"_s, "code,parent\nB,\nA,\n"));
    QCOMPARE(tree(result), u"1|B|B|B|B\n1|A|A|A|A"_s);
}

void tst_AreaUnitFile::emptyColumnsTakeOtherTexts()
{
    const SourceFiles files;
    const SourceAreaUnits result =
        AreaUnitFile::read(files.write(u"a.csv"_s, "code,name,area1\n1,Land,\n2,,X\n"));
    QCOMPARE(tree(result), u"1|1|Land|1|Land\n1|2|2|X|2"_s);
}

void tst_AreaUnitFile::withoutHeaderTheColumnsStandInOrder()
{
    const SourceFiles files;
    SourceOptions options;
    options.header = false;
    const SourceAreaUnits result =
        AreaUnitFile::read(files.write(u"a.csv"_s, "1,,Land,00,All\n2,1,North,01,Part\n"), options);
    QCOMPARE(tree(result), u"1|1|Land|00|All\n  2|2|North|01|Part"_s);
}

void tst_AreaUnitFile::aLongChainIsNoTrouble()
{
    const SourceFiles files;
    QByteArray content("code,parent\n0,\n");
    for (int i = 1; i < 100000; ++i)
        content += QByteArray::number(i) + ',' + QByteArray::number(i - 1) + '\n';
    const SourceAreaUnits result = AreaUnitFile::read(files.write(u"a.csv"_s, content));
    QVERIFY(result.ok());
    const SelectionTreeUnit *unit = result.list()->first();
    while (!unit->getChildren()->isEmpty())
        unit = unit->getChildren()->first();
    QCOMPARE(unit->getLevel(), 100000);
}

void tst_AreaUnitFile::refuses_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("error");
    QTest::addRow("no code") << QByteArray("id,parent\n1,\n")
                             << u"a.csv, line 1: No column is called \"code\"."_s;
    QTest::addRow("empty code") << QByteArray("code,parent\n1,\n,1\n")
                                << u"a.csv, line 3: The code is empty."_s;
    QTest::addRow("twice") << QByteArray("code,parent\n1,\n2,1\n2,1\n")
                           << u"a.csv, line 4: The code \"2\" stands in line 3 too."_s;
    QTest::addRow("twice, with what looks like a place for a text")
        << QByteArray("code,parent\na%2b%1,\na%2b%1,\n")
        << u"a.csv, line 3: The code \"a%2b%1\" stands in line 2 too."_s;
    QTest::addRow("missing parent") << QByteArray("code,parent\n1,\n2,7\n")
                                    << u"a.csv, line 3: The parent \"7\" of \"2\" is not in the file."_s;
    QTest::addRow("own parent") << QByteArray("code,parent\n1,\n2,2\n")
                                << u"a.csv, line 3: The unit lies below itself: 2 < 2."_s;
    QTest::addRow("ring, once, whatever leads into it")
        << QByteArray("code,parent\n9,4\n1,\n2,4\n3,2\n4,3\n5,3\n")
        << u"a.csv, line 4: The unit lies below itself: 2 < 4 < 3 < 2."_s;
    QTest::addRow("open quote")
        << QByteArray("code,parent\n1,\"\n")
        << u"a.csv, line 2: The quotation marks that this row opens are never closed."_s;
}

void tst_AreaUnitFile::refuses()
{
    QFETCH(QByteArray, content);
    const SourceFiles files;
    const SourceAreaUnits result = AreaUnitFile::read(files.write(u"a.csv"_s, content));
    QTEST(messages(result.errors), "error");
    QVERIFY(result.list()->isEmpty());
}

void tst_AreaUnitFile::reportsEverythingThatIsWrong()
{
    const SourceFiles files;
    const SourceAreaUnits result =
        AreaUnitFile::read(files.write(u"a.csv"_s, "code,parent\n1,2\n2,1\n3,x\n3,1\n4,5\n5,4\n"));
    QCOMPARE(messages(result.errors),
             u"a.csv, line 5: The code \"3\" stands in line 4 too.\n"
             "a.csv, line 4: The parent \"x\" of \"3\" is not in the file.\n"
             "a.csv, line 2: The unit lies below itself: 1 < 2 < 1.\n"
             "a.csv, line 6: The unit lies below itself: 4 < 5 < 4."_s);
}

void tst_AreaUnitFile::everyTruncationGivesUnitsOrAnError()
{
    const SourceFiles files;
    const QByteArray content("code,parent,name\n1,,\"Land, all\"\n10,1,North\n101,10,Town\n");
    for (qsizetype length = 0; length < content.size(); ++length) {
        const SourceAreaUnits result = AreaUnitFile::read(files.write(u"a.csv"_s, content.left(length)));
        const bool headerAlone = !content.left(length).trimmed().contains('\n');
        QCOMPARE(result.list()->isEmpty(), headerAlone || !result.errors.isEmpty());
    }
}

QTEST_GUILESS_MAIN(tst_AreaUnitFile)
#include "tst_areaunitfile.moc"
