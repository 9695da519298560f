#include "model/PreOrder.h"
#include "tests/support/MessageBoxAnswer.h"
#include "tests/workbench/Bench.h"
#include "workbench/operations/EntityEdits.h"
#include "workbench/panels/EntityTreePanel.h"

#include <QAbstractItemModelTester>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTest>
#include <QTreeView>

#include <algorithm>
#include <ctime>
#include <functional>
#include <limits>

using namespace Qt::Literals::StringLiterals;

class TestEntityTreePanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void showsTheTreeExpanded();
    void followsTheSelectionAndLeadsIt();
    void addsBelowTheCurrentEntity();
    void addsByKeyAndLetsTheNameBeTyped();
    void duplicatesWithEverythingBelow();
    void removesWithEverythingBelow();
    void keepsTheRoot();
    void movesUpAndDown();
    void renamesByKeyboard();
    void refusesNames_data();
    void refusesNames();
    void leavesDeleteToAnEditor();
    void keepsWhatIsCollapsed();
    void showsWhatComesBackBelowALeaf();
    void alwaysHasACurrentIndex();
    void keepsManyCollapsedInTheTimeThatTheyTake();

private:
    std::clock_t timeToShow(int collapsed);
    [[nodiscard]] QString tree() const;
    [[nodiscard]] QString current() const { return m_panel->view()->currentIndex().data().toString(); }
    [[nodiscard]] QAction *action(ActionId id) const { return m_bench->actions[id]; }
    [[nodiscard]] QUndoStack *stack() const { return m_bench->document.undoStack(); }
    [[nodiscard]] QModelIndex household() const
    {
        const QAbstractItemModel *model = m_panel->view()->model();
        return model->index(0, 0, model->index(0, 0));
    }
    QLineEdit *edit(const QString &entity);

    std::unique_ptr<Bench> m_bench;
    std::unique_ptr<EntityTreePanel> m_panel;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

