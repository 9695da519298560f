#include "documents/DictionaryCopy.h"
#include "documents/DictionaryEquality.h"
#include "model/ValueLabelElement.h"
#include "tests/support/MessageBoxAnswer.h"
#include "tests/workbench/Bench.h"
#include "tests/workbench/Controls.h"
#include "workbench/dialogs/LabelSetsDialog.h"
#include "workbench/operations/LabelSets.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <QUndoStack>

using namespace Qt::Literals::StringLiterals;

class TestLabelSets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void findsSharedSets();
    void tellsSetsApart_data();
    void tellsSetsApart();
    void ordersByHowManyHaveThem();
    void describesASet();
    void changesAllMembers();
    void editsOnceInOneStep();
    void addsMovesAndRemoves();
    void typesIntoTheAddedLabel();
    void editsTheCurrentLabelByKey_data();
    void editsTheCurrentLabelByKey();
    void takesEditsBack();
    void entersWhatIsBeingTyped_data();
    void entersWhatIsBeingTyped();
    void staysOnTheSet();
    void asksBeforeEditsAreLost_data();
    void asksBeforeEditsAreLost();
    void asksNothingWithoutEdits();
    void saysWhyTheSetsAreOff();
    void listsTheMembersOfALargeSet();
    void saysWhenThereIsNone();

private:
    void setLabels(const QString &name, const QString &labels);
    [[nodiscard]] QString labels(const QString &name);
    [[nodiscard]] QList<LabelSets::Set> shared() { return LabelSets::shared(m_bench->document.root()); }
    [[nodiscard]] static QPushButton *button(const QDialog &dialog, const QString &text)
    {
        return Controls::button<QPushButton>(&dialog, text);
    }

    std::unique_ptr<Bench> m_bench;
};

void TestLabelSets::init()
{
    m_bench = std::make_unique<Bench>();
    m_bench->selection.select(u"PERSON"_s);
}

/// \a labels as in "1=Yes 2=No"; a dot stands for a blank.
void TestLabelSets::setLabels(const QString &name, const QString &labels)
{
    auto *elements = new QList<ValueLabelElement *>;
    for (const QString &label : labels.split(u' ', Qt::SkipEmptyParts)) {
        elements->append(new ValueLabelElement);
        elements->last()->setValue(label.section(u'=', 0, 0));
        elements->last()->setLabel(label.section(u'=', 1).replace(u'.', u' '));
    }
    m_bench->variable(name)->setValueLabelElementList(elements);
    m_bench->document.commit();
    m_bench->document.undoStack()->clear();
}

QString TestLabelSets::labels(const QString &name)
{
    QStringList words;
    for (const ValueLabelElement *element :
         std::as_const(*m_bench->variable(name)->getValueLabelElementList()))
        words.append(element->getValue() + u'=' + element->getLabel());
    return words.join(u' ');
}

void TestLabelSets::findsSharedSets()
{
    QVERIFY(shared().isEmpty()); // No labels are no set, whoever has none.
    setLabels(u"SEX"_s, u"1=Yes 2=No"_s);
    QVERIFY(shared().isEmpty());
    setLabels(u"WAGE"_s, u"1=Yes 2=No"_s);
    // All over the tree.
    m_bench->entity(u"DEATH"_s)->addVariables(DictionaryCopy::copy(*m_bench->variable(u"SEX"_s)).release());
    const QList<LabelSets::Set> sets = shared();
    QCOMPARE(sets.size(), 1);
    QCOMPARE(sets.first().members.size(), 3);
    QCOMPARE(sets.first().members.at(1).variable, m_bench->variable(u"WAGE"_s));
    QCOMPARE(sets.first().members.at(2).entity, m_bench->entity(u"DEATH"_s));
}

void TestLabelSets::tellsSetsApart_data()
{
    QTest::addColumn<QString>("other");
    QTest::addRow("another order") << u"2=No 1=Yes"_s;
    QTest::addRow("another case") << u"1=yes 2=No"_s;
    QTest::addRow("a blank") << u"1=Yes. 2=No"_s;
    QTest::addRow("another code") << u"01=Yes 2=No"_s;
    QTest::addRow("one more") << u"1=Yes 2=No 3=Other"_s;
    QTest::addRow("one less") << u"1=Yes"_s;
}

