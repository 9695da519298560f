#include "model/ValueLabelElement.h"
#include "tests/workbench/Bench.h"
#include "tests/workbench/Controls.h"
#include "tests/workbench/IsolatedSettings.h"
#include "workbench/dialogs/ExpressionDialog.h"
#include "workbench/dialogs/ExpressionEdit.h"
#include "workbench/dialogs/ReferenceList.h"
#include "workbench/MainWindow.h"
#include "workbench/panels/EmptyText.h"
#include "workbench/panels/EntityForm.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

class TestExpressionDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void startsAtTheSelection();
    void showsVariablesAndCategoriesOfTheCurrent();
    void showsItemsAsChosen();
    void filtersWithoutRegardToCase();
    void saysWhyAListIsEmpty();
    void listsBeginAtOneHeight();
    void addsToTheTextOfTheLastTime();
    void buildsAnExpressionByKeyboardAlone();
    void insertsByDoubleClick();
    void takesDrops_data();
    void takesDrops();
    void neverGivesItemsAwayInADrag();
    void insertsOperators();
    void undoesPieceByPiece();
    void pastesTextAsItIs();
    void saysWhatIsWrongWhileTyping();
    void copiesToTheClipboard();
    void insertsIntoNotes();
    void insertsIntoTheNotesThatAreBeingWritten();
    void keepsTheTextForTheNextTime();
    void closesWhenTheDictionaryGoes();
    void escapeCloses();

private:
    [[nodiscard]] QStringList rows(const ReferenceList *list) const;
    [[nodiscard]] QString text() const { return m_dialog->editor()->toPlainText(); }
    [[nodiscard]] QPushButton *button(const QString &name) const
    {
        return Controls::button<QPushButton>(m_dialog.get(), name);
    }
    void select(ReferenceList *list, int row)
    {
        list->view()->setCurrentIndex(list->view()->model()->index(row, 0));
    }

    std::unique_ptr<IsolatedSettings> m_settings;
    std::unique_ptr<Bench> m_bench;
    std::unique_ptr<ExpressionDialog> m_dialog;
};

