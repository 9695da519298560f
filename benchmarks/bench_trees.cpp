#include "InTurn.h"

#include "model/SelectionTreeUnit.h"
#include "model/TDcEntity.h"
#include "models/EntityModel.h"
#include "models/SelectionBuilderTreeModel.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTreeView>

#include <memory>

/// parent() and a tree view on trees of area units, against smaller trees and against Qt's own item model.
namespace
{
using namespace Qt::Literals::StringLiterals;

const QList<int> smallTree{9, 10, 10}; // 1,000 nodes
const QList<int> largeTree{25, 40, 99}; // 100,026 nodes

/// A tree with as many children for each node as `widths` tells for its level.
template <typename Node>
void grow(Node &node, const QList<int> &widths)
{
    if (widths.isEmpty())
        return;
    for (int row = 0; row < widths.first(); ++row) {
        auto *child = new Node;
        child->setName(u"%1 %2"_s.arg(node.getName()).arg(row));
        child->setLevel(node.getLevel() + 1);
        node.getChildren()->append(child);
        grow(*child, widths.sliced(1));
    }
}

template <typename Node>
std::unique_ptr<Node> makeTree(const QList<int> &widths)
{
    auto root = std::make_unique<Node>();
    root->setName(u"Land"_s);
    grow(*root, widths);
    return root;
}

void setAreas(SelectionTreeUnit &unit)
{
    unit.setArea({unit.getName().toStdString(), "area"});
    for (SelectionTreeUnit *child : std::as_const(*unit.getChildren()))
        setAreas(*child);
}

std::unique_ptr<SelectionTreeUnit> makeUnits(const QList<int> &widths)
{
    auto root = makeTree<SelectionTreeUnit>(widths);
    setAreas(*root);
    return root;
}

/// What `index` shows and everything below it, as items.
QStandardItem *toItem(const QAbstractItemModel &model, const QModelIndex &index)
{
    auto *item = new QStandardItem(index.data().toString());
    item->setCheckable(true);
    for (int row = 0; row < model.rowCount(index); ++row)
        item->appendRow(toItem(model, model.index(row, 0, index)));
    return item;
}

/// Rows all over the tree: hardly any two questions find what they need in the processor's caches.
QModelIndexList scattered(const QAbstractItemModel &model, int count)
{
    QRandomGenerator random(1);
    QModelIndexList indexes;
    for (int i = 0; i < count; ++i) {
        QModelIndex index = model.index(0, 0);
        while (model.rowCount(index) > 0 && random.bounded(100) > 0)
            index = model.index(random.bounded(model.rowCount(index)), 0, index);
        indexes += index;
    }
    return indexes;
}

/// Row after row, level by level, from the top and over again.
QModelIndexList inOrder(const QAbstractItemModel &model, int count)
{
    QModelIndexList indexes{model.index(0, 0)};
    for (qsizetype next = 0; indexes.size() < count; ++next) {
        const QModelIndex index = indexes.at(next);
        for (int row = 0; row < model.rowCount(index); ++row)
            indexes += model.index(row, 0, index);
        if (next == indexes.size() - 1)
            indexes += model.index(0, 0);
    }
    return indexes.first(count);
}

int askParents(const QAbstractItemModel &model, const QModelIndexList &indexes)
{
    int rows = 0;
    for (const QModelIndex &index : indexes)
        rows += model.parent(index).row();
    return rows;
}

template <typename Model, typename Node, typename... Flags>
void parents(benchmark::State &state, QModelIndexList (*rows)(const QAbstractItemModel &, int),
             Flags... flags)
{
    constexpr int Questions = 20000;
    const auto smallRoot = makeTree<Node>(smallTree);
    const auto largeRoot = makeTree<Node>(largeTree);
    const Model smallModel(nullptr, smallRoot.get(), flags...);
    const Model largeModel(nullptr, largeRoot.get(), flags...);
    const auto fewIndexes = rows(smallModel, Questions);
    const auto manyIndexes = rows(largeModel, Questions);
    askParents(smallModel, fewIndexes);
    askParents(largeModel, manyIndexes);
    runInTurn(
        state, 5, [&] { return askParents(largeModel, manyIndexes); },
        [&] { return askParents(smallModel, fewIndexes); });
}

void entityParents(benchmark::State &state)
{
    parents<EntityModel, TDcEntity>(state, inOrder);
}
void entityParentsScattered(benchmark::State &state)
{
    parents<EntityModel, TDcEntity>(state, scattered);
}
void unitParents(benchmark::State &state)
{
    parents<SelectionBuilderTreeModel, SelectionTreeUnit>(state, inOrder, false, false);
}
void unitParentsScattered(benchmark::State &state)
{
    parents<SelectionBuilderTreeModel, SelectionTreeUnit>(state, scattered, false, false);
}

std::unique_ptr<QTreeView> makeView(QAbstractItemModel &model)
{
    auto view = std::make_unique<QTreeView>();
    view->setUniformRowHeights(true);
    view->setModel(&model);
    view->resize(400, 600);
    view->show();
    QApplication::processEvents();
    return view;
}

void press(QTreeView &view, Qt::Key key)
{
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(&view, &down);
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier);
    QApplication::sendEvent(&view, &up);
    view.viewport()->repaint();
}

