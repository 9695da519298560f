#include "documents/RunConfigurationFile.h"
#include "model/Config.h"
#include "model/MetadataVariables.h"
#include "model/ValueLabelElement.h"
#include "tests/documents/DataFileWriter.h"
#include "tests/support/Trees.h"
#include "tests/workbench/IsolatedSettings.h"
#include "tests/workbench/Person.h"
#include "workbench/FileCommands.h"
#include "workbench/MainWindow.h"
#include "workbench/operations/Places.h"
#include "workbench/panels/EntityTreePanel.h"
#include "workbench/panels/RangesPanel.h"
#include "workbench/panels/SourcesPanel.h"
#include "workbench/panels/SourceTab.h"
#include "workbench/panels/ValueLabelsPanel.h"
#include "workbench/panels/VariableTablePanel.h"
#include "workbench/run/RunWizard.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenuBar>
#include <QTableView>
#include <QTest>
#include <QTreeView>
#include <QUndoStack>

using namespace Qt::Literals::StringLiterals;

/// What a person does who has never seen the program: each task with the mouse, and by keyboard alone.
///
/// Each task starts from the file and ends with looking at the dictionary itself. The whole way through, from
/// opening to the saved file, is the last one.
class TestEndToEnd : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void opensADictionary_data() { hands(); }
    void opensADictionary();
    void renamesAnEntity_data() { hands(); }
    void renamesAnEntity();
    void findsAVariableAmongThousands_data() { hands(); }
    void findsAVariableAmongThousands();
    void editsIt_data() { hands(); }
    void editsIt();
    void givesItARange_data() { hands(); }
    void givesItARange();
    void givesItValueLabels_data() { hands(); }
    void givesItValueLabels();
    void takesFieldsFromADataFile_data() { hands(); }
    void takesFieldsFromADataFile();
    void resolvesAClash_data() { hands(); }
    void resolvesAClash();
    void saves_data() { hands(); }
    void saves();
    void makesARunConfiguration_data() { hands(); }
    void makesARunConfiguration();

private:
    static void hands();
    void openDataFile();
    void addFirstField();
    [[nodiscard]] TDcEntity *person()
    {
        return Places::findEntity(m_window->document()->root(), u"PERSON"_s);
    }
    [[nodiscard]] TDcVariable *variable(const QString &name) { return Places::findVariable(person(), name); }
    [[nodiscard]] QTableView *table() { return m_window->findChild<VariableTablePanel *>()->view(); }
    [[nodiscard]] QTableView *fields() { return m_window->findChild<SourcesPanel *>()->dataset()->view(); }
    // What the person does more than once.
    void retype(const QString &text);
    void typeIntoFileDialog(const QString &path);
    /// Adds a range or a value label of two cells.
    void addItem(ItemsPanel *panel, const QString &action, const QString &key, const QString &first,
                 const QString &second);

    // In the wizard.
    void goOn();
    void takeAll(const QString &button);

    std::unique_ptr<IsolatedSettings> m_settings;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MainWindow> m_window;
    QString m_dictionary;
    QString m_dataFile;
    Person m_person;
    bool m_mouse = false;
};

void TestEndToEnd::hands()
{
    QTest::addColumn<bool>("mouse");
    QTest::newRow("with the mouse") << true;
    QTest::newRow("by keyboard alone") << false;
}

void TestEndToEnd::initTestCase()
{
    QCOMPARE(QGuiApplication::platformName(), u"xcb"_s);
    qApp->setQuitOnLastWindowClosed(false);
}

void TestEndToEnd::init()
{
    QFETCH(bool, mouse);
    m_mouse = mouse;
    m_settings = std::make_unique<IsolatedSettings>();
    m_folder = std::make_unique<QTemporaryDir>();
    m_dictionary = m_folder->filePath(u"census.mvdb"_s);
    Document document;
    document.root()->setName(u"CENSUS"_s);
    auto *entity = new TDcEntity;
    entity->setName(u"PERSON"_s);
    entity->setLevel(2);
    document.root()->getChildren()->append(entity);
    constexpr int variables = 3000;
    for (int number = 1; number <= variables; ++number)
        entity->addVariables(makeVariable(u"V%1"_s.arg(number, 4, 10, QLatin1Char('0')), {}, u"Question"_s));
    QVERIFY(document.save(m_dictionary));

    DataFileWriter writer(readstat_begin_writing_sav);
    writer.addNumbers("SEX", "Sex", "F1.0", {1, 2, 2});
    writer.addNumbers("AGE", "Age in years", "F3.0", {4, 30, 75});
    m_dataFile = m_folder->filePath(u"people.sav"_s);
    QFile file(m_dataFile);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(writer.bytes()) > 0);

    m_window = std::make_unique<MainWindow>();
    m_window->setPlainLayout();
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    QVERIFY(m_person.does([this] { m_person.lookAt(m_window.get()); }));
    // All but the one that opens it start with the dictionary on the screen.
    if (qstrcmp(QTest::currentTestFunction(), "opensADictionary") != 0) {
        QVERIFY(m_window->files()->open(m_dictionary));
        QVERIFY(m_window->selection()->select(u"PERSON"_s));
        table()->setFocus();
    }
}

