#include "model/ValueLabelElement.h"
#include "tests/workbench/Bench.h"
#include "tests/workbench/IsolatedSettings.h"
#include "workbench/panels/EmptyText.h"
#include "workbench/panels/ValueLabelsPanel.h"

#include <QLineEdit>
#include <QTableView>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestValueLabelsPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void showsTheLabelsOfTheVariable();
    void saysInWordsThatThereAreNone();
    void addsTheNextCodeAndLetsItBeTyped_data();
    void addsTheNextCodeAndLetsItBeTyped();
    void addsByKey();
    void editsACellInOneStep();
    void removesSeveralByKey();
    void leavesDeleteToAnEditor();
    void movesSeveral();
    void doesNotMoveWhileSorted();
    void undoesAndRedoes_data();
    void undoesAndRedoes();
    void keepsTheRowWhenRowsGo();
    void isOffWithoutAVariable();
    void selectsWhatItIsTold();
    void keepsColumnWidths();

private:
    [[nodiscard]] QStringList shown() const;
    [[nodiscard]] QStringList held() const;
    [[nodiscard]] QAction *action(ActionId id) const { return m_bench->actions[id]; }
    void selectRows(const QList<int> &rows);
    QLineEdit *edit(int row, int column);

    IsolatedSettings m_settings;
    std::unique_ptr<Bench> m_bench;
    std::unique_ptr<ValueLabelsPanel> m_panel;
};

void TestValueLabelsPanel::init()
{
    m_bench = std::make_unique<Bench>();
    m_bench->selection.select(u"PERSON/SEX"_s);
    for (const QString &row : {u"1 Male"_s, u"2 Female"_s, u"9 Unknown"_s}) {
        auto *element = new ValueLabelElement;
        element->setValue(row.section(u' ', 0, 0));
        element->setLabel(row.section(u' ', 1));
        m_bench->variable(u"SEX"_s)->addValueLabelElement(element);
    }
    m_bench->document.commit();
    m_bench->document.undoStack()->clear();
    m_panel = std::make_unique<ValueLabelsPanel>(m_bench->workspace());
    m_panel->resize(400, 300);
    m_panel->show();
    m_panel->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
    m_panel->view()->setFocus();
}

void TestValueLabelsPanel::cleanup()
{
    m_panel->close(); // And with it an open editor.
    m_panel.reset();
    m_bench.reset();
}

QStringList TestValueLabelsPanel::shown() const
{
    QStringList rows;
    const QAbstractItemModel *model = m_panel->view()->model();
    for (int row = 0; row < model->rowCount(); ++row)
        rows.append(model->index(row, 0).data().toString() + u' ' + model->index(row, 1).data().toString());
    return rows;
}

QStringList TestValueLabelsPanel::held() const
{
    QStringList rows;
    for (const ValueLabelElement *element :
         std::as_const(*m_bench->variable(u"SEX"_s)->getValueLabelElementList()))
        rows.append(element->getValue() + u' ' + element->getLabel());
    return rows;
}

