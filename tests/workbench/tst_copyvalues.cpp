#include "documents/DictionaryCopy.h"
#include "documents/DictionaryEquality.h"
#include "model/MetadataVariables.h"
#include "model/ValueLabelElement.h"
#include "tests/workbench/Bench.h"
#include "tests/workbench/Controls.h"
#include "workbench/dialogs/CopyValuesDialog.h"
#include "workbench/operations/ValueCopies.h"

#include <QAccessible>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>
#include <QUndoStack>

using namespace Qt::Literals::StringLiterals;

class TestCopyValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void replaces();
    void adds();
    void copiesOnlyWhatIsWanted();
    void leavesTheSourceAlone();
    void tellsWhatWillChange();
    void readsThePreviewAloud();
    void makesNoLayoutForNothing();
    void ticksTheSelectedVariables();
    void startsAtTheFirstTickedVariable();
    void copiesNoKindThatTheSourceLacks();
    void ticksWhatTheFilterShows();
    void copiesInOneStep();
    void namesTheOnlyTarget();

private:
    [[nodiscard]] static QString values(const TDcVariable &variable);
    [[nodiscard]] TDcVariable &variable(const QString &name) { return *m_bench->variable(name); }
    [[nodiscard]] static QPushButton *button(const QDialog &dialog, const QString &text)
    {
        return Controls::button<QPushButton>(&dialog, text);
    }

    std::unique_ptr<Bench> m_bench;
};

namespace
{
void addLabel(TDcVariable &variable, const QString &code, const QString &label)
{
    variable.addValueLabelElement(new ValueLabelElement);
    variable.getValueLabelElementList()->last()->setValue(code);
    variable.getValueLabelElementList()->last()->setLabel(label);
}

void addRange(TDcVariable &variable, double minimum, double maximum)
{
    if (!variable.getMetadataVariables())
        variable.setMetadataVariables(new MetadataVariables);
    variable.getMetadataVariables()->addItemRange(new Range);
    variable.getMetadataVariables()->getRange()->last()->setRangeMin(minimum);
    variable.getMetadataVariables()->getRange()->last()->setRangeMax(maximum);
}
} // namespace

void TestCopyValues::init()
{
    m_bench = std::make_unique<Bench>();
    m_bench->selection.select(u"PERSON/SEX"_s);
    addLabel(variable(u"SEX"_s), u"1"_s, u"Man"_s);
    addLabel(variable(u"SEX"_s), u"2"_s, u"Woman"_s);
    addRange(variable(u"SEX"_s), 1, 2);
    variable(u"SEX"_s).setMissing(9);
    variable(u"SEX"_s).setNotappl(8);
    addLabel(variable(u"AGE"_s), u"1"_s, u"One"_s);
    addRange(variable(u"AGE"_s), 0, 99);
    m_bench->document.commit();
    m_bench->document.undoStack()->clear();
}

QString TestCopyValues::values(const TDcVariable &variable)
{
    QStringList words;
    for (const ValueLabelElement *element : std::as_const(*variable.getValueLabelElementList()))
        words.append(element->getValue() + u'=' + element->getLabel());
    if (const MetadataVariables *layout = variable.getMetadataVariables()) {
        for (const Range *range : std::as_const(*layout->getRange()))
            words.append(u"%1..%2"_s.arg(range->getRangeMin()).arg(range->getRangeMax()));
    }
    words.append(QString::number(variable.getMissing()));
    return words.join(u' ');
}

void TestCopyValues::replaces()
{
    ValueCopies::apply(variable(u"SEX"_s), {&variable(u"AGE"_s), &variable(u"WAGE"_s)}, {});
    QCOMPARE(values(variable(u"AGE"_s)), u"1=Man 2=Woman 1..2 0"_s);
    QCOMPARE(values(variable(u"WAGE"_s)), u"1=Man 2=Woman 1..2 0"_s);
}

