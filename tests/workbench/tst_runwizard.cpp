#include "model/Config.h"
#include "tests/support/MessageBoxAnswer.h"
#include "tests/support/Trees.h"
#include "tests/workbench/Controls.h"
#include "tests/workbench/IsolatedSettings.h"
#include "workbench/MainWindow.h"
#include "workbench/operations/Places.h"
#include "workbench/run/RunDraft.h"
#include "workbench/run/RunWizard.h"

#include <QAction>
#include <QCheckBox>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QTableView>
#include <QTest>
#include <QTextBrowser>
#include <QTreeView>
#include <QUrl>

using namespace Qt::Literals::StringLiterals;

class TestRunWizard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void worksByKeyboardAlone();
    void opensAgainWithTheSameChoices();
    void saysWhyItDoesNotGoOn();
    void clicksOnABoxSwitchIt_data();
    void clicksOnABoxSwitchIt();
    void asksBeforeEntitiesBelowGoToo();
    void filtersWhateverTheLetterCase();
    void selectsAllThatIsShown();
    void switchesAllSelectedRows();
    void sortsTheLastStep();
    void goesOnOfferingWhatIsNotDownloaded();
    void splitsByVariablesWithARoleToo();
    void speaksOfWhatTheDictionaryDoesNotHave();
    void refusesADamagedFile_data();
    void refusesADamagedFile();
    void opensADroppedFile();
    void keepsAPasswordFilePrivate();
    void staysWhenSavingFails_data();
    void staysWhenSavingFails();
    void asksBeforeItOverwrites_data();
    void asksBeforeItOverwrites();
    void asksBeforeAFileLosesContent();
    void proposesAFileCalledAsTheRun();
    void asksBeforeChoicesAreLost_data();
    void asksBeforeChoicesAreLost();
    void leavesTheDictionaryUnmodified();
    void remembersTheAuthor();
    void everyControlHasAnAccessibleName();

private:
    [[nodiscard]] QString sample(const QByteArray &text);
    [[nodiscard]] static RunWizard *activeWizard();
    RunWizard *start();
    RunWizard *start(const QByteArray &text);
    [[nodiscard]] static RunWizard *wizard();
    static void goTo(const QString &page);
    [[nodiscard]] static QWidget *page() { return wizard()->currentPage(); }
    template <typename Widget>
    [[nodiscard]] static Widget *find(const QString &name = {})
    {
        return page()->findChild<Widget *>(name);
    }
    [[nodiscard]] static QPushButton *button(const QString &text)
    {
        return Controls::button<QPushButton>(page(), text);
    }
    [[nodiscard]] static QStringList shown();
    [[nodiscard]] static bool isChecked(const QString &variable);
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    static void type(const QString &text);
    [[nodiscard]] QJsonObject saved(const QString &name = u"run.lsd.json"_s);

    std::unique_ptr<IsolatedSettings> m_settings;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MainWindow> m_window;
};

void TestRunWizard::initTestCase()
{
    qApp->setQuitOnLastWindowClosed(false);
}