void TestValueLabelsPanel::selectRows(const QList<int> &rows)
{
    m_panel->view()->clearSelection();
    for (int row : rows)
        m_panel->view()->selectionModel()->select(m_panel->view()->model()->index(row, 0),
                                                  QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

QLineEdit *TestValueLabelsPanel::edit(int row, int column)
{
    QTableView *view = m_panel->view();
    view->setCurrentIndex(view->model()->index(row, column));
    QTest::keyClick(view, Qt::Key_F2);
    return view->findChild<QLineEdit *>();
}

void TestValueLabelsPanel::showsTheLabelsOfTheVariable()
{
    QCOMPARE(shown(), QStringList({u"1 Male"_s, u"2 Female"_s, u"9 Unknown"_s}));
    QCOMPARE(m_panel->view()->currentIndex().row(), 0);
    m_bench->selection.select(u"PERSON/AGE"_s);
    QCOMPARE(shown(), QStringList());
    m_bench->selection.select(u"PERSON/SEX"_s);
    QCOMPARE(shown().size(), 3);
    QVERIFY(m_panel->view()->currentIndex().isValid());
}

void TestValueLabelsPanel::saysInWordsThatThereAreNone()
{
    m_bench->selection.select(u"PERSON/AGE"_s);
    QCOMPARE(static_cast<EmptyText<QTableView> *>(m_panel->view())->emptyText(), u"No value labels."_s);
}

void TestValueLabelsPanel::addsTheNextCodeAndLetsItBeTyped_data()
{
    QTest::addColumn<QStringList>("codes");
    QTest::addColumn<QString>("next");
    QTest::addRow("none") << QStringList() << u"1"_s;
    QTest::addRow("after the highest") << QStringList({u"7"_s, u"3"_s}) << u"8"_s;
    QTest::addRow("words") << QStringList({u"A"_s, u""_s}) << u"1"_s;
    QTest::addRow("negative") << QStringList({u"-5"_s}) << u"1"_s;
    QTest::addRow("blanks around it") << QStringList({u" 4 "_s}) << u"5"_s;
    QTest::addRow("the largest there is") << QStringList({u"9223372036854775807"_s, u"12"_s}) << u"13"_s;
    QTest::addRow("nothing but the largest") << QStringList({u"9223372036854775807"_s}) << u"1"_s;
}

void TestValueLabelsPanel::addsTheNextCodeAndLetsItBeTyped()
{
    QFETCH(const QStringList, codes);
    QFETCH(const QString, next);
    TDcVariable *age = m_bench->variable(u"AGE"_s);
    for (const QString &code : codes) {
        age->addValueLabelElement(new ValueLabelElement);
        age->getValueLabelElementList()->last()->setValue(code);
    }
    m_bench->document.commit();
    m_bench->selection.select(u"PERSON/AGE"_s);
    const int before = m_bench->document.undoStack()->count();
    action(ActionId::LabelAdd)->trigger();
    QCOMPARE(age->getValueLabelElementList()->last()->getValue(), next);
    QCOMPARE(m_bench->document.undoStack()->count(), before + 1);
    QCOMPARE(m_bench->undoText(), u"adding a value label to AGE"_s);
    QCOMPARE(m_panel->view()->currentIndex().row(), codes.size());
    auto *editor = m_panel->view()->findChild<QLineEdit *>();
    QVERIFY(editor);
    QTest::keyClick(editor, Qt::Key_Escape);
    QCOMPARE(age->getValueLabelElementList()->last()->getValue(), next);
}

void TestValueLabelsPanel::addsByKey()
{
    QTest::keyClick(m_panel->view(), Qt::Key_Insert);
    auto *editor = m_panel->view()->findChild<QLineEdit *>();
    QVERIFY(editor);
    editor->selectAll();
    QTest::keyClicks(editor, u"11"_s);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(held().last(), u"11 "_s);
}

void TestValueLabelsPanel::editsACellInOneStep()
{
    QLineEdit *editor = edit(1, 1);
    QVERIFY(editor);
    QTest::keyClicks(editor, u"Woman"_s);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(held().at(1), u"2 Woman"_s);
    QCOMPARE(m_bench->document.undoStack()->count(), 1);
    QCOMPARE(m_panel->view()->currentIndex().row(), 1);
    m_bench->document.undoStack()->undo();
    QCOMPARE(shown().at(1), u"2 Female"_s);
}

void TestValueLabelsPanel::removesSeveralByKey()
{
    selectRows({0, 2});
    QTest::keyClick(m_panel->view(), Qt::Key_Delete);
    QCOMPARE(held(), QStringList({u"2 Female"_s}));
    QCOMPARE(shown(), held());
    QCOMPARE(m_bench->document.undoStack()->count(), 1);
    QCOMPARE(m_bench->undoText(), u"removing value labels of SEX"_s);
}

void TestValueLabelsPanel::leavesDeleteToAnEditor()
{
    QLineEdit *editor = edit(0, 1);
    QVERIFY(editor);
    editor->setCursorPosition(0);
    QTest::keyClick(editor, Qt::Key_Delete);
    QCOMPARE(editor->text(), u"ale"_s);
    QTest::keyClick(editor, Qt::Key_Insert);
    QCOMPARE(held().size(), 3);
}

void TestValueLabelsPanel::movesSeveral()
{
    selectRows({0, 1});
    QVERIFY(!action(ActionId::LabelMoveUp)->isEnabled());
    action(ActionId::LabelMoveDown)->trigger();
    QCOMPARE(shown(), QStringList({u"9 Unknown"_s, u"1 Male"_s, u"2 Female"_s}));
    QCOMPARE(m_panel->view()->selectionModel()->selectedRows().size(), 2);
    QVERIFY(!action(ActionId::LabelMoveDown)->isEnabled());
    action(ActionId::LabelMoveUp)->trigger();
    QCOMPARE(shown(), QStringList({u"1 Male"_s, u"2 Female"_s, u"9 Unknown"_s}));
}

void TestValueLabelsPanel::doesNotMoveWhileSorted()
{
    QVERIFY(action(ActionId::LabelMoveDown)->isEnabled());
    m_panel->view()->sortByColumn(0, Qt::DescendingOrder);
    QCOMPARE(shown(), QStringList({u"9 Unknown"_s, u"2 Female"_s, u"1 Male"_s}));
    selectRows({2});
    QVERIFY(!action(ActionId::LabelMoveUp)->isEnabled());
    QVERIFY(!action(ActionId::LabelMoveDown)->isEnabled());
    // What is selected is removed all the same, not what stands there unsorted.
    action(ActionId::LabelRemove)->trigger();
    QCOMPARE(held(), QStringList({u"2 Female"_s, u"9 Unknown"_s}));
    m_panel->view()->sortByColumn(-1, Qt::AscendingOrder);
    selectRows({0});
    QVERIFY(action(ActionId::LabelMoveDown)->isEnabled());
}

void TestValueLabelsPanel::undoesAndRedoes_data()
{
    QTest::addColumn<ActionId>("id");
    QTest::addRow("add") << ActionId::LabelAdd;
    QTest::addRow("remove") << ActionId::LabelRemove;
    QTest::addRow("move up") << ActionId::LabelMoveUp;
    QTest::addRow("move down") << ActionId::LabelMoveDown;
}

void TestValueLabelsPanel::undoesAndRedoes()
{
    QFETCH(const ActionId, id);
    const QStringList before = held();
    selectRows({1});
    action(id)->trigger();
    const QStringList after = held();
    QVERIFY(after != before);
    m_bench->document.undoStack()->undo();
    QCOMPARE(held(), before);
    QCOMPARE(shown(), before);
    QVERIFY(m_panel->view()->currentIndex().isValid());
    m_bench->document.undoStack()->redo();
    QCOMPARE(held(), after);
    QCOMPARE(shown(), after);
    QVERIFY(m_panel->view()->currentIndex().isValid());
}

void TestValueLabelsPanel::keepsTheRowWhenRowsGo()
{
    m_panel->view()->selectRow(1);
    action(ActionId::LabelRemove)->trigger();
    QCOMPARE(m_panel->view()->currentIndex().row(), 1);
    action(ActionId::LabelRemove)->trigger();
    QCOMPARE(m_panel->view()->currentIndex().row(), 0);
    action(ActionId::LabelRemove)->trigger();
    QVERIFY(!action(ActionId::LabelRemove)->isEnabled());
    QCOMPARE(held(), QStringList());
}

void TestValueLabelsPanel::isOffWithoutAVariable()
{
    m_bench->selection.select(u"DEATH"_s);
    QCOMPARE(shown(), QStringList());
    for (ActionId id :
         {ActionId::LabelAdd, ActionId::LabelRemove, ActionId::LabelMoveUp, ActionId::LabelMoveDown})
        QVERIFY(!action(id)->isEnabled());
}

void TestValueLabelsPanel::selectsWhatItIsTold()
{
    const QList<ValueLabelElement *> &elements = *m_bench->variable(u"SEX"_s)->getValueLabelElementList();
    m_panel->select({elements.at(1), elements.at(2), this});
    QCOMPARE(m_panel->view()->currentIndex().row(), 1);
    QCOMPARE(m_panel->view()->selectionModel()->selectedRows().size(), 2);
    m_panel->select({this});
    QCOMPARE(m_panel->view()->selectionModel()->selectedRows().size(), 2);
}

void TestValueLabelsPanel::keepsColumnWidths()
{
    m_panel->view()->setColumnWidth(0, 123);
    m_bench->selection.select(u"DEATH"_s);
    m_bench->selection.select(u"PERSON/SEX"_s);
    QCOMPARE(m_panel->view()->columnWidth(0), 123);
}

QTEST_MAIN(TestValueLabelsPanel)
#include "tst_valuelabelspanel.moc"
