#include "workbench/Theme.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QTest>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace
{
double luminance(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
        + 0.0722 * linear(colour.blueF());
}

/// 1 for equal colours, 21 for black on white.
double contrast(const QColor &left, const QColor &right)
{
    const auto [less, more] = std::minmax({luminance(left), luminance(right)});
    return (more + 0.05) / (less + 0.05);
}
} // namespace

class TestTheme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusesOtherNames();
    void showsEmptyCheckBoxes_data();
    void showsEmptyCheckBoxes();
};

void TestTheme::refusesOtherNames()
{
    const QPalette before = QApplication::palette();
    QVERIFY(!Theme::apply(u"Dark"_s));
    QVERIFY(!Theme::apply({}));
    QVERIFY(Theme::apply(u"system"_s));
    QCOMPARE(QApplication::palette(), before);
}

void TestTheme::showsEmptyCheckBoxes_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<QPalette::ColorRole>("ground");
    for (const QString &theme : {u"light"_s, u"dark"_s}) {
        QTest::addRow("%s, in a list", qPrintable(theme)) << theme << QPalette::Base;
        QTest::addRow("%s, in a form", qPrintable(theme)) << theme << QPalette::Window;
        QTest::addRow("%s, selected", qPrintable(theme)) << theme << QPalette::Highlight;
    }
}

void TestTheme::showsEmptyCheckBoxes()
{
    QFETCH(const QString, theme);
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
    QApplication::style()->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &option, &painter);
    painter.end();
    // What a control is known by stands out by 3:1.
    for (const QPoint &edge : {QPoint(1, 7), QPoint(13, 7), QPoint(7, 1), QPoint(7, 13)})
        QVERIFY2(contrast(image.pixelColor(edge), behind) >= 3, qPrintable(image.pixelColor(edge).name()));
}

QTEST_MAIN(TestTheme)
#include "tst_theme.moc"
