#include "common/Constants.h"
#include "documents/DictionaryCopy.h"
#include "documents/DictionaryDifference.h"
#include "model/MetadataVariables.h"
#include "tests/support/MessageBoxAnswer.h"
#include "tests/workbench/FormBench.h"
#include "workbench/panels/VariableForm.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

class TestVariableForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void writesEachProperty_data();
    void writesEachProperty();
    void writesThePlaceForReaderAndWriter_data();
    void writesThePlaceForReaderAndWriter();
    void showsThePlaceThatIsKnown_data();
    void showsThePlaceThatIsKnown();
    void undoBelongsToTheDocument_data();
    void undoBelongsToTheDocument();
    void undoBelongsToTheFieldWhileItIsTypedInto_data();
    void undoBelongsToTheFieldWhileItIsTypedInto();
    void makesALayoutWhenItIsNeeded();
    void comesBackFromItsFile_data();
    void comesBackFromItsFile();
    void aRefusedTextLeavesTheFieldAsItWas_data();
    void aRefusedTextLeavesTheFieldAsItWas();
    void renamingTheReferenceCodeAsks_data();
    void renamingTheReferenceCodeAsks();
    void choosesTypesByKey();
    void takesAnyOtherType();
    void showsAnyNumber();
    void showsWhatWasUndone();
    void showsNothingWithoutAVariable();
    void forgetsWhatIsTypedWhenTheVariableGoes();

private:
    void addControls();
    /// Types \a text into the control called \a name, leaves it and comes back.
    void enter(const QString &name, const QString &text);
    [[nodiscard]] QString shown(const QString &name) const;
    void press(const QString &name, const QKeySequence &keys);
    [[nodiscard]] QUndoStack *stack() const { return m_bench->document.undoStack(); }
    [[nodiscard]] TDcVariable *age() const { return m_bench->entity(u"PERSON"_s)->getVariables()->at(1); }

    std::unique_ptr<FormBench<VariableForm>> m_bench;
};

void TestVariableForm::init()
{
    m_bench = std::make_unique<FormBench<VariableForm>>(u"PERSON/AGE"_s, QSize(340, 600));
    QVERIFY(m_bench->isActive());
}

void TestVariableForm::cleanup()
{
    m_bench.reset();
}

void TestVariableForm::writesEachProperty_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("property");
    for (const auto &[name, property] : {std::pair("Alias", "alias"),
                                         {"Label", "label"},
                                         {"Group", "group"},
                                         {"Type", "type"},
                                         {"Tag", "tag"},
                                         {"Size", "size"},
                                         {"Decimals", "decimals"},
                                         {"Missing-value code", "missing code"},
                                         {"Not-applicable code", "not-applicable code"},
                                         {"Record", "record"},
                                         {"Field", "field"},
                                         {"File name", "file name"},
                                         {"Lookup", "lookup"},
                                         {"Local", "local"},
                                         {"Documentation", "documentation"}}) {
        QTest::addRow("%s", name) << QString::fromLatin1(name) << QString::fromLatin1(property);
    }
}

void TestVariableForm::writesEachProperty()
{
    QFETCH(const QString, name);
    QFETCH(const QString, property);
    age()->setMetadataVariables(new MetadataVariables);
    m_bench->document.commit();
    stack()->clear();
    const auto before = DictionaryCopy::copy(*m_bench->document.root());
    QVariant expected(u"ABC"_s);
    if (auto *number = m_bench->control<QSpinBox>(name)) {
        number->setFocus();
        number->selectAll();
        QTest::keyClicks(number, u"47"_s);
        QTest::keyClick(number, Qt::Key_Return);
        expected = 47;
    } else if (auto *choice = m_bench->control<QComboBox>(name)) {
        m_bench->type(choice->lineEdit(), u"ABC"_s);
    } else if (auto *line = m_bench->control<QLineEdit>(name)) {
        m_bench->type(line, u"ABC"_s);
    } else if (auto *text = m_bench->control<QPlainTextEdit>(name)) {
        text->setFocus();
        QTest::keyClicks(text, u"ABC"_s);
        QTest::keyClick(text, Qt::Key_Backtab);
    } else {
        auto *box = m_bench->control<QCheckBox>(name);
        QVERIFY(box);
        box->click();
        expected = true;
    }
    const QList<DictionaryChange> changes =
        DictionaryDifference::between(*before, *m_bench->document.root()).changes();
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.first().path, u"CENSUS/HOUSEHOLD/PERSON/AGE"_s);
    QCOMPARE(changes.first().property, property);
    QCOMPARE(changes.first().after, expected);
    QCOMPARE(stack()->count(), 1);
    stack()->undo();
    QVERIFY(DictionaryDifference::between(*before, *m_bench->document.root()).isEmpty());
}