void TestLabelSets::tellsSetsApart()
{
    QFETCH(const QString, other);
    setLabels(u"SEX"_s, u"1=Yes 2=No"_s);
    setLabels(u"AGE"_s, other);
    QVERIFY(shared().isEmpty());
}

void TestLabelSets::ordersByHowManyHaveThem()
{
    TDcEntity *person = m_bench->entity(u"PERSON"_s);
    setLabels(u"SEX"_s, u"1=A"_s);
    setLabels(u"AGE"_s, u"1=B"_s);
    person->addVariables(DictionaryCopy::copy(*m_bench->variable(u"SEX"_s)).release());
    for (int i = 0; i < 2; ++i)
        person->addVariables(DictionaryCopy::copy(*m_bench->variable(u"AGE"_s)).release());
    const QList<LabelSets::Set> sets = shared();
    QCOMPARE(sets.size(), 2);
    QCOMPARE(sets.at(0).text(), u"1 B"_s);
    QCOMPARE(sets.at(1).text(), u"1 A"_s);
}

void TestLabelSets::describesASet()
{
    setLabels(u"SEX"_s, u"1=A 2=B 3=C 4=D 5=E"_s);
    setLabels(u"AGE"_s, u"1=A 2=B 3=C 4=D 5=E"_s);
    QCOMPARE(shared().first().text(), u"1 A, 2 B, 3 C, 4 D, …"_s);
}

void TestLabelSets::changesAllMembers()
{
    setLabels(u"SEX"_s, u"1=A 2=B 3=C"_s);
    setLabels(u"AGE"_s, u"1=A 2=B 3=C"_s);
    const ValueLabelElement *third = m_bench->variable(u"AGE"_s)->getValueLabelElementList()->at(2);
    LabelSets::change(shared().first(),
                      {{{u"3"_s, u"See"_s}, 2}, {{u"9"_s, u"New"_s}, -1}, {{u"1"_s, u"A"_s}, 0}});
    QCOMPARE(labels(u"SEX"_s), u"3=See 9=New 1=A"_s);
    QCOMPARE(labels(u"AGE"_s), u"3=See 9=New 1=A"_s);
    QCOMPARE(m_bench->variable(u"AGE"_s)->getValueLabelElementList()->first(), third);
}

void TestLabelSets::editsOnceInOneStep()
{
    setLabels(u"SEX"_s, u"1=Yes 2=No"_s);
    setLabels(u"AGE"_s, u"1=Yes 2=No"_s);
    const auto before = DictionaryCopy::copy(*m_bench->document.root());
    const LabelSetsDialog dialog(m_bench->workspace());
    QCOMPARE(dialog.findChild<QPlainTextEdit *>(u"labelSetMembers"_s)->toPlainText(),
             u"PERSON/SEX\nPERSON/AGE"_s);
    QPushButton *apply = button(dialog, u"Change in 2 Variables"_s);
    QVERIFY(!apply->isEnabled());
    QAbstractItemModel *model = dialog.findChild<QTableView *>()->model();
    QVERIFY(model->setData(model->index(1, 1), u"Not at all"_s));
    QVERIFY(apply->isEnabled());
    QVERIFY(!dialog.findChild<QListWidget *>()->isEnabled());
    QCOMPARE(labels(u"SEX"_s), u"1=Yes 2=No"_s);
    apply->click();
    QCOMPARE(labels(u"SEX"_s), u"1=Yes 2=Not at all"_s);
    QCOMPARE(labels(u"AGE"_s), u"1=Yes 2=Not at all"_s);
    QVERIFY(dialog.findChild<QListWidget *>()->isEnabled());
    QCOMPARE(dialog.findChild<QListWidget *>()->item(0)->text(), u"2 variables: 1 Yes, 2 Not at all"_s);
    QUndoStack *stack = m_bench->document.undoStack();
    QCOMPARE(stack->count(), 1);
    QCOMPARE(stack->undoText(), u"value labels of 2 variables"_s);
    stack->undo();
    QVERIFY(DictionaryEquality::equal(*m_bench->document.root(), *before));
}

