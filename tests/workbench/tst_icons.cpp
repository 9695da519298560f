#include "common/IconPaths.h"
#include "tests/workbench/Contrast.h"
#include "workbench/Theme.h"

#include <QApplication>
#include <QColor>
#include <QDirIterator>
#include <QFile>
#include <QIcon>
#include <QImage>
#include <QPalette>
#include <QPixmap>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

// The images that the workbench supplies: those that the layer names, and those of its own table.
class TestIcons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namedByTheLayer_data();
    void namedByTheLayer();
    void tableIsWhatIsCompiledIn();
    void colours_data();
    void colours();
    void areDrawn_data();
    void areDrawn();

private:
    /// The texts in \a file that look like the path of an image, or like its name in IconPaths.h.
    static QStringList paths(const QString &file);
    static QStringList sources(const QString &folder);
    static QList<QStringList> table();
};

QStringList TestIcons::sources(const QString &folder)
{
    QStringList files;
    QDirIterator found(QStringLiteral(QUILLON_SOURCE_DIR) + u"/"_s + folder, {u"*.cpp"_s, u"*.h"_s},
                       QDir::Files, QDirIterator::Subdirectories);
    while (found.hasNext())
        files.append(found.next());
    return files;
}

QStringList TestIcons::paths(const QString &file)
{
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly))
        return {};
    const QString text = QString::fromUtf8(source.readAll());
    static const QRegularExpression literal(u"\"(:/icons/[^\"%]+\\.png)\""_s);
    static const QRegularExpression named(u"icon48\\(\"([^\"]+)\"_L1\\)"_s);
    QStringList result;
    for (const auto &match : literal.globalMatch(text))
        result.append(match.captured(1));
    for (const auto &match : named.globalMatch(text))
        result.append(IconPaths::icon48(QLatin1StringView(match.captured(1).toLatin1())));
    return result;
}

QList<QStringList> TestIcons::table()
{
    QFile file(QStringLiteral(QUILLON_SOURCE_DIR) + u"/workbench/icons/icons.txt"_s);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<QStringList> rows;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (const QString &line : lines) {
        if (!line.startsWith(u'#') && !line.isEmpty())
            rows.append(line.split(u' ', Qt::SkipEmptyParts));
    }
    return rows;
}

void TestIcons::namedByTheLayer_data()
{
    QTest::addColumn<QString>("path");
    QStringList named = paths(QStringLiteral(QUILLON_SOURCE_DIR) + u"/common/IconPaths.h"_s);
    QCOMPARE(named.size(), 51);
    const QStringList files = sources(u"models"_s);
    for (const QString &file : files)
        named.append(paths(file));
    QVERIFY(named.contains(u":/icons/res/icons/48px-integernumber.png"_s));
    named.removeDuplicates();
    for (const QString &path : std::as_const(named))
        QTest::addRow("%s", qPrintable(path)) << path;
}

void TestIcons::namedByTheLayer()
{
    QFETCH(const QString, path);
    QCOMPARE(QImage(path).size(), QSize(48, 48));
    QString twice = path;
    twice.replace(u".png"_s, u"@2x.png"_s);
    QCOMPARE(QImage(twice).size(), QSize(96, 96));
}

void TestIcons::tableIsWhatIsCompiledIn()
{
    QStringList wanted;
    const QList<QStringList> rows = table();
    for (const QStringList &row : rows) {
        QCOMPARE(row.size(), 3);
        wanted.append(row.first() + u".png"_s);
        wanted.append(row.first() + u"@2x.png"_s);
    }
    QStringList found = QDir(u":/icons/res/icons"_s).entryList();
    found.sort();
    wanted.sort();
    QCOMPARE(found, wanted);
}

void TestIcons::colours_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<QString>("colour");
    QSet<QString> colours;
    const QList<QStringList> rows = table();
    for (const QStringList &row : rows)
        colours.insert(row.at(2));
    for (const QString &theme : {u"light"_s, u"dark"_s}) {
        for (const QString &colour : std::as_const(colours))
            QTest::addRow("%s, %s", qPrintable(theme), qPrintable(colour)) << theme << colour;
    }
}

void TestIcons::colours()
{
    QFETCH(QString, theme);
    QFETCH(QString, colour);
    QVERIFY(QColor::isValidColor(colour));
    QVERIFY(Theme::apply(theme));
    QList<QColor> grounds;
    for (QPalette::ColorRole role : {QPalette::Window, QPalette::Base, QPalette::AlternateBase})
        grounds.append(QApplication::palette().color(role));
    // A style draws buttons in other colours than the palette's.
    QPushButton button;
    button.resize(80, 24);
    const QImage drawn = button.grab().toImage();
    for (int y : {4, 12, 20})
        grounds.append(drawn.pixelColor(40, y));
    for (const QColor &ground : std::as_const(grounds))
        QVERIFY2(Contrast::between(QColor(colour), ground) >= 3, qPrintable(ground.name()));
}

void TestIcons::areDrawn_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("colour");
    const QList<QStringList> rows = table();
    for (const QStringList &row : rows)
        QTest::addRow("%s", qPrintable(row.first()))
            << u":/icons/res/icons/%1.png"_s.arg(row.first()) << row.at(2);
}

void TestIcons::areDrawn()
{
    QFETCH(const QString, path);
    QFETCH(const QString, colour);
    const QImage image = QImage(path).convertToFormat(QImage::Format_ARGB32);
    int opaque = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) < 255)
                continue;
            ++opaque;
            QCOMPARE(image.pixelColor(x, y), QColor(colour));
        }
    }
    QVERIFY(opaque > 20);
    QVERIFY(opaque < 48 * 48);
}

QTEST_MAIN(TestIcons)
#include "tst_icons.moc"