void TestVariableForm::writesThePlaceForReaderAndWriter_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("typed");
    QTest::addColumn<QList<int>>("expected"); // Start and length of the layout, position and field size.
    QTest::addColumn<QString>("step");
    QTest::addRow("start") << u"Start"_s << 47 << QList({47, 3, 47, 3}) << u"start of AGE"_s;
    QTest::addRow("the first place, which documents leave out")
        << u"Start"_s << 1 << QList({0, 3, 1, 3}) << u"start of AGE"_s;
    QTest::addRow("no place") << u"Start"_s << 0 << QList({0, 3, 1, 3}) << u"start of AGE"_s;
    QTest::addRow("before the first") << u"Start"_s << -4 << QList({0, 3, 1, 3}) << u"start of AGE"_s;
    QTest::addRow("length") << u"Length"_s << 8 << QList({12, 8, 12, 8}) << u"length of AGE"_s;
    QTest::addRow("no length") << u"Length"_s << 0 << QList({12, 0, 12, 0}) << u"length of AGE"_s;
}

void TestVariableForm::writesThePlaceForReaderAndWriter()
{
    QFETCH(const QString, name);
    QFETCH(const int, typed);
    QFETCH(const QList<int>, expected);
    QFETCH(const QString, step);
    const auto places = [this] {
        const MetadataVariables *layout = age()->getMetadataVariables();
        return QList{layout->getStart(), layout->getLength(), age()->getFieldRelativePosition(),
                     age()->getFieldSize()};
    };
    age()->setMetadataVariables(new MetadataVariables);
    age()->getMetadataVariables()->setStart(12);
    age()->getMetadataVariables()->setLength(3);
    age()->setFieldRelativePosition(12);
    age()->setFieldSize(3);
    m_bench->document.commit();
    stack()->clear();
    enter(name, QString::number(typed));
    QCOMPARE(places(), expected);
    QCOMPARE(stack()->count(), 1);
    QCOMPARE(stack()->undoText(), step);
    QCOMPARE(shown(name), QString::number(name == u"Start"_s ? expected.at(2) : expected.at(3)));
    stack()->undo();
    QCOMPARE(places(), QList({12, 3, 12, 3}));
}

void TestVariableForm::showsThePlaceThatIsKnown_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("shown");
    QTest::addRow("as read by the layer alone") << 12 << 1 << u"12"_s;
    QTest::addRow("the variable's, where the layout has none") << 0 << 7 << u"7"_s;
    QTest::addRow("none") << 0 << 1 << u"1"_s;
}

void TestVariableForm::showsThePlaceThatIsKnown()
{
    QFETCH(const int, start);
    QFETCH(const int, position);
    QCOMPARE(this->shown(u"Start"_s), u"1"_s); // Without a layout.
    age()->setMetadataVariables(new MetadataVariables);
    age()->getMetadataVariables()->setStart(start);
    age()->setFieldRelativePosition(position);
    m_bench->document.commit();
    QTEST(this->shown(u"Start"_s), "shown");
}

void TestVariableForm::addControls()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("typed");
    QTest::addRow("line") << u"Label"_s << u"Age"_s << u"Years"_s;
    QTest::addRow("number") << u"Size"_s << u"0"_s << u"4"_s;
    QTest::addRow("choice") << u"Type"_s << QString() << u"date"_s;
    QTest::addRow("notes") << u"Documentation"_s << QString() << u"Asked"_s;
}