void TestRunWizard::init()
{
    m_settings = std::make_unique<IsolatedSettings>();
    m_folder = std::make_unique<QTemporaryDir>();
    m_window = std::make_unique<MainWindow>();
    Document &document = *m_window->document();
    document.edit(u"adding"_s, [&document] {
        std::unique_ptr<TDcEntity> tree = makeEntities(u"CENSUS\n"
                                                       "    HOUSEHOLD\n"
                                                       "        PERSON\n"
                                                       "        DEATH\n");
        TDcEntity *person = findEntity(tree.get(), u"PERSON");
        person->addVariables(makeVariable(u"ID"_s));
        person->addVariables(makeVariable(u"SEX"_s, {}, u"Sex"_s));
        person->addVariables(makeVariable(u"AGE"_s, u"P03"_s, u"Age in years"_s));
        person->addVariables(makeVariable(u"WAGE"_s, {}, u"Monthly wage"_s, u"income"_s));
        person->setRefCode(u"ID"_s);
        findEntity(tree.get(), u"HOUSEHOLD")->addVariables(makeVariable(u"SIZE"_s));
        document.root()->setName(u"CENSUS"_s);
        document.root()->getChildren()->append(tree->getChildren()->takeFirst());
    });
    document.undoStack()->setClean();
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestRunWizard::cleanup()
{
    m_window.reset();
    m_settings.reset();
}

QString TestRunWizard::sample(const QByteArray &text)
{
    QFile file(m_folder->filePath(u"run.lsd.json"_s));
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() ? file.fileName() : QString();
}

/// The wizard once it has the keyboard, which the offscreen platform does not hand over by itself.
RunWizard *TestRunWizard::activeWizard()
{
    RunWizard *opened = wizard();
    if (!opened)
        return nullptr;
    opened->activateWindow();
    return QTest::qWaitFor([opened] { return QApplication::activeWindow() == opened; }) ? opened : nullptr;
}

RunWizard *TestRunWizard::start()
{
    (*m_window->actions())[ActionId::ToolsNewRun]->trigger();
    return activeWizard();
}

RunWizard *TestRunWizard::start(const QByteArray &text)
{
    m_window->open(sample(text));
    return activeWizard();
}

RunWizard *TestRunWizard::wizard()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto found = std::find_if(windows.cbegin(), windows.cend(), [](const QWidget *window) {
        return window->objectName() == u"runWizard"_s && window->isVisible();
    });
    return found == windows.cend() ? nullptr : qobject_cast<RunWizard *>(*found);
}

void TestRunWizard::goTo(const QString &name)
{
    while (page()->objectName() != name && wizard()->nextId() >= 0) {
        const int before = wizard()->currentId();
        wizard()->next();
        if (wizard()->currentId() == before)
            break;
    }
    QCOMPARE(page()->objectName(), name);
}

/// The variables of the table, with "*" behind those that are checked.
QStringList TestRunWizard::shown()
{
    const QAbstractItemModel *model = find<QTableView>()->model();
    QStringList lines;
    for (int row = 0; row < model->rowCount(); ++row) {
        const QModelIndex index = model->index(row, 0);
        const bool checked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        lines.append(index.data().toString() + (checked ? u"*"_s : QString()));
    }
    return lines;
}

bool TestRunWizard::isChecked(const QString &variable)
{
    return Places::findVariable(findEntity(wizard()->draft().root(), u"PERSON"), variable)->getChecked();
}

void TestRunWizard::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void TestRunWizard::type(const QString &text)
{
    QTest::keyClicks(QApplication::focusWidget(), text);
}

