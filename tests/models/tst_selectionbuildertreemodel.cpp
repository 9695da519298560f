#include "models/SelectionBuilderTreeModel.h"

#include "tests/support/DebugLines.h"
#include "tests/support/Icons.h"
#include "tests/support/TreeContract.h"
#include "tests/support/Trees.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace
{
/// A line is "name|code|first text of the area|second text".
std::unique_ptr<SelectionTreeUnit> makeUnits(QStringView text)
{
    return makeTree<SelectionTreeUnit>(text, [](const QString &line) {
        auto *unit = new SelectionTreeUnit;
        unit->setName(line.section(u'|', 0, 0));
        unit->setCode(line.section(u'|', 1, 1));
        unit->setArea({line.section(u'|', 2, 2).toStdString(), line.section(u'|', 3, 3).toStdString()});
        return unit;
    });
}
} // namespace

class TestSelectionBuilderTreeModel : public QObject
{
    Q_OBJECT

    std::unique_ptr<SelectionTreeUnit> m_root;
    std::unique_ptr<SelectionBuilderTreeModel> m_model;

    [[nodiscard]] QModelIndex coast(int column = 0) const
    {
        return m_model->index(1, column, m_model->index(0, 0));
    }
    [[nodiscard]] SelectionTreeUnit *coastUnit() const { return m_root->getChildren()->at(1); }

private Q_SLOTS:
    void init()
    {
        m_root = makeUnits(uR"(
QOVA|0|Land|Alle
    Berg|01|Höhe|Nord
        Tal|0101|Tiefe|Nord
        Alm|0102|Weide|Nord
    Küste|02|Meer|Süd
        Hafen|0201|Kai|Süd
)");
        m_model = std::make_unique<SelectionBuilderTreeModel>(nullptr, m_root.get(), false, false);
    }
    void cleanup()
    {
        m_model.reset();
        QCOMPARE(m_root->getChildren()->size(), 2); // The model leaves the units alone.
        m_root.reset();
    }

    void keepsTheContract() { checkTreeContract(*m_model, m_root.get()); }
    void worksInAView() { checkTreeInView(*m_model); }

    void hasAMetaObjectOfItsOwn()
    {
        QCOMPARE(m_model->metaObject()->className(), "SelectionBuilderTreeModel");
        QCOMPARE(m_model->metaObject()->superClass(), &QAbstractItemModel::staticMetaObject);
    }

    void sharesItsTopLevel()
    {
        QList<SelectionTreeUnit *> top = m_model->getData();
        QCOMPARE(top, QList<SelectionTreeUnit *>{m_root.get()});
        top.clear(); // a copy
        QCOMPARE(m_model->rowCount(), 1);
    }

    void textsFollowTheFlags_data()
    {
        QTest::addColumn<bool>("showCode");
        QTest::addColumn<bool>("showNamePrefix");
        QTest::addColumn<QString>("root");
        QTest::addColumn<QString>("unit");
        QTest::addRow("area") << false << false << u"Land Alle"_s << u"Meer Süd"_s;
        QTest::addRow("code") << true << false << u"0 Alle"_s << u"02 Süd"_s;
        QTest::addRow("name, but never the root's")
            << false << true << u"Land Alle"_s << u"Küste | Meer Süd"_s;
        QTest::addRow("name and code") << true << true << u"0 Alle"_s << u"Küste | 02 Süd"_s;
    }
    void textsFollowTheFlags()
    {
        QFETCH(const bool, showCode);
        QFETCH(const bool, showNamePrefix);
        const SelectionBuilderTreeModel model(nullptr, m_root.get(), showCode, showNamePrefix);
        for (const int role : {Qt::DisplayRole, Qt::EditRole}) {
            QTEST(model.data(model.index(0, 0), role).toString(), "root");
            QTEST(model.data(model.index(1, 0, model.index(0, 0)), role).toString(), "unit");
            QVERIFY(!model.data(model.index(0, 1), role).isValid());
        }
        QTEST(model.getItemData(coastUnit(), 0).toString(), "unit");
        QVERIFY(!model.getItemData(coastUnit(), 1).isValid());
        QVERIFY(!model.getItemData(nullptr, 0).isValid());
    }

    void emptyTextsKeepTheirBlank()
    {
        SelectionTreeUnit unit;
        QCOMPARE(m_model->getItemData(&unit, 0), QVariant(u" "_s));
    }

