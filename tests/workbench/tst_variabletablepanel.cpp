#include "model/OwnedList.h"
#include "model/TDcSourceField.h"
#include "models/DatasetPropertiesFieldsModel.h"
#include "tests/support/Growth.h"
#include "tests/support/MessageBoxAnswer.h"
#include "tests/workbench/Bench.h"
#include "workbench/panels/VariableTablePanel.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestVariableTablePanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void showsTheVariablesOfTheEntity();
    void renamesByKeyboard();
    void filtersWithoutCase();
    void importsFieldsInOneStep();
    void selectsWhatIsClicked();
    void addsAFreeName();
    void removesAndKeepsANeighbourSelected();
    void removingTheCodeLeavesNone();
    void movesAndUndoes();
    void doesNotMoveWhileSorted();
    void duplicates();
    void togglesRoles();
    void keepsColumnWidths();
    void keepsItsPlaceWhenTheStructureChanges();
    void alwaysHasACurrentIndex();
    void showsWhatSomebodyLeadsToThoughAFilterHidesIt();
    void keepsTheFilterForAnotherEntity();
    void goesOnWithWhatTheFilterShows();
    void goesOnWhenAnEditTakesTheVariableOutOfTheFilter_data();
    void goesOnWhenAnEditTakesTheVariableOutOfTheFilter();
    void leavesNothingSelectedWithoutAFilter();
    void takesWhatAFilterLeavesAtOnce();
    void filtersAsQuicklyWhateverIsSelected();
    void readsTheNumberOfVariablesAloud();
    void doesNotMoveWhileFiltered();
    void selectsNeighboursAsOneRange();
    void staysWhereItIsWhenAnImportIsRefused();

private:
    [[nodiscard]] QStringList selected() const;
    [[nodiscard]] QStringList shown() const;

    std::unique_ptr<Bench> m_bench;
    std::unique_ptr<VariableTablePanel> m_panel;
};

void TestVariableTablePanel::init()
{
    m_bench = std::make_unique<Bench>();
    m_bench->selection.select(u"PERSON"_s);
    m_panel = std::make_unique<VariableTablePanel>(m_bench->workspace());
    m_panel->resize(700, 300);
    m_panel->show();
    m_panel->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
    m_panel->view()->setFocus();
}

void TestVariableTablePanel::cleanup()
{
    m_panel.reset();
    m_bench.reset();
}

QStringList TestVariableTablePanel::shown() const
{
    QStringList names;
    const QAbstractItemModel *model = m_panel->view()->model();
    for (int row = 0; row < model->rowCount(); ++row)
        names.append(model->index(row, 0).data().toString());
    return names;
}

void TestVariableTablePanel::showsTheVariablesOfTheEntity()
{
    QCOMPARE(shown(), QStringList({u"SEX"_s, u"AGE"_s, u"WAGE"_s}));
    m_bench->selection.select(u"DEATH"_s);
    QCOMPARE(shown(), QStringList());
}

void TestVariableTablePanel::renamesByKeyboard()
{
    m_bench->selection.select(u"PERSON/AGE"_s);
    QTableView *view = m_panel->view();
    view->setFocus();
    QTest::keyClick(view, Qt::Key_F2);
    auto *editor = view->findChild<QLineEdit *>();
    QVERIFY(editor);
    editor->selectAll();
    QTest::keyClicks(editor, u"YEARS"_s);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(m_bench->variables(), QStringList({u"SEX"_s, u"YEARS"_s, u"WAGE"_s}));
    QCOMPARE(m_bench->undoText(), u"rename of AGE"_s);

    m_bench->document.undoStack()->undo();
    QCOMPARE(shown(), QStringList({u"SEX"_s, u"AGE"_s, u"WAGE"_s}));
    QCOMPARE(m_bench->selection.variable()->getName(), u"AGE"_s);
}