void TestVariableForm::enter(const QString &name, const QString &text)
{
    auto *control = m_bench->control<QWidget>(name);
    control->setFocus();
    press(name, QKeySequence::SelectAll);
    QTest::keyClicks(control, text);
    control->clearFocus();
    control->setFocus();
}

QString TestVariableForm::shown(const QString &name) const
{
    if (const auto *number = m_bench->control<QSpinBox>(name))
        return number->text();
    if (const auto *choice = m_bench->control<QComboBox>(name))
        return choice->currentText();
    if (const auto *notes = m_bench->control<QPlainTextEdit>(name))
        return notes->toPlainText();
    return m_bench->control<QLineEdit>(name)->text();
}

void TestVariableForm::press(const QString &name, const QKeySequence &keys)
{
    const QKeyCombination key = keys[0];
    QTest::keyClick(m_bench->control<QWidget>(name), key.key(), key.keyboardModifiers());
}

void TestVariableForm::undoBelongsToTheDocument_data()
{
    addControls();
}

void TestVariableForm::undoBelongsToTheDocument()
{
    QFETCH(const QString, name);
    QFETCH(const QString, before);
    QFETCH(const QString, typed);
    m_bench->addUndo();
    enter(name, typed);
    QCOMPARE(stack()->index(), 1);
    // Whatever was done last, here or elsewhere.
    m_bench->variable(u"SEX"_s)->setLabel(u"Gender"_s);
    m_bench->document.commit();
    QCOMPARE(stack()->index(), 2);
    press(name, QKeySequence::Undo);
    QCOMPARE(stack()->index(), 1);
    QCOMPARE(shown(name), typed);
    press(name, QKeySequence::Undo);
    QCOMPARE(stack()->index(), 0);
    QCOMPARE(shown(name), before);
    press(name, QKeySequence::Redo);
    QCOMPARE(stack()->index(), 1);
    QCOMPARE(shown(name), typed);
    m_bench->control<QWidget>(name)->clearFocus();
    QCOMPARE(stack()->count(), 2);
}

void TestVariableForm::undoBelongsToTheFieldWhileItIsTypedInto_data()
{
    addControls();
}

void TestVariableForm::undoBelongsToTheFieldWhileItIsTypedInto()
{
    QFETCH(const QString, name);
    QFETCH(const QString, typed);
    m_bench->addUndo();
    enter(name, typed);
    press(name, QKeySequence::MoveToEndOfLine);
    QTest::keyClicks(m_bench->control<QWidget>(name), u"7"_s);
    QCOMPARE(shown(name), QString(typed + u'7'));
    // Back to what was entered, not to what stood there before.
    press(name, QKeySequence::Undo);
    QCOMPARE(shown(name), typed);
    QCOMPARE(stack()->index(), 1);
    press(name, QKeySequence::Undo);
    QCOMPARE(stack()->index(), 0);
    QCOMPARE(stack()->count(), 1);
}

void TestVariableForm::makesALayoutWhenItIsNeeded()
{
    QVERIFY(!age()->getMetadataVariables());
    auto *field = m_bench->control<QLineEdit>(u"Record"_s);
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Return);
    QVERIFY(!age()->getMetadataVariables());
    m_bench->type(field, u"P"_s);
    QVERIFY(age()->getMetadataVariables());
    QCOMPARE(age()->getMetadataVariables()->getRecord(), u"P"_s);
    stack()->undo();
    QVERIFY(!age()->getMetadataVariables());
    QCOMPARE(field->text(), QString());
}

void TestVariableForm::comesBackFromItsFile_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"Decimals", "Start", "Length", "Size", "Tag"})
        QTest::addRow("%s", name) << QString::fromLatin1(name);
}