    void onlyOneNameHasAnIcon_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("file");
        QTest::addRow("exact") << u"QOVA"_s << u":/icons/res/icons/48px-About.png"_s;
        QTest::addRow("lower case") << u"qova"_s << QString();
        QTest::addRow("with a blank") << u"QOVA "_s << QString();
        QTest::addRow("empty") << QString() << QString();
    }
    void onlyOneNameHasAnIcon()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, file);
        coastUnit()->setName(name);
        const QVariant icon = m_model->data(coast(), Qt::DecorationRole);
        QCOMPARE(iconFile(icon), file);
        QCOMPARE(icon.isValid(), !file.isEmpty());
        QVERIFY(!m_model->data(coast(1), Qt::DecorationRole).isValid());
    }

    void checkStateIsTheUnits_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<int>("shown");
        QTest::addRow("unchecked") << 0 << 0;
        QTest::addRow("partially") << 1 << 1;
        QTest::addRow("checked") << 2 << 2;
        QTest::addRow("any other state") << 3 << 0;
    }
    void checkStateIsTheUnits()
    {
        QFETCH(const int, state);
        coastUnit()->setUnitState(Qt::CheckState(state));
        const QVariant shown = m_model->data(coast(), Qt::CheckStateRole);
        QCOMPARE(shown.typeId(), int(QMetaType::Int));
        QTEST(shown.toInt(), "shown");
        QVERIFY(!m_model->data(coast(1), Qt::CheckStateRole).isValid());
    }

    void userRoleIsLoggedAndAnswersNothing()
    {
        const DebugLines log;
        QVERIFY(!m_model->data(coast(), Qt::UserRole).isValid());
        QVERIFY(!m_model->data(coast(1), Qt::UserRole).isValid());
        QVERIFY(!m_model->data({}, Qt::UserRole).isValid());
        QVERIFY(!m_model->data(coast(), Qt::ToolTipRole).isValid());
        QCOMPARE(log.lines, QStringList({u"U SER  ROLE "_s, u"U SER  ROLE "_s}));
    }

    void rowsBelowNoUnitAreLogged()
    {
        m_root->getChildren()->append(nullptr);
        const QModelIndex empty = m_model->index(2, 0, m_model->index(0, 0));
        QVERIFY(empty.isValid());
        const DebugLines log;
        QCOMPARE(m_model->rowCount(), 1);
        QCOMPARE(m_model->rowCount(coast()), 1);
        QCOMPARE(log.lines, QStringList());
        QCOMPARE(m_model->rowCount(empty), 0);
        QCOMPARE(log.lines, QStringList{u"Row Count 3"_s});
        for (const int role : {Qt::DisplayRole, Qt::DecorationRole, Qt::CheckStateRole, Qt::UserRole})
            QVERIFY(!m_model->data(empty, role).isValid());
        QVERIFY(!m_model->parent(empty).isValid());
        QVERIFY(!m_model->index(0, 0, empty).isValid());
        QCOMPARE(log.lines.size(), 1);
        m_root->getChildren()->removeLast();
    }

    void parentIsLeftInTheUnitWithTheLevelAsRow()
    {
        QVERIFY(!coastUnit()->getIndex().isValid());
        const QModelIndex parent = coast().parent();
        QCOMPARE(parent.internalPointer(), m_root.get());
        QCOMPARE(parent.row(), 2);
        QCOMPARE(coastUnit()->getIndex(), parent);

        coastUnit()->setLevel(7);
        QCOMPARE(coast().parent().row(), 7);
        QCOMPARE(coastUnit()->getIndex().row(), 7);

        QVERIFY(!m_model->index(0, 0).parent().isValid());
        QVERIFY(!m_root->getIndex().isValid()); // Nothing is stored for the root.
    }

    void aUnitTakenOutForgetsItsParent()
    {
        QVERIFY(coast().parent().isValid());
        const QModelIndex before = coast();
        const std::unique_ptr<SelectionTreeUnit> taken(m_root->getChildren()->takeAt(1));
        QVERIFY(!m_model->parent(before).isValid());
        QVERIFY(!taken->getIndex().isValid());
        m_root->getChildren()->append(new SelectionTreeUnit);
    }

    void firstColumnIsCheckable()
    {
        QCOMPARE(m_model->flags(coast()), Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
        QCOMPARE(m_model->flags(coast(1)), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
        QCOMPARE(m_model->flags({}), Qt::ItemFlags());
    }

    void thereIsNoHeaderText()
    {
        const QAbstractItemModel &model = *m_model;
        QCOMPARE(model.headerData(0, Qt::Horizontal), QVariant(1)); // Qt's own: the number of the column.
    }

    void aClickOnACheckBoxChangesNothing()
    {
        QTreeView view;
        view.setModel(m_model.get());
        view.expandAll();
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const QSignalSpy changes(m_model.get(), &QAbstractItemModel::dataChanged);
        QVERIFY(!m_model->setData(coast(), int(Qt::Checked), Qt::CheckStateRole));
        const QRect cell = view.visualRect(coast());
        for (int x = cell.left() + 1; x < cell.left() + 40; x += 3)
            QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, QPoint(x, cell.center().y()));
        QTest::keyClick(&view, Qt::Key_Space);
        QCOMPARE(view.currentIndex(), coast());
        QCOMPARE(coastUnit()->getUnitState(), Qt::Unchecked);
        QCOMPARE(changes.size(), 0);
    }
};

QTEST_MAIN(TestSelectionBuilderTreeModel)
#include "tst_selectionbuildertreemodel.moc"
