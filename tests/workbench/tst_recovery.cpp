#include "tests/support/MessageBoxAnswer.h"
#include "tests/support/Trees.h"
#include "tests/workbench/Controls.h"
#include "tests/workbench/IsolatedSettings.h"
#include "workbench/dialogs/RecoveryDialog.h"
#include "workbench/FileCommands.h"
#include "workbench/journal/Journal.h"
#include "workbench/journal/JournalFolder.h"
#include "workbench/MainWindow.h"
#include "workbench/RecoveryCommands.h"
#include "workbench/SessionEnd.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <csignal>

using namespace std::chrono_literals;
using namespace Qt::Literals::StringLiterals;

class TestRecovery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void aKilledProgramLeavesAWholeStep();
    void aKilledWindowIsRecovered();
    void signalsLeaveTheChangesToTheNextStart_data();
    void signalsLeaveTheChangesToTheNextStart();
    void theOfferIsInWords();
    void nothingIsOfferedWithoutNeed();
    void laterKeepsTheChanges();
    void deletingAsksOnceMore();
    void recoveringAsksBeforeWorkIsLost();
    void closingGivesUpTheJournal();
    void sessionEndAsksAsClosingDoes_data();
    void sessionEndAsksAsClosingDoes();
    void aSessionThatGoesOnKeepsTheJournal();
    void whoAgreedToTheEndIsNotAskedAgain();
    void sessionEndKeepsTheJournalUnasked();
    void typedTextIsNotForgotten();
    void aFileThatIsOpenElsewhere_data();
    void aFileThatIsOpenElsewhere();
    void recoveringAFileThatIsOpenElsewhere_data();
    void recoveringAFileThatIsOpenElsewhere();
    void othersChangesAreNotOverwrittenUnasked();

private:
    using Process = std::unique_ptr<QProcess>;

    [[nodiscard]] QString sample();
    /// Starts another instance, and waits until it is ready.
    [[nodiscard]] static Process start(const QStringList &arguments);
    void leaveBehind(const QString &label);
    [[nodiscard]] static RecoveryDialog *dialog(const MainWindow &window)
    {
        return window.findChild<RecoveryDialog *>(u"recovery"_s);
    }
    static void press(const RecoveryDialog *dialog, const QString &text);

    std::unique_ptr<IsolatedSettings> m_settings;
    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestRecovery::initTestCase()
{
    qApp->setQuitOnLastWindowClosed(false);
}

void TestRecovery::init()
{
    m_settings = std::make_unique<IsolatedSettings>();
    m_folder = std::make_unique<QTemporaryDir>();
}

QString TestRecovery::sample()
{
    const QString path = m_folder->filePath(u"census.mvdb"_s);
    Document document;
    document.root()->setName(u"CENSUS"_s);
    document.commit();
    return document.save(path) ? path : QString();
}

