#include "documents/DictionaryCopy.h"
#include "documents/DictionaryEquality.h"
#include "tests/support/Trees.h"
#include "tests/workbench/IsolatedSettings.h"
#include "workbench/dialogs/MoveDialog.h"
#include "workbench/MainWindow.h"
#include "workbench/operations/Places.h"

#include <QAccessible>
#include <QAction>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTreeView>

using namespace Qt::Literals::StringLiterals;

class TestMoveDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void movesAnEntityByKeyboard();
    void movesVariablesByKeyboard();
    void offersOnlyWhereItCanStand();
    void saysWhatWillChange();
    void readsThePreviewAloud();
    void saysOnlySoMuch();
    void changesNothingWhenCancelled();
    void closesWhenTheDictionaryChanges();
    void isOffWhereNothingCanBeMoved();
    void everyControlHasAnAccessibleName();

private:
    [[nodiscard]] QAction *action(ActionId id) { return (*m_window->actions())[id]; }
    [[nodiscard]] TDcEntity *entity(const QString &name)
    {
        return Places::findEntity(m_window->document()->root(), name);
    }
    MoveDialog *open(ActionId id);
    [[nodiscard]] static QTreeView *view(const MoveDialog *dialog)
    {
        return dialog->findChild<QTreeView *>();
    }
    [[nodiscard]] static QString preview(const MoveDialog *dialog)
    {
        return dialog->findChild<QLabel *>(u"movePreview"_s)->text();
    }

    std::unique_ptr<IsolatedSettings> m_settings;
    std::unique_ptr<MainWindow> m_window;
};

void TestMoveDialog::init()
{
    m_settings = std::make_unique<IsolatedSettings>();
    m_window = std::make_unique<MainWindow>();
    Document &document = *m_window->document();
    document.edit(u"adding"_s, [&document] {
        std::unique_ptr<TDcEntity> tree = makeEntities(u"CENSUS\n"
                                                       "    HOUSEHOLD\n"
                                                       "        PERSON\n"
                                                       "            JOB\n"
                                                       "        DEATH\n"
                                                       "    FARM\n");
        TDcEntity *person = findEntity(tree.get(), u"PERSON");
        for (const char *name : {"SEX", "AGE", "WAGE"})
            person->addVariables(makeVariable(QString::fromLatin1(name)));
        findEntity(tree.get(), u"FARM")->addVariables(makeVariable(u"AGE"_s));
        document.root()->setName(u"CENSUS"_s);
        while (!tree->getChildren()->isEmpty())
            document.root()->getChildren()->append(tree->getChildren()->takeFirst());
    });
    document.undoStack()->clear();
    m_window->show();
    m_window->selection()->select(u"PERSON/AGE"_s);
}

void TestMoveDialog::cleanup()
{
    m_window.reset();
    m_settings.reset();
}

MoveDialog *TestMoveDialog::open(ActionId id)
{
    action(id)->trigger();
    auto *dialog = m_window->findChild<MoveDialog *>();
    if (!dialog)
        return nullptr;
    dialog->activateWindow();
    return QTest::qWaitForWindowActive(dialog) ? dialog : nullptr;
}

void TestMoveDialog::movesAnEntityByKeyboard()
{
    const auto before = DictionaryCopy::copy(*m_window->document()->root());
    MoveDialog *dialog = open(ActionId::EntityMoveTo);
    QVERIFY(dialog);
    QCOMPARE(dialog->windowTitle(), u"Move PERSON"_s);
    QVERIFY(view(dialog)->hasFocus());
    QCOMPARE(view(dialog)->currentIndex().data(), u"CENSUS"_s);
    QTest::keyClick(view(dialog), Qt::Key_Down); // Passes over the household, PERSON and JOB.
    QCOMPARE(view(dialog)->currentIndex().data(), u"DEATH"_s);
    QTest::keyClick(view(dialog), Qt::Key_Down);
    QCOMPARE(view(dialog)->currentIndex().data(), u"FARM"_s);
    QTest::keyClick(view(dialog), Qt::Key_Return);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(Places::parentOf(m_window->document()->root(), entity(u"PERSON"_s)), entity(u"FARM"_s));
    QCOMPARE(entity(u"JOB"_s)->getLevel(), 4);
    QCOMPARE(m_window->selection()->entity(), entity(u"PERSON"_s));
    QCOMPARE(m_window->document()->undoStack()->count(), 1);
    QCOMPARE(m_window->document()->undoStack()->undoText(), u"moving PERSON to FARM"_s);
    m_window->document()->undoStack()->undo();
    QVERIFY(DictionaryEquality::equal(*m_window->document()->root(), *before));
}

void TestMoveDialog::movesVariablesByKeyboard()
{
    const QList<TDcVariable *> all = *entity(u"PERSON"_s)->getVariables();
    m_window->selection()->setVariables({all.at(1), all.at(2)}, all.at(2));
    MoveDialog *dialog = open(ActionId::VariableMoveTo);
    QVERIFY(dialog);
    QCOMPARE(dialog->windowTitle(), u"Move 2 Variables"_s);
    QTest::keyClick(view(dialog), Qt::Key_End);
    QTest::keyClick(view(dialog), Qt::Key_Return);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(entity(u"PERSON"_s)->getVariables()->size(), 1);
    QCOMPARE(m_window->selection()->entity(), entity(u"FARM"_s));
    QCOMPARE(m_window->selection()->variables(), QList<TDcVariable *>({all.at(1), all.at(2)}));
    QCOMPARE(all.at(1)->getName(), u"AGE_2"_s);
    QCOMPARE(m_window->document()->undoStack()->count(), 1);
    QCOMPARE(m_window->document()->undoStack()->undoText(), u"moving 2 variables to FARM"_s);
    m_window->document()->undoStack()->undo();
    QCOMPARE(entity(u"PERSON"_s)->getVariables()->size(), 3);
    QCOMPARE(entity(u"FARM"_s)->getVariables()->size(), 1);
    m_window->document()->undoStack()->redo();
    QCOMPARE(entity(u"FARM"_s)->getVariables()->size(), 3);
}