void TestVariableTablePanel::filtersWithoutCase()
{
    QTest::keyClicks(m_panel->filterField(), u"monthly"_s);
    QCOMPARE(shown(), QStringList({u"WAGE"_s}));
    m_panel->filterField()->setText(u"p03"_s);
    QCOMPARE(shown(), QStringList({u"AGE"_s}));
    QCOMPARE(m_bench->selection.variable()->getName(), u"AGE"_s);
    m_panel->filterField()->setText(u"(no such"_s);
    QCOMPARE(shown(), QStringList());
    m_panel->filterField()->clear();
    QCOMPARE(shown().size(), 3);
}

void TestVariableTablePanel::importsFieldsInOneStep()
{
    QList<TDcSourceField *> fields;
    for (const QString &name : {u"HEIGHT"_s, u"WEIGHT"_s, u"EYES"_s}) {
        fields.append(new TDcSourceField);
        fields.last()->name = name;
    }
    const DatasetPropertiesFieldsModel source(nullptr, &fields, u"*"_s);
    const std::unique_ptr<QMimeData> payload(
        source.mimeData({source.index(0, 0), source.index(1, 0), source.index(2, 0)}));
    m_panel->importFields(payload.get());

    QCOMPARE(m_bench->variables().size(), 6);
    QCOMPARE(m_bench->document.undoStack()->count(), 1);
    QCOMPARE(m_bench->undoText(), u"import of 3 fields"_s);
    QCOMPARE(m_bench->selection.variable()->getName(), u"EYES"_s);
    QCOMPARE(m_panel->findChild<QLabel *>()->text(), u"Variables: 6"_s);
    QCOMPARE(m_panel->view()->currentIndex().row(), 5);
    m_bench->document.undoStack()->undo();
    QCOMPARE(shown().size(), 3);
    m_bench->document.undoStack()->redo();
    QCOMPARE(shown().mid(3), QStringList({u"HEIGHT"_s, u"WEIGHT"_s, u"EYES"_s}));
    qDeleteAll(fields);
}

void TestVariableTablePanel::selectsWhatIsClicked()
{
    QTableView *view = m_panel->view();
    const QModelIndex wage = view->model()->index(2, 2);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(wage).center());
    QCOMPARE(m_bench->selection.variable()->getName(), u"WAGE"_s);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::ControlModifier,
                      view->visualRect(view->model()->index(0, 0)).center());
    QCOMPARE(m_bench->selection.variables().size(), 2);
    QCOMPARE(m_bench->selection.variables().first()->getName(), u"SEX"_s);
}

void TestVariableTablePanel::addsAFreeName()
{
    QAction *add = m_bench->actions[ActionId::VariableAdd];
    add->trigger();
    add->trigger();
    QCOMPARE(m_bench->variables().mid(3), QStringList({u"VARIABLE"_s, u"VARIABLE_2"_s}));
    QCOMPARE(m_bench->selection.variable()->getName(), u"VARIABLE_2"_s);
    QCOMPARE(m_bench->undoText(), u"adding VARIABLE_2"_s);
}

void TestVariableTablePanel::removesAndKeepsANeighbourSelected()
{
    m_bench->selection.select(u"PERSON/AGE"_s);
    QTest::keyClick(m_panel->view(), Qt::Key_Delete);
    QCOMPARE(m_bench->variables(), QStringList({u"SEX"_s, u"WAGE"_s}));
    QCOMPARE(m_bench->selection.variable()->getName(), u"WAGE"_s);
    m_bench->document.undoStack()->undo();
    QCOMPARE(shown(), QStringList({u"SEX"_s, u"AGE"_s, u"WAGE"_s}));
}

void TestVariableTablePanel::removingTheCodeLeavesNone()
{
    m_bench->selection.select(u"PERSON/AGE"_s);
    TDcEntity *person = m_bench->selection.entity();
    person->setRefCode(u"AGE"_s);
    person->setSelectable(true);
    m_bench->document.commit();
    m_bench->actions[ActionId::VariableRemove]->trigger();
    QCOMPARE(person->getRefCode(), QString());
    QVERIFY(!person->getSelectable());
    m_bench->document.undoStack()->undo();
    QCOMPARE(person->getRefCode(), u"AGE"_s);
    QVERIFY(person->getSelectable());
}

