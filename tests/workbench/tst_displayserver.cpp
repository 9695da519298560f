#include "tests/cli/Program.h"

#include <QImage>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

// The program on a machine without a display.
class TestDisplayServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void saysWhatItCanDo_data();
    void saysWhatItCanDo();
    void drawsPictures();
    void saysThatNobodyCanWork_data();
    void saysThatNobodyCanWork();
    void leavesAPlatformThatIsNamedAlone();
};

void TestDisplayServer::initTestCase()
{
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        qunsetenv(name);
}

void TestDisplayServer::saysWhatItCanDo_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QString>("said");
    QTest::addRow("help") << u"--help"_s << u"--screenshot"_s;
    QTest::addRow("version") << u"--version"_s << u"quillon-workbench "_s;
}

void TestDisplayServer::saysWhatItCanDo()
{
    QFETCH(const QString, argument);
    QFETCH(const QString, said);
    const ProgramRun run = runProgram({argument});
    QCOMPARE(run.status, 0);
    QVERIFY2(run.output.contains(said), qUtf8Printable(run.output));
}

void TestDisplayServer::drawsPictures()
{
    const TestFolder folder;
    const QString file = folder.write(u"a.mvdb"_s, json("{'root':{'name':'HOUSE'}}"));
    const ProgramRun run =
        runProgram({u"--screenshot"_s, folder.path(u"a.png"_s), u"--size"_s, u"1300x820"_s, file});
    QVERIFY2(run.status == 0, qUtf8Printable(run.errors));
    QCOMPARE(QImage(folder.path(u"a.png"_s)).size(), QSize(1300, 820));
}

void TestDisplayServer::saysThatNobodyCanWork_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addRow("nothing") << QStringList();
    QTest::addRow("a file") << QStringList{u"a.mvdb"_s};
}

void TestDisplayServer::saysThatNobodyCanWork()
{
    QFETCH(const QStringList, arguments);
    const ProgramRun run = runProgram(arguments);
    QCOMPARE(run.status, 2);
    QVERIFY2(run.errors.contains(u"quillon-workbench: There is no display."_s), qUtf8Printable(run.errors));
}

void TestDisplayServer::leavesAPlatformThatIsNamedAlone()
{
    // Which Qt does not know, and says so when it is asked for it.
    const ProgramRun run = runProgram({u"-platform"_s, u"none-such"_s, u"--version"_s});
    QCOMPARE(run.status, -1);
    QVERIFY2(run.errors.contains(u"none-such"_s), qUtf8Printable(run.errors));
}

QTEST_GUILESS_MAIN(TestDisplayServer)
#include "tst_displayserver.moc"