QJsonObject TestRunWizard::saved(const QString &name)
{
    QFile file(m_folder->filePath(name));
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

void TestRunWizard::worksByKeyboardAlone()
{
    QTest::keyClick(m_window.get(), Qt::Key_R, Qt::ControlModifier);
    QVERIFY(activeWizard());
    QCOMPARE(QApplication::focusWidget()->objectName(), u"name"_s);
    press(Qt::Key_A, Qt::ControlModifier);
    type(u"survey"_s);
    press(Qt::Key_A, Qt::AltModifier);
    QCOMPARE(QApplication::focusWidget()->objectName(), u"author"_s);
    type(u"Field office"_s);
    press(Qt::Key_N, Qt::AltModifier); // The button takes a moment to come up again.

    QTRY_COMPARE(page()->objectName(), u"runEntitiesPage"_s);
    QVERIFY(!wizard()->button(QWizard::NextButton)->isEnabled());
    QVERIFY(qobject_cast<QTreeView *>(QApplication::focusWidget()));
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Space);
    QVERIFY(findEntity(wizard()->draft().root(), u"PERSON")->getSelectable());
    press(Qt::Key_R, Qt::AltModifier);
    type(u"PER"_s);
    press(Qt::Key_N, Qt::AltModifier);

    QTRY_COMPARE(page()->objectName(), u"runVariablesPage"_s);
    press(Qt::Key_L, Qt::AltModifier);
    QCOMPARE(QApplication::focusWidget()->objectName(), u"filter"_s);
    type(u"wage"_s);
    press(Qt::Key_Return);
    QCOMPARE(page()->objectName(), u"runVariablesPage"_s);
    QCOMPARE(shown(), QStringList({u"WAGE*"_s}));
    press(Qt::Key_Space);
    QCOMPARE(shown(), QStringList({u"WAGE"_s}));
    press(Qt::Key_N, Qt::AltModifier);
    QTRY_COMPARE(page()->objectName(), u"runSplitPage"_s);
    press(Qt::Key_N, Qt::AltModifier);
    QTRY_COMPARE(page()->objectName(), u"runDownPage"_s);
    QCOMPARE(shown(), QStringList({u"AGE*"_s, u"SEX*"_s}));
    press(Qt::Key_N, Qt::AltModifier);

    QTRY_COMPARE(page()->objectName(), u"runSummaryPage"_s);
    QVERIFY(find<QTextBrowser>()->toPlainText().contains(u"survey"_s));
    press(Qt::Key_A, Qt::AltModifier);
    press(Qt::Key_A, Qt::ControlModifier);
    type(m_folder->filePath(u"run"_s));
    press(Qt::Key_S, Qt::AltModifier);
    QTRY_VERIFY(!wizard());
    QVERIFY(m_window->statusBar()->currentMessage().contains(u"run.lsd.json"_s));
    QCOMPARE(saved().value(u"database"_s).toObject().value(u"author"_s), u"Field office"_s);
    const QJsonObject person = saved().value(u"entities"_s).toArray().first().toObject();
    QCOMPARE(person.value(u"recType"_s), u"PER"_s);
    QCOMPARE(person.value(u"variables"_s), QJsonArray({u"ID"_s, u"SEX"_s, u"AGE"_s}));
}

void TestRunWizard::opensAgainWithTheSameChoices()
{
    QVERIFY(start());
    goTo(u"runEntitiesPage"_s);
    auto *tree = find<QTreeView>();
    for (int i = 0; i < 2; ++i)
        QTest::keyClick(tree, Qt::Key_Down);
    QTest::keyClick(tree, Qt::Key_Space);
    goTo(u"runVariablesPage"_s);
    QTest::keyClick(find<QTableView>(), Qt::Key_Space);
    QCOMPARE(shown(), QStringList({u"SEX"_s, u"AGE*"_s, u"WAGE*"_s}));
    goTo(u"runSummaryPage"_s);
    find<QLineEdit>(u"path"_s)->setText(m_folder->filePath(u"run.lsd.json"_s));
    wizard()->button(QWizard::FinishButton)->click();
    QVERIFY(!wizard());
    const QJsonObject first = saved();
    QVERIFY(!first.isEmpty());

    m_window->open(m_folder->filePath(u"run.lsd.json"_s));
    QVERIFY(wizard());
    QVERIFY(!find<QPlainTextEdit>(u"unknown"_s));
    QCOMPARE(find<QLineEdit>(u"name"_s)->text(), u"CENSUS"_s);
    goTo(u"runVariablesPage"_s);
    QCOMPARE(find<QListWidget>()->count(), 1);
    // Of those that the page offers: the reference code takes part anyway.
    QCOMPARE(find<QListWidget>()->item(0)->text(), u"PERSON (2 of 3)"_s);
    QCOMPARE(shown(), QStringList({u"SEX"_s, u"AGE*"_s, u"WAGE*"_s}));
    goTo(u"runSummaryPage"_s);
    QCOMPARE(find<QLineEdit>(u"path"_s)->text(), m_folder->filePath(u"run.lsd.json"_s));
    wizard()->button(QWizard::FinishButton)->click(); // Asks nothing: it is the same file.
    QVERIFY(!wizard());
    QCOMPARE(saved(), first);
}

