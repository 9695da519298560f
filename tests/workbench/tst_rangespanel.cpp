#include "common/Constants.h"
#include "model/MetadataVariables.h"
#include "tests/workbench/Bench.h"
#include "tests/workbench/IsolatedSettings.h"
#include "workbench/panels/EmptyText.h"
#include "workbench/panels/RangesPanel.h"

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

// What the table of ranges has in common with that of value labels is tried there.
class TestRangesPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void saysInWordsThatThereAreNone();
    void makesALayoutForTheFirstRange();
    void editsWithTheSpinBoxOfTheType_data();
    void editsWithTheSpinBoxOfTheType();
    void keepsABoundThatIsOnlyLookedAt_data();
    void keepsABoundThatIsOnlyLookedAt();
    void storesNothingForANewRangeLeftAtZero();
    void commitsNothingThatOthersAreEditing();
    void showsEveryDigit_data();
    void showsEveryDigit();
    void followsAChangeOfTheType();
    void eachVariableHasItsOwnEditor();
    void removesSeveral();
    void movesAndUndoes();
    void doesNotMoveWhileSorted();
    void leavesDeleteToAnEditor();
    void isOffWithoutAVariable();

private:
    [[nodiscard]] QStringList held() const;
    [[nodiscard]] QStringList shown() const;
    [[nodiscard]] QAction *action(ActionId id) const { return m_bench->actions[id]; }
    [[nodiscard]] QAbstractSpinBox *editor() const
    {
        return m_panel->view()->findChild<QAbstractSpinBox *>();
    }
    void fill(const QList<double> &bounds);

    IsolatedSettings m_settings;
    std::unique_ptr<Bench> m_bench;
    std::unique_ptr<RangesPanel> m_panel;
};

void TestRangesPanel::init()
{
    m_bench = std::make_unique<Bench>();
    m_bench->selection.select(u"PERSON/AGE"_s);
    m_bench->variable(u"AGE"_s)->setVarType(Constants::typeInteger);
    m_bench->document.commit();
    m_bench->document.undoStack()->clear();
    m_panel = std::make_unique<RangesPanel>(m_bench->workspace());
    m_panel->resize(400, 300);
    m_panel->show();
    m_panel->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
    m_panel->view()->setFocus();
}

void TestRangesPanel::cleanup()
{
    m_panel->close(); // And with it an open editor.
    m_panel.reset();
    m_bench.reset();
}

QStringList TestRangesPanel::held() const
{
    const MetadataVariables *layout = m_bench->variable(u"AGE"_s)->getMetadataVariables();
    QStringList rows;
    for (const Range *range : layout ? *layout->getRange() : QList<Range *>())
        rows.append(u"%1..%2"_s.arg(range->getRangeMin()).arg(range->getRangeMax()));
    return rows;
}

QStringList TestRangesPanel::shown() const
{
    QStringList rows;
    const QAbstractItemModel *model = m_panel->view()->model();
    for (int row = 0; row < model->rowCount(); ++row)
        rows.append(model->index(row, 0).data().toString() + u".."_s
                    + model->index(row, 1).data().toString());
    return rows;
}

/// Gives AGE a range from 0 up to each of \a bounds.
void TestRangesPanel::fill(const QList<double> &bounds)
{
    auto *layout = new MetadataVariables;
    for (double bound : bounds) {
        layout->addItemRange(new Range);
        layout->getRange()->last()->setRangeMax(bound);
    }
    m_bench->variable(u"AGE"_s)->setMetadataVariables(layout);
    m_bench->document.commit();
    m_bench->document.undoStack()->clear();
}

void TestRangesPanel::saysInWordsThatThereAreNone()
{
    QCOMPARE(static_cast<EmptyText<QTableView> *>(m_panel->view())->emptyText(),
             u"No ranges: every value is valid."_s);
    QVERIFY(!m_bench->variable(u"AGE"_s)->getMetadataVariables());
}

void TestRangesPanel::makesALayoutForTheFirstRange()
{
    QTest::keyClick(m_panel->view(), Qt::Key_Insert);
    QCOMPARE(held(), QStringList({u"0..0"_s}));
    QCOMPARE(m_bench->undoText(), u"adding a range to AGE"_s);
    QTest::keyClick(editor(), Qt::Key_Escape);
    m_bench->document.undoStack()->undo();
    QCOMPARE(held(), QStringList());
    QCOMPARE(shown(), QStringList());
    QVERIFY(!m_bench->variable(u"AGE"_s)->getMetadataVariables());
    m_bench->document.undoStack()->redo();
    QCOMPARE(shown(), QStringList({u"0..0"_s}));
}

void TestRangesPanel::editsWithTheSpinBoxOfTheType_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("stored");
    QTest::addRow("whole number") << Constants::typeInteger << 0 << u"120"_s << 120.0;
    QTest::addRow("negative") << Constants::typeInteger << 0 << u"-5"_s << -5.0;
    QTest::addRow("two decimals unless said otherwise") << Constants::typeReal << 0 << u"2.75"_s << 2.75;
    QTest::addRow("decimals of the variable") << Constants::typeReal << 4 << u"0.0625"_s << 0.0625;
}

