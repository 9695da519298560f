#include "documents/DictionaryCopy.h"
#include "documents/DictionaryEquality.h"
#include "model/ValueLabelElement.h"
#include "tests/workbench/Bench.h"
#include "workbench/dialogs/LabelSetsDialog.h"
#include "workbench/operations/LabelSets.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
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
    void takesEditsBack();
    void saysWhenThereIsNone();

private:
    void setLabels(const QString &name, const QString &labels);
    [[nodiscard]] QString labels(const QString &name);
    [[nodiscard]] QList<LabelSets::Set> shared() { return LabelSets::shared(m_bench->document.root()); }
    [[nodiscard]] static QPushButton *button(const QDialog &dialog, const QString &text);

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

QPushButton *TestLabelSets::button(const QDialog &dialog, const QString &text)
{
    const auto buttons = dialog.findChildren<QPushButton *>();
    const auto found = std::find_if(buttons.cbegin(), buttons.cend(), [&text](const QPushButton *each) {
        return each->text().remove(u'&') == text;
    });
    return found == buttons.cend() ? nullptr : *found;
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
    QCOMPARE(dialog.findChild<QLabel *>(u"labelSetMembers"_s)->text(), u"PERSON/SEX, PERSON/AGE"_s);
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

void TestLabelSets::saysWhenThereIsNone()
{
    const LabelSetsDialog dialog(m_bench->workspace());
    QCOMPARE(dialog.findChild<QListWidget *>()->count(), 0);
    QVERIFY(!button(dialog, u"Change All"_s)->isEnabled());
    QVERIFY(!button(dialog, u"Add"_s)->isEnabled());
}

QTEST_MAIN(TestLabelSets)
#include "tst_labelsets.moc"