void TestLabelSets::addsMovesAndRemoves()
{
    setLabels(u"SEX"_s, u"1=A 2=B 3=C"_s);
    setLabels(u"AGE"_s, u"1=A 2=B 3=C"_s);
    LabelSetsDialog dialog(m_bench->workspace());
    dialog.show();
    auto *view = dialog.findChild<QTableView *>();
    view->setCurrentIndex(view->model()->index(1, 0));
    button(dialog, u"Remove"_s)->click();
    QCOMPARE(view->currentIndex().row(), 1);
    button(dialog, u"Move Up"_s)->click();
    QVERIFY(!button(dialog, u"Move Up"_s)->isEnabled());
    button(dialog, u"Add"_s)->click();
    button(dialog, u"Change in 2 Variables"_s)->click();
    QCOMPARE(labels(u"SEX"_s), u"3=C 1=A 4="_s);
    QCOMPARE(labels(u"AGE"_s), u"3=C 1=A 4="_s);
}

void TestLabelSets::typesIntoTheAddedLabel()
{
    setLabels(u"SEX"_s, u"1=A 2=B"_s);
    setLabels(u"AGE"_s, u"1=A 2=B"_s);
    LabelSetsDialog dialog(m_bench->workspace());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    const auto *view = dialog.findChild<QTableView *>();
    button(dialog, u"Add"_s)->click();
    auto *editor = view->findChild<QLineEdit *>();
    QVERIFY(editor);
    QCOMPARE(view->currentIndex().model(), view->model());
    QVERIFY(view->viewport()->rect().contains(view->visualRect(view->currentIndex())));
    QTest::keyClicks(editor, u"7"_s);
    button(dialog, u"Change in 2 Variables"_s)->click();
    QCOMPARE(labels(u"AGE"_s), u"1=A 2=B 7="_s);
}

void TestLabelSets::editsTheCurrentLabelByKey_data()
{
    QTest::addColumn<QString>("pressed");
    QTest::addRow("opened") << QString();
    for (const QString &text :
         {u"Remove"_s, u"Move Up"_s, u"Move Down"_s, u"Reset"_s, u"Change in 2 Variables"_s})
        QTest::addRow("%s", qPrintable(text)) << text;
}

void TestLabelSets::editsTheCurrentLabelByKey()
{
    QFETCH(const QString, pressed);
    setLabels(u"SEX"_s, u"1=A 2=B 3=C"_s);
    setLabels(u"AGE"_s, u"1=A 2=B 3=C"_s);
    LabelSetsDialog dialog(m_bench->workspace());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto *view = dialog.findChild<QTableView *>();
    if (!pressed.isEmpty()) {
        QVERIFY(view->model()->setData(view->model()->index(0, 1), u"One"_s));
        view->setCurrentIndex(view->model()->index(1, 0));
        button(dialog, pressed)->click();
    }
    view->setFocus();
    QTest::keyClick(view, Qt::Key_F2);
    QVERIFY(view->findChild<QLineEdit *>());
}

void TestLabelSets::takesEditsBack()
{
    setLabels(u"SEX"_s, u"1=Yes 2=No"_s);
    setLabels(u"AGE"_s, u"1=Yes 2=No"_s);
    const LabelSetsDialog dialog(m_bench->workspace());
    const auto *view = dialog.findChild<QTableView *>();
    QPushButton *takeBack = button(dialog, u"Reset"_s);
    QVERIFY(!takeBack->isEnabled());
    QVERIFY(view->model()->setData(view->model()->index(0, 0), u"7"_s));
    takeBack->click();
    QCOMPARE(view->model()->index(0, 0).data().toString(), u"1"_s);
    QVERIFY(!takeBack->isEnabled());
    QVERIFY(dialog.findChild<QListWidget *>()->isEnabled());
    QCOMPARE(m_bench->document.undoStack()->count(), 0);
}