void TestRangesPanel::editsWithTheSpinBoxOfTheType()
{
    QFETCH(const QString, type);
    QFETCH(const int, decimals);
    QFETCH(const QString, typed);
    QFETCH(const double, stored);
    TDcVariable *age = m_bench->variable(u"AGE"_s);
    age->setVarType(type);
    age->setDecimals(decimals);
    fill({1});
    QTableView *view = m_panel->view();
    view->setCurrentIndex(view->model()->index(0, 1));
    QTest::keyClick(view, Qt::Key_F2);
    QAbstractSpinBox *box = editor();
    QVERIFY(box);
    box->selectAll();
    QTest::keyClicks(box->findChild<QLineEdit *>(), typed);
    QTest::keyClick(box, Qt::Key_Return);
    QTRY_COMPARE(age->getMetadataVariables()->getRange()->first()->getRangeMax(), stored);
    QCOMPARE(m_bench->document.undoStack()->count(), 1);
    m_bench->document.undoStack()->undo();
    QCOMPARE(held(), QStringList({u"0..1"_s}));
    QCOMPARE(shown(), QStringList({u"0..1"_s}));
}

void TestRangesPanel::keepsABoundThatIsOnlyLookedAt_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<double>("bound");
    QTest::addColumn<int>("key");
    QTest::addRow("more decimals") << Constants::typeReal << 0.125 << int(Qt::Key_Return);
    QTest::addRow("more decimals, on to the next") << Constants::typeReal << 0.125 << int(Qt::Key_Tab);
    QTest::addRow("too large") << Constants::typeReal << 1e13 << int(Qt::Key_Return);
    QTest::addRow("a fraction of a whole number") << Constants::typeInteger << 2.5 << int(Qt::Key_Return);
    QTest::addRow("too large a whole number") << Constants::typeInteger << 1e10 << int(Qt::Key_Return);
}

void TestRangesPanel::keepsABoundThatIsOnlyLookedAt()
{
    QFETCH(const QString, type);
    QFETCH(const double, bound);
    QFETCH(const int, key);
    TDcVariable *age = m_bench->variable(u"AGE"_s);
    age->setVarType(type);
    fill({bound});
    QTableView *view = m_panel->view();
    view->setCurrentIndex(view->model()->index(0, 1));
    QTest::keyClick(view, Qt::Key_F2);
    QVERIFY(editor());
    QTest::keyClick(editor(), Qt::Key(key));
    QTRY_VERIFY(!editor() || !editor()->isVisible() || view->currentIndex().column() != 1);
    QCOMPARE(age->getMetadataVariables()->getRange()->first()->getRangeMax(), bound);
    QCOMPARE(m_bench->document.undoStack()->count(), 0);
}

void TestRangesPanel::storesNothingForANewRangeLeftAtZero()
{
    QTest::keyClick(m_panel->view(), Qt::Key_Insert);
    QVERIFY(editor());
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_VERIFY(!editor() || !editor()->isVisible());
    QCOMPARE(held(), QStringList({u"0..0"_s}));
    QCOMPARE(m_bench->document.undoStack()->count(), 1);
}

void TestRangesPanel::commitsNothingThatOthersAreEditing()
{
    fill({1});
    // Painting the rows anew after somebody else's step is no edit.
    m_bench->variable(u"SEX"_s)->setLabel(u"being edited"_s);
    m_bench->entity(u"DEATH"_s)->setLabel(u"Deaths"_s);
    m_bench->document.commit(u"a label"_s, m_bench->entity(u"DEATH"_s));
    QCOMPARE(m_bench->document.undoStack()->count(), 1);
    // The step is there all the same when it is asked for.
    QVERIFY(m_bench->document.commit());
    QCOMPARE(m_bench->document.undoStack()->count(), 2);
}

void TestRangesPanel::showsEveryDigit_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<double>("bound");
    QTest::addColumn<QString>("text");
    QTest::addRow("seven digits") << Constants::typeReal << 9999999.0 << u"9999999"_s;
    QTest::addRow("whole number") << Constants::typeInteger << 9999999.0 << u"9999999"_s;
    QTest::addRow("trillions") << Constants::typeReal << 1e12 << u"1000000000000"_s;
    QTest::addRow("decimals") << Constants::typeReal << 1234567.25 << u"1234567.25"_s;
    QTest::addRow("small") << Constants::typeReal << 0.00001 << u"0.00001"_s;
    QTest::addRow("negative") << Constants::typeReal << -98.6 << u"-98.6"_s;
}