TestRecovery::Process TestRecovery::start(const QStringList &arguments)
{
    auto process = std::make_unique<QProcess>();
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process->start(QString::fromLatin1(QUILLON_JOURNAL_EDITOR), arguments);
    while (process->waitForReadyRead(60'000)) {
        if (process->readAllStandardOutput().contains("ready"))
            return process;
    }
    return nullptr;
}

void TestRecovery::leaveBehind(const QString &label)
{
    const Process other = start({u"open"_s, sample(), label});
    QVERIFY(other);
    other->terminate();
    QVERIFY(other->waitForFinished());
}

void TestRecovery::press(const RecoveryDialog *dialog, const QString &text)
{
    QAbstractButton *button = Controls::button(dialog, text);
    QVERIFY(button);
    button->click();
}

void TestRecovery::aKilledProgramLeavesAWholeStep()
{
    const QString folder = m_folder->filePath(u"journal"_s);
    // The same pauses again: QUILLON_SEED=... tst_recovery
    bool isSeed = false;
    const uint wanted = qEnvironmentVariable("QUILLON_SEED").toUInt(&isSeed);
    const quint32 seed = isSeed ? wanted : QRandomGenerator::global()->generate();
    qInfo("QUILLON_SEED=%u", seed);
    QRandomGenerator random(seed);
    for (int round = 0; round < 25; ++round) {
        const Process other = start({u"edit"_s, folder});
        QVERIFY(other);
        QTest::qSleep(random.bounded(40));
        other->kill();
        QVERIFY(other->waitForFinished());

        const QList<LeftChanges> found = Recovery::find(folder);
        QCOMPARE(found.size(), 1);
        Document document;
        Journal journal(&document, folder, {});
        QCOMPARE(Recovery::recover(found.constFirst().journal, &document, &journal), QString());
        const QString step = document.root()->getLabel();
        QVERIFY(step.toInt() > 0);
        const QList<TDcVariable *> &variables = *document.root()->getVariables();
        QCOMPARE(variables.size(), qMin(step.toInt(), 200));
        QCOMPARE(variables.last()->getName(), u'V' + step);
        for (const TDcVariable *variable : variables)
            QCOMPARE(variable->getLabel(), step);
        journal.discard();
        QVERIFY(QDir(folder).isEmpty());
    }
}

void TestRecovery::aKilledWindowIsRecovered()
{
    const QString path = sample();
    leaveBehind(u"Census"_s);
    MainWindow window;
    window.show();
    window.recovery()->offer();
    press(dialog(window), u"Recover"_s);
    QCOMPARE(window.document()->root()->getLabel(), u"Census"_s);
    QCOMPARE(window.document()->path(), path);
    QVERIFY(window.isWindowModified());
    (*window.actions())[ActionId::FileSave]->trigger();
    QVERIFY(!window.isWindowModified());
    Document saved;
    QVERIFY(saved.open(path));
    QCOMPARE(saved.root()->getLabel(), u"Census"_s);
    QVERIFY(!Recovery::any(JournalFolder::path()));
}

void TestRecovery::signalsLeaveTheChangesToTheNextStart_data()
{
    QTest::addColumn<int>("signal");
    QTest::addRow("terminate") << SIGTERM;
    QTest::addRow("interrupt") << SIGINT;
    QTest::addRow("hang up") << SIGHUP;
}

void TestRecovery::signalsLeaveTheChangesToTheNextStart()
{
    QFETCH(const int, signal);
    const Process other = start({u"open"_s, sample(), u"Census"_s});
    QVERIFY(other);
    QVERIFY(!Recovery::any(JournalFolder::path()));
    QCOMPARE(::kill(pid_t(other->processId()), signal), 0);
    QVERIFY(other->waitForFinished());
    QCOMPARE(other->exitStatus(), QProcess::NormalExit);
    QCOMPARE(other->exitCode(), 0);
    QVERIFY(Recovery::any(JournalFolder::path()));
}

void TestRecovery::theOfferIsInWords()
{
    leaveBehind(u"Census"_s);
    MainWindow window;
    window.show();
    window.recovery()->offer();
    const RecoveryDialog *shown = dialog(window);
    QVERIFY(shown);
    QVERIFY(shown->isModal());
    QCOMPARE(Controls::nameless(shown).join(u", "_s), QString());
    const auto *list = shown->findChild<QTreeWidget *>();
    QCOMPARE(list->topLevelItemCount(), 1);
    QCOMPARE(list->currentItem()->text(0), u"census.mvdb"_s);
    QVERIFY(!list->currentItem()->text(1).isEmpty());
    QCOMPARE(list->currentItem()->text(2), u"It is as it was."_s);
}

void TestRecovery::nothingIsOfferedWithoutNeed()
{
    MainWindow window;
    window.show();
    window.recovery()->offer();
    QVERIFY(!dialog(window));
}

void TestRecovery::laterKeepsTheChanges()
{
    leaveBehind(u"Census"_s);
    MainWindow window;
    window.show();
    window.recovery()->offer();
    QTest::keyClick(dialog(window), Qt::Key_Escape);
    QTRY_VERIFY(!dialog(window));
    QVERIFY(!window.isWindowModified());
    QVERIFY(Recovery::any(JournalFolder::path()));
    // The menu offers them as long as they are there.
    (*window.actions())[ActionId::FileRecover]->trigger();
    QVERIFY(dialog(window));
}

void TestRecovery::deletingAsksOnceMore()
{
    leaveBehind(u"Census"_s);
    MainWindow window;
    window.show();
    window.recovery()->offer();
    {
        const MessageBoxAnswer box({u"Cancel"_s});
        press(dialog(window), u"Delete…"_s);
        QCOMPARE(box.shown().size(), 1);
        QCOMPARE(box.shown().constFirst().defaultButton, u"Cancel"_s);
        QVERIFY(Recovery::any(JournalFolder::path()));
    }
    const MessageBoxAnswer box({u"Delete"_s});
    press(dialog(window), u"Delete…"_s);
    QVERIFY(!Recovery::any(JournalFolder::path()));
    QTRY_VERIFY(!dialog(window));
}

void TestRecovery::recoveringAsksBeforeWorkIsLost()
{
    leaveBehind(u"Census"_s);
    MainWindow window;
    window.show();
    window.document()->root()->setLabel(u"Mine"_s);
    window.document()->commit();
    window.recovery()->offer();
    const MessageBoxAnswer box({u"Cancel"_s});
    press(dialog(window), u"Recover"_s);
    QCOMPARE(box.shown().size(), 1);
    QCOMPARE(window.document()->root()->getLabel(), u"Mine"_s);
    QVERIFY(Recovery::any(JournalFolder::path()));
}

void TestRecovery::closingGivesUpTheJournal()
{
    {
        MainWindow window;
        window.show();
        window.document()->root()->setLabel(u"Mine"_s);
        window.document()->commit();
        const MessageBoxAnswer box({u"Discard"_s});
        QVERIFY(window.close());
    }
    QVERIFY(!Recovery::any(JournalFolder::path()));
}

void TestRecovery::sessionEndAsksAsClosingDoes_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("ends");
    QTest::addColumn<bool>("kept");
    QTest::addRow("save") << u"Save"_s << true << false;
    QTest::addRow("discard") << u"Discard"_s << true << false;
    QTest::addRow("cancel") << u"Cancel"_s << false << true;
}

