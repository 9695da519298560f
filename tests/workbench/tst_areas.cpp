#include "documents/sources/AreaUnitFile.h"
#include "model/PreOrder.h"
#include "model/SelectionTreeUnit.h"
#include "models/SelectionBuilderTreeModel.h"
#include "tests/support/Trees.h"
#include "workbench/operations/Areas.h"
#include "workbench/proxies/AreaTreeProxy.h"

#include <QAbstractItemModelTester>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr auto country = uR"(
0
    1
        11
        12
    2
        21
            211
            212
        22
    3
)";

std::unique_ptr<SelectionTreeUnit> makeUnits(QStringView text)
{
    return makeTree<SelectionTreeUnit>(text, [](const QString &line) {
        auto *unit = new SelectionTreeUnit;
        unit->setCode(line);
        unit->setName(u"Area "_s + line);
        unit->setArea({line.toStdString(), "Area"});
        return unit;
    });
}

SelectionTreeUnit *find(SelectionTreeUnit *root, const QString &code)
{
    SelectionTreeUnit *found = nullptr;
    preOrder(root, [&](SelectionTreeUnit *unit) {
        if (unit->getCode() == code)
            found = unit;
    });
    return found;
}

/// The states of all units: "-" none, "~" some, "+" all.
QString states(SelectionTreeUnit *root)
{
    QStringList lines;
    preOrder(root, [&lines](const SelectionTreeUnit *unit) {
        lines.append(unit->getCode() + u"-~+"_s.at(unit->getUnitState()));
    });
    return lines.join(u' ');
}

QModelIndex indexOf(const RealRowProxy &proxy, SelectionTreeUnit *root, const QString &code)
{
    return proxy.indexOf(find(root, code));
}
} // namespace

class TestAreas : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void selectsUpAndDown_data();
    void selectsUpAndDown();
    void countsTheLowestAreas();
    void standsForAllBelow_data();
    void standsForAllBelow();
    void joinsSeveralRoots();
    void writesWhatTheReaderReads();

    void clicksOnBoxesSelect();
    void announcesAllThatChanges();
    void refusesOtherChanges();
    void satisfiesTheModelTester();
    void showsNoBlankBeforeAnEmptyText();
};

void TestAreas::selectsUpAndDown_data()
{
    QTest::addColumn<QString>("select"); // In this order; a minus stops the unit.
    QTest::addColumn<QString>("after");
    QTest::addRow("nothing") << QString() << u"0- 1- 11- 12- 2- 21- 211- 212- 22- 3-"_s;
    QTest::addRow("a leaf") << u"211"_s << u"0~ 1- 11- 12- 2~ 21~ 211+ 212- 22- 3-"_s;
    QTest::addRow("the last leaf completes") << u"211 212"_s << u"0~ 1- 11- 12- 2~ 21+ 211+ 212+ 22- 3-"_s;
    QTest::addRow("a branch") << u"2"_s << u"0~ 1- 11- 12- 2+ 21+ 211+ 212+ 22+ 3-"_s;
    QTest::addRow("all by the root") << u"0"_s << u"0+ 1+ 11+ 12+ 2+ 21+ 211+ 212+ 22+ 3+"_s;
    QTest::addRow("all one by one") << u"1 2 3"_s << u"0+ 1+ 11+ 12+ 2+ 21+ 211+ 212+ 22+ 3+"_s;
    QTest::addRow("but one") << u"0 -212"_s << u"0~ 1+ 11+ 12+ 2~ 21~ 211+ 212- 22+ 3+"_s;
    QTest::addRow("stopped again") << u"211 -2"_s << u"0- 1- 11- 12- 2- 21- 211- 212- 22- 3-"_s;
    QTest::addRow("completed from partly") << u"211 2"_s << u"0~ 1- 11- 12- 2+ 21+ 211+ 212+ 22+ 3-"_s;
}

