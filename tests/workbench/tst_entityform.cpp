#include "documents/DictionaryCopy.h"
#include "documents/DictionaryDifference.h"
#include "tests/support/MessageBoxAnswer.h"
#include "tests/workbench/FormBench.h"
#include "workbench/panels/EntityForm.h"

#include <QCheckBox>
#include <QCompleter>
#include <QPlainTextEdit>

using namespace Qt::Literals::StringLiterals;

class TestEntityForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void writesEachProperty_data();
    void writesEachProperty();
    void renames();
    void aRefusedNameLeavesTheFieldAsItWas_data();
    void aRefusedNameLeavesTheFieldAsItWas();
    void offersTheVariablesForRoles();
    void clearingTheMarkAsksForThoseBelow_data();
    void clearingTheMarkAsksForThoseBelow();
    void withoutACodeNothingIsSelectable();
    void showsWhatWasUndone();
    void lookingAtNotesIsNoEdit();
    void forgetsWhatIsTypedWhenTheStructureChanges();
    void leavesLongTextsWhole();

private:
    [[nodiscard]] QLineEdit *name() const { return m_bench->control<QLineEdit>(u"Entity name"_s); }
    [[nodiscard]] QUndoStack *stack() const { return m_bench->document.undoStack(); }

    std::unique_ptr<FormBench<EntityForm>> m_bench;
};

void TestEntityForm::init()
{
    m_bench = std::make_unique<FormBench<EntityForm>>(u"PERSON"_s, QSize(300, 400));
    QVERIFY(m_bench->isActive());
}

void TestEntityForm::cleanup()
{
    m_bench.reset();
}

void TestEntityForm::writesEachProperty_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("property");
    for (const auto &[name, property] : {std::pair("Entity label", "label"),
                                         {"Entity alias", "alias"},
                                         {"Reference code variable", "code variable"},
                                         {"Reference label variable", "label variable"},
                                         {"Weight variable", "weight variable"},
                                         {"Entity documentation", "documentation"},
                                         {"Selectable", "selectable"},
                                         {"Virtual", "virtual"}}) {
        QTest::addRow("%s", name) << QString::fromLatin1(name) << QString::fromLatin1(property);
    }
}

void TestEntityForm::writesEachProperty()
{
    QFETCH(const QString, name);
    QFETCH(const QString, property);
    const auto before = DictionaryCopy::copy(*m_bench->document.root());
    QVariant expected(u"AGE"_s);
    if (auto *line = m_bench->control<QLineEdit>(name)) {
        m_bench->type(line, u"AGE"_s);
    } else if (auto *text = m_bench->control<QPlainTextEdit>(name)) {
        text->setFocus();
        QTest::keyClicks(text, u"AGE"_s);
        QCOMPARE(stack()->count(), 0);
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
    QCOMPARE(changes.first().path, u"CENSUS/HOUSEHOLD/PERSON"_s);
    QCOMPARE(changes.first().property, property);
    QCOMPARE(changes.first().after, expected);
    QCOMPARE(stack()->count(), 1);
    stack()->undo();
    QVERIFY(DictionaryDifference::between(*before, *m_bench->document.root()).isEmpty());
}

void TestEntityForm::renames()
{
    QCOMPARE(name()->text(), u"PERSON"_s);
    m_bench->type(name(), u" PEOPLE "_s);
    QCOMPARE(m_bench->selection.entity()->getName(), u"PEOPLE"_s);
    QCOMPARE(name()->text(), u"PEOPLE"_s);
    QCOMPARE(m_bench->undoText(), u"rename of PERSON"_s);
    stack()->undo();
    QCOMPARE(name()->text(), u"PERSON"_s);
}

void TestEntityForm::aRefusedNameLeavesTheFieldAsItWas_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("boxes");
    QTest::addRow("empty") << u" "_s << 0;
    QTest::addRow("digit first") << u"1A"_s << 0;
    QTest::addRow("taken") << u"death"_s << 1;
    QTest::addRow("sign") << u"A B"_s << 1;
}

void TestEntityForm::aRefusedNameLeavesTheFieldAsItWas()
{
    QFETCH(const QString, typed);
    QFETCH(const int, boxes);
    const MessageBoxAnswer answer({u"OK"_s});
    m_bench->type(name(), typed);
    QCOMPARE(name()->text(), u"PERSON"_s);
    QCOMPARE(answer.shown().size(), boxes);
    QCOMPARE(stack()->count(), 0);
}

void TestEntityForm::offersTheVariablesForRoles()
{
    const QCompleter *completer = m_bench->control<QLineEdit>(u"Reference code variable"_s)->completer();
    QVERIFY(completer);
    const auto offered = [completer] {
        QStringList names;
        for (int row = 0; row < completer->model()->rowCount(); ++row)
            names.append(completer->model()->index(row, 0).data().toString());
        return names;
    };
    QCOMPARE(offered(), QStringList({u"SEX"_s, u"AGE"_s, u"WAGE"_s}));
    m_bench->selection.select(u"DEATH"_s);
    QCOMPARE(offered(), QStringList());
}