void TestVariableTablePanel::movesAndUndoes()
{
    m_bench->selection.select(u"PERSON/WAGE"_s);
    QVERIFY(!m_bench->actions[ActionId::VariableMoveDown]->isEnabled());
    m_bench->actions[ActionId::VariableMoveUp]->trigger();
    QCOMPARE(shown(), QStringList({u"SEX"_s, u"WAGE"_s, u"AGE"_s}));
    QCOMPARE(m_bench->selection.variable()->getName(), u"WAGE"_s);
    m_bench->document.undoStack()->undo();
    QCOMPARE(shown(), QStringList({u"SEX"_s, u"AGE"_s, u"WAGE"_s}));
}

void TestVariableTablePanel::doesNotMoveWhileSorted()
{
    m_bench->selection.select(u"PERSON/WAGE"_s);
    m_panel->view()->sortByColumn(0, Qt::AscendingOrder);
    QCOMPARE(shown(), QStringList({u"AGE"_s, u"SEX"_s, u"WAGE"_s}));
    QVERIFY(!m_bench->actions[ActionId::VariableMoveUp]->isEnabled());
    m_panel->view()->sortByColumn(-1, Qt::AscendingOrder);
    QVERIFY(m_bench->actions[ActionId::VariableMoveUp]->isEnabled());
}

void TestVariableTablePanel::duplicates()
{
    m_bench->selection.select(u"PERSON/AGE"_s);
    m_bench->actions[ActionId::VariableDuplicate]->trigger();
    QCOMPARE(m_bench->variables().last(), u"AGE_2"_s);
    QCOMPARE(m_bench->selection.variable()->getLabel(), u"Age"_s);
    QCOMPARE(m_bench->selection.variable()->getAlias(), QString());
}

void TestVariableTablePanel::togglesRoles()
{
    m_bench->selection.select(u"PERSON/SEX"_s);
    QAction *code = m_bench->actions[ActionId::VariableRefCode];
    code->trigger();
    QCOMPARE(m_bench->selection.entity()->getRefCode(), u"SEX"_s);
    QVERIFY(code->isChecked());
    m_bench->selection.entity()->setSelectable(true);
    m_bench->document.commit();
    code->trigger();
    QCOMPARE(m_bench->selection.entity()->getRefCode(), QString());
    QVERIFY(!m_bench->selection.entity()->getSelectable());
    m_bench->document.undoStack()->undo();
    QVERIFY(code->isChecked());
    QVERIFY(m_bench->selection.entity()->getSelectable());
}

void TestVariableTablePanel::keepsColumnWidths()
{
    m_panel->view()->setColumnWidth(0, 123);
    m_bench->selection.select(u"DEATH"_s);
    m_bench->selection.select(u"PERSON"_s);
    m_bench->actions[ActionId::VariableRemove]->trigger();
    QCOMPARE(m_panel->view()->columnWidth(0), 123);
}

void TestVariableTablePanel::keepsItsPlaceWhenTheStructureChanges()
{
    TDcEntity *person = m_bench->selection.entity();
    m_bench->document.edit(u"filling"_s, [person] {
        for (int number = 0; number < 200; ++number)
            person->addVariables(makeVariable(u"V%1"_s.arg(number)));
    });
    m_bench->selection.select(u"PERSON/V100"_s);
    QScrollBar *bar = m_panel->view()->verticalScrollBar();
    bar->setValue(bar->value() + 3);
    const int before = bar->value();
    QVERIFY(before > 0);
    m_bench->document.edit(u"adding"_s, [person] { person->addVariables(makeVariable(u"LAST"_s)); });
    QCOMPARE(bar->value(), before);
    m_bench->document.undoStack()->undo();
    QCOMPARE(bar->value(), before);
    // Another entity starts at its beginning.
    m_bench->selection.select(u"DEATH"_s);
    m_bench->selection.select(u"PERSON/SEX"_s);
    QCOMPARE(bar->value(), 0);
}