void TestCopyValues::adds()
{
    const ValueCopies::What what{.missing = true, .replace = false};
    ValueCopies::apply(variable(u"SEX"_s), {&variable(u"AGE"_s)}, what);
    QCOMPARE(values(variable(u"AGE"_s)), u"1=One 2=Woman 0..99 1..2 9"_s);
    ValueCopies::apply(variable(u"SEX"_s), {&variable(u"AGE"_s)}, what);
    QCOMPARE(values(variable(u"AGE"_s)), u"1=One 2=Woman 0..99 1..2 9"_s);
}

void TestCopyValues::copiesOnlyWhatIsWanted()
{
    ValueCopies::apply(variable(u"SEX"_s), {&variable(u"AGE"_s)},
                       {.valueLabels = false, .ranges = false, .missing = true});
    QCOMPARE(values(variable(u"AGE"_s)), u"1=One 0..99 9"_s);
    QCOMPARE(variable(u"AGE"_s).getNotappl(), 8);
    ValueCopies::apply(variable(u"SEX"_s), {&variable(u"WAGE"_s)}, {.valueLabels = true, .ranges = false});
    QCOMPARE(values(variable(u"WAGE"_s)), u"1=Man 2=Woman 0"_s);
}

void TestCopyValues::leavesTheSourceAlone()
{
    ValueCopies::apply(variable(u"SEX"_s), {&variable(u"SEX"_s)}, {});
    QCOMPARE(values(variable(u"SEX"_s)), u"1=Man 2=Woman 1..2 9"_s);
}

void TestCopyValues::tellsWhatWillChange()
{
    const TDcVariable &sex = variable(u"SEX"_s);
    const QList<TDcVariable *> all = *m_bench->selection.entity()->getVariables();
    QCOMPARE(ValueCopies::preview(sex, all, {}),
             u"2 variables will change. Variables whose value labels will be replaced: 1. "
             "Variables whose ranges will be replaced: 1."_s);
    QCOMPARE(ValueCopies::preview(sex, {&variable(u"AGE"_s)}, {.replace = false}),
             u"One variable will change."_s);
    ValueCopies::apply(sex, all, {});
    QCOMPARE(ValueCopies::preview(sex, all, {}), u"Nothing will change."_s);
}

void TestCopyValues::readsThePreviewAloud()
{
    const CopyValuesDialog dialog(m_bench->workspace());
    auto *label = dialog.findChild<QLabel *>(u"copyValuesPreview"_s);
    QCOMPARE(label->text(), u"Tick the variables to copy to."_s);
    QCOMPARE(QAccessible::queryAccessibleInterface(label)->text(QAccessible::Name), label->text());
    button(dialog, u"Tick Shown"_s)->click();
    QCOMPARE(QAccessible::queryAccessibleInterface(label)->text(QAccessible::Name), label->text());
}

void TestCopyValues::makesNoLayoutForNothing()
{
    ValueCopies::apply(variable(u"WAGE"_s), {&variable(u"WAGE"_s)}, {});
    TDcVariable other;
    for (const bool replace : {true, false})
        ValueCopies::apply(variable(u"WAGE"_s), {&other}, {.replace = replace});
    QVERIFY(!other.getMetadataVariables());
}

void TestCopyValues::ticksTheSelectedVariables()
{
    const QList<TDcVariable *> two{&variable(u"SEX"_s), &variable(u"WAGE"_s)};
    m_bench->selection.setVariables(two, two.first());
    const CopyValuesDialog dialog(m_bench->workspace());
    const auto *model = dialog.findChild<QStandardItemModel *>();
    QCOMPARE(model->rowCount(), 2); // Not the source.
    QCOMPARE(model->item(0)->text(), u"AGE"_s);
    QCOMPARE(model->item(0)->checkState(), Qt::Unchecked);
    QCOMPARE(model->item(1)->checkState(), Qt::Checked);
    QCOMPARE(dialog.findChild<QLabel *>(u"copyValuesPreview"_s)->text(), u"One variable will change."_s);
}

