#include "tests/workbench/IsolatedSettings.h"
#include "workbench/panels/ColumnMemory.h"

#include <QHeaderView>
#include <QSettings>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace
{
/// A table as panels have it.
struct Table {
    explicit Table(int count = 3) : model(4, count)
    {
        view.setModel(&model);
        view.setSortingEnabled(true);
        view.horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    }

    QStandardItemModel model;
    QTableView view;
    ColumnMemory columns{&view, u"table"_s};
};
} // namespace

class TestColumnMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_settings = std::make_unique<IsolatedSettings>(); }
    void cleanup() { m_settings.reset(); }

    void knowsNothingAtFirst();
    void remembersUntilTheNextStart();
    void doesNotSortAtTheNextStart();
    void keepsTheSortingWhileTheProgramRuns();
    void staysWhileThereIsNoModel();
    void ignoresWhatDoesNotFit_data();
    void ignoresWhatDoesNotFit();

private:
    std::unique_ptr<IsolatedSettings> m_settings;
};

void TestColumnMemory::knowsNothingAtFirst()
{
    Table table;
    QVERIFY(!table.columns.restore());
}

void TestColumnMemory::remembersUntilTheNextStart()
{
    {
        Table table;
        table.view.setColumnWidth(1, 234);
        table.view.horizontalHeader()->moveSection(2, 0);
    }
    Table table;
    QVERIFY(table.columns.restore());
    QCOMPARE(table.view.columnWidth(1), 234);
    QCOMPARE(table.view.horizontalHeader()->visualIndex(2), 0);
}

void TestColumnMemory::doesNotSortAtTheNextStart()
{
    {
        Table table;
        table.view.sortByColumn(1, Qt::DescendingOrder);
    }
    Table table;
    QVERIFY(table.columns.restore());
    QCOMPARE(table.view.horizontalHeader()->sortIndicatorSection(), -1);
}

void TestColumnMemory::keepsTheSortingWhileTheProgramRuns()
{
    Table table;
    table.view.sortByColumn(1, Qt::DescendingOrder);
    table.columns.take();
    table.view.sortByColumn(-1, Qt::AscendingOrder);
    QVERIFY(table.columns.restore());
    QCOMPARE(table.view.horizontalHeader()->sortIndicatorSection(), 1);
}

void TestColumnMemory::staysWhileThereIsNoModel()
{
    Table table;
    table.view.setColumnWidth(0, 321);
    table.columns.take();
    table.view.setModel(nullptr);
    table.columns.take();
    table.view.setModel(&table.model);
    QVERIFY(table.columns.restore());
    QCOMPARE(table.view.columnWidth(0), 321);
}

void TestColumnMemory::ignoresWhatDoesNotFit_data()
{
    QTest::addColumn<QByteArray>("state");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("noise") << QByteArray("\0\1\2 no header", 13);
    const Table other(5);
    QTest::newRow("other columns") << other.view.horizontalHeader()->saveState();
    Table hidden;
    for (int column = 0; column < 3; ++column)
        hidden.view.hideColumn(column);
    QTest::newRow("nothing to see") << hidden.view.horizontalHeader()->saveState();
}

void TestColumnMemory::ignoresWhatDoesNotFit()
{
    QFETCH(QByteArray, state);
    QSettings().setValue(u"columns/table"_s, state);
    Table table;
    const int width = table.view.columnWidth(0);
    QVERIFY(!table.columns.restore());
    QCOMPARE(table.model.columnCount(), 3);
    QCOMPARE(table.view.horizontalHeader()->count(), 3);
    QCOMPARE(table.view.horizontalHeader()->hiddenSectionCount(), 0);
    QCOMPARE(table.view.columnWidth(0), width);
}

QTEST_MAIN(TestColumnMemory)
#include "tst_columnmemory.moc"
