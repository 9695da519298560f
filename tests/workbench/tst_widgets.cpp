#include "workbench/panels/Widgets.h"

#include <QHeaderView>
#include <QImage>
#include <QListWidget>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void titlesAreAlignedAsTheirCells_data();
    void titlesAreAlignedAsTheirCells();
    void rowsOfListsAreRoomy();
};

void TestWidgets::titlesAreAlignedAsTheirCells_data()
{
    QTest::addColumn<QVariant>("cell");
    QTest::addColumn<int>("alignment");
    QTest::addColumn<bool>("right");
    constexpr int right = Qt::AlignRight | Qt::AlignVCenter;
    QTest::addRow("texts") << QVariant(u"A"_s) << 0 << false;
    QTest::addRow("numbers") << QVariant(1) << right << true;
    QTest::addRow("numbers on the left") << QVariant(1) << 0 << false;
    // Sorted or filtered, another text may be the first.
    QTest::addRow("a text that is a number") << QVariant(u"1"_s) << right << false;
}

void TestWidgets::titlesAreAlignedAsTheirCells()
{
    QFETCH(const QVariant, cell);
    QFETCH(const int, alignment);
    QFETCH(const bool, right);
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), cell, Qt::DisplayRole);
    model.setHorizontalHeaderLabels({u"MMM"_s});
    if (alignment != 0)
        model.setData(model.index(0, 0), alignment, Qt::TextAlignmentRole);
    QTableView table;
    Widgets::setUpTable(&table, u"Table"_s);
    table.setModel(&model);
    table.resize(400, 100);
    table.show();
    QVERIFY(QTest::qWaitForWindowExposed(&table));
    for (const bool empty : {false, true}) {
        if (empty)
            model.removeRow(0);
        const QImage image = table.horizontalHeader()->viewport()->grab().toImage();
        const auto darkest = [&image](int from, int to) {
            int least = 255;
            for (int x = from; x < to; ++x) {
                for (int y = 4; y < image.height() - 4; ++y)
                    least = qMin(least, qGray(image.pixel(x, y)));
            }
            return least;
        };
        const int left = darkest(4, image.width() / 2);
        const int rest = darkest(image.width() / 2, image.width() - 4);
        QCOMPARE(rest < left, right);
        QVERIFY(qAbs(rest - left) > 60);
    }
}

void TestWidgets::rowsOfListsAreRoomy()
{
    QListWidget plain;
    plain.addItem(u"Text"_s);
    QListWidget list;
    Widgets::setUpList(&list, u"List"_s);
    list.addItem(u"Text"_s);
    QVERIFY(list.sizeHintForRow(0) >= plain.sizeHintForRow(0) + 4);
    QCOMPARE(list.accessibleName(), u"List"_s);
}

QTEST_MAIN(TestWidgets)
#include "tst_widgets.moc"