void TestRangesPanel::showsEveryDigit()
{
    QFETCH(const QString, type);
    QFETCH(const double, bound);
    m_bench->variable(u"AGE"_s)->setVarType(type);
    fill({bound});
    const auto *delegate = qobject_cast<QStyledItemDelegate *>(m_panel->view()->itemDelegate());
    QVERIFY(delegate);
    const QVariant value = m_panel->view()->model()->index(0, 1).data();
    QTEST(delegate->displayText(value, QLocale(QLocale::English)), "text");
}

void TestRangesPanel::followsAChangeOfTheType()
{
    fill({2.5});
    QCOMPARE(shown(), QStringList({u"0..2"_s}));
    m_bench->variable(u"AGE"_s)->setVarType(Constants::typeReal);
    m_bench->document.commit();
    QCOMPARE(shown(), QStringList({u"0..2.5"_s}));
    m_panel->view()->edit(m_panel->view()->model()->index(0, 1));
    QVERIFY(qobject_cast<QDoubleSpinBox *>(editor()));
}

void TestRangesPanel::eachVariableHasItsOwnEditor()
{
    m_bench->selection.select(u"PERSON/WAGE"_s);
    m_bench->selection.variable()->setVarType(Constants::typeReal);
    action(ActionId::RangeAdd)->trigger();
    QVERIFY(qobject_cast<QDoubleSpinBox *>(editor()));
    fill({1});
    m_bench->selection.select(u"PERSON/AGE"_s);
    m_panel->view()->edit(m_panel->view()->model()->index(0, 0));
    QTRY_VERIFY(qobject_cast<QSpinBox *>(editor()));
}

void TestRangesPanel::removesSeveral()
{
    fill({1, 2, 3});
    m_panel->view()->selectAll();
    QTest::keyClick(m_panel->view(), Qt::Key_Delete);
    QCOMPARE(held(), QStringList());
    QCOMPARE(m_bench->document.undoStack()->count(), 1);
    QVERIFY(!action(ActionId::RangeRemove)->isEnabled());
    m_bench->document.undoStack()->undo();
    QCOMPARE(shown(), QStringList({u"0..1"_s, u"0..2"_s, u"0..3"_s}));
}

void TestRangesPanel::movesAndUndoes()
{
    fill({1, 2, 3});
    m_panel->view()->selectRow(2);
    QVERIFY(!action(ActionId::RangeMoveDown)->isEnabled());
    action(ActionId::RangeMoveUp)->trigger();
    QCOMPARE(held(), QStringList({u"0..1"_s, u"0..3"_s, u"0..2"_s}));
    QCOMPARE(m_panel->view()->currentIndex().row(), 1);
    action(ActionId::RangeMoveUp)->trigger();
    QCOMPARE(shown(), QStringList({u"0..3"_s, u"0..1"_s, u"0..2"_s}));
    QVERIFY(!action(ActionId::RangeMoveUp)->isEnabled());
    m_bench->document.undoStack()->setIndex(0);
    QCOMPARE(shown(), QStringList({u"0..1"_s, u"0..2"_s, u"0..3"_s}));
    m_bench->document.undoStack()->setIndex(2);
    QCOMPARE(shown(), QStringList({u"0..3"_s, u"0..1"_s, u"0..2"_s}));
}

void TestRangesPanel::doesNotMoveWhileSorted()
{
    fill({10, 9, 100});
    m_panel->view()->sortByColumn(1, Qt::AscendingOrder);
    QCOMPARE(shown(), QStringList({u"0..9"_s, u"0..10"_s, u"0..100"_s}));
    m_panel->view()->selectRow(1);
    QVERIFY(!action(ActionId::RangeMoveUp)->isEnabled());
    QVERIFY(!action(ActionId::RangeMoveDown)->isEnabled());
    m_panel->view()->sortByColumn(-1, Qt::AscendingOrder);
    QCOMPARE(shown(), QStringList({u"0..10"_s, u"0..9"_s, u"0..100"_s}));
    m_panel->view()->selectRow(1);
    QVERIFY(action(ActionId::RangeMoveUp)->isEnabled());
}

void TestRangesPanel::leavesDeleteToAnEditor()
{
    fill({12});
    m_panel->view()->setCurrentIndex(m_panel->view()->model()->index(0, 1));
    QTest::keyClick(m_panel->view(), Qt::Key_F2);
    QVERIFY(editor());
    auto *line = editor()->findChild<QLineEdit *>();
    line->setCursorPosition(0);
    QTest::keyClick(line, Qt::Key_Delete);
    QCOMPARE(line->text(), u"2"_s);
    QCOMPARE(held(), QStringList({u"0..12"_s}));
}

void TestRangesPanel::isOffWithoutAVariable()
{
    fill({12});
    m_bench->selection.select(u"DEATH"_s);
    QCOMPARE(shown(), QStringList());
    for (ActionId id :
         {ActionId::RangeAdd, ActionId::RangeRemove, ActionId::RangeMoveUp, ActionId::RangeMoveDown})
        QVERIFY(!action(id)->isEnabled());
}

QTEST_MAIN(TestRangesPanel)
#include "tst_rangespanel.moc"