void TestRecovery::sessionEndAsksAsClosingDoes()
{
    QFETCH(const QString, answer);
    QFETCH(const bool, ends);
    QFETCH(const bool, kept);
    {
        MainWindow window;
        window.show();
        QVERIFY(window.files()->open(sample()));
        window.document()->root()->setLabel(u"Mine"_s);
        window.document()->commit();
        const MessageBoxAnswer box({answer});
        QCOMPARE(window.sessionEnd()->prepare(true), ends);
        QCOMPARE(box.shown().size(), 1);
    }
    QCOMPARE(Recovery::any(JournalFolder::path()), kept);
}

void TestRecovery::aSessionThatGoesOnKeepsTheJournal()
{
    MainWindow window;
    window.show();
    window.document()->root()->setLabel(u"Mine"_s);
    window.document()->commit();
    window.journal()->writeNow();
    const MessageBoxAnswer box({u"Discard"_s});
    QVERIFY(window.sessionEnd()->prepare(true));
    // Another program may still say no.
    QCOMPARE(QDir(JournalFolder::path()).entryList({u"*.journal"_s}).size(), 1);
}

void TestRecovery::whoAgreedToTheEndIsNotAskedAgain()
{
    {
        MainWindow window;
        window.show();
        window.document()->root()->setLabel(u"Mine"_s);
        window.document()->commit();
        window.journal()->writeNow();
        const MessageBoxAnswer box({u"Cancel"_s, u"Discard"_s, u"Cancel"_s});
        QVERIFY(!window.close()); // As a person does.
        QCOMPARE(box.shown().size(), 1);
        QVERIFY(window.sessionEnd()->prepare(true));
        QVERIFY(!window.close());
        QCOMPARE(box.shown().size(), 3);
        QTimer::singleShot(0, qApp, [] { // As the session does.
            QEvent quit(QEvent::Quit);
            QCoreApplication::sendEvent(qApp, &quit);
            QCoreApplication::exit(); // Even if somebody objected.
        });
        QApplication::exec();
        QVERIFY(!window.isVisible());
        QCOMPARE(box.shown().size(), 3);
    }
    QVERIFY(!Recovery::any(JournalFolder::path()));
}

void TestRecovery::sessionEndKeepsTheJournalUnasked()
{
    MainWindow window;
    window.show();
    window.document()->root()->setLabel(u"Mine"_s);
    window.document()->commit();
    const MessageBoxAnswer box;
    QVERIFY(window.sessionEnd()->prepare(false));
    QVERIFY(box.shown().isEmpty());
    QCOMPARE(QDir(JournalFolder::path()).entryList({u"*.journal"_s}).size(), 1);
}

void TestRecovery::typedTextIsNotForgotten()
{
    MainWindow window;
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QVERIFY(window.files()->open(sample()));
    const auto fields = window.findChildren<QLineEdit *>();
    const auto label = std::find_if(fields.cbegin(), fields.cend(), [](const QLineEdit *field) {
        return field->accessibleName() == "Entity label"_L1;
    });
    QVERIFY(label != fields.cend());
    (*label)->setFocus();
    QTest::keyClicks(*label, u"Typed"_s);
    const MessageBoxAnswer box({u"Cancel"_s});
    QVERIFY(!window.close());
    QCOMPARE(window.document()->root()->getLabel(), u"Typed"_s);
    window.document()->undoStack()->undo();
}