void TestVariableTablePanel::alwaysHasACurrentIndex()
{
    QVERIFY(m_panel->view()->currentIndex().isValid());
    m_bench->selection.select(u"DEATH"_s);
    m_bench->selection.select(u"PERSON"_s);
    QVERIFY(m_panel->view()->currentIndex().isValid());
    m_bench->document.edit(u"nothing"_s, [] {});
    QVERIFY(m_panel->view()->currentIndex().isValid());
}

QStringList TestVariableTablePanel::selected() const
{
    QStringList names;
    const QModelIndexList rows = m_panel->view()->selectionModel()->selectedRows();
    for (const QModelIndex &row : rows)
        names.append(row.data().toString());
    return names;
}

void TestVariableTablePanel::showsWhatSomebodyLeadsToThoughAFilterHidesIt()
{
    m_panel->filterField()->setText(u"age"_s);
    QCOMPARE(shown(), QStringList({u"AGE"_s, u"WAGE"_s}));
    // What is shown anyway leaves the filter alone.
    m_bench->selection.select(u"PERSON/WAGE"_s);
    QCOMPARE(m_panel->filterField()->text(), u"age"_s);
    QCOMPARE(selected(), QStringList({u"WAGE"_s}));
    m_bench->selection.select(u"PERSON/SEX"_s);
    QCOMPARE(m_panel->filterField()->text(), QString());
    QCOMPARE(selected(), QStringList({u"SEX"_s}));
    QCOMPARE(m_panel->view()->currentIndex().data().toString(), u"SEX"_s);
    QCOMPARE(m_bench->selection.variable()->getName(), u"SEX"_s);
    // So does a hit in another entity, and one among several.
    m_bench->selection.select(u"DEATH"_s);
    m_panel->filterField()->setText(u"age"_s);
    m_bench->selection.select(u"PERSON/SEX"_s);
    QCOMPARE(selected(), QStringList({u"SEX"_s}));
    m_panel->filterField()->setText(u"age"_s);
    m_bench->selection.setVariables({m_bench->variable(u"SEX"_s), m_bench->variable(u"AGE"_s)},
                                    m_bench->variable(u"AGE"_s));
    QCOMPARE(selected(), QStringList({u"SEX"_s, u"AGE"_s}));
    QCOMPARE(m_panel->view()->currentIndex().data().toString(), u"AGE"_s);
}

void TestVariableTablePanel::keepsTheFilterForAnotherEntity()
{
    m_panel->filterField()->setText(u"age"_s);
    m_bench->selection.select(u"DEATH"_s);
    m_bench->selection.select(u"PERSON"_s);
    QCOMPARE(m_panel->filterField()->text(), u"age"_s);
    QCOMPARE(selected(), QStringList({u"AGE"_s}));
    QCOMPARE(m_bench->selection.variable()->getName(), u"AGE"_s);
    QCOMPARE(m_bench->selection.variables().size(), 1);
}

void TestVariableTablePanel::goesOnWithWhatTheFilterShows()
{
    m_panel->filterField()->setText(u"age"_s);
    QAction *remove = m_bench->actions[ActionId::VariableRemove];
    m_bench->selection.select(u"PERSON/WAGE"_s);
    remove->trigger();
    QCOMPARE(shown(), QStringList({u"AGE"_s}));
    QCOMPARE(m_bench->selection.variable()->getName(), u"AGE"_s);
    remove->trigger();
    // SEX is there, but nobody sees it.
    QCOMPARE(m_bench->variables(), QStringList({u"SEX"_s}));
    QVERIFY(!m_bench->selection.variable());
    QVERIFY(!remove->isEnabled());
    m_bench->document.undoStack()->undo();
    QCOMPARE(m_panel->filterField()->text(), u"age"_s);
    QCOMPARE(selected(), QStringList({u"AGE"_s}));
    QCOMPARE(m_bench->selection.variable()->getName(), u"AGE"_s);
    QVERIFY(m_panel->view()->currentIndex().isValid());
}

