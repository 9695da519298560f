#include "tests/support/Trees.h"
#include "workbench/Document.h"
#include "workbench/journal/Journal.h"
#include "workbench/Progress.h"

#include <QApplication>
#include <QProgressDialog>
#include <QPushButton>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <atomic>

using namespace Qt::Literals::StringLiterals;

class TestProgress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shortWorkShowsNothing();
    void longWorkShowsADialogWhileTheProgramLives();
    void cancellingDoesNotWait();
    void nothingWaitsBehindWhatWasCancelled();
    void whatCannotBeCancelledHasNoButton();
    void aCancelledOpeningLeavesTheOldDictionary();
    void savesWhatIsThereThroughAWait();
};

namespace
{
QProgressDialog *shownDialog()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    const auto found = std::find_if(widgets.cbegin(), widgets.cend(), [](const QWidget *widget) {
        return widget->objectName() == "progress"_L1 && widget->isVisible();
    });
    return found == widgets.cend() ? nullptr : static_cast<QProgressDialog *>(*found);
}
} // namespace

void TestProgress::shortWorkShowsNothing()
{
    bool done = false;
    bool seen = false;
    QTimer::singleShot(0, this, [&seen] { seen = true; });
    QVERIFY(Progress::run(u"Short"_s, nullptr, Progress::Cancel::Possible, [&done] { done = true; }));
    QVERIFY(done);
    QVERIFY(!seen); // Nothing else can happen in between.
}

void TestProgress::longWorkShowsADialogWhileTheProgramLives()
{
    std::atomic_bool go = false;
    QString text;
    QTimer::singleShot(0, this, [&] {
        if (const QProgressDialog *dialog = shownDialog())
            text = dialog->labelText();
        go = true;
    });
    const auto work = [&go] {
        while (!go)
            QTest::qSleep(5);
    };
    QVERIFY(Progress::run(u"Long"_s, nullptr, Progress::Cancel::Possible, work));
    QCOMPARE(text, u"Long"_s);
    QVERIFY(!shownDialog());
}

void TestProgress::cancellingDoesNotWait()
{
    const auto go = std::make_shared<std::atomic_bool>(false);
    QTimer::singleShot(0, this, [] { shownDialog()->findChild<QPushButton *>()->click(); });
    QVERIFY(!Progress::run(u"Long"_s, nullptr, Progress::Cancel::Possible, [go] {
        while (!*go)
            QTest::qSleep(5);
    }));
    *go = true;
}

void TestProgress::nothingWaitsBehindWhatWasCancelled()
{
    struct Abandoned {
        std::atomic_bool go = false;
        std::atomic_int gaveUp = 0;
    };
    const auto abandoned = std::make_shared<Abandoned>();
    const auto finish = qScopeGuard([abandoned] { abandoned->go = true; });
    // As many as there are processors, and one more.
    for (int i = 0; i <= QThread::idealThreadCount(); ++i) {
        QTimer::singleShot(0, this, [] { shownDialog()->findChild<QPushButton *>()->click(); });
        QVERIFY(!Progress::run(u"In vain"_s, nullptr, Progress::Cancel::Possible, [abandoned] {
            for (int tries = 0; tries < 2000 && !abandoned->go; ++tries)
                QTest::qSleep(5);
            if (!abandoned->go) // So that whoever does wait is not kept for ever.
                ++abandoned->gaveUp;
        }));
    }
    for (const auto cancel : {Progress::Cancel::Possible, Progress::Cancel::Impossible}) {
        bool done = false;
        QVERIFY(Progress::run(u"Short"_s, nullptr, cancel, [&done] { done = true; }));
        QVERIFY(done);
    }
    const QTemporaryDir folder;
    Document document;
    Journal journal(&document, folder.path(), {});
    QSignalSpy written(&journal, &Journal::written);
    document.root()->setLabel(u"Census"_s);
    document.commit();
    journal.writeNow();
    QCOMPARE(written.size(), 1);
    QCOMPARE(abandoned->gaveUp, 0);
}

void TestProgress::whatCannotBeCancelledHasNoButton()
{
    std::atomic_bool go = false;
    bool button = true;
    QTimer::singleShot(0, this, [&] {
        const auto *found = shownDialog()->findChild<QPushButton *>();
        button = found && found->isVisible();
        go = true;
    });
    QVERIFY(Progress::run(u"Long"_s, nullptr, Progress::Cancel::Impossible, [&go] {
        while (!go)
            QTest::qSleep(5);
    }));
    QVERIFY(!button);
}

void TestProgress::aCancelledOpeningLeavesTheOldDictionary()
{
    const QTemporaryDir folder;
    Document saved;
    QVERIFY(saved.save(folder.filePath(u"census.mvdb"_s)));
    Document document;
    const TDcEntity *root = document.root();
    std::function<void()> later;
    document.setWait([&later](const QString &text, bool mayCancel, const std::function<void()> &work) {
        later = work;
        return text.isEmpty() || !mayCancel;
    });
    QVERIFY(!document.open(saved.path()));
    QCOMPARE(document.errorText(), QString());
    QCOMPARE(document.error(), DocumentFile::Error::None);
    later(); // It is read in vain.
    later = {};
    QCOMPARE(document.root(), root);
    QVERIFY(document.path().isEmpty());
}

void TestProgress::savesWhatIsThereThroughAWait()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"census.mvdb"_s);
    Document document;
    const TDcEntity *root = document.root();
    document.setWait([](const QString &text, bool mayCancel, const std::function<void()> &work) {
        return Progress::run(text, nullptr,
                             mayCancel ? Progress::Cancel::Possible : Progress::Cancel::Impossible, work);
    });
    document.root()->setLabel(u"Census"_s);
    document.commit();
    QVERIFY(document.save(path));
    QCOMPARE(document.root(), root);
    QVERIFY(!document.isModified());
    Document other;
    QVERIFY(other.open(path));
    QCOMPARE(other.root()->getLabel(), u"Census"_s);
    document.undoStack()->undo();
    QCOMPARE(document.root()->getLabel(), QString());
    QVERIFY(!document.save(folder.filePath(u"no/folder/census.mvdb"_s)));
    QCOMPARE(document.path(), path);
    QVERIFY(document.open(path));
    QCOMPARE(document.root()->getLabel(), u"Census"_s);
}

QTEST_MAIN(TestProgress)
#include "tst_progress.moc"