void TestRunWizard::saysWhyItDoesNotGoOn()
{
    QVERIFY(start());
    const auto goesOn = [] { return wizard()->button(QWizard::NextButton)->isEnabled(); };
    const auto words = [] { return find<QLabel>(u"problem"_s)->text(); };
    QVERIFY(goesOn());
    find<QLineEdit>(u"name"_s)->clear();
    QVERIFY(!goesOn());
    QCOMPARE(words(), u"Give the run a name."_s);
    find<QLineEdit>(u"name"_s)->setText(u"x"_s);
    QVERIFY(goesOn());
    QCOMPARE(words(), QString());

    goTo(u"runEntitiesPage"_s);
    QVERIFY(!goesOn());
    QCOMPARE(words(), u"Tick at least one entity that takes part."_s);
    button(u"Select All"_s)->click();
    QVERIFY(goesOn());
    QCOMPARE(words(), QString());

    goTo(u"runVariablesPage"_s);
    QVERIFY(goesOn());
    find<QListWidget>()->setCurrentRow(1);
    button(u"Untick Shown"_s)->click();
    QVERIFY(!goesOn());
    QCOMPARE(words(), u"Tick at least one variable of HOUSEHOLD, or go back and leave it out."_s);
    find<QCheckBox>()->click();
    QVERIFY(goesOn());

    goTo(u"runSummaryPage"_s);
    QVERIFY(wizard()->button(QWizard::FinishButton)->isEnabled());
    find<QLineEdit>(u"path"_s)->clear();
    QVERIFY(!wizard()->button(QWizard::FinishButton)->isEnabled());
    QCOMPARE(words(), u"Say where the run configuration is to be saved."_s);
}

void TestRunWizard::clicksOnABoxSwitchIt_data()
{
    QTest::addColumn<QString>("page");
    QTest::addRow("entities") << u"runEntitiesPage"_s;
    QTest::addRow("variables") << u"runVariablesPage"_s;
    QTest::addRow("split") << u"runSplitPage"_s;
    QTest::addRow("download") << u"runDownPage"_s;
}

void TestRunWizard::clicksOnABoxSwitchIt()
{
    QFETCH(const QString, page);
    QVERIFY(start(R"({"database": {"name": "x"}, "entities": [{"name": "PERSON", "allVariables": true}]})"));
    goTo(page);
    auto *view = TestRunWizard::page()->findChild<QAbstractItemView *>(
        page == u"runEntitiesPage"_s ? QString() : u"variables"_s);
    QModelIndex index = view->model()->index(0, 0);
    const int before = index.data(Qt::CheckStateRole).toInt();
    QStyleOptionViewItem option;
    option.initFrom(view);
    option.rect = view->visualRect(index);
    option.features = QStyleOptionViewItem::HasCheckIndicator;
    const QRect box = view->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, view);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, box.center());
    QVERIFY(index.data(Qt::CheckStateRole).toInt() != before);
}

void TestRunWizard::asksBeforeEntitiesBelowGoToo()
{
    QVERIFY(start());
    goTo(u"runEntitiesPage"_s);
    button(u"Select All"_s)->click();
    auto *tree = find<QTreeView>();
    {
        const MessageBoxAnswer box({u"No"_s});
        QTest::keyClick(tree, Qt::Key_Space);
        QCOMPARE(box.shown().size(), 1);
        QVERIFY(box.texts().constFirst().contains(u"HOUSEHOLD\nPERSON\nDEATH\n"_s));
        QCOMPARE(wizard()->draft().chosen().size(), 4);
    }
    const MessageBoxAnswer box({u"Yes"_s});
    QTest::keyClick(tree, Qt::Key_Space);
    QCOMPARE(wizard()->draft().chosen().size(), 0);
    QCOMPARE(tree->model()->index(0, 0, tree->model()->index(0, 0)).data(Qt::CheckStateRole).toInt(),
             int(Qt::Unchecked));
}