void TestVariableTablePanel::goesOnWhenAnEditTakesTheVariableOutOfTheFilter_data()
{
    QTest::addColumn<bool>("inPlace");
    QTest::addRow("in the table") << true;
    QTest::addRow("elsewhere") << false;
}

void TestVariableTablePanel::goesOnWhenAnEditTakesTheVariableOutOfTheFilter()
{
    QFETCH(const bool, inPlace);
    QTableView *view = m_panel->view();
    const auto *count = m_panel->findChild<QLabel *>();
    m_panel->filterField()->setText(u"age"_s);
    m_bench->selection.select(u"PERSON/AGE"_s);
    TDcVariable *age = m_bench->selection.variable();
    age->setLabel(QString());
    m_bench->document.commit();
    if (inPlace) {
        QVERIFY(view->model()->setData(view->currentIndex().siblingAtColumn(0), u"BIRTH"_s));
    } else {
        age->setName(u"BIRTH"_s);
        m_bench->document.commit();
    }
    QCOMPARE(shown(), QStringList({u"WAGE"_s}));
    QCOMPARE(selected(), QStringList({u"WAGE"_s}));
    QVERIFY(m_bench->selection.variable());
    QCOMPARE(m_bench->selection.variable()->getName(), u"WAGE"_s);
    QVERIFY(m_bench->actions[ActionId::VariableRemove]->isEnabled());
    QCOMPARE(count->text(), u"Variables: 1 of 3"_s);
    m_bench->document.undoStack()->undo();
    QCOMPARE(shown(), QStringList({u"AGE"_s, u"WAGE"_s}));
    QCOMPARE(count->text(), u"Variables: 2 of 3"_s);
    m_bench->document.undoStack()->redo();
    QCOMPARE(count->text(), u"Variables: 1 of 3"_s);
}

void TestVariableTablePanel::leavesNothingSelectedWithoutAFilter()
{
    m_panel->view()->sortByColumn(0, Qt::AscendingOrder);
    m_panel->view()->clearSelection();
    m_bench->entity(u"DEATH"_s)->setLabel(u"Deaths"_s);
    m_bench->document.commit();
    QCOMPARE(selected(), QStringList());
    QVERIFY(!m_bench->selection.variable());
}

void TestVariableTablePanel::takesWhatAFilterLeavesAtOnce()
{
    // It takes rows away in as many steps as there are gaps. With very many, the window would freeze if each
    // of them were followed.
    TDcEntity *person = m_bench->selection.entity();
    m_bench->document.edit(u"filling"_s, [person] {
        for (int number = 0; number < 300; ++number)
            person->addVariables(makeVariable((number % 2 == 0 ? u"EVEN%1"_s : u"ODD%1"_s).arg(number)));
    });
    m_panel->view()->selectAll();
    const QList<TDcVariable *> all = m_bench->selection.variables();
    QCOMPARE(all.size(), 303);
    const QSignalSpy followed(&m_bench->selection, &Selection::variablesChanged);
    m_panel->filterField()->setText(u"even"_s);
    QCOMPARE(followed.count(), 1);
    QCOMPARE(m_bench->selection.variables().size(), 150);
    QCOMPARE(selected().size(), 150);

    for (int number = 3; number < 303; ++number) {
        if (number % 4 == 3)
            all.at(number)->setName(u"N%1"_s.arg(number));
    }
    m_bench->document.commit();
    QCOMPARE(followed.count(), 2);
    QCOMPARE(m_bench->selection.variables().size(), 75);
    m_bench->document.undoStack()->undo();
    QCOMPARE(m_panel->findChild<QLabel *>()->text(), u"Variables: 150 of 303"_s);
    m_bench->document.undoStack()->redo();
    QCOMPARE(m_bench->selection.variables().size(), 75);
    QVERIFY(followed.count() < 10);
}