void TestEndToEnd::cleanup()
{
    m_window->document()->undoStack()->setClean(); // Or closing would ask.
    m_window.reset();
    m_settings.reset();
}

void TestEndToEnd::retype(const QString &text)
{
    m_person.press({u"ctrl+a"_s});
    m_person.type(text);
    m_person.press({u"Return"_s});
}

void TestEndToEnd::typeIntoFileDialog(const QString &path)
{
    const auto field = [] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        auto *line = dialog ? dialog->findChild<QLineEdit *>(u"fileNameEdit"_s) : nullptr;
        return line && line->hasFocus() ? line : nullptr;
    };
    m_person.waitUntil([] { return qobject_cast<QFileDialog *>(QApplication::activeModalWidget()); },
                       "the file dialog");
    m_person.takeKeyboard();
    m_person.waitUntil(field, "the file dialog's line");
    // Pasted: the dialog completes what is typed, with what it has read of the folder by then.
    m_person.paste(path);
    m_person.waitUntil([field, &path] { return field() && field()->text() == path; }, "the typed path");
    m_person.press({u"Return"_s});
}

void TestEndToEnd::addItem(ItemsPanel *panel, const QString &action, const QString &key, const QString &first,
                           const QString &second)
{
    if (m_mouse)
        m_person.clickButton(panel, action);
    else
        m_person.press({u"alt+l"_s, key});
    retype(first);
    if (m_mouse)
        m_person.clickCurrent(panel->view(), 1, 2);
    else
        m_person.press({u"Right"_s, u"F2"_s});
    retype(second);
}

void TestEndToEnd::opensADictionary()
{
    QVERIFY(m_person.does([this] {
        if (m_mouse)
            m_person.clickButton(m_window.get(), u"Open…"_s);
        else
            m_person.press({u"ctrl+o"_s});
        typeIntoFileDialog(m_dictionary);
    }));
    QTRY_COMPARE(m_window->document()->path(), m_dictionary);
    QCOMPARE(person()->getVariables()->size(), 3000);
    QVERIFY(m_window->windowTitle().contains(u"census.mvdb"_s));
}

void TestEndToEnd::renamesAnEntity()
{
    auto *tree = m_window->findChild<EntityTreePanel *>()->findChild<QTreeView *>();
    QVERIFY(m_person.does([this, tree] {
        if (m_mouse)
            m_person.clickCurrent(tree, 0, 2);
        else
            m_person.press({u"alt+n"_s, u"n"_s});
        retype(u"RESIDENT"_s);
    }));
    QVERIFY(Places::findEntity(m_window->document()->root(), u"RESIDENT"_s));
    QCOMPARE(m_window->document()->undoStack()->undoText(), u"rename of PERSON"_s);
}

void TestEndToEnd::findsAVariableAmongThousands()
{
    QLineEdit *filter = m_window->findChild<VariableTablePanel *>()->filterField();
    QVERIFY(m_person.does([this, filter] {
        if (m_mouse)
            m_person.click(filter);
        else
            m_person.press({u"ctrl+l"_s});
        m_person.type(u"v2718"_s);
        if (m_mouse)
            m_person.click(table(), 0, 0);
        else
            m_person.press({u"Tab"_s});
    }));
    QCOMPARE(table()->model()->rowCount(), 1);
    QCOMPARE(m_window->selection()->variable(), variable(u"V2718"_s));
    QVERIFY(table()->hasFocus());
}

void TestEndToEnd::editsIt()
{
    QVERIFY(m_person.does([this] {
        if (m_mouse)
            m_person.click(table(), 2, 2, 2);
        else
            m_person.press({u"Down"_s, u"Down"_s, u"Right"_s, u"Right"_s, u"F2"_s});
        retype(u"Highest school grade"_s);
    }));
    QCOMPARE(variable(u"V0003"_s)->getLabel(), u"Highest school grade"_s);
    QVERIFY(m_person.does([this] { m_person.press({u"ctrl+z"_s}); }));
    QCOMPARE(variable(u"V0003"_s)->getLabel(), u"Question"_s);
}

void TestEndToEnd::givesItARange()
{
    auto *panel = m_window->findChild<RangesPanel *>();
    QVERIFY(m_person.does([this, panel] { addItem(panel, u"Add Range"_s, u"r"_s, u"12"_s, u"98"_s); }));
    QVERIFY(variable(u"V0001"_s)->getMetadataVariables());
    const Range *range = variable(u"V0001"_s)->getMetadataVariables()->getRange()->first();
    QCOMPARE(range->getRangeMin(), 12.0);
    QCOMPARE(range->getRangeMax(), 98.0);
}