void TestRunWizard::filtersWhateverTheLetterCase()
{
    QVERIFY(start(R"({"database": {"name": "x"}, "entities": [{"name": "PERSON", "allVariables": true}]})"));
    for (const QString &name : {u"runVariablesPage"_s, u"runSplitPage"_s, u"runDownPage"_s}) {
        goTo(name);
        find<QLineEdit>(u"filter"_s)->setText(u"monTHLY"_s);
        QCOMPARE(shown(), QStringList({u"WAGE*"_s}));
        find<QLineEdit>(u"filter"_s)->setText(u"p03"_s);
        QCOMPARE(shown(), QStringList({u"AGE*"_s}));
        find<QLineEdit>(u"filter"_s)->setText(u"("_s);
        QCOMPARE(shown(), QStringList());
    }
}

void TestRunWizard::selectsAllThatIsShown()
{
    QVERIFY(start(R"({"database": {"name": "x"}, "entities": [{"name": "PERSON", "allVariables": true}]})"));
    goTo(u"runVariablesPage"_s);
    QVERIFY(find<QCheckBox>()->isChecked());
    find<QLineEdit>(u"filter"_s)->setText(u"age"_s);
    QCOMPARE(shown(), QStringList({u"AGE*"_s, u"WAGE*"_s}));
    button(u"Untick Shown"_s)->click();
    QCOMPARE(shown(), QStringList({u"AGE"_s, u"WAGE"_s}));
    QVERIFY(!find<QCheckBox>()->isChecked());
    find<QLineEdit>(u"filter"_s)->clear();
    QCOMPARE(shown(), QStringList({u"SEX*"_s, u"AGE"_s, u"WAGE"_s}));
    button(u"Tick Shown"_s)->click();
    QCOMPARE(shown(), QStringList({u"SEX*"_s, u"AGE*"_s, u"WAGE*"_s}));
    QVERIFY(!find<QCheckBox>()->isChecked()); // Not those that are added later.
}

void TestRunWizard::switchesAllSelectedRows()
{
    QVERIFY(start(R"({"database": {"name": "x"}, "entities": [{"name": "PERSON", "allVariables": true}]})"));
    goTo(u"runVariablesPage"_s);
    auto *view = find<QTableView>();
    view->setFocus();
    QTest::keyClick(view, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(view, Qt::Key_Space);
    QCOMPARE(shown(), QStringList({u"SEX"_s, u"AGE"_s, u"WAGE*"_s}));
    view->setCurrentIndex(view->model()->index(2, 3)); // Wherever in the row.
    QTest::keyClick(view, Qt::Key_Space);
    QCOMPARE(shown(), QStringList({u"SEX"_s, u"AGE"_s, u"WAGE"_s}));
}

void TestRunWizard::sortsTheLastStep()
{
    QVERIFY(start(R"({"database": {"name": "x"}, "entities": [{"name": "PERSON",
                     "variables": ["WAGE", "AGE", "ID"]}]})"));
    goTo(u"runDownPage"_s);
    QCOMPARE(shown(), QStringList({u"AGE*"_s, u"WAGE*"_s}));
}

void TestRunWizard::goesOnOfferingWhatIsNotDownloaded()
{
    QVERIFY(start(R"({"database": {"name": "x"}, "entities": [{"name": "HOUSEHOLD", "allVariables": true},
                     {"name": "PERSON", "variables": ["WAGE", "AGE"]}]})"));
    goTo(u"runDownPage"_s);
    auto *entities = find<QListWidget>();
    entities->setCurrentRow(1);
    find<QTableView>()->selectRow(0);
    QTest::keyClick(find<QTableView>(), Qt::Key_Space);
    QCOMPARE(shown(), QStringList({u"AGE"_s, u"WAGE*"_s}));
    entities->setCurrentRow(0);
    entities->setCurrentRow(1);
    QCOMPARE(entities->currentItem()->text(), u"PERSON (1 of 2)"_s);
    QCOMPARE(shown(), QStringList({u"AGE"_s, u"WAGE*"_s}));
    button(u"Tick Shown"_s)->click();
    QVERIFY(isChecked(u"AGE"_s));
}