void TestLabelSets::entersWhatIsBeingTyped_data()
{
    QTest::addColumn<QString>("pressed");
    QTest::addColumn<QString>("labels");
    QTest::addRow("change") << u"Change in 2 Variables"_s << u"1=One 2=Two"_s;
    QTest::addRow("add") << u"Add"_s << u"1=One 2=Two 3="_s;
    QTest::addRow("remove") << u"Remove"_s << u"1=One"_s;
    QTest::addRow("move") << u"Move Up"_s << u"2=Two 1=One"_s;
    QTest::addRow("reset") << u"Reset"_s << u"1=A 2=B"_s;
}

/// An editor is open while a button is pressed by its mnemonic, which leaves the focus where it is.
void TestLabelSets::entersWhatIsBeingTyped()
{
    QFETCH(const QString, pressed);
    QFETCH(const QString, labels);
    setLabels(u"SEX"_s, u"1=A 2=B"_s);
    setLabels(u"AGE"_s, u"1=A 2=B"_s);
    LabelSetsDialog dialog(m_bench->workspace());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto *view = dialog.findChild<QTableView *>();
    QVERIFY(view->model()->setData(view->model()->index(0, 1), u"One"_s));
    view->setCurrentIndex(view->model()->index(1, 1));
    view->setFocus();
    QTest::keyClick(view, Qt::Key_F2);
    auto *editor = view->findChild<QLineEdit *>();
    QVERIFY(editor);
    editor->selectAll();
    QTest::keyClicks(editor, u"Two"_s);
    button(dialog, pressed)->click();
    QStringList shown;
    for (int row = 0; row < view->model()->rowCount(); ++row)
        shown.append(view->model()->index(row, 0).data().toString() + u'='
                     + view->model()->index(row, 1).data().toString());
    QCOMPARE(shown.join(u' '), labels);
    if (button(dialog, u"Change in 2 Variables"_s)->isEnabled())
        button(dialog, u"Change in 2 Variables"_s)->click();
    QCOMPARE(this->labels(u"AGE"_s), labels);
}

void TestLabelSets::staysOnTheSet()
{
    TDcEntity *person = m_bench->entity(u"PERSON"_s);
    setLabels(u"SEX"_s, u"1=A"_s);
    setLabels(u"AGE"_s, u"1=B 2=C"_s);
    setLabels(u"WAGE"_s, u"1=B 2=C"_s);
    for (int i = 0; i < 2; ++i)
        person->addVariables(DictionaryCopy::copy(*m_bench->variable(u"SEX"_s)).release());
    LabelSetsDialog dialog(m_bench->workspace());
    auto *list = dialog.findChild<QListWidget *>();
    list->setCurrentRow(1);
    const auto write = [&dialog](int row, const QString &label) {
        QAbstractItemModel *model = dialog.findChild<QTableView *>()->model();
        return model->setData(model->index(row, 1), label);
    };
    QVERIFY(write(1, u"D"_s));
    button(dialog, u"Change in 2 Variables"_s)->click();
    QCOMPARE(list->currentItem()->text(), u"2 variables: 1 B, 2 D"_s);
    // Where it becomes one with another, that one is shown.
    dialog.findChild<QTableView *>()->selectRow(1);
    button(dialog, u"Remove"_s)->click();
    QVERIFY(write(0, u"A"_s));
    button(dialog, u"Change in 2 Variables"_s)->click();
    QCOMPARE(list->count(), 1);
    QCOMPARE(list->currentItem()->text(), u"5 variables: 1 A"_s);
    // Without labels it is none.
    dialog.findChild<QTableView *>()->selectRow(0);
    button(dialog, u"Remove"_s)->click();
    button(dialog, u"Change in 5 Variables"_s)->click();
    QCOMPARE(list->count(), 0);
}

void TestLabelSets::asksBeforeEditsAreLost_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("closed");
    QTest::addColumn<QString>("labels");
    QTest::addRow("apply") << u"Apply"_s << true << u"1=Yes 2=Never"_s;
    QTest::addRow("discard") << u"Discard"_s << true << u"1=Yes 2=No"_s;
    QTest::addRow("cancel") << u"Cancel"_s << false << u"1=Yes 2=No"_s;
    QTest::addRow("escape") << QString() << false << u"1=Yes 2=No"_s;
}

