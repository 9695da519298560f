#include "tests/support/MessageBoxAnswer.h"
#include "tests/support/Trees.h"
#include "tests/workbench/Controls.h"
#include "tests/workbench/IsolatedSettings.h"
#include "tests/workbench/LabelledVariables.h"
#include "workbench/FileCommands.h"
#include "workbench/MainWindow.h"
#include "workbench/operations/Places.h"
#include "workbench/panels/EntityTreePanel.h"
#include "workbench/panels/VariableForm.h"
#include "workbench/panels/VariableTablePanel.h"

#include <QAction>
#include <QDialog>
#include <QDropEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>
#include <QTableView>
#include <QTest>
#include <QTreeView>
#include <QUrl>

using namespace Qt::Literals::StringLiterals;

class TestMainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void worksByKeyboardAlone();
    void entersWhatIsTypedBeforeAnAction_data();
    void entersWhatIsTypedBeforeAnAction();
    void goesOnInTheTableAfterAnAction();
    void undoesFromAFormField();
    void namesTheStepInTheMenu();
    void asksBeforeWorkIsLost_data();
    void asksBeforeWorkIsLost();
    void opensADroppedFile();
    void remembersFilesAndLayout();
    void everyControlHasAnAccessibleName();
    void everyControlOfADialogHasAnAccessibleName_data();
    void everyControlOfADialogHasAnAccessibleName();
    void shortcutsAreUnique();

private:
    [[nodiscard]] QString sample();

    std::unique_ptr<IsolatedSettings> m_settings;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MainWindow> m_window;
};

void TestMainWindow::initTestCase()
{
    qApp->setQuitOnLastWindowClosed(false);
}

void TestMainWindow::init()
{
    m_settings = std::make_unique<IsolatedSettings>();
    m_folder = std::make_unique<QTemporaryDir>();
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestMainWindow::cleanup()
{
    m_window.reset();
    m_settings.reset();
}

QString TestMainWindow::sample()
{
    const QString path = m_folder->filePath(u"census.mvdb"_s);
    Document document;
    document.edit(u"adding"_s, [&document] {
        document.root()->setName(u"CENSUS"_s);
        document.root()->addVariables(makeVariable(u"SEX"_s));
        document.root()->addVariables(makeVariable(u"AGE"_s));
    });
    return document.save(path) ? path : QString();
}

void TestMainWindow::worksByKeyboardAlone()
{
    QVERIFY(m_window->files()->open(sample()));
    auto *table = m_window->findChild<VariableTablePanel *>();
    table->view()->setFocus();
    QTest::keyClick(table->view(), Qt::Key_Down);
    QCOMPARE(m_window->selection()->variable()->getName(), u"AGE"_s);
    QTest::keyClick(table->view(), Qt::Key_F2);
    QWidget *editor = QApplication::focusWidget();
    QVERIFY(qobject_cast<QLineEdit *>(editor));
    QTest::keyClicks(editor, u"YEARS"_s);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_VERIFY(Places::findVariable(m_window->document()->root(), u"YEARS"_s));
    QVERIFY(m_window->isWindowModified());

    QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!m_window->isWindowModified());
    QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(Places::findVariable(m_window->document()->root(), u"AGE"_s));
    QVERIFY(m_window->isWindowModified());

    QTest::keyClick(m_window.get(), Qt::Key_L, Qt::ControlModifier);
    QCOMPARE(QApplication::focusWidget(), table->filterField());
}

void TestMainWindow::entersWhatIsTypedBeforeAnAction_data()
{
    QTest::addColumn<ActionId>("id");
    QTest::addRow("add a variable") << ActionId::VariableAdd;
    QTest::addRow("add a value label") << ActionId::LabelAdd;
    QTest::addRow("add an entity") << ActionId::EntityAdd;
    QTest::addRow("save") << ActionId::FileSave;
}

void TestMainWindow::entersWhatIsTypedBeforeAnAction()
{
    QFETCH(const ActionId, id);
    QVERIFY(m_window->files()->open(sample()));
    m_window->document()->root()->setLabel(u"Changed"_s);
    m_window->document()->commit();
    TDcVariable *variable = m_window->selection()->variable();
    auto *field = m_window->findChild<VariableForm *>()->findChild<QLineEdit *>();
    QCOMPARE(field->text(), u"SEX"_s);
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, u"GENDER"_s);
    (*m_window->actions())[id]->trigger();
    QCOMPARE(variable->getName(), u"GENDER"_s);
}

void TestMainWindow::goesOnInTheTableAfterAnAction()
{
    QVERIFY(m_window->files()->open(sample()));
    m_window->document()->root()->setLabel(u"Changed"_s);
    m_window->document()->commit();
    QTableView *view = m_window->findChild<VariableTablePanel *>()->view();
    view->setFocus();
    QTest::keyClick(view, Qt::Key_F2);
    QWidget *editor = QApplication::focusWidget();
    QVERIFY(qobject_cast<QLineEdit *>(editor));
    QTest::keyClicks(editor, u"GENDER"_s);
    QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier);
    QVERIFY(Places::findVariable(m_window->document()->root(), u"GENDER"_s));
    QVERIFY(!m_window->isWindowModified());
    QCOMPARE(QApplication::focusWidget(), view);
}