void TestRunWizard::splitsByVariablesWithARoleToo()
{
    QVERIFY(start(R"({"database": {"name": "x"}, "entities": [{"name": "PERSON", "variables": ["AGE"]}]})"));
    goTo(u"runVariablesPage"_s);
    QCOMPARE(shown(), QStringList({u"SEX"_s, u"AGE*"_s, u"WAGE"_s}));
    goTo(u"runSplitPage"_s);
    QCOMPARE(shown(), QStringList({u"ID"_s, u"SEX"_s, u"AGE*"_s, u"WAGE"_s}));
    QTest::keyClick(find<QTableView>(), Qt::Key_Space);
    QVERIFY(isChecked(u"ID"_s));
}

void TestRunWizard::speaksOfWhatTheDictionaryDoesNotHave()
{
    QVERIFY(start(R"({"database": {"name": "x"}, "entities": [{"name": "FARM", "allVariables": true},
                     {"name": "PERSON", "variables": ["AGE", "LAND"], "own": 7}]})"));
    const QString words = find<QPlainTextEdit>(u"unknown"_s)->toPlainText();
    QVERIFY(words.contains(u"FARM"_s));
    QVERIFY(words.contains(u"LAND"_s));
    goTo(u"runSummaryPage"_s);
    QVERIFY(find<QTextBrowser>()->toPlainText().contains(u"FARM"_s));
    const QJsonObject before = saved();
    wizard()->button(QWizard::FinishButton)->click();
    QVERIFY(!wizard());
    QCOMPARE(saved(), before);
}

void TestRunWizard::refusesADamagedFile_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addRow("cut off") << QByteArray(R"({"entities": [)");
    QTest::addRow("no object") << QByteArray("[1, 2]");
    QTest::addRow("empty") << QByteArray("");
}

void TestRunWizard::refusesADamagedFile()
{
    QFETCH(const QByteArray, text);
    const MessageBoxAnswer box({u"OK"_s});
    m_window->open(sample(text));
    QVERIFY(!wizard());
    QCOMPARE(box.shown().size(), 1);
    QCOMPARE(box.shown().first().icon, QMessageBox::Critical);
    QVERIFY(box.texts().constFirst().contains(u"run.lsd.json"_s));
}

void TestRunWizard::opensADroppedFile()
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(sample(R"({"database": {"name": "dropped"}})"))});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_window.get(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_window.get(), &drop);
    QTRY_VERIFY(wizard()); // It opens when the drop is over.
    QCOMPARE(find<QLineEdit>(u"name"_s)->text(), u"dropped"_s);
    QCOMPARE(m_window->document()->root()->getName(), u"CENSUS"_s);
}

void TestRunWizard::keepsAPasswordFilePrivate()
{
    QVERIFY(start());
    find<QLineEdit>(u"password"_s)->setText(u"open sesame"_s);
    QCOMPARE(find<QLineEdit>(u"password"_s)->echoMode(), QLineEdit::Password);
    goTo(u"runEntitiesPage"_s);
    button(u"Select All"_s)->click();
    goTo(u"runSummaryPage"_s);
    find<QLineEdit>(u"path"_s)->setText(m_folder->filePath(u"run.lsd.json"_s));
    wizard()->button(QWizard::FinishButton)->click();
    QVERIFY(!wizard());
    const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup
        | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther | QFile::ExeOwner;
    const QFile::Permissions mode = QFileInfo(m_folder->filePath(u"run.lsd.json"_s)).permissions();
    QCOMPARE(mode & others, QFile::Permissions());
    QVERIFY(mode.testFlags(QFile::ReadOwner | QFile::WriteOwner));
    QCOMPARE(saved().value(u"database"_s).toObject().value(u"password"_s), u"open sesame"_s);
}

