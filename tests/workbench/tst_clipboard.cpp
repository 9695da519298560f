#include "tests/support/MessageBoxAnswer.h"
#include "tests/workbench/IsolatedSettings.h"
#include "workbench/MainWindow.h"
#include "workbench/operations/Places.h"
#include "workbench/panels/Inspector.h"
#include "workbench/panels/RangesPanel.h"
#include "workbench/panels/ValueLabelsPanel.h"
#include "workbench/panels/VariableTablePanel.h"

#include "documents/DictionaryCopy.h"
#include "documents/DictionaryEquality.h"
#include "model/MetadataVariables.h"
#include "model/ValueLabelElement.h"
#include "tests/support/Trees.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTableView>
#include <QTest>
#include <QTreeView>

using namespace Qt::Literals::StringLiterals;

class TestClipboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void copiesAsDisplayed();
    void pastesInOneStep();
    void pastesWhatWasCopied();
    void pastesByWayOfAFilter();
    void saysOnceWhatWasRefused();
    void leavesTextToItsEditor();
    void copiesAndPastesLabelsAndRanges();
    void isOffWithoutATable();
    void isOnInTheMenu();

private:
    void press(QWidget *widget, QKeySequence::StandardKey key)
    {
        QTest::keySequence(widget, QKeySequence(key));
    }
    [[nodiscard]] QTableView *table() { return m_window->findChild<VariableTablePanel *>()->view(); }
    [[nodiscard]] TDcVariable *find(const QString &name)
    {
        return Places::findVariable(m_window->document()->root(), name);
    }

    std::unique_ptr<IsolatedSettings> m_settings;
    std::unique_ptr<MainWindow> m_window;
};

void TestClipboard::init()
{
    m_settings = std::make_unique<IsolatedSettings>();
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    Document &document = *m_window->document();
    document.edit(u"adding"_s, [&document] {
        document.root()->setName(u"CENSUS"_s);
        document.root()->addVariables(makeVariable(u"SEX"_s, {}, u"Sex"_s));
        document.root()->addVariables(makeVariable(u"AGE"_s, u"P03"_s, u"Age\nin \"years\""_s));
        document.root()->addVariables(makeVariable(u"WAGE"_s));
    });
    document.undoStack()->clear();
    table()->setFocus();
    QVERIFY(table()->hasFocus());
}

void TestClipboard::cleanup()
{
    m_window.reset();
    m_settings.reset();
}

void TestClipboard::copiesAsDisplayed()
{
    table()->sortByColumn(0, Qt::DescendingOrder);
    table()->horizontalHeader()->moveSection(2, 0);
    table()->setColumnHidden(3, true);
    table()->selectAll();
    press(table(), QKeySequence::Copy);
    const QStringList lines = QApplication::clipboard()->text().split(u'\n');
    QVERIFY2(lines.at(0).startsWith(
                 u"Label\tName\tAlias\tTag\tGroup\tType\tSize\tDecimals\tMissing-value code\t"_s),
             qPrintable(lines.at(0)));
    QVERIFY(lines.at(1).startsWith(u"\tWAGE\t\t0\t"_s));
    QVERIFY(lines.at(2).startsWith(u"Sex\tSEX\t"_s));
    QCOMPARE(lines.at(3), u"\"Age"_s);
    QVERIFY(lines.at(4).startsWith(u"in \"\"years\"\"\"\tAGE\tP03\t"_s));
    table()->setColumnHidden(3, false);
}

void TestClipboard::pastesInOneStep()
{
    const auto before = DictionaryCopy::copy(*m_window->document()->root());
    QApplication::clipboard()->setText(u"Name\tLabel\tSize\r\nAGE\tYears\t3\r\nNEW\tNew\t4\r\n"_s);
    press(table(), QKeySequence::Paste);
    QCOMPARE(find(u"AGE"_s)->getSize(), 3);
    QCOMPARE(find(u"NEW"_s)->getSize(), 4);
    QCOMPARE(m_window->selection()->variables(), QList<TDcVariable *>({find(u"AGE"_s), find(u"NEW"_s)}));
    QUndoStack *stack = m_window->document()->undoStack();
    QCOMPARE(stack->count(), 1);
    QCOMPARE(stack->undoText(), u"pasting 2 rows"_s);
    const auto after = DictionaryCopy::copy(*m_window->document()->root());
    stack->undo();
    QVERIFY(DictionaryEquality::equal(*m_window->document()->root(), *before));
    stack->redo();
    QVERIFY(DictionaryEquality::equal(*m_window->document()->root(), *after));
}

void TestClipboard::pastesWhatWasCopied()
{
    table()->selectAll();
    press(table(), QKeySequence::Copy);
    press(table(), QKeySequence::Paste);
    QCOMPARE(m_window->document()->undoStack()->count(), 0);
    QVERIFY(!m_window->findChild<QMessageBox *>(u"pasteReport"_s));
}

