#include "documents/DictionaryCopy.h"
#include "documents/DictionaryEquality.h"
#include "model/MetadataVariables.h"
#include "tests/support/MessageBoxAnswer.h"
#include "tests/workbench/Bench.h"
#include "workbench/dialogs/EditTogetherDialog.h"
#include "workbench/operations/CommonEdits.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QUndoStack>

using namespace Qt::Literals::StringLiterals;

class TestEditTogether : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void tellsWhatIsShared();
    void offersNeitherNameNorAlias();
    void showsMixedValues();
    void writesOnlyWhatWasTouched();
    void emptiesTextsButNoNumbers();
    void leavesMixedValuesThatAreEmptyAgain();
    void saysThatMixedTextsWillBeEmptied();
    void ticksNoBoxWithoutAValue_data();
    void ticksNoBoxWithoutAValue();
    void writesAMixedFlagThatWasSet();
    void refusesTogether();
    void doesNothingWhenCancelled();
    void isOfferedForSeveralVariables();

private:
    template <typename Control>
    [[nodiscard]] Control *control(const char *name)
    {
        auto *control = qobject_cast<Control *>(m_dialog->control(QLatin1StringView(name)));
        Q_ASSERT(control);
        return control;
    }

    std::unique_ptr<EditTogetherDialog> m_dialog;
    std::unique_ptr<Bench> m_bench;
};

void TestEditTogether::init()
{
    m_dialog.reset();
    m_bench = std::make_unique<Bench>();
    m_bench->selection.select(u"PERSON"_s);
    for (TDcVariable *variable : std::as_const(*m_bench->selection.entity()->getVariables())) {
        variable->setSize(2);
        variable->setVarType(u"INTEGER"_s);
        variable->setDocumentation(u"Asked"_s);
        variable->setGroup(variable->getName() == u"SEX"_s ? u"BASIC"_s : u"OTHER"_s);
        variable->setLocal(variable->getName() == u"SEX"_s);
        variable->setDecimals(variable->getName() == u"SEX"_s ? 1 : 0);
    }
    m_bench->document.commit();
    m_bench->document.undoStack()->clear();
    const QList<TDcVariable *> all = *m_bench->selection.entity()->getVariables();
    m_bench->selection.setVariables(all, all.first());
    m_dialog = std::make_unique<EditTogetherDialog>(m_bench->workspace());
    m_dialog->show();
}

void TestEditTogether::tellsWhatIsShared()
{
    const QList<TDcVariable *> all = m_bench->selection.variables();
    QCOMPARE(CommonEdits::shared(all, VariableProperties::named("Size"_L1)), QVariant(2));
    QCOMPARE(CommonEdits::shared(all, VariableProperties::named("Group"_L1)), QVariant());
    QCOMPARE(CommonEdits::shared({}, VariableProperties::named("Size"_L1)), QVariant());
}

void TestEditTogether::offersNeitherNameNorAlias()
{
    QVERIFY(!m_dialog->box("Name"_L1));
    QVERIFY(!m_dialog->box("Alias"_L1));
    for (const VariableProperty &property : VariableProperties::all())
        QCOMPARE(m_dialog->box(QLatin1StringView(property.name)) != nullptr,
                 property.column != 0 && property.column != 1);
}

void TestEditTogether::showsMixedValues()
{
    QCOMPARE(control<QLineEdit>("Size")->text(), u"2"_s);
    QCOMPARE(control<QComboBox>("Type")->currentText(), u"INTEGER"_s);
    QCOMPARE(control<QPlainTextEdit>("Documentation")->toPlainText(), u"Asked"_s);
    QCOMPARE(control<QLineEdit>("Group")->text(), QString());
    QCOMPARE(control<QLineEdit>("Group")->placeholderText(), u"several values"_s);
    QCOMPARE(control<QLineEdit>("Decimals")->text(), QString());
    QCOMPARE(control<QCheckBox>("Local")->checkState(), Qt::PartiallyChecked);
    QCOMPARE(control<QCheckBox>("Lookup")->checkState(), Qt::Unchecked);
    for (const VariableProperty &property : VariableProperties::all()) {
        if (property.isShared())
            QVERIFY2(!m_dialog->box(QLatin1StringView(property.name))->isChecked(), property.name);
    }
    QVERIFY(!m_dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->isEnabled());
}