void TestEntityTreePanel::init()
{
    m_bench = std::make_unique<Bench>();
    m_panel = std::make_unique<EntityTreePanel>(m_bench->workspace());
    m_tester = std::make_unique<QAbstractItemModelTester>(
        m_panel->view()->model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    m_panel->resize(300, 300);
    m_panel->show();
    m_panel->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
    m_panel->view()->setFocus();
}

void TestEntityTreePanel::cleanup()
{
    m_tester.reset();
    m_panel->close(); // And with it an open editor.
    m_panel.reset();
    m_bench.reset();
}

/// What the view shows, as in "CENSUS(HOUSEHOLD(PERSON DEATH))"; the same as the dictionary holds.
QString TestEntityTreePanel::tree() const
{
    const QAbstractItemModel *model = m_panel->view()->model();
    const std::function<QString(const QModelIndex &)> text = [&](const QModelIndex &node) {
        QStringList below;
        for (int row = 0; row < model->rowCount(node); ++row)
            below.append(text(model->index(row, 0, node)));
        return node.data().toString() + (below.isEmpty() ? QString() : u"(%1)"_s.arg(below.join(u' ')));
    };
    const QList<QString> names =
        text(model->index(0, 0)).split(QRegularExpression(u"[() ]+"_s), Qt::SkipEmptyParts);
    QStringList held;
    preOrder(m_bench->document.root(), [&held](const TDcEntity *entity) { held.append(entity->getName()); });
    return names == held ? text(model->index(0, 0)) : u"shown and held differ"_s;
}

QLineEdit *TestEntityTreePanel::edit(const QString &entity)
{
    m_bench->selection.select(entity);
    m_panel->view()->setFocus();
    QTest::keyClick(m_panel->view(), Qt::Key_F2);
    return m_panel->view()->findChild<QLineEdit *>();
}

void TestEntityTreePanel::showsTheTreeExpanded()
{
    QCOMPARE(tree(), u"CENSUS(HOUSEHOLD(PERSON DEATH))"_s);
    QVERIFY(m_panel->view()->isExpanded(household()));
    QCOMPARE(current(), u"CENSUS"_s);
}

void TestEntityTreePanel::followsTheSelectionAndLeadsIt()
{
    m_bench->selection.select(u"DEATH"_s);
    QCOMPARE(current(), u"DEATH"_s);
    QTest::keyClick(m_panel->view(), Qt::Key_Up);
    QCOMPARE(m_bench->selection.entity()->getName(), u"PERSON"_s);
    QCOMPARE(m_bench->selection.variable()->getName(), u"SEX"_s);
    QTest::keyClick(m_panel->view(), Qt::Key_Up);
    QCOMPARE(m_bench->selection.entity()->getName(), u"HOUSEHOLD"_s);
}

void TestEntityTreePanel::addsBelowTheCurrentEntity()
{
    m_bench->selection.select(u"PERSON"_s);
    action(ActionId::EntityAdd)->trigger();
    QCOMPARE(tree(), u"CENSUS(HOUSEHOLD(PERSON(ENTITY) DEATH))"_s);
    QCOMPARE(m_bench->selection.entity()->getName(), u"ENTITY"_s);
    QCOMPARE(m_bench->selection.entity()->getLevel(), 4);
    QCOMPARE(m_bench->undoText(), u"adding ENTITY"_s);
    QVERIFY(m_panel->view()->isExpanded(m_panel->view()->currentIndex().parent()));
    m_bench->selection.select(u"CENSUS"_s);
    action(ActionId::EntityAdd)->trigger();
    QCOMPARE(tree(), u"CENSUS(HOUSEHOLD(PERSON(ENTITY) DEATH) ENTITY_2)"_s);
    QCOMPARE(stack()->count(), 2);
    stack()->setIndex(0);
    QCOMPARE(tree(), u"CENSUS(HOUSEHOLD(PERSON DEATH))"_s);
    stack()->setIndex(2);
    QCOMPARE(tree(), u"CENSUS(HOUSEHOLD(PERSON(ENTITY) DEATH) ENTITY_2)"_s);
}

void TestEntityTreePanel::addsByKeyAndLetsTheNameBeTyped()
{
    QTest::keyClick(m_panel->view(), Qt::Key_Insert);
    auto *editor = m_panel->view()->findChild<QLineEdit *>();
    QVERIFY(editor);
    editor->selectAll();
    QTest::keyClicks(editor, u"FARM"_s);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(tree(), u"CENSUS(HOUSEHOLD(PERSON DEATH) FARM)"_s);
}

void TestEntityTreePanel::duplicatesWithEverythingBelow()
{
    m_bench->entity(u"PERSON"_s)->setAlias(u"P"_s);
    m_bench->document.commit();
    m_bench->selection.select(u"HOUSEHOLD"_s);
    action(ActionId::EntityDuplicate)->trigger();
    QCOMPARE(tree(), u"CENSUS(HOUSEHOLD(PERSON DEATH) HOUSEHOLD_2(PERSON_2 DEATH_2))"_s);
    QCOMPARE(current(), u"HOUSEHOLD_2"_s);
    QCOMPARE(m_bench->entity(u"PERSON_2"_s)->getVariables()->size(), 3);
    QCOMPARE(m_bench->entity(u"PERSON_2"_s)->getAlias(), QString());
    stack()->undo();
    QCOMPARE(tree(), u"CENSUS(HOUSEHOLD(PERSON DEATH))"_s);
    QCOMPARE(current(), u"CENSUS"_s);
    stack()->redo();
    QCOMPARE(tree(), u"CENSUS(HOUSEHOLD(PERSON DEATH) HOUSEHOLD_2(PERSON_2 DEATH_2))"_s);
}

void TestEntityTreePanel::removesWithEverythingBelow()
{
    m_bench->selection.select(u"PERSON/AGE"_s);
    QTest::keyClick(m_panel->view(), Qt::Key_Delete);
    QCOMPARE(tree(), u"CENSUS(HOUSEHOLD(DEATH))"_s);
    QCOMPARE(current(), u"HOUSEHOLD"_s);
    QCOMPARE(m_bench->undoText(), u"removing PERSON"_s);
    QTest::keyClick(m_panel->view(), Qt::Key_Delete);
    QCOMPARE(tree(), u"CENSUS"_s);
    QCOMPARE(current(), u"CENSUS"_s);
    stack()->setIndex(0);
    QCOMPARE(tree(), u"CENSUS(HOUSEHOLD(PERSON DEATH))"_s);
    QCOMPARE(m_bench->entity(u"PERSON"_s)->getVariables()->size(), 3);
}

void TestEntityTreePanel::keepsTheRoot()
{
    for (ActionId id : {ActionId::EntityRemove, ActionId::EntityDuplicate, ActionId::EntityMoveUp,
                        ActionId::EntityMoveDown}) {
        QVERIFY(!action(id)->isEnabled());
    }
    QTest::keyClick(m_panel->view(), Qt::Key_Delete);
    QCOMPARE(tree(), u"CENSUS(HOUSEHOLD(PERSON DEATH))"_s);
    QVERIFY(action(ActionId::EntityAdd)->isEnabled());
    QVERIFY(action(ActionId::EntityRename)->isEnabled());
}

void TestEntityTreePanel::movesUpAndDown()
{
    m_bench->selection.select(u"DEATH"_s);
    QVERIFY(!action(ActionId::EntityMoveDown)->isEnabled());
    action(ActionId::EntityMoveUp)->trigger();
    QCOMPARE(tree(), u"CENSUS(HOUSEHOLD(DEATH PERSON))"_s);
    QCOMPARE(current(), u"DEATH"_s);
    QVERIFY(!action(ActionId::EntityMoveUp)->isEnabled());
    QVERIFY(action(ActionId::EntityMoveDown)->isEnabled());
    stack()->undo();
    QCOMPARE(tree(), u"CENSUS(HOUSEHOLD(PERSON DEATH))"_s);
    QCOMPARE(current(), u"DEATH"_s);
    stack()->redo();
    QCOMPARE(tree(), u"CENSUS(HOUSEHOLD(DEATH PERSON))"_s);
    action(ActionId::EntityMoveDown)->trigger();
    QCOMPARE(tree(), u"CENSUS(HOUSEHOLD(PERSON DEATH))"_s);
}

void TestEntityTreePanel::renamesByKeyboard()
{
    TDcEntity *death = m_bench->entity(u"DEATH"_s);
    QLineEdit *editor = edit(u"DEATH"_s);
    QVERIFY(editor);
    QCOMPARE(editor->text(), u"DEATH"_s);
    QTest::keyClicks(editor, u"BURIAL"_s);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(tree(), u"CENSUS(HOUSEHOLD(PERSON BURIAL))"_s);
    QCOMPARE(m_bench->undoText(), u"rename of DEATH"_s);
    stack()->undo();
    QCOMPARE(tree(), u"CENSUS(HOUSEHOLD(PERSON DEATH))"_s);
    QCOMPARE(m_bench->selection.entity(), death);
}

void TestEntityTreePanel::refusesNames_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("said");
    QTest::addRow("empty") << u"  "_s << QStringList();
    QTest::addRow("digit first") << u"1DEATH"_s << QStringList();
    QTest::addRow("sign") << u"A B"_s << QStringList({u"Invalid string"_s});
    QTest::addRow("taken") << u"person"_s << QStringList({u"Entity name already exists"_s});
    QTest::addRow("group") << u"INCOME"_s << QStringList({u"Entity name already exists as a group name"_s});
    QTest::addRow("alias") << u"HH"_s << QStringList({u"Entity name already exists as an alias name"_s});
    QTest::addRow("too long") << QString(51, u'A') << QStringList({u"Chain with length greater than 50"_s});
}