void TestRunWizard::staysWhenSavingFails_data()
{
    QTest::addColumn<QString>("path");
    QTest::addRow("no such folder") << u"missing/run.lsd.json"_s;
    QTest::addRow("a folder in the way") << u"folder.lsd.json"_s;
    QTest::addRow("read-only") << u"run.lsd.json"_s;
}

void TestRunWizard::staysWhenSavingFails()
{
    QFETCH(const QString, path);
    QVERIFY(QDir(m_folder->path()).mkdir(u"folder.lsd.json"_s));
    QVERIFY(start(R"({"database": {"name": "x"}, "entities": [{"name": "PERSON", "allVariables": true}]})"));
    goTo(u"runSummaryPage"_s);
    QVERIFY(QFile::setPermissions(m_folder->filePath(u"run.lsd.json"_s), QFile::ReadOwner));
    find<QLineEdit>(u"path"_s)->setText(m_folder->filePath(path));
    {
        // A folder looks like a file to be replaced until it is tried.
        const MessageBoxAnswer box(QFileInfo(m_folder->filePath(path)).isDir()
                                       ? QStringList{u"Replace"_s, u"OK"_s}
                                       : QStringList{u"OK"_s});
        wizard()->button(QWizard::FinishButton)->click();
        QVERIFY(!box.shown().isEmpty());
        QCOMPARE(box.shown().last().icon, QMessageBox::Critical);
    }
    const MessageBoxAnswer nothing;
    QVERIFY(wizard());
    find<QLineEdit>(u"path"_s)->setText(m_folder->filePath(u"other.json"_s));
    wizard()->button(QWizard::FinishButton)->click();
    QCOMPARE(nothing.shown().size(), 0);
    QVERIFY(!wizard());
    QVERIFY(!saved(u"other.lsd.json"_s).isEmpty());
}

void TestRunWizard::asksBeforeItOverwrites_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("saves");
    QTest::addRow("changed by others") << u"run.lsd.json"_s << u"Overwrite"_s << true;
    QTest::addRow("changed by others, cancelled") << u"run.lsd.json"_s << u"Cancel"_s << false;
    QTest::addRow("another file") << u"there.lsd.json"_s << u"Replace"_s << true;
    QTest::addRow("another file, cancelled") << u"there.lsd.json"_s << u"Cancel"_s << false;
}

void TestRunWizard::asksBeforeItOverwrites()
{
    QFETCH(const QString, file);
    QFETCH(const QString, answer);
    QFETCH(const bool, saves);
    QVERIFY(start(R"({"database": {"name": "x"}, "entities": [{"name": "PERSON", "allVariables": true}]})"));
    QFile other(m_folder->filePath(file));
    QVERIFY(other.open(QIODevice::WriteOnly));
    other.write("{\"other\": 1}");
    other.close();
    goTo(u"runSummaryPage"_s);
    find<QLineEdit>(u"path"_s)->setText(other.fileName());
    const MessageBoxAnswer box({answer});
    wizard()->button(QWizard::FinishButton)->click();
    QCOMPARE(box.shown().size(), 1);
    QCOMPARE(box.shown().first().defaultButton, u"Cancel"_s);
    QCOMPARE(wizard() == nullptr, saves);
    QCOMPARE(saved(file).contains(u"other"_s), !saves);
}

