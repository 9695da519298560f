#include "model/SelectionTreeUnit.h"
#include "models/DictionaryTreeModel.h"
#include "models/dictionaryTreeModelDownload.h"
#include "models/SelectionBuilderTreeModel.h"
#include "tests/support/Trees.h"
#include "workbench/proxies/RealRowProxy.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QTest>
#include <QTreeView>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr auto census = uR"(
CENSUS
    PROVINCE
        DISTRICT
            HOUSEHOLD
                PERSON
                DEATH
        TOWN
    AGENCY
    OFFICE
        DESK
)";

QStringList names(const QAbstractItemModel &model, const QModelIndex &parent = {}, int depth = 0)
{
    QStringList lines;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        lines.append(QString(depth, u' ') + index.data().toString());
        lines.append(names(model, index, depth + 1));
    }
    return lines;
}
} // namespace

class TestRealRowProxy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void givesEachParentItsTrueRow();
    void satisfiesTheModelTester();
    void satisfiesTheModelTesterOverAreaUnits();
    void satisfiesTheModelTesterAfterChangesOfTheTree();
    void findsObjects();
    void looksNoFurtherThanWhatItFinds();
    void announcesRenames();
    void letsAViewScrollToACollapsedPlace();
    void carriesARecursiveFilter();
    void survivesWithoutASource();
    void searchesSiblingsOnce();
};

namespace
{
/// Counts how often it is asked for an index.
class CountingTree : public DictionaryTreeModel
{
public:
    using DictionaryTreeModel::DictionaryTreeModel;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override
    {
        ++asked;
        return DictionaryTreeModel::index(row, column, parent);
    }

    mutable int asked = 0;
};
} // namespace

void TestRealRowProxy::givesEachParentItsTrueRow()
{
    const auto root = makeEntities(census);
    DictionaryTreeModel model(nullptr, root.get());
    RealRowProxy proxy;
    proxy.setSourceModel(&model);

    const QModelIndex desk = proxy.indexOf(findEntity(root.get(), u"DESK"));
    // Without the proxy the row is the level of DESK.
    QCOMPARE(model.parent(proxy.mapToSource(desk)).row(), 3);
    QCOMPARE(desk.parent().row(), 2);
    QCOMPARE(desk.parent().data().toString(), u"OFFICE"_s);
    QCOMPARE(desk.parent().parent().data().toString(), u"CENSUS"_s);
    QVERIFY(!desk.parent().parent().parent().isValid());
}

void TestRealRowProxy::satisfiesTheModelTester()
{
    const auto root = makeEntities(census);
    DictionaryTreeModel model(nullptr, root.get());
    RealRowProxy proxy;
    const QAbstractItemModelTester tester(&proxy, QAbstractItemModelTester::FailureReportingMode::Fatal);
    proxy.setSourceModel(&model);
    QCOMPARE(names(proxy), names(model));
}

void TestRealRowProxy::satisfiesTheModelTesterOverAreaUnits()
{
    const auto root = makeTree<SelectionTreeUnit>(census, [](const QString &line) {
        auto *unit = new SelectionTreeUnit;
        unit->setName(line);
        return unit;
    });
    SelectionBuilderTreeModel model(nullptr, root.get(), true, true);
    RealRowProxy proxy;
    proxy.setSourceModel(&model);
    const QAbstractItemModelTester tester(&proxy, QAbstractItemModelTester::FailureReportingMode::Fatal);
    QCOMPARE(proxy.rowCount(proxy.index(0, 0)), 3);
}

void TestRealRowProxy::satisfiesTheModelTesterAfterChangesOfTheTree()
{
    const auto root = makeEntities(census);
    dictionaryTreeModelDownload model(nullptr, root.get());
    RealRowProxy proxy;
    proxy.setSourceModel(&model);
    const QAbstractItemModelTester tester(&proxy, QAbstractItemModelTester::FailureReportingMode::Fatal);
    QSignalSpy resets(&proxy, &QAbstractItemModel::modelReset);

    proxy.setSourceModel(nullptr);
    delete findEntity(root.get(), u"PROVINCE")->getChildren()->takeFirst();
    root->getChildren()->swapItemsAt(0, 2);
    auto *added = new TDcEntity;
    added->setName(u"ADDED"_s);
    added->setLevel(3);
    findEntity(root.get(), u"AGENCY")->getChildren()->append(added);
    proxy.setSourceModel(&model);

    QCOMPARE(resets.size(), 2);
    QCOMPARE(names(proxy),
             QStringList({u"CENSUS"_s, u" OFFICE"_s, u"  DESK"_s, u" AGENCY"_s, u"  ADDED"_s, u" PROVINCE"_s,
                          u"  TOWN"_s}));
    QCOMPARE(proxy.indexOf(added).parent().row(), 1);
}