void TestLabelSets::asksBeforeEditsAreLost()
{
    QFETCH(const QString, answer);
    QFETCH(const bool, closed);
    setLabels(u"SEX"_s, u"1=Yes 2=No"_s);
    setLabels(u"AGE"_s, u"1=Yes 2=No"_s);
    LabelSetsDialog dialog(m_bench->workspace());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto *view = dialog.findChild<QTableView *>();
    view->setCurrentIndex(view->model()->index(1, 1));
    view->setFocus();
    QTest::keyClick(view, Qt::Key_F2);
    view->findChild<QLineEdit *>()->setText(u"Never"_s);
    const MessageBoxAnswer boxes({answer});
    dialog.close(); // While the label is still being typed.
    QCOMPARE(boxes.shown().size(), 1);
    QCOMPARE(boxes.shown().first().buttons, QStringList({u"Cancel"_s, u"Discard"_s, u"Apply"_s}));
    QCOMPARE(dialog.isVisible(), !closed);
    QTEST(labels(u"SEX"_s), "labels");
    if (!closed)
        QCOMPARE(view->model()->index(1, 1).data().toString(), u"Never"_s);
}

void TestLabelSets::asksNothingWithoutEdits()
{
    setLabels(u"SEX"_s, u"1=Yes 2=No"_s);
    setLabels(u"AGE"_s, u"1=Yes 2=No"_s);
    const MessageBoxAnswer boxes;
    for (const bool edited : {false, true}) {
        LabelSetsDialog dialog(m_bench->workspace());
        dialog.show();
        const auto *view = dialog.findChild<QTableView *>();
        QVERIFY(!edited || view->model()->setData(view->model()->index(0, 1), u"Yes!"_s));
        if (edited)
            m_bench->document.edit(u"removing"_s, [] {}); // The variables may be gone.
        else
            QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
    }
    QCOMPARE(boxes.shown().size(), 0);
}

void TestLabelSets::saysWhyTheSetsAreOff()
{
    setLabels(u"SEX"_s, u"1=Yes 2=No"_s);
    setLabels(u"AGE"_s, u"1=Yes 2=No"_s);
    const LabelSetsDialog dialog(m_bench->workspace());
    const auto *why = dialog.findChild<QLabel *>(u"labelSetPending"_s);
    QVERIFY(why->isHidden());
    const auto *view = dialog.findChild<QTableView *>();
    QVERIFY(view->model()->setData(view->model()->index(0, 1), u"Yes!"_s));
    QVERIFY(!why->isHidden());
    button(dialog, u"Reset"_s)->click();
    QVERIFY(why->isHidden());
}

void TestLabelSets::listsTheMembersOfALargeSet()
{
    // Each on a line of its own: a single paragraph of them all is laid out at once, and freezes the window.
    setLabels(u"SEX"_s, u"1=Yes 2=No"_s);
    TDcEntity *person = m_bench->entity(u"PERSON"_s);
    for (int i = 0; i < 4999; ++i)
        person->addVariables(DictionaryCopy::copy(*m_bench->variable(u"SEX"_s)).release());
    LabelSetsDialog dialog(m_bench->workspace());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto *members = dialog.findChild<QPlainTextEdit *>(u"labelSetMembers"_s);
    QCOMPARE(members->blockCount(), 5000);
    QVERIFY(members->isReadOnly());
    members->setFocus();
    QTest::keyClick(members, Qt::Key_PageDown);
    QVERIFY(members->verticalScrollBar()->value() > 0);
    QTest::keyClick(members, Qt::Key_Tab);
    QVERIFY(!members->hasFocus());
}

void TestLabelSets::saysWhenThereIsNone()
{
    const LabelSetsDialog dialog(m_bench->workspace());
    QCOMPARE(dialog.findChild<QListWidget *>()->count(), 0);
    QVERIFY(!button(dialog, u"Change All"_s)->isEnabled());
    QVERIFY(!button(dialog, u"Add"_s)->isEnabled());
}

QTEST_MAIN(TestLabelSets)
#include "tst_labelsets.moc"
