#include "model/ValueLabelElement.h"
#include "tests/workbench/Bench.h"
#include "tests/workbench/Controls.h"
#include "workbench/operations/Find.h"
#include "workbench/panels/FindPanel.h"
#include "workbench/panels/Inspector.h"
#include "workbench/panels/ValueLabelsPanel.h"

#include <QAccessible>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestFind : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void finds_data();
    void finds();
    void stopsAtTheMost();
    void listsWhileTyping();
    void readsTheSummaryAloud();
    void tabGoesInReadingOrder();
    void saysThatThereIsMore();
    void goesFromHitToHit();
    void showsTheValueLabel();
    void limitsWhereToLook();
    void followsTheDictionary();
    void searchesOnlyWhenItIsSeen();

private:
    [[nodiscard]] QStringList shown() const;

    std::unique_ptr<FindPanel> m_panel;
    std::unique_ptr<Bench> m_bench;
};

void TestFind::init()
{
    m_panel.reset();
    m_bench = std::make_unique<Bench>();
    m_bench->selection.select(u"PERSON"_s);
    m_bench->entity(u"DEATH"_s)->setLabel(u"Deaths of a person"_s);
    m_bench->entity(u"HOUSEHOLD"_s)->setAlias(u"H01"_s);
    TDcVariable *sex = m_bench->variable(u"SEX"_s);
    sex->setGroup(u"BASIC"_s);
    for (const QString &text : {u"1=Man"_s, u"2=Woman"_s}) {
        sex->addValueLabelElement(new ValueLabelElement);
        sex->getValueLabelElementList()->last()->setValue(text.section(u'=', 0, 0));
        sex->getValueLabelElementList()->last()->setLabel(text.section(u'=', 1));
    }
    m_bench->document.commit();
    m_panel = std::make_unique<FindPanel>(m_bench->workspace());
    m_panel->resize(900, 220);
    m_panel->show();
    m_panel->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
}

QStringList TestFind::shown() const
{
    QStringList rows;
    const QAbstractItemModel *model = m_panel->view()->model();
    for (int row = 0; row < model->rowCount(); ++row)
        rows.append(model->index(row, 0).data().toString() + u'|' + model->index(row, 1).data().toString()
                    + u'|' + model->index(row, 2).data().toString());
    return rows;
}

void TestFind::finds_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("parts");
    QTest::addColumn<bool>("matchCase");
    QTest::addColumn<bool>("wholeWords");
    QTest::addColumn<QStringList>("hits");
    using Lines = QStringList;
    const auto all = int(Find::Everything);
    QTest::addRow("an entity's name and label")
        << u"person"_s << all << false << false << Lines{u"PERSON"_s, u"DEATH"_s};
    QTest::addRow("an entity's alias") << u"H01"_s << all << false << false << Lines{u"HOUSEHOLD"_s};
    QTest::addRow("names and labels")
        << u"sex"_s << all << false << false << Lines{u"PERSON/SEX"_s, u"PERSON/SEX"_s};
    QTest::addRow("by case") << u"Sex"_s << all << true << false << Lines{u"PERSON/SEX"_s};
    QTest::addRow("an alias") << u"p0"_s << all << false << false << Lines{u"PERSON/AGE"_s};
    QTest::addRow("a group") << u"basic"_s << all << false << false << Lines{u"PERSON/SEX"_s};
    QTest::addRow("parts of words") << u"man"_s << all << false << false
                                    << Lines{u"PERSON/SEX, code 1"_s, u"PERSON/SEX, code 2"_s};
    QTest::addRow("whole words") << u"man"_s << all << false << true << Lines{u"PERSON/SEX, code 1"_s};
    QTest::addRow("a whole word later in the text")
        << u"a"_s << int(Find::Labels) << false << true << Lines{u"DEATH"_s};
    QTest::addRow("a code") << u"2"_s << all << false << false << Lines{u"PERSON/SEX, code 2"_s};
    QTest::addRow("names only") << u"a"_s << int(Find::Names) << false << false
                                << Lines{u"PERSON/AGE"_s, u"PERSON/WAGE"_s, u"DEATH"_s};
    QTest::addRow("no expression") << u".*"_s << all << false << false << Lines{};
    QTest::addRow("nothing") << QString() << all << false << false << Lines{};
    QTest::addRow("blanks") << u"  "_s << all << false << false << Lines{};
}

void TestFind::finds()
{
    QFETCH(const QString, text);
    QFETCH(const int, parts);
    QFETCH(const bool, matchCase);
    QFETCH(const bool, wholeWords);
    QFETCH(const QStringList, hits);
    const Find found(m_bench->document.root(), {text, Find::Parts(parts), matchCase, wholeWords}, 100);
    QStringList places;
    for (const Find::Hit &hit : found.hits)
        places.append(hit.place());
    QCOMPARE(places, hits);
    QVERIFY(found.isComplete);
}

void TestFind::stopsAtTheMost()
{
    TDcEntity *root = m_bench->document.root();
    const Find all(root, {u"e"_s}, 1000);
    const Find exact(root, {u"e"_s}, all.hits.size());
    QCOMPARE(exact.hits.size(), all.hits.size());
    QVERIFY(exact.isComplete);
    const Find fewer(root, {u"e"_s}, all.hits.size() - 1);
    QCOMPARE(fewer.hits.size(), all.hits.size() - 1);
    QVERIFY(!fewer.isComplete);
}