void TestVariableForm::comesBackFromItsFile()
{
    QFETCH(const QString, name);
    age()->setVarType(Constants::typeReal);
    m_bench->document.commit();
    auto *number = m_bench->control<QSpinBox>(name);
    number->setFocus();
    number->selectAll();
    QTest::keyClicks(number, u"9"_s);
    QTest::keyClick(number, Qt::Key_Return);
    const QTemporaryDir folder;
    QVERIFY(m_bench->document.save(folder.filePath(u"a.mvdb"_s)));
    QVERIFY(m_bench->document.open(folder.filePath(u"a.mvdb"_s)));
    m_bench->selection.select(u"PERSON/AGE"_s);
    QCOMPARE(number->value(), 9);
}

void TestVariableForm::aRefusedTextLeavesTheFieldAsItWas_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("boxes");
    QTest::addRow("no name") << u"Name"_s << u" "_s << 0;
    QTest::addRow("sign in the name") << u"Name"_s << u"A-B"_s << 1;
    QTest::addRow("name of an entity") << u"Name"_s << u"PERSON"_s << 1;
    QTest::addRow("alias that is a name") << u"Alias"_s << u"WAGE"_s << 1;
    QTest::addRow("group that is an entity") << u"Group"_s << u"DEATH"_s << 1;
}

void TestVariableForm::aRefusedTextLeavesTheFieldAsItWas()
{
    QFETCH(const QString, field);
    QFETCH(const QString, typed);
    QFETCH(const int, boxes);
    const MessageBoxAnswer answer({u"OK"_s});
    auto *line = m_bench->control<QLineEdit>(field);
    const QString before = line->text();
    m_bench->type(line, typed);
    QCOMPARE(line->text(), before);
    QCOMPARE(answer.shown().size(), boxes);
    QCOMPARE(stack()->count(), 0);
}

void TestVariableForm::renamingTheReferenceCodeAsks_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("code");
    QTest::addColumn<bool>("selectable");
    QTest::addRow("yes") << u"Yes"_s << u"YEARS"_s << u"YEARS"_s << true;
    QTest::addRow("no") << u"No"_s << u"YEARS"_s << QString() << false;
    QTest::addRow("cancel") << u"Cancel"_s << u"AGE"_s << u"AGE"_s << true;
}

void TestVariableForm::renamingTheReferenceCodeAsks()
{
    QFETCH(const QString, answer);
    QFETCH(const QString, name);
    QFETCH(const QString, code);
    QFETCH(const bool, selectable);
    TDcEntity *person = m_bench->entity(u"PERSON"_s);
    auto *below = new TDcEntity;
    below->setName(u"JOB"_s);
    below->setSelectable(true);
    person->getChildren()->append(below);
    person->setRefCode(u"AGE"_s);
    person->setSelectable(true);
    m_bench->document.commit();
    stack()->clear();
    const MessageBoxAnswer boxes({answer});
    m_bench->type(m_bench->control<QLineEdit>(u"Name"_s), u"YEARS"_s);
    QCOMPARE(boxes.shown().size(), 1);
    const auto state = [&] {
        return QStringList{age()->getName(), person->getRefCode(),
                           person->getSelectable() ? u"on"_s : u"off"_s,
                           below->getSelectable() ? u"on"_s : u"off"_s};
    };
    const QString mark = selectable ? u"on"_s : u"off"_s;
    QCOMPARE(state(), QStringList({name, code, mark, mark}));
    QCOMPARE(m_bench->control<QLineEdit>(u"Name"_s)->text(), name);
    // With all that follows from it, the entities below included, it is one step.
    QVERIFY(stack()->count() <= 1);
    stack()->undo();
    QCOMPARE(state(), QStringList({u"AGE"_s, u"AGE"_s, u"on"_s, u"on"_s}));
    stack()->redo();
    QCOMPARE(state(), QStringList({name, code, mark, mark}));
    QCOMPARE(boxes.shown().size(), 1);
}