void click(QTreeView &view, QPoint where)
{
    const QPointF global = view.viewport()->mapToGlobal(where);
    QMouseEvent down(QEvent::MouseButtonPress, where, global, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &down);
    QMouseEvent up(QEvent::MouseButtonRelease, where, global, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &up);
    view.viewport()->repaint();
}

int currentRow(const QTreeView &view)
{
    return view.currentIndex().row();
}

int page(QTreeView &view)
{
    view.setCurrentIndex(view.model()->index(0, 0));
    for (int i = 0; i < 50; ++i)
        press(view, Qt::Key_PageDown);
    return currentRow(view);
}

int scroll(QTreeView &view)
{
    QScrollBar *bar = view.verticalScrollBar();
    for (int i = 0; i < 50; ++i) {
        bar->setValue(bar->maximum() / 50 * i);
        view.viewport()->repaint();
    }
    return bar->value();
}

int clickRows(QTreeView &view)
{
    view.scrollToTop();
    for (int i = 0; i < 200; ++i)
        click(view, QPoint(200, 10 + (i * 37) % 500));
    return currentRow(view);
}

int walk(QTreeView &view)
{
    view.setCurrentIndex(view.model()->index(0, 0));
    for (int i = 0; i < 200; ++i)
        press(view, Qt::Key_Down);
    return currentRow(view);
}

/// The same tree of area units twice: in the project's model and in Qt's.
struct Sides {
    std::unique_ptr<SelectionTreeUnit> root = makeUnits(largeTree);
    SelectionBuilderTreeModel units{nullptr, root.get(), false, false};
    QStandardItemModel items;

    Sides() { items.appendRow(toItem(units, units.index(0, 0))); }
};

constexpr double ViewGoal = 1.3;

void expandAll(benchmark::State &state)
{
    Sides sides;
    const auto expanded = [](QAbstractItemModel &model) {
        auto view = makeView(model);
        view->expandAll();
        view->viewport()->repaint();
        return view;
    };
    runInTurn(
        state, ViewGoal, [&] { return expanded(sides.units); }, [&] { return expanded(sides.items); });
}

void inView(benchmark::State &state, int (*use)(QTreeView &))
{
    Sides sides;
    const auto ours = makeView(sides.units);
    const auto theirs = makeView(sides.items);
    ours->expandAll();
    theirs->expandAll();
    runInTurn(
        state, ViewGoal, [&] { return use(*ours); }, [&] { return use(*theirs); });
}

void pageDown(benchmark::State &state)
{
    inView(state, page);
}
void scrollThrough(benchmark::State &state)
{
    inView(state, scroll);
}
void clicks(benchmark::State &state)
{
    inView(state, clickRows);
}
void keyDown(benchmark::State &state)
{
    inView(state, walk);
}

BENCHMARK(entityParents)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(31);
BENCHMARK(entityParentsScattered)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(31);
BENCHMARK(unitParents)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(31);
BENCHMARK(unitParentsScattered)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(31);
BENCHMARK(expandAll)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(9);
BENCHMARK(pageDown)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(15);
BENCHMARK(scrollThrough)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(15);
BENCHMARK(clicks)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(15);
BENCHMARK(keyDown)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(15);
} // namespace

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