void TestVariableTablePanel::filtersAsQuicklyWhateverIsSelected()
{
    TDcEntity *person = m_bench->selection.entity();
    m_bench->document.edit(u"filling"_s, [person] {
        for (int number = 0; number < 2000; ++number)
            person->addVariables(makeVariable((number % 2 == 0 ? u"EVEN%1"_s : u"ODD%1"_s).arg(number)));
    });
    const auto filter = [this](int all) {
        m_panel->filterField()->clear();
        if (all)
            m_panel->view()->selectAll();
        else
            m_panel->view()->selectRow(0);
        m_panel->filterField()->setText(u"even"_s);
    };
    // 30 when rows go while they are selected, hundreds when each gap is followed.
    QVERIFY(growth(filter, false, true) < 8);
}

void TestVariableTablePanel::readsTheNumberOfVariablesAloud()
{
    auto *count = m_panel->findChild<QLabel *>();
    QCOMPARE(QAccessible::queryAccessibleInterface(count)->text(QAccessible::Name), u"Variables: 3"_s);
}

void TestVariableTablePanel::doesNotMoveWhileFiltered()
{
    m_bench->selection.select(u"PERSON/WAGE"_s);
    QAction *up = m_bench->actions[ActionId::VariableMoveUp];
    QVERIFY(up->isEnabled());
    m_panel->filterField()->setText(u"monthly"_s);
    QVERIFY(!up->isEnabled());
    QVERIFY(!m_bench->actions[ActionId::VariableMoveDown]->isEnabled());
    m_panel->filterField()->setText(u" "_s);
    QVERIFY(up->isEnabled());
}

void TestVariableTablePanel::selectsNeighboursAsOneRange()
{
    TDcEntity *person = m_bench->selection.entity();
    m_bench->document.edit(u"filling"_s, [person] {
        for (int number = 0; number < 20; ++number)
            person->addVariables(makeVariable(u"V%1"_s.arg(number + 10)));
    });
    QList<TDcVariable *> variables = *person->getVariables();
    variables.removeAt(4);
    m_bench->selection.setVariables(variables, variables.last());
    const QItemSelectionModel *model = m_panel->view()->selectionModel();
    QCOMPARE(model->selection().size(), 2);
    QCOMPARE(model->selectedRows().size(), 22);
    QVERIFY(!model->isRowSelected(4));
    QCOMPARE(model->currentIndex().data().toString(), u"V29"_s);
}

void TestVariableTablePanel::staysWhereItIsWhenAnImportIsRefused()
{
    OwnedList<TDcSourceField> fields;
    fields.append(std::make_unique<TDcSourceField>());
    fields.get()->first()->name = u"WAGE"_s;
    fields.get()->first()->label = u"Monthly wage"_s;
    const DatasetPropertiesFieldsModel source(nullptr, fields.get(), u"*"_s);
    const std::unique_ptr<QMimeData> payload(source.mimeData({source.index(0, 0)}));
    m_bench->selection.select(u"PERSON/AGE"_s);
    const MessageBoxAnswer box({u"Cancel"_s});
    m_panel->importFields(payload.get());
    QCOMPARE(box.shown().size(), 1);
    QCOMPARE(m_bench->document.undoStack()->count(), 0);
    QCOMPARE(m_bench->selection.variable()->getName(), u"AGE"_s);
    QCOMPARE(selected(), QStringList({u"AGE"_s}));
    QCOMPARE(m_panel->view()->currentIndex().data().toString(), u"AGE"_s);
}

QTEST_MAIN(TestVariableTablePanel)
#include "tst_variabletablepanel.moc"