void TestRecovery::aFileThatIsOpenElsewhere_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("opens");
    QTest::addColumn<bool>("readOnly");
    QTest::addRow("read-only") << u"Open Read-Only"_s << true << true;
    QTest::addRow("anyway") << u"Open Anyway"_s << true << false;
    QTest::addRow("cancel") << u"Cancel"_s << false << false;
    QTest::addRow("escape") << QString() << false << false;
}

void TestRecovery::aFileThatIsOpenElsewhere()
{
    QFETCH(const QString, answer);
    QFETCH(const bool, opens);
    QFETCH(const bool, readOnly);
    const QString path = sample();
    const Process other = start({u"open"_s, path});
    QVERIFY(other);
    MainWindow window;
    window.show();
    {
        const MessageBoxAnswer box({answer});
        QCOMPARE(window.files()->open(path), opens);
        QCOMPARE(box.shown().size(), 1);
        QCOMPARE(box.texts().constFirst(), u"“census.mvdb” is open in another window."_s);
        QCOMPARE(box.shown().constFirst().defaultButton, u"Open Read-Only"_s);
    }
    QCOMPARE(window.document()->isReadOnly(), readOnly);
    QCOMPARE(window.windowTitle().contains(u"(read-only)"_s), readOnly);
    if (opens)
        QCOMPARE(window.document()->save(path), !readOnly);
    // The other one being gone, however it ended, the file is free.
    other->kill();
    QVERIFY(other->waitForFinished());
    const MessageBoxAnswer none;
    QVERIFY(window.files()->open(path));
    QVERIFY(none.shown().isEmpty());
    QVERIFY(!window.document()->isReadOnly());
}

void TestRecovery::recoveringAFileThatIsOpenElsewhere_data()
{
    aFileThatIsOpenElsewhere_data();
}

void TestRecovery::recoveringAFileThatIsOpenElsewhere()
{
    QFETCH(const QString, answer);
    QFETCH(const bool, opens);
    QFETCH(const bool, readOnly);
    leaveBehind(u"Census"_s);
    const Process other = start({u"open"_s, sample()});
    QVERIFY(other);
    MainWindow window;
    window.show();
    window.recovery()->offer();
    const MessageBoxAnswer box({answer});
    press(dialog(window), u"Recover"_s);
    QCOMPARE(box.texts(), QStringList({u"“census.mvdb” is open in another window."_s}));
    QCOMPARE(window.document()->root()->getLabel(), opens ? u"Census"_s : QString());
    QCOMPARE(window.isWindowModified(), opens);
    QCOMPARE(window.document()->isReadOnly(), readOnly);
    QCOMPARE(Recovery::any(JournalFolder::path()), !opens);
}

void TestRecovery::othersChangesAreNotOverwrittenUnasked()
{
    const QString path = sample();
    MainWindow window;
    window.show();
    Process theirs = start({u"open"_s, path});
    QVERIFY(theirs);
    {
        const MessageBoxAnswer box({u"Open Anyway"_s});
        QVERIFY(window.files()->open(path));
        QCOMPARE(box.shown().size(), 1);
    }
    window.document()->root()->setLabel(u"Mine"_s);
    window.document()->commit();
    theirs->kill();
    QVERIFY(theirs->waitForFinished());
    theirs = start({u"save"_s, path, u"Theirs"_s});
    QVERIFY(theirs);
    Document other;
    {
        const MessageBoxAnswer box({u"Cancel"_s});
        (*window.actions())[ActionId::FileSave]->trigger();
        QCOMPARE(box.shown().size(), 1);
        QVERIFY(window.isWindowModified());
        QVERIFY(other.open(path));
        QCOMPARE(other.root()->getLabel(), u"Theirs"_s);
    }
    const MessageBoxAnswer box({u"Overwrite"_s});
    (*window.actions())[ActionId::FileSave]->trigger();
    QVERIFY(!window.isWindowModified());
    QVERIFY(other.open(path));
    QCOMPARE(other.root()->getLabel(), u"Mine"_s);
}

QTEST_MAIN(TestRecovery)
#include "tst_recovery.moc"