void TestClipboard::pastesByWayOfAFilter()
{
    m_window->findChild<VariableTablePanel *>()->filterField()->setText(u"age"_s); // AGE and WAGE
    table()->setCurrentIndex(table()->model()->index(0, 2));
    QApplication::clipboard()->setText(u"one\ntwo"_s);
    press(table(), QKeySequence::Paste);
    QCOMPARE(find(u"AGE"_s)->getLabel(), u"one"_s);
    QCOMPARE(find(u"WAGE"_s)->getLabel(), u"two"_s);
    // What the filter hides is found by name nevertheless.
    QApplication::clipboard()->setText(u"Name\tLabel\nSEX\tthree"_s);
    press(table(), QKeySequence::Paste);
    QCOMPARE(find(u"SEX"_s)->getLabel(), u"three"_s);
    QCOMPARE(m_window->document()->root()->getVariables()->size(), 3);
}

void TestClipboard::saysOnceWhatWasRefused()
{
    QString text = u"Name\tLabel\n"_s;
    for (int i = 0; i < 20; ++i)
        text += u"A B\tx\n"_s;
    QApplication::clipboard()->setText(text + u"GOOD\tyes\n"_s);
    press(table(), QKeySequence::Paste);
    const auto boxes = m_window->findChildren<QMessageBox *>();
    QCOMPARE(boxes.size(), 1);
    const QMessageBox *box = boxes.first();
    QCOMPARE(box->objectName(), u"pasteReport"_s);
    QCOMPARE(box->text(), u"Pasted rows: 1. Not everything could be taken over:"_s);
    QCOMPARE(box->informativeText().count(u'\n'), 12);
    QCOMPARE(box->detailedText().count(u'\n'), 19);
    QVERIFY(find(u"GOOD"_s));
    QCOMPARE(m_window->document()->undoStack()->count(), 1);
}

void TestClipboard::leavesTextToItsEditor()
{
    QLineEdit *filter = m_window->findChild<VariableTablePanel *>()->filterField();
    filter->setFocus();
    QApplication::clipboard()->setText(u"AGE"_s);
    press(filter, QKeySequence::Paste);
    QCOMPARE(filter->text(), u"AGE"_s);
    // By the menu too.
    filter->selectAll();
    QApplication::clipboard()->setText(u"SEX"_s);
    (*m_window->actions())[ActionId::EditPaste]->trigger();
    QCOMPARE(filter->text(), u"SEX"_s);
    QCOMPARE(m_window->document()->undoStack()->count(), 0);
}

void TestClipboard::copiesAndPastesLabelsAndRanges()
{
    auto *inspector = m_window->findChild<Inspector *>();
    QTableView *labels = inspector->valueLabels()->view();
    m_window->selection()->select(m_window->document()->root(), find(u"SEX"_s));
    labels->setFocus();
    QApplication::clipboard()->setText(u"Code\tLabel\n1\tMan\n2\tWoman\n"_s);
    press(labels, QKeySequence::Paste);
    QCOMPARE(find(u"SEX"_s)->getValueLabelElementList()->size(), 2);
    QCOMPARE(labels->model()->rowCount(), 2);
    QCOMPARE(m_window->document()->undoStack()->undoText(), u"pasting 2 rows into SEX"_s);
    labels->selectAll();
    press(labels, QKeySequence::Copy);
    QCOMPARE(QApplication::clipboard()->text(), u"Code\tLabel\n1\tMan\n2\tWoman\n"_s);

    QTableView *ranges = inspector->ranges()->view();
    ranges->setFocus();
    QApplication::clipboard()->setText(u"1.5\t2\n"_s);
    press(ranges, QKeySequence::Paste);
    QCOMPARE(find(u"SEX"_s)->getMetadataVariables()->getRange()->size(), 1);
    ranges->selectAll();
    press(ranges, QKeySequence::Copy);
    QCOMPARE(QApplication::clipboard()->text(), u"Minimum\tMaximum\n1.5\t2\n"_s);
    m_window->document()->undoStack()->setIndex(0);
    QVERIFY(find(u"SEX"_s)->getValueLabelElementList()->isEmpty());
}

void TestClipboard::isOffWithoutATable()
{
    const Actions &actions = *m_window->actions();
    QVERIFY(actions[ActionId::EditCopy]->isEnabled());
    m_window->setFocusPolicy(Qt::StrongFocus);
    m_window->setFocus();
    QVERIFY(!actions[ActionId::EditCopy]->isEnabled());
    QVERIFY(!actions[ActionId::EditPaste]->isEnabled());
}

void TestClipboard::isOnInTheMenu()
{
    QApplication::clipboard()->clear();
    table()->selectRow(1);
    const QAction *copy = (*m_window->actions())[ActionId::EditCopy];
    m_window->menuBar()->setFocus(Qt::MenuBarFocusReason);
    QVERIFY(m_window->menuBar()->hasFocus());
    QVERIFY(copy->isEnabled());
    QVERIFY((*m_window->actions())[ActionId::EditPaste]->isEnabled());
    table()->setFocus();
    QTest::keyClick(table(), Qt::Key_E, Qt::AltModifier);
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(menu);
    QTest::keyClick(menu, Qt::Key_C);
    QVERIFY(QApplication::clipboard()->text().contains(u"AGE"_s));
    // The window's other controls have nothing to copy.
    m_window->findChild<QTreeView *>()->setFocus();
    QVERIFY(!copy->isEnabled());
    m_window->menuBar()->setFocus(Qt::MenuBarFocusReason);
    QVERIFY(!copy->isEnabled());
}

QTEST_MAIN(TestClipboard)
#include "tst_clipboard.moc"