void TestAreas::selectsUpAndDown()
{
    QFETCH(const QString, select);
    const auto root = makeUnits(country);
    const QStringList codes = select.split(u' ', Qt::SkipEmptyParts);
    for (QString code : codes) {
        const bool selected = !code.startsWith(u'-');
        Areas::select(root.get(), find(root.get(), code.remove(u'-')), selected);
    }
    QTEST(states(root.get()), "after");
}

void TestAreas::countsTheLowestAreas()
{
    const auto root = makeUnits(country);
    Areas::select(root.get(), find(root.get(), u"21"_s), true);
    Areas::select(root.get(), find(root.get(), u"3"_s), true);
    QCOMPARE(Areas::count(root.get()).selected, 3);
    QCOMPARE(Areas::count(root.get()).all, 6);
    QCOMPARE(Areas::count(nullptr).all, 0);
}

void TestAreas::standsForAllBelow_data()
{
    QTest::addColumn<QStringList>("select");
    QTest::addColumn<QString>("codes");
    QTest::addRow("nothing") << QStringList() << QString();
    QTest::addRow("all") << QStringList{u"0"_s} << u"0"_s;
    QTest::addRow("branch and leaf") << QStringList{u"11"_s, u"21"_s} << u"11\n21"_s;
    QTest::addRow("in the order of the tree") << QStringList{u"3"_s, u"22"_s, u"12"_s} << u"12\n22\n3"_s;
}

void TestAreas::standsForAllBelow()
{
    QFETCH(const QStringList, select);
    const auto root = makeUnits(country);
    for (const QString &code : select)
        Areas::select(root.get(), find(root.get(), code), true);
    QTEST(Areas::toText(Areas::selected(root.get())), "codes");
}

void TestAreas::joinsSeveralRoots()
{
    QList<SelectionTreeUnit *> roots;
    QVERIFY(!Areas::joined(roots, u"All"_s));
    roots.append(makeUnits(u"1\n    11").release());
    SelectionTreeUnit *only = roots.first();
    auto root = Areas::joined(roots, u"All"_s);
    QCOMPARE(root.get(), only);
    QVERIFY(roots.isEmpty());

    roots = {root.release(), makeUnits(u"2").release()};
    root = Areas::joined(roots, u"All"_s);
    QVERIFY(roots.isEmpty());
    QCOMPARE(root->getLevel(), 1);
    QCOMPARE(find(root.get(), u"2"_s)->getLevel(), 2);
    QCOMPARE(find(root.get(), u"11"_s)->getLevel(), 3);
    // It has no code, so it stands for nobody.
    Areas::select(root.get(), root.get(), true);
    QCOMPARE(Areas::toText(Areas::selected(root.get())), u"1\n2"_s);
}

void TestAreas::writesWhatTheReaderReads()
{
    const auto root = makeUnits(u"0\n    1\n    2");
    root->getChildren()->at(0)->setName(u"North, \"upper\""_s);
    root->getChildren()->at(1)->setName(u"Süd"_s);
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"areas.csv"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(Areas::toCsv(*root->getChildren()).toUtf8());
    file.close();
    const SourceAreaUnits result = AreaUnitFile::read(file.fileName());
    QVERIFY(result.ok());
    QCOMPARE(result.list()->size(), 2);
    QCOMPARE(result.list()->at(0)->getName(), u"North, \"upper\""_s);
    QCOMPARE(result.list()->at(1)->getCode(), u"2"_s);
    QCOMPARE(result.list()->at(1)->getName(), u"Süd"_s);
    QCOMPARE(result.list()->at(1)->getArea().second, std::string("Area"));
}