void TestExpressionDialog::init()
{
    m_settings = std::make_unique<IsolatedSettings>();
    m_bench = std::make_unique<Bench>();
    TDcEntity *person = m_bench->entity(u"PERSON"_s);
    person->setLabel(u"Person"_s);
    TDcVariable *sex = Places::findVariable(person, u"SEX"_s);
    for (const auto &[code, label] : {std::pair(u"1"_s, u"Male"_s), std::pair(u"2"_s, u"Female"_s)}) {
        auto *category = new ValueLabelElement;
        category->setValue(code);
        category->setLabel(label);
        sex->addValueLabelElement(category);
    }
    m_bench->selection.select(person, sex);
    m_dialog = std::make_unique<ExpressionDialog>(m_bench->workspace());
    m_dialog->open();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

void TestExpressionDialog::cleanup()
{
    m_dialog.reset();
    m_bench.reset();
    m_settings.reset();
}

QStringList TestExpressionDialog::rows(const ReferenceList *list) const
{
    QStringList texts;
    for (int row = 0; row < list->view()->model()->rowCount(); ++row)
        texts.append(list->view()->model()->index(row, 0).data().toString());
    return texts;
}

void TestExpressionDialog::startsAtTheSelection()
{
    QCOMPARE(m_dialog->entities()->view()->currentIndex().data().toString(), u"PERSON - Person"_s);
    QCOMPARE(m_dialog->variables()->view()->currentIndex().data().toString(), u"SEX - Sex"_s);
    QCOMPARE(rows(m_dialog->categories()), QStringList({u"1-Male"_s, u"2-Female"_s}));
    QCOMPARE(QApplication::focusWidget(), m_dialog->editor());
    QCOMPARE(m_dialog->findChild<QLabel *>(u"expressionStatus"_s)->text(), u"The expression is empty."_s);
}

void TestExpressionDialog::showsVariablesAndCategoriesOfTheCurrent()
{
    QCOMPARE(rows(m_dialog->variables()).size(), 3);
    select(m_dialog->variables(), 1);
    QCOMPARE(rows(m_dialog->categories()), QStringList());
    select(m_dialog->entities(), 0);
    QCOMPARE(rows(m_dialog->variables()), QStringList());
    QCOMPARE(rows(m_dialog->categories()), QStringList());
    QVERIFY(!button(u"Insert Variable"_s)->isEnabled());
    select(m_dialog->entities(), 2);
    QCOMPARE(rows(m_dialog->variables()).size(), 3);
    QVERIFY(button(u"Insert Variable"_s)->isEnabled());
}

void TestExpressionDialog::showsItemsAsChosen()
{
    auto *modes = m_dialog->variables()->findChild<QComboBox *>();
    select(m_dialog->variables(), 2);
    modes->setCurrentIndex(0);
    QCOMPARE(rows(m_dialog->variables()), QStringList({u"SEX"_s, u"AGE"_s, u"WAGE"_s}));
    QCOMPARE(m_dialog->variables()->view()->currentIndex().row(), 2);
    modes->setCurrentIndex(1);
    QCOMPARE(rows(m_dialog->variables()), QStringList({u"Sex"_s, u"Age"_s, u"Monthly wage"_s}));
    // What is inserted does not depend on what is shown.
    button(u"Insert Variable"_s)->click();
    QCOMPARE(text(), u"PERSON.WAGE"_s);
    m_dialog->entities()->findChild<QComboBox *>()->setCurrentIndex(0);
    QCOMPARE(rows(m_dialog->entities()).at(2), u"PERSON"_s);
    QCOMPARE(m_dialog->variables()->view()->currentIndex().row(), 2);
    QVERIFY(!m_dialog->categories()->findChild<QComboBox *>());
}

void TestExpressionDialog::filtersWithoutRegardToCase()
{
    auto *filter = m_dialog->variables()->findChild<QLineEdit *>();
    QTest::keyClicks(filter, u"mONTH"_s);
    QCOMPARE(rows(m_dialog->variables()), QStringList({u"WAGE - Monthly wage"_s}));
    QVERIFY(m_dialog->variables()->view()->currentIndex().isValid());
    QTest::keyClicks(filter, u"?"_s);
    QCOMPARE(rows(m_dialog->variables()), QStringList());
    filter->clear();
    QCOMPARE(rows(m_dialog->variables()).size(), 3);
    QVERIFY(m_dialog->variables()->view()->currentIndex().isValid());
}

void TestExpressionDialog::saysWhyAListIsEmpty()
{
    const auto words = [](const ReferenceList *list) {
        return static_cast<EmptyText<QListView> *>(list->view())->emptyText();
    };
    m_dialog->variables()->findChild<QLineEdit *>()->setText(u"nowhere"_s);
    QCOMPARE(rows(m_dialog->variables()), QStringList());
    QCOMPARE(words(m_dialog->variables()), u"Nothing matches the filter."_s);
    select(m_dialog->entities(), 0);
    QCOMPARE(words(m_dialog->variables()), u"The entity has no variables."_s);
    QCOMPARE(words(m_dialog->categories()), u"The variable has no value labels."_s);
}

void TestExpressionDialog::listsBeginAtOneHeight()
{
    const int height = m_dialog->entities()->view()->geometry().top();
    QCOMPARE(m_dialog->variables()->view()->geometry().top(), height);
    QCOMPARE(m_dialog->categories()->view()->geometry().top(), height);
}

void TestExpressionDialog::addsToTheTextOfTheLastTime()
{
    m_dialog->editor()->setPlainText(u"PERSON.AGE"_s);
    m_dialog->close();
    m_dialog = std::make_unique<ExpressionDialog>(m_bench->workspace());
    m_dialog->editor()->insertPiece(u">="_s);
    QCOMPARE(text(), u"PERSON.AGE >="_s);
}

void TestExpressionDialog::buildsAnExpressionByKeyboardAlone()
{
    const auto key = [](Qt::Key code, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), code, modifiers);
    };
    key(Qt::Key_V, Qt::AltModifier);
    QCOMPARE(QApplication::focusWidget(), m_dialog->variables()->view());
    key(Qt::Key_Return);
    key(Qt::Key_X, Qt::AltModifier);
    QCOMPARE(QApplication::focusWidget(), m_dialog->editor());
    QTest::keyClicks(m_dialog->editor(), u"="_s);
    key(Qt::Key_C, Qt::AltModifier);
    key(Qt::Key_Down);
    key(Qt::Key_Enter);
    QCOMPARE(text(), u"PERSON.SEX= 2"_s);
    key(Qt::Key_E, Qt::AltModifier);
    QCOMPARE(QApplication::focusWidget(), m_dialog->entities()->view());
    // Tab reaches the button of the list, which inserts too.
    key(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), button(u"Insert Entity"_s));
    key(Qt::Key_Space);
    QCOMPARE(text(), u"PERSON.SEX= 2 PERSON"_s);
}