void TestEditTogether::writesOnlyWhatWasTouched()
{
    const auto before = DictionaryCopy::copy(*m_bench->document.root());
    QTest::keyClicks(control<QLineEdit>("Record"), u"PERS"_s);
    QTest::keyClick(control<QCheckBox>("Local"), Qt::Key_Space);
    QVERIFY(m_dialog->box("Record"_L1)->isChecked());
    QVERIFY(m_dialog->box("Local"_L1)->isChecked());
    QVERIFY(!m_dialog->box("Group"_L1)->isChecked());
    m_dialog->accept();
    for (const TDcVariable *variable : m_bench->selection.variables()) {
        QCOMPARE(variable->getMetadataVariables()->getRecord(), u"PERS"_s);
        QVERIFY(variable->getLocal());
        QCOMPARE(variable->getGroup(), variable->getName() == u"SEX"_s ? u"BASIC"_s : u"OTHER"_s);
    }
    QUndoStack *stack = m_bench->document.undoStack();
    QCOMPARE(stack->count(), 1);
    QCOMPARE(stack->undoText(), u"edit of 3 variables"_s);
    stack->undo();
    QVERIFY(DictionaryEquality::equal(*m_bench->document.root(), *before));
}

void TestEditTogether::emptiesTextsButNoNumbers()
{
    control<QPlainTextEdit>("Documentation")->clear();
    auto *size = control<QLineEdit>("Size");
    size->selectAll();
    QTest::keyClicks(size, u"7"_s);
    QVERIFY(m_dialog->box("Size"_L1)->isChecked());
    QTest::keyClick(size, Qt::Key_Backspace);
    QVERIFY(!m_dialog->box("Size"_L1)->isChecked());
    QVERIFY(m_dialog->box("Documentation"_L1)->isChecked());
    m_dialog->accept();
    QCOMPARE(m_bench->variable(u"AGE"_s)->getDocumentation(), QString());
    QCOMPARE(m_bench->variable(u"AGE"_s)->getSize(), 2);
}

void TestEditTogether::leavesMixedValuesThatAreEmptyAgain()
{
    m_bench->variable(u"AGE"_s)->setVarType(u"REAL"_s);
    m_bench->variable(u"AGE"_s)->setDocumentation(u"Asked twice"_s);
    m_dialog = std::make_unique<EditTogetherDialog>(m_bench->workspace());
    m_dialog->show();
    for (const char *name : {"Group", "Type", "Documentation"}) {
        QWidget *control = m_dialog->control(QLatin1StringView(name));
        const QCheckBox *box = m_dialog->box(QLatin1StringView(name));
        QTest::keyClicks(control, u"x"_s);
        QVERIFY2(box->isChecked(), name);
        QTest::keyClick(control, Qt::Key_Backspace);
        QVERIFY2(!box->isChecked(), name);
    }
    QCOMPARE(control<QLineEdit>("Group")->placeholderText(), u"several values"_s);
    QTest::keyClicks(control<QLineEdit>("Record"), u"PERS"_s);
    m_dialog->accept();
    QCOMPARE(m_bench->variable(u"SEX"_s)->getGroup(), u"BASIC"_s);
    QCOMPARE(m_bench->variable(u"SEX"_s)->getVarType(), u"INTEGER"_s);
    QCOMPARE(m_bench->variable(u"SEX"_s)->getDocumentation(), u"Asked"_s);
}