void TestVariableForm::choosesTypesByKey()
{
    age()->setVarType(u"string"_s);
    m_bench->document.commit();
    auto *types = m_bench->control<QComboBox>(u"Type"_s);
    const int row = types->currentIndex();
    QCOMPARE(types->itemText(row).toLower(), u"string"_s);
    QCOMPARE(types->currentText(), u"string"_s);
    types->setFocus();
    QTest::keyClick(types, Qt::Key_Up);
    QCOMPARE(age()->getVarType(), types->itemText(row - 1));
}

void TestVariableForm::takesAnyOtherType()
{
    auto *types = m_bench->control<QComboBox>(u"Type"_s);
    m_bench->type(types->lineEdit(), u"date"_s);
    QCOMPARE(age()->getVarType(), u"date"_s);
    QCOMPARE(types->findText(u"date"_s), -1);
    m_bench->selection.select(u"PERSON/SEX"_s);
    m_bench->selection.select(u"PERSON/AGE"_s);
    QCOMPARE(types->currentText(), u"date"_s);
    types->setFocus();
    types->clearFocus();
    QCOMPARE(age()->getVarType(), u"date"_s);
}

void TestVariableForm::showsAnyNumber()
{
    age()->setTag(-7);
    age()->setSize(std::numeric_limits<int>::max());
    age()->setMissing(std::numeric_limits<int>::min());
    m_bench->document.commit();
    for (const QString &name : {u"Tag"_s, u"Size"_s, u"Missing-value code"_s}) {
        m_bench->control<QSpinBox>(name)->setFocus();
        QTest::keyClick(m_bench->control<QSpinBox>(name), Qt::Key_Return);
    }
    QCOMPARE(stack()->count(), 1);
    QCOMPARE(age()->getTag(), -7);
    QCOMPARE(m_bench->control<QSpinBox>(u"Missing-value code"_s)->value(), std::numeric_limits<int>::min());
}

void TestVariableForm::showsWhatWasUndone()
{
    m_bench->type(m_bench->control<QLineEdit>(u"Label"_s), u"Years"_s);
    m_bench->type(m_bench->control<QLineEdit>(u"Field"_s), u"P3"_s);
    m_bench->type(m_bench->control<QComboBox>(u"Type"_s)->lineEdit(), u"date"_s);
    stack()->setIndex(0);
    QCOMPARE(m_bench->control<QLineEdit>(u"Label"_s)->text(), u"Age"_s);
    QCOMPARE(m_bench->control<QLineEdit>(u"Field"_s)->text(), QString());
    QCOMPARE(m_bench->control<QComboBox>(u"Type"_s)->currentText(), QString());
    stack()->setIndex(3);
    QCOMPARE(m_bench->control<QLineEdit>(u"Label"_s)->text(), u"Years"_s);
    QCOMPARE(m_bench->control<QLineEdit>(u"Field"_s)->text(), u"P3"_s);
    QCOMPARE(m_bench->control<QComboBox>(u"Type"_s)->currentText(), u"date"_s);
}

void TestVariableForm::showsNothingWithoutAVariable()
{
    const auto *pages = m_bench->form.findChild<QStackedWidget *>();
    QCOMPARE(pages->currentIndex(), 1);
    m_bench->selection.select(u"DEATH"_s);
    QCOMPARE(pages->currentIndex(), 0);
    m_bench->selection.select(u"PERSON/SEX"_s);
    QCOMPARE(pages->currentIndex(), 1);
    QCOMPARE(m_bench->control<QLineEdit>(u"Name"_s)->text(), u"SEX"_s);
}

void TestVariableForm::forgetsWhatIsTypedWhenTheVariableGoes()
{
    auto *field = m_bench->control<QLineEdit>(u"Label"_s);
    field->setFocus();
    QTest::keyClicks(field, u"X"_s);
    m_bench->document.edit(u"removing"_s, [this] { // Would write to what is gone.
        delete m_bench->entity(u"PERSON"_s)->getVariables()->takeAt(1);
    });
    QCOMPARE(field->text(), u"Monthly wage"_s);
    field->clearFocus();
    QCOMPARE(stack()->count(), 1);
}

QTEST_MAIN(TestVariableForm)
#include "tst_variableform.moc"