void TestEntityTreePanel::refusesNames()
{
    QFETCH(const QString, typed);
    QFETCH(const QStringList, said);
    m_bench->entity(u"HOUSEHOLD"_s)->setAlias(u"HH"_s);
    m_bench->entity(u"PERSON"_s)->getVariables()->last()->setGroup(u"INCOME"_s);
    m_bench->document.commit();
    const int before = stack()->count();
    const MessageBoxAnswer boxes({u"OK"_s});
    QLineEdit *editor = edit(u"DEATH"_s);
    QVERIFY(editor);
    editor->setText(typed);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(boxes.texts(), said);
    QCoreApplication::processEvents();
    QCOMPARE(tree(), u"CENSUS(HOUSEHOLD(PERSON DEATH))"_s);
    QCOMPARE(stack()->count(), before);
}

void TestEntityTreePanel::leavesDeleteToAnEditor()
{
    QLineEdit *editor = edit(u"DEATH"_s);
    QVERIFY(editor);
    editor->setCursorPosition(0);
    QTest::keyClick(editor, Qt::Key_Delete);
    QCOMPARE(editor->text(), u"EATH"_s);
    QCOMPARE(tree(), u"CENSUS(HOUSEHOLD(PERSON DEATH))"_s);
}

void TestEntityTreePanel::keepsWhatIsCollapsed()
{
    m_panel->view()->collapse(household());
    action(ActionId::EntityAdd)->trigger();
    QVERIFY(!m_panel->view()->isExpanded(household()));
    stack()->undo();
    QVERIFY(!m_panel->view()->isExpanded(household()));
    stack()->redo();
    QVERIFY(!m_panel->view()->isExpanded(household()));
    // What is selected can be seen.
    m_bench->selection.select(u"DEATH"_s);
    QVERIFY(m_panel->view()->isExpanded(household()));
    QVERIFY(m_panel->view()->visualRect(m_panel->view()->currentIndex()).isValid());
}