void TestMainWindow::undoesFromAFormField()
{
    QVERIFY(m_window->files()->open(sample()));
    (*m_window->actions())[ActionId::VariableRemove]->trigger();
    QVERIFY(!Places::findVariable(m_window->document()->root(), u"SEX"_s));
    auto *field = m_window->findChild<VariableForm *>()->findChild<QLineEdit *>();
    QTest::mouseClick(field, Qt::LeftButton);
    QCOMPARE(QApplication::focusWidget(), field);
    QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(Places::findVariable(m_window->document()->root(), u"SEX"_s));
    QVERIFY(!m_window->isWindowModified());
}

void TestMainWindow::namesTheStepInTheMenu()
{
    QVERIFY(m_window->files()->open(sample()));
    auto *tree = m_window->findChild<EntityTreePanel *>();
    QVERIFY(tree->view()->model()->setData(tree->view()->currentIndex(), u"SURVEY"_s, Qt::EditRole));
    QCOMPARE((*m_window->actions())[ActionId::EditUndo]->text(), u"&Undo rename of CENSUS"_s);
}

void TestMainWindow::asksBeforeWorkIsLost_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("closes");
    QTest::addColumn<QString>("saved");
    QTest::addRow("save") << u"Save"_s << true << u"Changed"_s;
    QTest::addRow("discard") << u"Discard"_s << true << QString();
    QTest::addRow("cancel") << u"Cancel"_s << false << QString();
    QTest::addRow("escape") << QString() << false << QString();
}

void TestMainWindow::asksBeforeWorkIsLost()
{
    QFETCH(const QString, answer);
    QFETCH(const bool, closes);
    QFETCH(const QString, saved);
    const QString path = sample();
    QVERIFY(m_window->files()->open(path));
    m_window->document()->root()->setLabel(u"Changed"_s);
    m_window->document()->commit();
    {
        const MessageBoxAnswer box({answer});
        QCOMPARE(m_window->close(), closes);
        QCOMPARE(box.shown().size(), 1);
        QCOMPARE(box.shown().first().defaultButton, u"Save"_s);
    }
    Document after;
    QVERIFY(after.open(path));
    QCOMPARE(after.root()->getLabel(), saved);
}

void TestMainWindow::opensADroppedFile()
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(sample())});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_window.get(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    const MessageBoxAnswer box({u"Discard"_s});
    m_window->document()->root()->setLabel(u"Changed"_s);
    m_window->document()->commit();
    QApplication::sendEvent(m_window.get(), &drop);
    // Nobody is asked anything while the program that the file comes from waits.
    QVERIFY(box.shown().isEmpty());
    QTRY_COMPARE(m_window->windowTitle(), u"census.mvdb[*] – Quillon Workbench"_s);
    QCOMPARE(box.shown().size(), 1);
}

void TestMainWindow::remembersFilesAndLayout()
{
    const QString path = sample();
    QVERIFY(m_window->files()->open(path));
    m_window->resize(1100, 650);
    QVERIFY(m_window->close());
    QCOMPARE(RecentFiles::paths(), QStringList({path}));
    MainWindow next;
    QCOMPARE(next.size(), QSize(1100, 650));
}

void TestMainWindow::everyControlHasAnAccessibleName()
{
    QCOMPARE(Controls::nameless(m_window.get()).join(u", "_s), QString());
}

void TestMainWindow::everyControlOfADialogHasAnAccessibleName_data()
{
    QTest::addColumn<ActionId>("opens");
    QTest::addRow("expression") << ActionId::ToolsExpression;
    QTest::addRow("areas") << ActionId::ToolsAreas;
    QTest::addRow("run configuration") << ActionId::ToolsNewRun;
    QTest::addRow("many variables") << ActionId::VariableEditTogether;
    QTest::addRow("copied values") << ActionId::ValuesCopyTo;
    QTest::addRow("label sets") << ActionId::ValuesLabelSets;
}

void TestMainWindow::everyControlOfADialogHasAnAccessibleName()
{
    QFETCH(const ActionId, opens);
    addLabelledVariables(*m_window);
    (*m_window->actions())[opens]->trigger();
    const auto *dialog = m_window->findChild<QDialog *>();
    QVERIFY(dialog);
    QCOMPARE(Controls::nameless(dialog).join(u", "_s), QString());
    m_window->document()->undoStack()->setClean();
}

void TestMainWindow::shortcutsAreUnique()
{
    QStringList keys;
    const QList<QAction *> actions = m_window->actions()->all();
    for (const QAction *action : actions) {
        for (const QKeySequence &key : action->shortcuts())
            keys.append(key.toString());
    }
    const qsizetype all = keys.size();
    keys.removeDuplicates();
    QCOMPARE(keys.size(), all);
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