void TestRealRowProxy::findsObjects()
{
    const auto root = makeEntities(census);
    DictionaryTreeModel model(nullptr, root.get());
    RealRowProxy proxy;
    proxy.setSourceModel(&model);
    QCOMPARE(proxy.indexOf(findEntity(root.get(), u"DEATH")).data().toString(), u"DEATH"_s);
    QCOMPARE(proxy.indexOf(root.get()).row(), 0);
    QVERIFY(!proxy.indexOf(nullptr).isValid());
    QVERIFY(!proxy.indexOf(&model).isValid());
}

void TestRealRowProxy::looksNoFurtherThanWhatItFinds()
{
    const auto root = makeEntities(census);
    CountingTree model(nullptr, root.get());
    RealRowProxy proxy;
    proxy.setSourceModel(&model);
    QVERIFY(proxy.indexOf(root.get()).isValid());
    const int atOnce = std::exchange(model.asked, 0);
    QVERIFY(proxy.indexOf(findEntity(root.get(), u"PROVINCE")).isValid());
    const int earlier = std::exchange(model.asked, 0);
    QVERIFY(proxy.indexOf(findEntity(root.get(), u"DESK")).isValid());
    QVERIFY(atOnce < earlier);
    QVERIFY(earlier < model.asked);
}

void TestRealRowProxy::announcesRenames()
{
    const auto root = makeEntities(census);
    DictionaryTreeModel model(nullptr, root.get());
    RealRowProxy proxy;
    proxy.setSourceModel(&model);
    QSignalSpy changes(&proxy, &QAbstractItemModel::dataChanged);
    const QModelIndex town = proxy.indexOf(findEntity(root.get(), u"TOWN"));
    QVERIFY(proxy.setData(town, u"CITY"_s, Qt::EditRole));
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.first().first().toModelIndex(), town);
}

void TestRealRowProxy::letsAViewScrollToACollapsedPlace()
{
    const auto root = makeEntities(census);
    DictionaryTreeModel model(nullptr, root.get());
    RealRowProxy proxy;
    proxy.setSourceModel(&model);
    QTreeView view;
    view.setModel(&proxy);
    view.show();
    const QModelIndex person = proxy.indexOf(findEntity(root.get(), u"PERSON"));
    view.setCurrentIndex(person);
    QVERIFY(view.isExpanded(person.parent()));
    QVERIFY(view.visualRect(person).isValid());
    // Left goes to the parent, not to the first row.
    QTest::keyClick(&view, Qt::Key_Left);
    QCOMPARE(view.currentIndex().data().toString(), u"HOUSEHOLD"_s);
}

void TestRealRowProxy::carriesARecursiveFilter()
{
    const auto root = makeEntities(census);
    DictionaryTreeModel model(nullptr, root.get());
    RealRowProxy proxy;
    proxy.setSourceModel(&model);
    QSortFilterProxyModel filter;
    filter.setRecursiveFilteringEnabled(true);
    filter.setSourceModel(&proxy);
    const QAbstractItemModelTester tester(&filter, QAbstractItemModelTester::FailureReportingMode::Fatal);
    filter.setFilterFixedString(u"DESK"_s);
    QCOMPARE(names(filter), QStringList({u"CENSUS"_s, u" OFFICE"_s, u"  DESK"_s}));
    filter.setFilterFixedString({});
    QCOMPARE(names(filter), names(proxy));
}

void TestRealRowProxy::survivesWithoutASource()
{
    const RealRowProxy proxy;
    QCOMPARE(proxy.rowCount(), 0);
    QVERIFY(!proxy.parent(proxy.index(0, 0)).isValid());
}

void TestRealRowProxy::searchesSiblingsOnce()
{
    constexpr int count = 300;
    QString text = u"ROOT\n"_s;
    for (int i = 0; i < count; ++i)
        text += u"    E%1\n        BELOW%1\n"_s.arg(i);
    const auto root = makeEntities(text);
    CountingTree model(nullptr, root.get());
    RealRowProxy proxy;
    proxy.setSourceModel(&model);
    const QModelIndex top = proxy.index(0, 0);
    QList<QModelIndex> below;
    for (int row = 0; row < count; ++row)
        below.append(proxy.index(0, 0, proxy.index(row, 0, top)));
    model.asked = 0;
    for (int row = 0; row < count; ++row)
        QCOMPARE(proxy.parent(below.at(row)).row(), row);
    QVERIFY(model.asked <= 3 * count);

    // What is remembered is not believed when the tree has changed unseen.
    root->getChildren()->swapItemsAt(0, count - 1);
    QCOMPARE(proxy.parent(below.first()).row(), count - 1);
    QCOMPARE(proxy.parent(below.last()).row(), 0);
    const auto gone = std::unique_ptr<TDcEntity>(root->getChildren()->takeFirst());
    QCOMPARE(proxy.parent(below.first()).row(), count - 2);
}

QTEST_MAIN(TestRealRowProxy)
#include "tst_realrowproxy.moc"