void TestMoveDialog::offersOnlyWhereItCanStand()
{
    const MoveDialog *dialog = open(ActionId::EntityMoveTo);
    QVERIFY(dialog);
    const QAbstractItemModel *model = view(dialog)->model();
    const QModelIndex household = model->index(0, 0, model->index(0, 0));
    const QModelIndex person = model->index(0, 0, household);
    for (const QModelIndex &index : {household, person, model->index(0, 0, person)})
        QVERIFY(!index.flags().testFlag(Qt::ItemIsEnabled));
    // Whoever gets there nevertheless can do nothing.
    view(dialog)->selectionModel()->setCurrentIndex(person, QItemSelectionModel::NoUpdate);
    QVERIFY(!dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->isEnabled());
    QCOMPARE(preview(dialog), u"Choose an entity."_s);
}

void TestMoveDialog::saysWhatWillChange()
{
    entity(u"PERSON"_s)->setRefCode(u"AGE"_s);
    m_window->document()->commit();
    const MoveDialog *dialog = open(ActionId::VariableMoveTo);
    QVERIFY(dialog);
    QCOMPARE(dialog->windowTitle(), u"Move AGE"_s);
    QCOMPARE(preview(dialog),
             u"Variables that will stand at the end of CENSUS: 1\n"
             "PERSON will have no reference code and not be selectable."_s);
    QTest::keyClick(view(dialog), Qt::Key_End);
    QCOMPARE(preview(dialog),
             u"Variables that will stand at the end of FARM: 1\n"
             "AGE will be called AGE_2, since the name is taken there.\n"
             "PERSON will have no reference code and not be selectable."_s);
}

void TestMoveDialog::readsThePreviewAloud()
{
    const MoveDialog *dialog = open(ActionId::EntityMoveTo);
    QVERIFY(dialog);
    for (const int key : {int(Qt::Key_Home), int(Qt::Key_End)}) {
        QTest::keyClick(view(dialog), Qt::Key(key));
        auto *label = dialog->findChild<QLabel *>(u"movePreview"_s);
        QCOMPARE(QAccessible::queryAccessibleInterface(label)->text(QAccessible::Name), preview(dialog));
        QCOMPARE(QAccessible::queryAccessibleInterface(view(dialog))->text(QAccessible::Description),
                 preview(dialog));
    }
}

void TestMoveDialog::saysOnlySoMuch()
{
    m_window->document()->edit(u"adding"_s, [this] {
        for (int i = 0; i < 20; ++i) {
            entity(u"PERSON"_s)->addVariables(makeVariable(u"V%1"_s.arg(i)));
            entity(u"CENSUS"_s)->addVariables(makeVariable(u"V%1"_s.arg(i)));
        }
    });
    const QList<TDcVariable *> all = *entity(u"PERSON"_s)->getVariables();
    m_window->selection()->setVariables(all, all.first());
    const MoveDialog *dialog = open(ActionId::VariableMoveTo);
    QVERIFY(dialog);
    const QStringList lines = preview(dialog).split(u'\n');
    QCOMPARE(lines.size(), 8);
    QCOMPARE(lines.last(), u"There are 14 more changes."_s);
}

void TestMoveDialog::changesNothingWhenCancelled()
{
    MoveDialog *dialog = open(ActionId::VariableMoveTo);
    QVERIFY(dialog);
    QTest::keyClick(view(dialog), Qt::Key_Escape);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(m_window->document()->undoStack()->count(), 0);
}

void TestMoveDialog::closesWhenTheDictionaryChanges()
{
    MoveDialog *dialog = open(ActionId::EntityMoveTo);
    QVERIFY(dialog);
    m_window->document()->clear();
    QVERIFY(!dialog->isVisible());
}

void TestMoveDialog::isOffWhereNothingCanBeMoved()
{
    QVERIFY(action(ActionId::EntityMoveTo)->isEnabled());
    QVERIFY(action(ActionId::VariableMoveTo)->isEnabled());
    m_window->selection()->select(u"CENSUS"_s);
    QVERIFY(!action(ActionId::EntityMoveTo)->isEnabled());
    QVERIFY(!action(ActionId::VariableMoveTo)->isEnabled()); // It has none.
    m_window->document()->clear();
    m_window->document()->edit(
        u"adding"_s, [this] { m_window->document()->root()->addVariables(makeVariable(u"AGE"_s)); });
    QVERIFY(!action(ActionId::VariableMoveTo)->isEnabled()); // There is no other entity.
}

void TestMoveDialog::everyControlHasAnAccessibleName()
{
    const MoveDialog *dialog = open(ActionId::VariableMoveTo);
    QVERIFY(dialog);
    const auto widgets = dialog->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible())
            continue;
        const QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(widget);
        QVERIFY2(spoken && !spoken->text(QAccessible::Name).isEmpty(), widget->metaObject()->className());
    }
}

QTEST_MAIN(TestMoveDialog)
#include "tst_movedialog.moc"
