#include "tests/workbench/Contrast.h"
#include "workbench/Theme.h"

#include <QApplication>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestTheme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusesOtherNames();
    void showsEmptyBoxes_data();
    void showsEmptyBoxes();
    void drawsDisabledTextsOnce_data() { themes(); }
    void drawsDisabledTextsOnce();
    void dimsDisabledImages_data() { themes(); }
    void dimsDisabledImages();

private:
    static void themes()
    {
        QTest::addColumn<QString>("theme");
        QTest::addRow("light") << u"light"_s;
        QTest::addRow("dark") << u"dark"_s;
    }
};

void TestTheme::refusesOtherNames()
{
    const QPalette before = QApplication::palette();
    QVERIFY(!Theme::apply(u"Dark"_s));
    QVERIFY(!Theme::apply({}));
    QVERIFY(Theme::apply(u"system"_s));
    QCOMPARE(QApplication::palette(), before);
}

void TestTheme::showsEmptyBoxes_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<QStyle::PrimitiveElement>("box");
    QTest::addColumn<QPalette::ColorRole>("ground");
    for (const QString &theme : {u"light"_s, u"dark"_s}) {
        for (const auto &[name, box] : {std::pair("check box", QStyle::PE_IndicatorItemViewItemCheck),
                                        std::pair("radio button", QStyle::PE_IndicatorRadioButton)}) {
            const QByteArray row = theme.toLatin1() + ", " + name;
            QTest::addRow("%s, in a list", row.constData()) << theme << box << QPalette::Base;
            QTest::addRow("%s, in a form", row.constData()) << theme << box << QPalette::Window;
            QTest::addRow("%s, selected", row.constData()) << theme << box << QPalette::Highlight;
        }
    }
}

void TestTheme::showsEmptyBoxes()
{
    QFETCH(const QString, theme);
    QFETCH(const QStyle::PrimitiveElement, box);
    QFETCH(const QPalette::ColorRole, ground);
    QVERIFY(Theme::apply(theme));
    const QColor behind = QApplication::palette().color(ground);
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(behind);
    QPainter painter(&image);
    QStyleOptionViewItem option;
    option.palette = QApplication::palette();
    option.rect = QRect(1, 1, 13, 13);
    option.state = QStyle::State_Enabled | QStyle::State_Off;
    QApplication::style()->drawPrimitive(box, &option, &painter);
    painter.end();
    for (const QPoint &edge : {QPoint(1, 7), QPoint(13, 7), QPoint(7, 1), QPoint(7, 13)})
        QVERIFY2(Contrast::between(image.pixelColor(edge), behind) >= 3,
                 qPrintable(image.pixelColor(edge).name()));
}

void TestTheme::drawsDisabledTextsOnce()
{
    QFETCH(const QString, theme);
    QVERIFY(Theme::apply(theme));
    QCOMPARE(QApplication::style()->styleHint(QStyle::SH_EtchDisabledText), 0);
}

void TestTheme::dimsDisabledImages()
{
    QFETCH(const QString, theme);
    QVERIFY(Theme::apply(theme));
    const QColor ground = QApplication::palette().color(QPalette::Window);
    const auto drawn = [&ground](const QString &name, QIcon::Mode mode) {
        QImage image(16, 16, QImage::Format_RGB32);
        image.fill(ground);
        QPainter painter(&image);
        QIcon(u":/icons/res/icons/48px-%1.png"_s.arg(name))
            .paint(&painter, image.rect(), Qt::AlignCenter, mode);
        painter.end();
        double most = 1;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                most = std::max(most, Contrast::between(image.pixelColor(x, y), ground));
        }
        return most;
    };
    // Whatever can be pressed is clearer than anything that cannot.
    for (const QString &name : {u"Add"_s, u"Remove"_s, u"Move-up"_s})
        QVERIFY(drawn(name, QIcon::Normal) >= 1.5 * drawn(u"Move-down"_s, QIcon::Disabled));
    QVERIFY(drawn(u"Move-down"_s, QIcon::Disabled) > 1.2);
}

QTEST_MAIN(TestTheme)
#include "tst_theme.moc"