void TestEndToEnd::givesItValueLabels()
{
    auto *panel = m_window->findChild<ValueLabelsPanel *>();
    QVERIFY(m_person.does([this, panel] {
        addItem(panel, u"Add Value Label"_s, u"l"_s, u"1"_s, u"Yes"_s);
        addItem(panel, u"Add Value Label"_s, u"l"_s, u"2"_s, u"No"_s);
    }));
    const auto *labels = variable(u"V0001"_s)->getValueLabelElementList();
    QCOMPARE(labels->size(), 2);
    QCOMPARE(labels->at(1)->getValue(), u"2"_s);
    QCOMPARE(labels->at(1)->getLabel(), u"No"_s);
}

void TestEndToEnd::openDataFile()
{
    if (m_mouse)
        m_person.clickButton(m_window->findChild<SourcesPanel *>(), u"Open Dataset…"_s);
    else
        m_person.press({u"alt+s"_s, u"d"_s});
    typeIntoFileDialog(m_dataFile);
}

void TestEndToEnd::addFirstField()
{
    if (m_mouse)
        m_person.drag(fields(), 0, table());
    else
        m_person.press({u"ctrl+Return"_s});
}

void TestEndToEnd::takesFieldsFromADataFile()
{
    QVERIFY(m_person.does([this] {
        openDataFile();
        addFirstField();
    }));
    QCOMPARE(fields()->model()->rowCount(), 2);
    QCOMPARE(person()->getVariables()->size(), 3001);
    QCOMPARE(person()->getVariables()->last()->getLabel(), u"Sex"_s);
    QCOMPARE(m_window->selection()->variable(), person()->getVariables()->last());
}

void TestEndToEnd::resolvesAClash()
{
    QVERIFY(m_person.does([this] {
        openDataFile();
        addFirstField();
        addFirstField();
        m_person.answer(u"Rename"_s, m_mouse);
    }));
    QTRY_COMPARE(person()->getVariables()->size(), 3002);
    const QString second = person()->getVariables()->at(3001)->getName();
    QVERIFY(second != person()->getVariables()->at(3000)->getName());
    // One step each, and redoing does not ask again.
    QCOMPARE(m_window->document()->undoStack()->count(), 2);
    QVERIFY(m_person.does([this] { m_person.press({u"ctrl+z"_s}); }));
    QCOMPARE(person()->getVariables()->size(), 3001);
    QVERIFY(m_person.does([this] { m_person.press({u"ctrl+shift+z"_s}); }));
    QCOMPARE(person()->getVariables()->size(), 3002);
    QCOMPARE(person()->getVariables()->at(3001)->getName(), second);
}

void TestEndToEnd::saves()
{
    QVERIFY(m_person.does([this] {
        m_person.press({u"F2"_s});
        retype(u"AGE"_s);
    }));
    QVERIFY(m_window->isWindowModified());
    QVERIFY(m_person.does([this] {
        if (m_mouse)
            m_person.clickButton(m_window.get(), u"Save"_s);
        else
            m_person.press({u"ctrl+s"_s});
    }));
    QVERIFY(!m_window->isWindowModified());
    Document saved;
    QVERIFY(saved.open(m_dictionary));
    QVERIFY(Places::findVariable(Places::findEntity(saved.root(), u"PERSON"_s), u"AGE"_s));
}

void TestEndToEnd::goOn()
{
    if (m_mouse)
        m_person.answer(u"Next >"_s, true);
    else
        m_person.press({u"alt+n"_s});
}

void TestEndToEnd::takeAll(const QString &button)
{
    if (m_mouse)
        m_person.answer(button, true);
    else
        m_person.press({u"alt+a"_s});
}

void TestEndToEnd::makesARunConfiguration()
{
    const QString path = m_folder->filePath(u"people.lsd.json"_s);
    QVERIFY(m_person.does([this, &path] {
        if (m_mouse)
            m_person.clickMenu(m_window->menuBar(), u"Tools"_s, u"New Run Configuration…"_s);
        else
            m_person.press({u"ctrl+r"_s});
        m_person.waitUntil([] { return qobject_cast<RunWizard *>(QApplication::activeModalWidget()); },
                           "the wizard");
        m_person.type(u"People"_s);
        goOn(); // To the entities.
        takeAll(u"Select All"_s);
        goOn(); // To the variables of the root, which has none, and of PERSON.
        if (m_mouse)
            m_person.clickRow(u"entities"_s, 1);
        else
            m_person.press({u"alt+e"_s, u"Down"_s});
        takeAll(u"Tick Shown"_s);
        goOn(); // To splitting,
        goOn(); // downloading,
        goOn(); // and what it all comes to.
        if (m_mouse)
            m_person.clickLastField();
        else
            m_person.press({u"alt+a"_s});
        m_person.press({u"ctrl+a"_s});
        m_person.type(path);
        if (m_mouse)
            m_person.answer(u"Save"_s, true);
        else
            m_person.press({u"alt+s"_s});
        m_person.waitUntil([] { return !QApplication::activeModalWidget(); }, "the end of the wizard");
    }));
    RunConfigurationFile run;
    QVERIFY2(run.open(path), qUtf8Printable(run.errorText()));
    QCOMPARE(run.config()->getDataBase()->getName(), u"People"_s);
    QVERIFY(!m_window->isWindowModified());
}

QTEST_MAIN(TestEndToEnd)
#include "tst_endtoend.moc"
