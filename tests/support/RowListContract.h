#pragma once

#include <QAbstractItemModel>
#include <QList>
#include <QTest>

/// Checks what every flat table promises: \a model shows \a rows, in this order, in \a columns columns.
///
/// Call it in a test function and return when QTest::currentTestFailed(). QAbstractItemModelTester does not
/// suit these models: they give their size for every parent, on purpose.
template <typename Item>
void checkRowListContract(const QAbstractItemModel &model, const QList<Item *> &rows, int columns)
{
    QCOMPARE(model.rowCount(), int(rows.size()));
    QCOMPARE(model.columnCount(), columns);

    for (int row = 0; row < rows.size(); ++row) {
        for (int column = 0; column < columns; ++column) {
            const QModelIndex index = model.index(row, column);
            QVERIFY(index.isValid());
            QCOMPARE(index.row(), row);
            QCOMPARE(index.column(), column);
            QCOMPARE(index.model(), &model);
            QCOMPARE(index.internalPointer(), static_cast<const void *>(rows.at(row)));
            QVERIFY(!model.parent(index).isValid());
            QVERIFY2(!model.index(0, 0, index).isValid(), "an index under a valid parent");
            QVERIFY2(!model.index(row, column, index).isValid(), "an index under a valid parent");
            QCOMPARE(model.rowCount(index), int(rows.size())); // The parent is not looked at.
            QCOMPARE(model.columnCount(index), columns);
        }
    }

    QVERIFY2(!model.index(int(rows.size()), 0).isValid(), "a row past the end");
    QVERIFY2(!model.index(int(rows.size()) + 1000, 0).isValid(), "a row far past the end");
    QVERIFY2(!model.index(-1, 0).isValid(), "a negative row");
    QVERIFY(!model.parent({}).isValid());

    QVERIFY2(!model.data({}).isValid(), "data of an invalid index");
    QVERIFY2(!model.data({}, Qt::CheckStateRole).isValid(), "a check state of an invalid index");
}