void TestExpressionDialog::insertsByDoubleClick()
{
    QListView *view = m_dialog->variables()->view();
    const QPoint place = view->visualRect(view->model()->index(1, 0)).center();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(text(), u"PERSON.AGE"_s);
}

void TestExpressionDialog::takesDrops_data()
{
    QTest::addColumn<int>("list");
    QTest::addColumn<QString>("result");
    QTest::addRow("entity") << 0 << u"1 = PERSON AND"_s;
    QTest::addRow("variable") << 1 << u"1 = PERSON.SEX AND"_s;
    QTest::addRow("category") << 2 << u"1 = 1 AND"_s;
}

void TestExpressionDialog::takesDrops()
{
    QFETCH(const int, list);
    const QListView *view =
        QList{m_dialog->entities(), m_dialog->variables(), m_dialog->categories()}.at(list)->view();
    ExpressionEdit *editor = m_dialog->editor();
    editor->setPlainText(u"1 = AND"_s);
    QTextCursor behind = editor->textCursor();
    behind.setPosition(3);
    const QPoint place = editor->cursorRect(behind).center();

    const std::unique_ptr<QMimeData> data(view->model()->mimeData({view->currentIndex()}));
    QVERIFY(data->formats().size() > 1); // The layer's payload is still there.
    QDragEnterEvent enter(place, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(editor->viewport(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(place, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(editor->viewport(), &drop);
    QTEST(text(), "result");
}

void TestExpressionDialog::neverGivesItemsAwayInADrag()
{
    for (const ReferenceList *list : {m_dialog->entities(), m_dialog->variables(), m_dialog->categories()}) {
        QCOMPARE(list->view()->model()->supportedDragActions(), Qt::DropActions(Qt::CopyAction));
        QVERIFY(list->view()->dragEnabled());
    }
}

void TestExpressionDialog::insertsOperators()
{
    QStringList pieces;
    const QList<QToolButton *> buttons = m_dialog->findChildren<QToolButton *>();
    for (QToolButton *operators : buttons) {
        if (operators->text().isEmpty())
            continue;
        QVERIFY(!operators->accessibleName().isEmpty());
        operators->click();
        pieces.append(operators->text());
    }
    QCOMPARE(pieces.join(u' '), u"= <> < <= > >= AND OR NOT ( )"_s);
    QCOMPARE(text(), u"= <> < <= > >= AND OR NOT ()"_s);
}

void TestExpressionDialog::undoesPieceByPiece()
{
    ExpressionEdit *editor = m_dialog->editor();
    editor->insertPiece(u"PERSON.AGE"_s);
    editor->insertPiece(u">="_s);
    editor->selectAll();
    editor->insertPiece(u"NOT"_s);
    QCOMPARE(text(), u"NOT"_s);
    QTest::keyClick(editor, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(text(), u"PERSON.AGE >="_s);
    QTest::keyClick(editor, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(text(), u"PERSON.AGE"_s);
    QTest::keyClick(editor, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(text(), u"PERSON.AGE >="_s);
    QVERIFY(!m_bench->document.undoStack()->canUndo());
}

void TestExpressionDialog::pastesTextAsItIs()
{
    m_dialog->editor()->setPlainText(u"PERSON"_s);
    m_dialog->editor()->moveCursor(QTextCursor::End);
    QApplication::clipboard()->setText(u".AGE"_s);
    QTest::keyClick(m_dialog->editor(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(text(), u"PERSON.AGE"_s);
}

void TestExpressionDialog::saysWhatIsWrongWhileTyping()
{
    const auto *status = m_dialog->findChild<QLabel *>(u"expressionStatus"_s);
    QTest::keyClicks(m_dialog->editor(), u"PERSON.AGE = (1"_s);
    QCOMPARE(status->text(), u"This parenthesis is never closed."_s);
    QCOMPARE(m_dialog->editor()->extraSelections().size(), 1);
    QCOMPARE(m_dialog->editor()->extraSelections().first().cursor.selectedText(), u"("_s);
    QVERIFY(button(u"Copy to Clipboard"_s)->isEnabled()); // It only tells.
    QTest::keyClicks(m_dialog->editor(), u")"_s);
    QCOMPARE(status->text(), u"The expression is complete."_s);
    QVERIFY(m_dialog->editor()->extraSelections().isEmpty());
}

void TestExpressionDialog::copiesToTheClipboard()
{
    QVERIFY(!button(u"Copy to Clipboard"_s)->isEnabled());
    m_dialog->editor()->setPlainText(u" PERSON.AGE = 1\n"_s);
    button(u"Copy to Clipboard"_s)->click();
    QCOMPARE(QApplication::clipboard()->text(), u"PERSON.AGE = 1"_s);
    QVERIFY(m_dialog->isVisible());
}

void TestExpressionDialog::insertsIntoNotes()
{
    QVERIFY(!button(u"Insert into Notes"_s)->isVisible());
    QPlainTextEdit notes;
    notes.setPlainText(u"Filter: "_s);
    notes.moveCursor(QTextCursor::End);
    m_dialog->setTarget(&notes);
    QVERIFY(button(u"Insert into Notes"_s)->isVisible());
    QSignalSpy used(m_dialog.get(), &ExpressionDialog::used);
    m_dialog->editor()->setPlainText(u"PERSON.AGE = 1"_s);
    button(u"Insert into Notes"_s)->click();
    QCOMPARE(used.size(), 1);
    QCOMPARE(used.first().first().toString(), u"PERSON.AGE = 1"_s);
    QCOMPARE(notes.toPlainText(), u"Filter: PERSON.AGE = 1"_s);
    QVERIFY(!m_dialog->isVisible());
}

void TestExpressionDialog::insertsIntoTheNotesThatAreBeingWritten()
{
    m_dialog.reset();
    MainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    auto *form = window.findChild<EntityForm *>();
    auto *notes = form->findChild<QPlainTextEdit *>();
    notes->setFocus();
    QTest::keyClicks(notes, u"Only if "_s);
    (*window.actions())[ActionId::ToolsExpression]->trigger();
    auto *dialog = window.findChild<ExpressionDialog *>(u"expressionDialog"_s);
    QVERIFY(dialog->isModal());
    dialog->editor()->setPlainText(u"1 = 1"_s);
    const auto buttons = dialog->findChildren<QPushButton *>();
    for (QPushButton *insert : buttons) {
        if (insert->text() == u"&Insert into Notes"_s)
            insert->click();
    }
    QTRY_COMPARE(QApplication::focusWidget(), notes);
    window.findChild<QTableView *>()->setFocus();
    QCOMPARE(window.document()->root()->getDocumentationEntity(), u"Only if 1 = 1"_s);
}

void TestExpressionDialog::keepsTheTextForTheNextTime()
{
    QTest::keyClicks(m_dialog->editor(), u"PERSON.A"_s);
    m_dialog->reject();
    const ExpressionDialog next(m_bench->workspace());
    QCOMPARE(next.editor()->toPlainText(), u"PERSON.A"_s);
}

void TestExpressionDialog::closesWhenTheDictionaryGoes()
{
    m_bench->document.clear();
    QVERIFY(!m_dialog->isVisible());
}

void TestExpressionDialog::escapeCloses()
{
    QTest::keyClick(m_dialog->editor(), Qt::Key_Escape);
    QVERIFY(!m_dialog->isVisible());
}

QTEST_MAIN(TestExpressionDialog)
#include "tst_expressiondialog.moc"