void TestAreas::clicksOnBoxesSelect()
{
    const auto root = makeUnits(country);
    SelectionBuilderTreeModel model(nullptr, root.get(), false, false);
    AreaTreeProxy proxy;
    proxy.setSourceModel(&model);
    proxy.setRoot(root.get());
    const QModelIndex branch = indexOf(proxy, root.get(), u"21"_s);
    // The layer's model shows states and takes none.
    QVERIFY(!model.setData(proxy.mapToSource(branch), Qt::Checked, Qt::CheckStateRole));
    QVERIFY(proxy.setData(branch, Qt::Checked, Qt::CheckStateRole));
    QCOMPARE(states(root.get()), u"0~ 1- 11- 12- 2~ 21+ 211+ 212+ 22- 3-"_s);
    QCOMPARE(branch.data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
    QCOMPARE(branch.parent().data(Qt::CheckStateRole).toInt(), int(Qt::PartiallyChecked));
    proxy.selectNone();
    QCOMPARE(Areas::count(root.get()).selected, 0);
}

void TestAreas::announcesAllThatChanges()
{
    const auto root = makeUnits(country);
    SelectionBuilderTreeModel model(nullptr, root.get(), false, false);
    AreaTreeProxy proxy;
    proxy.setSourceModel(&model);
    proxy.setRoot(root.get());
    QSignalSpy changes(&proxy, &QAbstractItemModel::dataChanged);
    QSignalSpy selections(&proxy, &AreaTreeProxy::selectionChanged);
    proxy.setData(indexOf(proxy, root.get(), u"2"_s), Qt::Checked, Qt::CheckStateRole);
    QStringList announced;
    for (const QList<QVariant> &change : std::as_const(changes)) {
        const auto first = change.at(0).toModelIndex();
        const auto last = change.at(1).toModelIndex();
        for (int row = first.row(); row <= last.row(); ++row)
            announced.append(first.siblingAtRow(row).data().toString().section(u' ', 0, 0));
    }
    announced.sort();
    QCOMPARE(announced.join(u' '), u"0 2 21 211 212 22"_s);
    QCOMPARE(selections.size(), 1);
}

void TestAreas::refusesOtherChanges()
{
    const auto root = makeUnits(country);
    SelectionBuilderTreeModel model(nullptr, root.get(), false, false);
    AreaTreeProxy proxy;
    proxy.selectNone();
    proxy.setSourceModel(&model);
    QVERIFY(!proxy.setData(proxy.index(0, 0), Qt::Checked, Qt::CheckStateRole)); // No tree was named.
    proxy.setRoot(root.get());
    QSignalSpy changes(&proxy, &QAbstractItemModel::dataChanged);
    QVERIFY(!proxy.setData(proxy.index(0, 0), u"New"_s, Qt::EditRole));
    QVERIFY(!proxy.setData({}, Qt::Checked, Qt::CheckStateRole));
    QCOMPARE(changes.size(), 0);
    QCOMPARE(Areas::count(root.get()).selected, 0);
}

void TestAreas::satisfiesTheModelTester()
{
    const auto root = makeUnits(country);
    SelectionBuilderTreeModel model(nullptr, root.get(), true, true);
    AreaTreeProxy proxy;
    const QAbstractItemModelTester tester(&proxy, QAbstractItemModelTester::FailureReportingMode::Fatal);
    proxy.setSourceModel(&model);
    proxy.setRoot(root.get());
    QVERIFY(proxy.setData(indexOf(proxy, root.get(), u"212"_s), Qt::Checked, Qt::CheckStateRole));
    QCOMPARE(proxy.rowCount(proxy.index(0, 0)), 3);
}

void TestAreas::showsNoBlankBeforeAnEmptyText()
{
    QList<SelectionTreeUnit *> roots{makeUnits(u"1").release(), makeUnits(u"2").release()};
    const auto root = Areas::joined(roots, u"All areas"_s);
    SelectionBuilderTreeModel model(nullptr, root.get(), false, false);
    AreaTreeProxy proxy;
    proxy.setSourceModel(&model);
    QCOMPARE(model.index(0, 0).data().toString(), u" All areas"_s);
    QCOMPARE(proxy.index(0, 0).data().toString(), u"All areas"_s);
}

QTEST_MAIN(TestAreas)
#include "tst_areas.moc"