void TestRunWizard::proposesAFileCalledAsTheRun()
{
    QSettings().setValue(u"lastFolder"_s, m_folder->path());
    QVERIFY(start());
    goTo(u"runEntitiesPage"_s);
    button(u"Select All"_s)->click();
    goTo(u"runSummaryPage"_s);
    QCOMPARE(find<QLineEdit>(u"path"_s)->text(), m_folder->filePath(u"CENSUS.lsd.json"_s));
    wizard()->restart();
    find<QLineEdit>(u"name"_s)->setText(u"a/b"_s);
    goTo(u"runSummaryPage"_s);
    QCOMPARE(find<QLineEdit>(u"path"_s)->text(), m_folder->filePath(u"a_b.lsd.json"_s));
    find<QLineEdit>(u"path"_s)->setText(u"mine"_s);
    wizard()->restart();
    goTo(u"runSummaryPage"_s);
    QCOMPARE(find<QLineEdit>(u"path"_s)->text(), u"mine"_s);
    wizard()->button(QWizard::FinishButton)->click();
    QVERIFY(!saved(u"mine.lsd.json"_s).isEmpty());
}

void TestRunWizard::asksBeforeAFileLosesContent()
{
    QVERIFY(start(R"({"database": {"name": "x"}, "own": 1, "own": 2,
                     "entities": [{"name": "PERSON", "allVariables": true}]})"));
    goTo(u"runSummaryPage"_s);
    const MessageBoxAnswer box({u"Cancel"_s, u"Save Anyway"_s});
    wizard()->button(QWizard::FinishButton)->click();
    QVERIFY(wizard());
    wizard()->button(QWizard::FinishButton)->click();
    QVERIFY(!wizard());
    QCOMPARE(box.shown().size(), 2);
    QCOMPARE(saved().value(u"own"_s), 2);
}

void TestRunWizard::asksBeforeChoicesAreLost_data()
{
    QTest::addColumn<bool>("changed");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("leaves");
    QTest::addRow("nothing chosen") << false << QString() << true;
    QTest::addRow("discard") << true << u"Discard"_s << true;
    QTest::addRow("cancel") << true << u"Cancel"_s << false;
}

void TestRunWizard::asksBeforeChoicesAreLost()
{
    QFETCH(const bool, changed);
    QFETCH(const QString, answer);
    QFETCH(const bool, leaves);
    QVERIFY(start());
    if (changed)
        find<QLineEdit>(u"label"_s)->setText(u"changed"_s);
    const MessageBoxAnswer box({answer});
    press(Qt::Key_Escape);
    QCOMPARE(box.shown().size(), changed ? 1 : 0);
    QCOMPARE(wizard() == nullptr, leaves);
}

void TestRunWizard::leavesTheDictionaryUnmodified()
{
    QVERIFY(start());
    goTo(u"runEntitiesPage"_s);
    button(u"Select All"_s)->click();
    goTo(u"runVariablesPage"_s);
    find<QListWidget>()->setCurrentRow(1);
    QTest::keyClick(find<QTableView>(), Qt::Key_Space);
    QVERIFY(!m_window->document()->isModified());
    m_window->document()->commit();
    QVERIFY(!m_window->document()->isModified());
    QVERIFY(!m_window->document()->root()->getSelectable());
}

void TestRunWizard::remembersTheAuthor()
{
    QVERIFY(start());
    find<QLineEdit>(u"author"_s)->setText(u"Field office"_s);
    goTo(u"runEntitiesPage"_s);
    button(u"Select All"_s)->click();
    goTo(u"runSummaryPage"_s);
    find<QLineEdit>(u"path"_s)->setText(m_folder->filePath(u"run.lsd.json"_s));
    wizard()->button(QWizard::FinishButton)->click();
    QVERIFY(start());
    QCOMPARE(find<QLineEdit>(u"author"_s)->text(), u"Field office"_s);
}

void TestRunWizard::everyControlHasAnAccessibleName()
{
    QVERIFY(
        start(R"({"database": {"name": "x"}, "entities": [{"name": "PERSON", "allVariables": true}, 1]})"));
    QCOMPARE(Controls::nameless(wizard()).join(u", "_s), QString());
}

QTEST_MAIN(TestRunWizard)
#include "tst_runwizard.moc"
