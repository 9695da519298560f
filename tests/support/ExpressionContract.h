#pragma once

#include "models/eEntityShowMode.h"
#include "tests/support/DebugLines.h"
#include "tests/support/Icons.h"
#include "tests/support/RowListContract.h"

#include <QAbstractItemModel>
#include <QListView>
#include <QSignalSpy>
#include <QTest>

/// What the three expression lists promise alike.
namespace ExpressionContract
{
[[nodiscard]] inline QStringList texts(const QAbstractItemModel &model)
{
    QStringList shown;
    for (int row = 0; row < model.rowCount(); ++row)
        shown += model.index(row, 0).data().toString();
    return shown;
}

/// The arguments of an announcement of rows: "first-last", "parent!" before it if it has a valid parent.
[[nodiscard]] inline QString announced(const QSignalSpy &spy)
{
    QStringList all;
    for (const auto &arguments : spy) {
        const QString parent =
            arguments.at(0).toModelIndex().isValid() ? QStringLiteral("parent!") : QString();
        all += parent + QStringLiteral("%1-%2").arg(arguments.at(1).toInt()).arg(arguments.at(2).toInt());
    }
    return all.join(QLatin1Char(' '));
}

/// `expected` is what the rows show.
inline void checkCells(const QAbstractItemModel &model, const QStringList &expected)
{
    QCOMPARE(texts(model), expected);
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row, 0);
        QCOMPARE(iconFile(index.data(Qt::DecorationRole)),
                 QStringLiteral(":/icons/res/icons/48px-Project-preferences.png"));
        QVERIFY(!model.index(row, 1).data(Qt::DecorationRole).isValid());
        QCOMPARE(model.index(row, 1).data(), index.data()); // The column is not looked at.
        for (const int role : {int(Qt::EditRole), int(Qt::ToolTipRole), int(Qt::CheckStateRole),
                               int(Qt::TextAlignmentRole), int(Qt::UserRole)})
            QVERIFY(!index.data(role).isValid());
    }
    QVERIFY(!model.data({}, Qt::DecorationRole).isValid());
    QCOMPARE(model.headerData(0, Qt::Horizontal), QVariant(1)); // Qt's own number
}

/// Rows take drops and can be dragged; the empty area takes drops too.
inline void checkFlags(const QAbstractItemModel &model)
{
    QCOMPARE(model.flags(model.index(0, 0)),
             Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled);
    QCOMPARE(model.flags({}), Qt::ItemIsDropEnabled);
}

/// An edit is taken, announced and changes nothing, whatever its role.
inline void checkSilentEdit(QAbstractItemModel &model)
{
    const QStringList before = texts(model);
    const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    const QModelIndex index = model.index(1, 0);
    for (const int role : {Qt::EditRole, Qt::DisplayRole, Qt::CheckStateRole})
        QVERIFY(model.setData(index, QStringLiteral("other"), role));
    QCOMPARE(changes.size(), 3);
    for (const auto &arguments : changes) {
        QCOMPARE(arguments.at(0).toModelIndex(), index);
        QCOMPARE(arguments.at(1).toModelIndex(), index);
        QVERIFY(arguments.at(2).value<QList<int>>().isEmpty());
    }
    QVERIFY(!model.setData({}, QStringLiteral("other")));
    QCOMPARE(changes.size(), 3);
    QCOMPARE(texts(model), before);
}

/// Takes rows out as asked. `model` shows a, b, c, d.
inline void checkRemovesRows(QAbstractItemModel &model, int row, int count, const QString &expectedRange,
                             const QStringList &left, const QStringList &log)
{
    const DebugLines lines;
    const QSignalSpy before(&model, &QAbstractItemModel::rowsAboutToBeRemoved);
    const QSignalSpy after(&model, &QAbstractItemModel::rowsRemoved);
    QVERIFY(model.removeRows(row, count));
    QCOMPARE(announced(before), expectedRange);
    QCOMPARE(announced(after), expectedRange);
    QCOMPARE(texts(model), left);
    QCOMPARE(lines.lines, log);
}

/// The cases for checkRemovesRows().
inline void removals()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("range");
    QTest::addColumn<QStringList>("left");
    const auto list = [](const char *letters) { return QString::fromLatin1(letters).split(u' '); };
    QTest::addRow("one") << 1 << 1 << QStringLiteral("1-1") << list("a c d");
    QTest::addRow("several") << 1 << 2 << QStringLiteral("1-2") << list("a d");
    QTest::addRow("all") << 0 << 4 << QStringLiteral("0-3") << QStringList();
    QTest::addRow("none is announced too") << 2 << 0 << QStringLiteral("2-1") << list("a b c d");
    QTest::addRow("fewer than none") << 2 << -3 << QStringLiteral("2--2") << list("a b c d");
    QTest::addRow("past the end") << 3 << 5 << QStringLiteral("3-7") << list("a b c");
    QTest::addRow("wholly past the end") << 9 << 1 << QStringLiteral("9-9") << list("a b c d");
    QTest::addRow("a negative row") << -1 << 2 << QStringLiteral("-1-0") << list("a b c d");
    QTest::addRow("more than an int counts")
        << 1 << INT_MAX << QStringLiteral("1-%1").arg(INT_MAX) << list("a");
}

/// Walks, searches and selects in a list view and tries to edit there.
inline void checkInView(QAbstractItemModel &model)
{
    const QStringList rows = texts(model);
    QListView view;
    view.setSelectionMode(QAbstractItemView::ExtendedSelection);
    view.setDragEnabled(true);
    view.setModel(&model);
    view.resize(200, 60);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    const auto current = [&view] { return view.currentIndex().data().toString(); };

    view.setCurrentIndex(model.index(0, 0));
    QStringList walked{current()};
    for (qsizetype i = 1; i < rows.size(); ++i) {
        QTest::keyClick(&view, Qt::Key_Down);
        walked += current();
    }
    QCOMPARE(walked, rows);
    QTest::keyClick(&view, Qt::Key_Home);
    QCOMPARE(current(), rows.first());
    QTest::keyClick(&view, Qt::Key_PageDown);
    QVERIFY(current() != rows.first());
    QTest::keyClick(&view, Qt::Key_End);
    QCOMPARE(current(), rows.last());
    view.selectAll();
    QCOMPARE(view.selectionModel()->selectedIndexes().size(), rows.size());
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                      view.visualRect(model.index(int(rows.size()) - 1, 0)).center());
    QCOMPARE(view.selectionModel()->selectedIndexes(), QModelIndexList{model.index(int(rows.size()) - 1, 0)});

    QTest::keyClick(&view, Qt::Key_F2); // Cells are not editable.
    QCOMPARE(view.viewport()->findChildren<QWidget *>().size(), 0);

    QVERIFY(model.removeRow(0)); // The view follows.
    view.setCurrentIndex(model.index(0, 0));
    QCOMPARE(current(), rows.at(1));
}
} // namespace ExpressionContract
