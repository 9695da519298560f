#include "tests/support/Trees.h"
#include "tests/workbench/IsolatedSettings.h"
#include "workbench/MainWindow.h"
#include "workbench/Tour.h"

#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestTour : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void goesRoundTheSample();
    void leavesTheOriginalAsItIs();
    void touchesNoFileThatIsThere_data();
    void touchesNoFileThatIsThere();
    void goesRoundADictionaryWithoutVariables();
    void saysWhatIsWrong_data();
    void saysWhatIsWrong();

private:
    [[nodiscard]] QString sample() const
    {
        return QStringLiteral(QUILLON_SOURCE_DIR "/samples/household.mvdb");
    }
    [[nodiscard]] QStringList pictures() const;

    std::unique_ptr<IsolatedSettings> m_settings;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MainWindow> m_window;
};

void TestTour::initTestCase()
{
    qApp->setQuitOnLastWindowClosed(false);
}

void TestTour::init()
{
    m_settings = std::make_unique<IsolatedSettings>();
    m_folder = std::make_unique<QTemporaryDir>();
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestTour::cleanup()
{
    m_window.reset();
    m_settings.reset();
}

QStringList TestTour::pictures() const
{
    return QDir(m_folder->filePath(u"tour"_s)).entryList({u"*.png"_s}, QDir::Files, QDir::Name);
}

void TestTour::goesRoundTheSample()
{
    Tour tour(m_window.get(), m_folder->filePath(u"tour"_s));
    QVERIFY2(tour.go(sample()), qUtf8Printable(tour.errorText()));

    // Every stop is in a picture, and no two pictures are the same.
    const QStringList names = pictures();
    QList<QImage> seen;
    for (const QString &name : names) {
        const QImage image(m_folder->filePath(u"tour/"_s + name));
        QVERIFY2(!image.isNull(), qUtf8Printable(name));
        QVERIFY2(!seen.contains(image), qUtf8Printable(name));
        seen.append(image);
    }
    for (const auto &stop :
         {u"open"_s, u"rename"_s, u"find"_s, u"edit"_s, u"values"_s, u"source"_s, u"import"_s, u"undo"_s,
          u"csv"_s, u"lookups"_s, u"question"_s, u"save"_s, u"problems"_s, u"together"_s, u"expression"_s,
          u"areas"_s, u"run"_s, u"recovery"_s, u"about"_s})
        QVERIFY2(!names.filter(u'-' + stop + u'.').isEmpty(), qUtf8Printable(stop));

    // What was done is in the saved copy.
    Document copy;
    QVERIFY(copy.open(m_folder->filePath(u"tour/household.mvdb"_s)));
    Selection selection(&copy);
    QVERIFY(selection.select(u"PERSONS/HEALTH"_s));
    QVERIFY(selection.select(u"PERSONS/LASTVIS_A"_s));
}

void TestTour::leavesTheOriginalAsItIs()
{
    const QString original = m_folder->filePath(u"mine.mvdb"_s);
    QVERIFY(QFile::copy(sample(), original));
    QFile file(original);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray before = file.readAll();
    Tour tour(m_window.get(), m_folder->filePath(u"tour"_s));
    QVERIFY2(tour.go(original), qUtf8Printable(tour.errorText()));
    file.seek(0);
    QCOMPARE(file.readAll(), before);
}

void TestTour::touchesNoFileThatIsThere_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("the dictionary's own folder") << QString();
    QTest::newRow("its own folder, written otherwise") << u"tour/.."_s;
    QTest::newRow("another dictionary of that name") << u"other"_s;
}

void TestTour::touchesNoFileThatIsThere()
{
    QFETCH(const QString, folder);
    const QString original = m_folder->filePath(u"mine.mvdb"_s);
    QVERIFY(QFile::copy(sample(), original));
    QVERIFY(QDir(m_folder->path()).mkpath(u"other"_s));
    QVERIFY(QFile::copy(sample(), m_folder->filePath(u"other/mine.mvdb"_s)));
    Tour tour(m_window.get(), m_folder->filePath(folder));
    QVERIFY(!tour.go(original));
    QVERIFY2(tour.errorText().contains(u"mine.mvdb"_s), qUtf8Printable(tour.errorText()));
    for (const QString &path : {original, m_folder->filePath(u"other/mine.mvdb"_s)}) {
        Document document;
        QVERIFY2(document.open(path), qUtf8Printable(path));
    }
}

void TestTour::goesRoundADictionaryWithoutVariables()
{
    const QString empty = m_folder->filePath(u"empty.mvdb"_s);
    Document document;
    QVERIFY(document.save(empty));
    Tour tour(m_window.get(), m_folder->filePath(u"tour"_s));
    QVERIFY2(tour.go(empty), qUtf8Printable(tour.errorText()));
    QVERIFY(!pictures().isEmpty());
}

void TestTour::saysWhatIsWrong_data()
{
    QTest::addColumn<QString>("dictionary");
    QTest::addColumn<QString>("folder");
    QTest::newRow("no such file") << u"none.mvdb"_s << u"tour"_s;
    QTest::newRow("not a dictionary") << u"broken.mvdb"_s << u"tour"_s;
    QTest::newRow("no folder can be made") << u"broken.mvdb"_s << u"broken.mvdb/tour"_s;
}

void TestTour::saysWhatIsWrong()
{
    QFETCH(QString, dictionary);
    QFETCH(QString, folder);
    QFile broken(m_folder->filePath(u"broken.mvdb"_s));
    QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("[1, 2") > 0);
    broken.close();
    Tour tour(m_window.get(), m_folder->filePath(folder));
    QVERIFY(!tour.go(m_folder->filePath(dictionary)));
    QVERIFY(!tour.errorText().isEmpty());
    QCOMPARE(pictures(), QStringList());
}

QTEST_MAIN(TestTour)
#include "tst_tour.moc"