void TestCopyValues::startsAtTheFirstTickedVariable()
{
    const QList<TDcVariable *> two{&variable(u"SEX"_s), &variable(u"WAGE"_s)};
    m_bench->selection.setVariables(two, two.first());
    const CopyValuesDialog dialog(m_bench->workspace());
    QCOMPARE(dialog.findChild<QTableView *>()->currentIndex().data().toString(), u"WAGE"_s);
    m_bench->selection.select(u"PERSON/SEX"_s);
    const CopyValuesDialog untouched(m_bench->workspace());
    QCOMPARE(untouched.findChild<QTableView *>()->currentIndex().data().toString(), u"AGE"_s);
}

void TestCopyValues::copiesNoKindThatTheSourceLacks()
{
    // Replaced by nothing, the labels and ranges of the others would be erased.
    m_bench->selection.select(u"PERSON/WAGE"_s);
    CopyValuesDialog dialog(m_bench->workspace());
    const QList<QCheckBox *> kinds = dialog.findChildren<QCheckBox *>();
    QCOMPARE(kinds.size(), 3);
    for (const QCheckBox *kind : {kinds.at(0), kinds.at(1)}) {
        QVERIFY(!kind->isChecked());
        QVERIFY(!kind->isEnabled());
        QCOMPARE(kind->toolTip(), u"WAGE has none."_s);
    }
    QVERIFY(kinds.at(2)->isEnabled());
    button(dialog, u"Tick Shown"_s)->click();
    button(dialog, u"Copy"_s)->click();
    QCOMPARE(values(variable(u"AGE"_s)), u"1=One 0..99 0"_s);

    m_bench->selection.select(u"PERSON/AGE"_s);
    const CopyValuesDialog full(m_bench->workspace());
    QVERIFY(full.findChildren<QCheckBox *>().at(0)->isChecked());
    QVERIFY(full.findChildren<QCheckBox *>().at(1)->isChecked());
}

void TestCopyValues::ticksWhatTheFilterShows()
{
    const CopyValuesDialog dialog(m_bench->workspace());
    const auto *preview = dialog.findChild<QLabel *>(u"copyValuesPreview"_s);
    QCOMPARE(preview->text(), u"Tick the variables to copy to."_s);
    QVERIFY(!button(dialog, u"Copy"_s)->isEnabled());
    dialog.findChild<QLineEdit *>()->setText(u"monthly"_s);
    button(dialog, u"Tick Shown"_s)->click();
    QVERIFY(button(dialog, u"Copy"_s)->isEnabled());
    QCOMPARE(preview->text(), u"One variable will change."_s);
    dialog.findChild<QLineEdit *>()->clear();
    const auto *model = dialog.findChild<QStandardItemModel *>();
    QCOMPARE(model->item(0)->checkState(), Qt::Unchecked);
    QCOMPARE(model->item(1)->checkState(), Qt::Checked);
    button(dialog, u"Untick Shown"_s)->click();
    QVERIFY(!button(dialog, u"Copy"_s)->isEnabled());
}

void TestCopyValues::copiesInOneStep()
{
    const auto before = DictionaryCopy::copy(*m_bench->document.root());
    CopyValuesDialog dialog(m_bench->workspace());
    button(dialog, u"Tick Shown"_s)->click();
    button(dialog, u"Copy"_s)->click();
    QCOMPARE(values(variable(u"AGE"_s)), u"1=Man 2=Woman 1..2 0"_s);
    QUndoStack *stack = m_bench->document.undoStack();
    QCOMPARE(stack->count(), 1);
    QCOMPARE(stack->undoText(), u"copying values of SEX to 2 variables"_s);
    stack->undo();
    QVERIFY(DictionaryEquality::equal(*m_bench->document.root(), *before));
}

void TestCopyValues::namesTheOnlyTarget()
{
    CopyValuesDialog dialog(m_bench->workspace());
    dialog.findChild<QStandardItemModel *>()->item(1)->setCheckState(Qt::Checked);
    button(dialog, u"Copy"_s)->click();
    QCOMPARE(m_bench->undoText(), u"copying values of SEX to WAGE"_s);
}

QTEST_MAIN(TestCopyValues)
#include "tst_copyvalues.moc"