void TestFind::listsWhileTyping()
{
    m_panel->start();
    QCOMPARE(QApplication::focusWidget(), m_panel->field());
    QTest::keyClicks(m_panel->field(), u"wom"_s);
    QTRY_COMPARE(shown(), QStringList({u"Woman|Value label|PERSON/SEX, code 2"_s}));
    QCOMPARE(m_panel->summary()->text(), u"Found: 1"_s);
    m_panel->field()->clear();
    QTRY_COMPARE(shown(), QStringList());
    QCOMPARE(m_panel->summary()->text(), QString());
}

void TestFind::readsTheSummaryAloud()
{
    m_panel->field()->setText(u"wom"_s);
    QTRY_COMPARE(m_panel->summary()->text(), u"Found: 1"_s);
    QCOMPARE(QAccessible::queryAccessibleInterface(m_panel->summary())->text(QAccessible::Name),
             u"Found: 1"_s);
}

void TestFind::tabGoesInReadingOrder()
{
    QCOMPARE(Controls::tabOrder(m_panel.get()),
             QStringList({u"Find in the dictionary"_s, u"Find in: Names"_s, u"Find in: Aliases"_s,
                          u"Find in: Labels"_s, u"Find in: Groups"_s, u"Find in: Value labels"_s,
                          u"Match case"_s, u"Whole words"_s, u"Found"_s}));
}

void TestFind::saysThatThereIsMore()
{
    m_bench->document.edit(u"many"_s, [this] {
        for (int i = 0; i < 1001; ++i)
            m_bench->entity(u"DEATH"_s)->addVariables(makeVariable(u"QUESTION%1"_s.arg(i)));
    });
    m_panel->field()->setText(u"question"_s);
    QTRY_COMPARE(shown().size(), 1000);
    QVERIFY2(m_panel->summary()->text().startsWith(u"There is more: only the first 1"_s),
             qPrintable(m_panel->summary()->text()));
}

void TestFind::goesFromHitToHit()
{
    const auto place = [this] {
        const TDcVariable *variable = m_bench->selection.variable();
        return variable ? variable->getName() : m_bench->selection.entity()->getName();
    };
    m_panel->start();
    // Not waiting for the list.
    QTest::keyClicks(m_panel->field(), u"age"_s);
    QTest::keyClick(m_panel->field(), Qt::Key_Return);
    QCOMPARE(place(), u"AGE"_s); // Its name.
    m_bench->actions[ActionId::EditFindNext]->trigger();
    QCOMPARE(place(), u"AGE"_s); // Its label.
    m_bench->actions[ActionId::EditFindNext]->trigger();
    QCOMPARE(place(), u"WAGE"_s);
    m_bench->actions[ActionId::EditFindNext]->trigger(); // "Monthly wage"
    m_bench->actions[ActionId::EditFindNext]->trigger();
    QCOMPARE(place(), u"AGE"_s);
    m_bench->actions[ActionId::EditFindPrevious]->trigger();
    QCOMPARE(place(), u"WAGE"_s);
    m_panel->field()->setText(u"death"_s);
    QTest::keyClick(m_panel->field(), Qt::Key_Return);
    QCOMPARE(m_bench->selection.entity()->getName(), u"DEATH"_s);
}

void TestFind::showsTheValueLabel()
{
    Inspector inspector(m_bench->workspace());
    connect(m_panel.get(), &FindPanel::itemChosen, &inspector, &Inspector::showItem);
    m_bench->selection.select(u"CENSUS"_s);
    m_panel->field()->setText(u"woman"_s);
    m_panel->step(true);
    QCOMPARE(m_bench->selection.variable()->getName(), u"SEX"_s);
    QCOMPARE(inspector.valueLabels()->view()->currentIndex().row(), 1);
}

void TestFind::limitsWhereToLook()
{
    m_panel->field()->setText(u"sex"_s);
    QTRY_COMPARE(shown(), QStringList({u"SEX|Name|PERSON/SEX"_s, u"Sex|Label|PERSON/SEX"_s}));
    const auto options = m_panel->findChildren<QCheckBox *>();
    for (QCheckBox *option : options) {
        if (option->text() == u"Names"_s)
            option->click();
    }
    QTRY_COMPARE(shown(), QStringList({u"Sex|Label|PERSON/SEX"_s}));
}

void TestFind::followsTheDictionary()
{
    m_panel->field()->setText(u"wage"_s);
    QTRY_COMPARE(shown().size(), 2);
    TDcVariable *wage = m_bench->variable(u"WAGE"_s);
    m_bench->document.edit(u"removing"_s, [&] {
        m_bench->entity(u"PERSON"_s)->getVariables()->removeOne(wage);
        delete wage;
        QCOMPARE(shown(), QStringList()); // It holds nothing that may go.
    });
    m_panel->step(true);
    QCOMPARE(shown(), QStringList());
    QVERIFY(!m_bench->actions[ActionId::EditFindNext]->isEnabled());
    m_bench->document.undoStack()->undo();
    QTRY_COMPARE(shown().size(), 2);
    m_bench->variable(u"SEX"_s)->setLabel(u"wages"_s);
    m_bench->document.commit();
    QTRY_COMPARE(shown().size(), 3);
}

void TestFind::searchesOnlyWhenItIsSeen()
{
    m_panel->hide();
    m_panel->field()->setText(u"sex"_s);
    QTest::qWait(300);
    QCOMPARE(shown(), QStringList());
    m_panel->show();
    QCOMPARE(shown().size(), 2);
}

QTEST_MAIN(TestFind)
#include "tst_find.moc"
