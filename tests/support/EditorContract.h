#pragma once

#include "tests/support/CheckListContract.h"

/// What a role other than editing does to an editable table: nothing is stored, yet it is announced and
/// answered with true. Invalid indexes are refused silently.
inline void checkSilentRolesContract(QAbstractItemModel &model, const QVariant &value)
{
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    const QModelIndex cell = model.index(0, 0);
    const QVariant before = cell.data();
    for (const int role : {int(Qt::DisplayRole), int(Qt::CheckStateRole), int(Qt::UserRole)})
        QVERIFY(model.setData(cell, value, role));
    QCOMPARE(cell.data(), before);
    QCOMPARE(changed.size(), 3);
    for (const QList<QVariant> &arguments : std::as_const(changed)) {
        QCOMPARE(arguments.at(0).toModelIndex(), cell);
        QCOMPARE(arguments.at(1).toModelIndex(), cell);
        QVERIFY(arguments.at(2).value<QList<int>>().isEmpty());
    }

    changed.clear();
    QVERIFY(!model.setData({}, value));
    QVERIFY(!model.setData({}, value, Qt::DisplayRole));
    QCOMPARE(changed.size(), 0);

    // A column beyond the table stores nothing either.
    QVERIFY(model.setData(model.index(0, 2), value));
    QCOMPARE(cell.data(), before);

    for (const int role : {Qt::DecorationRole, Qt::CheckStateRole, Qt::ToolTipRole, Qt::TextAlignmentRole})
        QVERIFY(!cell.data(role).isValid());
    QVERIFY(!model.index(0, 2).data().isValid());

    const Qt::ItemFlags editable = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsEditable;
    QCOMPARE(model.flags(cell), editable);
    QCOMPARE(model.flags(model.index(0, 1)), editable);
    QCOMPARE(model.flags({}), Qt::ItemFlags());
}
