#include "workbench/CommandLine.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestCommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsEverything();
    void takesAFileWithoutAnOption();
    void takesTheLargestSize();
    void isForPictures_data();
    void isForPictures();
    void saysWhatIsWrong_data();
    void saysWhatIsWrong();

private:
    static CommandLine parse(const QString &arguments)
    {
        return CommandLine::parse((u"quillon-workbench "_s + arguments).split(u' ', Qt::SkipEmptyParts));
    }
};

void TestCommandLine::readsEverything()
{
    const CommandLine line = parse(u"--screenshot a.png --size 1280x800 --theme dark --lang es --open b.mvdb "
                                   "--select PERSON/AGE"_s);
    QCOMPARE(line.error, QString());
    QCOMPARE(line.screenshot, u"a.png"_s);
    QCOMPARE(line.size, QSize(1280, 800));
    QCOMPARE(line.theme, u"dark"_s);
    QCOMPARE(line.language, u"es"_s);
    QCOMPARE(line.file, u"b.mvdb"_s);
    QCOMPARE(line.selection, u"PERSON/AGE"_s);
}

void TestCommandLine::takesAFileWithoutAnOption()
{
    const CommandLine line = parse(u"b.mvdb"_s);
    QCOMPARE(line.file, u"b.mvdb"_s);
    QCOMPARE(line.theme, u"system"_s);
    QVERIFY(line.size.isEmpty());
    QCOMPARE(line.error, QString());
}

void TestCommandLine::takesTheLargestSize()
{
    const CommandLine line = parse(u"--size 8192x8192"_s);
    QCOMPARE(line.error, QString());
    QCOMPARE(line.size, QSize(8192, 8192));
}

void TestCommandLine::isForPictures_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<bool>("pictures");
    QTest::newRow("normal use") << u"b.mvdb"_s << false;
    QTest::newRow("screenshot") << u"--screenshot a.png b.mvdb"_s << true;
    QTest::newRow("tour") << u"--tour pictures b.mvdb"_s << true;
}

void TestCommandLine::isForPictures()
{
    QFETCH(QString, arguments);
    QTEST(parse(arguments).isForPictures(), "pictures");
}

void TestCommandLine::saysWhatIsWrong_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::newRow("two files") << u"a.mvdb b.mvdb"_s;
    QTest::newRow("two files, one as an option") << u"--open a.mvdb b.mvdb"_s;
    QTest::newRow("size without height") << u"--size 1280"_s;
    QTest::newRow("size of nothing") << u"--size 0x800"_s;
    QTest::newRow("size beyond any display") << u"--size 1000000x800"_s;
    QTest::newRow("size beyond memory") << u"--size 99999x99999"_s;
    QTest::newRow("one pixel too wide") << u"--size 8193x800"_s;
    QTest::newRow("one pixel too high") << u"--size 800x8193"_s;
    QTest::newRow("unknown theme") << u"--theme purple"_s;
    QTest::newRow("tour through nothing") << u"--tour pictures"_s;
}

void TestCommandLine::saysWhatIsWrong()
{
    QFETCH(QString, arguments);
    QVERIFY(!parse(arguments).error.isEmpty());
}

QTEST_MAIN(TestCommandLine)
#include "tst_commandline.moc"
