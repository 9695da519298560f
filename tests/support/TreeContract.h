#pragma once

#include <QAbstractItemModel>
#include <QItemSelectionModel>
#include <QStringListModel>
#include <QTest>
#include <QTreeView>

#include <functional>

/// Where the plain search finds a node: `parent` with the row that the answer carries.
template <typename Node>
struct FoundParent {
    Node *parent = nullptr;
    int row = -1;

    [[nodiscard]] bool isValid() const { return row >= 0 && parent; }
};

/// The parent search as it is described, written down once more for comparison: depth first, first hit wins,
/// and the row is the level of the node searched for.
template <typename Node>
[[nodiscard]] FoundParent<Node> searchParent(Node *target, Node *node, Node *parentNode)
{
    if (target == node)
        return {parentNode, target->getLevel()};
    if (!node || node->getChildren()->isEmpty())
        return {};
    const QList<Node *> &children = *node->getChildren();
    for (qsizetype i = 0; i < children.size() - 1; ++i) {
        if (const auto found = searchParent(target, children.at(i), node); found.isValid())
            return found;
    }
    return searchParent(target, children.last(), node);
}

/// Calls `visit` with the index of every row below `parent`, in the order in which a view shows them.
inline void forEachRow(const QAbstractItemModel &model, const std::function<void(const QModelIndex &)> &visit,
                       const QModelIndex &parent = {})
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        visit(index);
        forEachRow(model, visit, index);
    }
}

/// The texts of all rows in the order in which a view shows them.
[[nodiscard]] inline QStringList shownRows(const QAbstractItemModel &model)
{
    QStringList texts;
    forEachRow(model, [&texts](const QModelIndex &index) { texts += index.data().toString(); });
    return texts;
}

/// Compares what a tree model answers for `index` with the node that it is to show.
template <typename Node>
void checkTreeNode(const QAbstractItemModel &model, const QModelIndex &index, Node *node, Node *root)
{
    const auto *children = node->getChildren();
    QVERIFY(index.isValid());
    QCOMPARE(index.internalPointer(), static_cast<void *>(node));
    QCOMPARE(model.rowCount(index), int(children->size()));
    QCOMPARE(model.columnCount(index), 1);
    QVERIFY(!model.index(int(children->size()), 0, index).isValid());
    QVERIFY(!model.index(-1, 0, index).isValid());

    const QModelIndex parent = model.parent(index);
    const auto expected = searchParent(node, root, root);
    if (node->getLevel() == 1 || !expected.isValid()) {
        QVERIFY(!parent.isValid());
    } else {
        QCOMPARE(parent.internalPointer(), static_cast<void *>(expected.parent));
        QCOMPARE(parent.row(), expected.row);
        QCOMPARE(parent.column(), 0);
    }
    for (int row = 0; row < children->size(); ++row) {
        if (Node *child = children->at(row))
            checkTreeNode(model, model.index(row, 0, index), child, root);
        if (QTest::currentTestFailed())
            return;
    }
}

/// What every tree model promises about navigation, for the tree under `root` that it shows.
template <typename Node>
void checkTreeContract(const QAbstractItemModel &model, Node *root)
{
    QCOMPARE(model.rowCount(), 1);
    QCOMPARE(model.columnCount(), 1);
    QVERIFY(!model.index(1, 0).isValid());
    QVERIFY(!model.index(-1, 0).isValid());
    QVERIFY(!model.parent(QModelIndex()).isValid());
    QCOMPARE(model.index(0, 7).column(), 7); // Columns are not looked at.
    checkTreeNode(model, model.index(0, 0), root, root);
    if (QTest::currentTestFailed())
        return;

    const QStringListModel other({QStringLiteral("a text")});
    const QModelIndex foreign = other.index(0);
    QVERIFY(!model.index(0, 0, foreign).isValid());
    QVERIFY(!model.parent(foreign).isValid());
    QVERIFY(!model.data(foreign).isValid());
}

/// Uses the model as a person does: opens the tree in a view, walks it with the keys, selects with the mouse.
inline void checkTreeInView(QAbstractItemModel &model)
{
    const QStringList rows = shownRows(model);
    QTreeView view;
    view.setUniformRowHeights(true);
    view.setSelectionMode(QAbstractItemView::ExtendedSelection);
    view.setModel(&model);
    view.resize(300, 120);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    const auto current = [&view] { return view.currentIndex().data().toString(); };
    const auto press = [&view](Qt::Key key) { QTest::keyClick(&view, key); };

    view.setCurrentIndex(model.index(0, 0));
    press(Qt::Key_Right); // opens the root
    QVERIFY(view.isExpanded(model.index(0, 0)));
    view.expandAll();
    QStringList walked{current()};
    while (view.indexBelow(view.currentIndex()).isValid() && walked.size() <= rows.size()) {
        press(Qt::Key_Down);
        walked += current();
    }
    QCOMPARE(walked, rows);

    press(Qt::Key_Home);
    QCOMPARE(current(), rows.first());
    press(Qt::Key_PageDown);
    QVERIFY(rows.indexOf(current()) > 1);
    press(Qt::Key_End);
    QCOMPARE(current(), rows.last());
    press(Qt::Key_PageUp);
    QVERIFY(rows.indexOf(current()) < rows.size() - 2);

    view.scrollToTop();
    const QModelIndex second = view.indexBelow(model.index(0, 0));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(second).center());
    QCOMPARE(view.selectionModel()->selectedIndexes(), QModelIndexList{second});
    QCOMPARE(current(), rows.at(1));
    view.selectAll();
    QCOMPARE(view.selectionModel()->selectedIndexes().size(), rows.size());

    view.collapse(model.index(0, 0));
    QVERIFY(!view.indexBelow(model.index(0, 0)).isValid());
}