void TestEntityForm::clearingTheMarkAsksForThoseBelow_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("stays");
    QTest::addRow("yes") << u"Yes"_s << false;
    QTest::addRow("no") << u"No"_s << true;
}

void TestEntityForm::clearingTheMarkAsksForThoseBelow()
{
    QFETCH(const QString, answer);
    QFETCH(const bool, stays);
    const auto marks = [this] {
        return QList{m_bench->entity(u"HOUSEHOLD"_s)->getSelectable(),
                     m_bench->entity(u"PERSON"_s)->getSelectable(),
                     m_bench->entity(u"DEATH"_s)->getSelectable()};
    };
    m_bench->entity(u"HOUSEHOLD"_s)->setSelectable(true);
    m_bench->entity(u"PERSON"_s)->setSelectable(true);
    m_bench->document.commit();
    stack()->clear();
    m_bench->selection.select(u"HOUSEHOLD"_s);
    const MessageBoxAnswer boxes({answer});
    auto *box = m_bench->control<QCheckBox>(u"Selectable"_s);
    QVERIFY(box->isChecked());
    box->click();
    QCOMPARE(boxes.shown().size(), 1);
    QCOMPARE(box->isChecked(), stays);
    QCOMPARE(marks(), QList({stays, stays, false}));
    // The whole cascade is one step.
    QCOMPARE(stack()->count(), stays ? 0 : 1);
    stack()->undo();
    QCOMPARE(marks(), QList({true, true, false}));
    stack()->redo();
    QCOMPARE(marks(), QList({stays, stays, false}));
    QCOMPARE(boxes.shown().size(), 1);
    m_bench->document.commit();
    QCOMPARE(stack()->count(), stays ? 0 : 1);
}

void TestEntityForm::withoutACodeNothingIsSelectable()
{
    TDcEntity *person = m_bench->entity(u"PERSON"_s);
    person->setRefCode(u"AGE"_s);
    person->setSelectable(true);
    m_bench->document.commit();
    stack()->clear();
    auto *code = m_bench->control<QLineEdit>(u"Reference code variable"_s);
    m_bench->type(code, u"SEX"_s);
    QVERIFY(person->getSelectable());
    code->clear();
    QTest::keyClick(code, Qt::Key_Return);
    QCOMPARE(person->getRefCode(), QString());
    QVERIFY(!person->getSelectable());
    QVERIFY(!m_bench->control<QCheckBox>(u"Selectable"_s)->isChecked());
    stack()->undo();
    QCOMPARE(person->getRefCode(), u"SEX"_s);
    QVERIFY(person->getSelectable());
}

void TestEntityForm::showsWhatWasUndone()
{
    m_bench->type(m_bench->control<QLineEdit>(u"Entity label"_s), u"Person"_s);
    m_bench->control<QCheckBox>(u"Virtual"_s)->click();
    stack()->setIndex(0);
    QCOMPARE(m_bench->control<QLineEdit>(u"Entity label"_s)->text(), QString());
    QVERIFY(!m_bench->control<QCheckBox>(u"Virtual"_s)->isChecked());
    stack()->setIndex(2);
    QCOMPARE(m_bench->control<QLineEdit>(u"Entity label"_s)->text(), u"Person"_s);
    QVERIFY(m_bench->control<QCheckBox>(u"Virtual"_s)->isChecked());
}

void TestEntityForm::lookingAtNotesIsNoEdit()
{
    const QString notes = u"One line\r\nand\u00A0another"_s;
    m_bench->selection.entity()->setDocumentationEntity(notes);
    m_bench->document.commit();
    auto *field = m_bench->control<QPlainTextEdit>(u"Entity documentation"_s);
    QCOMPARE(field->toPlainText(), u"One line\nand another"_s);
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Backtab);
    QCOMPARE(m_bench->selection.entity()->getDocumentationEntity(), notes);
    QCOMPARE(stack()->count(), 1);
}

void TestEntityForm::forgetsWhatIsTypedWhenTheStructureChanges()
{
    name()->setFocus();
    QTest::keyClicks(name(), u"X"_s);
    m_bench->document.edit(u"removing"_s, [this] { // Would write to what is gone.
        delete m_bench->entity(u"HOUSEHOLD"_s)->getChildren()->takeFirst();
    });
    QCOMPARE(name()->text(), u"HOUSEHOLD"_s);
    name()->clearFocus();
    QCOMPARE(stack()->count(), 1);
}

void TestEntityForm::leavesLongTextsWhole()
{
    const QString label(40'000, u'x');
    m_bench->selection.entity()->setLabel(label);
    m_bench->document.commit();
    auto *field = m_bench->control<QLineEdit>(u"Entity label"_s);
    QCOMPARE(field->text().size(), label.size());
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(m_bench->selection.entity()->getLabel().size(), label.size());
}

QTEST_MAIN(TestEntityForm)
#include "tst_entityform.moc"