void TestEditTogether::saysThatMixedTextsWillBeEmptied()
{
    QTest::keyClick(m_dialog->box("Group"_L1), Qt::Key_Space);
    QCOMPARE(control<QLineEdit>("Group")->placeholderText(), u"will be emptied"_s);
    QTest::keyClick(m_dialog->box("Group"_L1), Qt::Key_Space);
    QCOMPARE(control<QLineEdit>("Group")->placeholderText(), u"several values"_s);
    QTest::keyClick(m_dialog->box("Group"_L1), Qt::Key_Space);
    m_dialog->accept();
    for (const TDcVariable *variable : m_bench->selection.variables())
        QCOMPARE(variable->getGroup(), QString());
}

void TestEditTogether::ticksNoBoxWithoutAValue_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addRow("mixed flag") << QByteArray("Local");
    QTest::addRow("mixed number") << QByteArray("Decimals");
}

void TestEditTogether::ticksNoBoxWithoutAValue()
{
    QFETCH(const QByteArray, property);
    const QLatin1StringView name(property);
    QTest::keyClick(m_dialog->box(name), Qt::Key_Space);
    QVERIFY(!m_dialog->box(name)->isChecked());
    QCOMPARE(m_dialog->focusWidget(), m_dialog->control(name));
    QVERIFY(!m_dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->isEnabled());
    m_dialog->accept();
    QVERIFY(m_bench->variable(u"SEX"_s)->getLocal());
    QVERIFY(!m_bench->variable(u"AGE"_s)->getLocal());
    QCOMPARE(m_bench->variable(u"SEX"_s)->getDecimals(), 1);
}

void TestEditTogether::writesAMixedFlagThatWasSet()
{
    auto *local = control<QCheckBox>("Local");
    QTest::keyClick(local, Qt::Key_Space);
    QTest::keyClick(local, Qt::Key_Space);
    QCOMPARE(local->checkState(), Qt::Unchecked); // Never partial again.
    m_dialog->accept();
    for (const TDcVariable *variable : m_bench->selection.variables())
        QVERIFY(!variable->getLocal());
}

void TestEditTogether::refusesTogether()
{
    const MessageBoxAnswer boxes({u"OK"_s});
    QTest::keyClicks(control<QLineEdit>("Group"), u"DEATH"_s);
    QTest::keyClicks(control<QLineEdit>("Label"), u"Same"_s);
    m_dialog->accept();
    QTRY_COMPARE(boxes.shown().size(), 1);
    QCOMPARE(boxes.texts(), QStringList({u"Not everything could be written:"_s}));
    QCOMPARE(m_bench->variable(u"AGE"_s)->getGroup(), u"OTHER"_s);
    QCOMPARE(m_bench->variable(u"AGE"_s)->getLabel(), u"Same"_s);

    const QStringList lines = CommonEdits::apply(m_bench->document.root(), m_bench->selection.entity(),
                                                 m_bench->selection.variables(),
                                                 {{&VariableProperties::named("Group"_L1), u"DEATH"_s}});
    QCOMPARE(lines, QStringList({u"Group of SEX, AGE, WAGE: The value already exists as a entity name."_s}));
}

void TestEditTogether::doesNothingWhenCancelled()
{
    QTest::keyClicks(control<QLineEdit>("Group"), u"NEW"_s);
    QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_bench->document.undoStack()->count(), 0);
}

void TestEditTogether::isOfferedForSeveralVariables()
{
    QWidget window;
    Workspace workspace = m_bench->workspace();
    workspace.window = &window;
    EditTogetherDialog::addTo(workspace);
    QAction *action = m_bench->actions[ActionId::VariableEditTogether];
    QVERIFY(action->isEnabled());
    m_bench->selection.select(u"PERSON/SEX"_s);
    QVERIFY(!action->isEnabled());
    const QList<TDcVariable *> all = *m_bench->selection.entity()->getVariables();
    m_bench->selection.setVariables(all, all.first());
    action->trigger();
    auto *dialog = window.findChild<QDialog *>(u"editTogetherDialog"_s);
    QVERIFY(dialog);
    // Nothing dangles when the variables go.
    m_bench->document.edit(u"removing"_s, [] {});
    QVERIFY(!dialog->isVisible());
}

QTEST_MAIN(TestEditTogether)
#include "tst_edittogether.moc"