void TestEntityTreePanel::showsWhatComesBackBelowALeaf()
{
    m_bench->selection.select(u"PERSON"_s);
    action(ActionId::EntityRemove)->trigger();
    m_bench->selection.select(u"DEATH"_s);
    action(ActionId::EntityRemove)->trigger();
    QCOMPARE(tree(), u"CENSUS(HOUSEHOLD)"_s);
    stack()->undo();
    QVERIFY(m_panel->view()->isExpanded(household()));
    stack()->undo();
    QVERIFY(m_panel->view()->isExpanded(household()));
}

void TestEntityTreePanel::alwaysHasACurrentIndex()
{
    m_bench->selection.select(u"DEATH"_s);
    m_bench->document.edit(u"nothing"_s, [] {});
    QCOMPARE(current(), u"DEATH"_s);
    m_bench->document.clear();
    QCOMPARE(current(), u"DICTIONARY"_s);
    QCOMPARE(m_bench->selection.entity(), m_bench->document.root());
}

/// The processor time in which the panel gets over a change of structure.
std::clock_t TestEntityTreePanel::timeToShow(int collapsed)
{
    m_bench->document.edit(u"filling"_s, [this, collapsed] {
        qDeleteAll(*m_bench->document.root()->getChildren());
        m_bench->document.root()->getChildren()->clear();
        for (int i = 0; i < collapsed; ++i)
            EntityEdits::add(EntityEdits::add(m_bench->document.root(), u"E%1"_s.arg(i)), u"B%1"_s.arg(i));
    });
    QTreeView *view = m_panel->view();
    view->collapseAll();
    view->expand(view->model()->index(0, 0));
    auto shortest = std::numeric_limits<std::clock_t>::max();
    for (int round = 0; round < 3; ++round) {
        const std::clock_t start = std::clock();
        Q_EMIT m_bench->document.structureAboutToChange();
        Q_EMIT m_bench->document.structureChanged();
        shortest = std::min(shortest, std::clock() - start);
    }
    return shortest;
}

void TestEntityTreePanel::keepsManyCollapsedInTheTimeThatTheyTake()
{
    m_tester.reset(); // It asks for everything over and over.
    const std::clock_t few = timeToShow(250);
    const std::clock_t many = timeToShow(2000);
    const QTreeView *view = m_panel->view();
    QVERIFY(!view->isExpanded(view->model()->index(1999, 0, view->model()->index(0, 0))));
    // Eight times as many take eight times as long, and not the square of that.
    QVERIFY(many < 24 * few);
}

QTEST_MAIN(TestEntityTreePanel)
#include "tst_entitytreepanel.moc"
