#pragma once

#include "tests/support/RowListContract.h"
#include "tests/support/Trees.h"

#include <QSignalSpy>

/// An entity of four variables, three of which have a role in it. Its variables are of level 1.
[[nodiscard]] inline std::unique_ptr<TDcEntity> makeEntityWithRoles()
{
    using namespace Qt::Literals::StringLiterals;
    auto entity = std::make_unique<TDcEntity>();
    entity->setRefCode(u"CODE"_s);
    entity->setRefLabel(u"TEXT"_s);
    entity->setWeightVariable(u"WEIGHT"_s);
    for (const QString &name : {u"CODE"_s, u"AGE"_s, u"TEXT"_s, u"WEIGHT"_s, u"code"_s}) {
        TDcVariable *variable = makeVariable(name, u"alias of "_s + name, u"label of "_s + name, u"group"_s);
        variable->setLevel(1);
        variable->setTag(7);
        entity->addVariables(variable);
    }
    return entity;
}

[[nodiscard]] inline QStringList headersOf(const QAbstractItemModel &model)
{
    QStringList headers;
    for (int section = -1; section <= model.columnCount(); ++section) {
        const QVariant header = model.headerData(section, Qt::Horizontal);
        if (header.isValid())
            headers += header.toString();
    }
    return headers;
}

/// What the cells of a row display, joined by '|'.
[[nodiscard]] inline QString rowText(const QAbstractItemModel &model, int row)
{
    QStringList cells;
    for (int column = 0; column < model.columnCount(); ++column)
        cells += model.index(row, column).data().toString();
    return cells.join(QLatin1Char('|'));
}

/// Only horizontal titles are given, and only to be displayed.
inline void checkHeaderContract(const QAbstractItemModel &model, const QStringList &titles)
{
    QCOMPARE(headersOf(model), titles);
    for (int section = 0; section < model.columnCount(); ++section) {
        QVERIFY(!model.headerData(section, Qt::Vertical).isValid());
        QVERIFY(!model.headerData(section, Qt::Horizontal, Qt::EditRole).isValid());
        QVERIFY(!model.headerData(section, Qt::Horizontal, Qt::ToolTipRole).isValid());
    }
}

/// Checks the check box of row \a row, which belongs to \a variable: a change of it toggles, whatever is
/// asked, and is announced once; nothing else can be changed.
inline void checkTogglingContract(QAbstractItemModel &model, int row, TDcVariable *variable)
{
    using namespace Qt::Literals::StringLiterals;
    const QModelIndex box = model.index(row, 0);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);

    variable->setChecked(0);
    QCOMPARE(box.data(Qt::CheckStateRole), QVariant(0));
    QCOMPARE(box.data(Qt::CheckStateRole).typeId(), int(QMetaType::Int));
    QVERIFY(model.setData(box, Qt::Checked, Qt::CheckStateRole));
    QCOMPARE(variable->getChecked(), 1);
    QCOMPARE(box.data(Qt::CheckStateRole), QVariant(2));

    QVERIFY(model.setData(box, Qt::Checked, Qt::CheckStateRole));
    QVERIFY2(!variable->getChecked(), "checking what is checked must uncheck it");
    QVERIFY(model.setData(box, u"no check state"_s, Qt::CheckStateRole));
    QVERIFY2(variable->getChecked(), "the value is not to be read");

    QCOMPARE(changed.size(), 3);
    for (const QList<QVariant> &arguments : std::as_const(changed)) {
        QCOMPARE(arguments.at(0).toModelIndex(), box);
        QCOMPARE(arguments.at(1).toModelIndex(), box);
        QVERIFY(arguments.at(2).value<QList<int>>().isEmpty());
    }

    variable->setChecked(5);
    QCOMPARE(box.data(Qt::CheckStateRole), QVariant(2)); // Any value but 0.

    changed.clear();
    const QString before = rowText(model, row);
    QVERIFY(!model.setData(box, u"x"_s, Qt::EditRole));
    QVERIFY(!model.setData(box, u"x"_s, Qt::DisplayRole));
    QVERIFY(!model.setData({}, Qt::Checked, Qt::CheckStateRole));
    for (int column = 1; column < model.columnCount(); ++column) {
        QVERIFY(!model.index(row, column).data(Qt::CheckStateRole).isValid());
        QVERIFY(!model.setData(model.index(row, column), Qt::Checked, Qt::CheckStateRole));
    }
    for (const int role : {Qt::EditRole, Qt::DecorationRole, Qt::ToolTipRole, Qt::TextAlignmentRole})
        QVERIFY(!box.data(role).isValid());
    QVERIFY(!model.index(row, model.columnCount()).data().isValid());
    QCOMPARE(rowText(model, row), before);
    QCOMPARE(variable->getChecked(), 5);
    QCOMPARE(changed.size(), 0);
}
