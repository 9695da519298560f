#include "documents/DictionaryEquality.h"
#include "tests/support/Trees.h"
#include "tests/workbench/BytesRead.h"
#include "workbench/Document.h"
#include "workbench/journal/FileClaim.h"
#include "workbench/journal/Journal.h"
#include "workbench/journal/JournalFile.h"
#include "workbench/journal/JournalFolder.h"
#include "workbench/journal/Recovery.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLockFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace std::chrono_literals;
using namespace Qt::Literals::StringLiterals;

class TestJournal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void isWrittenSomeTimeAfterAChange();
    void isWrittenInTheMidstOfChanging();
    void goesWhenChangesAreSaved();
    void goesWhenChangesAreUndone();
    void goesWithAnotherDictionary();
    void goesWhenChangesAreGivenUp();
    void staysWhenTheProgramEnds();
    void nothingIsWrittenWithoutAChange();
    void nobodyElseMayReadIt();
    void holdsOnlyWholeSteps();
    void keepsWhatTheFileKeeps();
    void recoveredChangesAreUnsaved();
    void goesWithTheDictionaryThatWasRecovered();
    void readsTheirFileOnceHoweverManyThereAre();
    void recoveringMayBeCancelled();
    void staysUntilTheEndWhenGivenUp();
    void goesOnWithTheSameJournal();
    void tellsWhatBecameOfTheFile_data();
    void tellsWhatBecameOfTheFile();
    void savingWarnsOfOthersChanges();
    void savingWarnsOfLosses();
    void isNotOfferedWhileItsInstanceLives();
    void isRecoveredOnce();
    void damagedJournalsAreLeftAlone_data();
    void damagedJournalsAreLeftAlone();
    void saysWhenItCannotBeWritten();
    void cleansUpAfterOthers();
    void aFileIsClaimedByOneAtATime();
    void aClaimFollowsLinks();

private:
    /// A dictionary in a file, with a key that the layer knows nothing of.
    [[nodiscard]] QString sample();
    [[nodiscard]] QString journals() const { return m_folder->filePath(u"journal"_s); }
    [[nodiscard]] QStringList files() const { return QDir(journals()).entryList({u"*.journal"_s}); }
    /// Leaves unsaved changes behind: \a label of the root of the dictionary at \a path.
    void leaveBehind(const QString &path, const QString &label);

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace
{
constexpr Journal::Pace quick{.quiet = 1ms, .longest = 10ms};

void change(Document &document, const QString &label)
{
    document.root()->setLabel(label);
    document.commit();
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
} // namespace

void TestJournal::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

QString TestJournal::sample()
{
    const QString path = m_folder->filePath(u"census.mvdb"_s);
    write(path, R"({"root": [{"name": "CENSUS", "colour": "blue", "variables": [{"name": "AGE"}]}]})");
    return path;
}

void TestJournal::leaveBehind(const QString &path, const QString &label)
{
    Document document;
    Journal journal(&document, journals(), quick);
    QVERIFY(path.isEmpty() || document.open(path));
    change(document, label);
    journal.writeNow();
}

void TestJournal::isWrittenSomeTimeAfterAChange()
{
    Document document;
    Journal journal(&document, journals(), {.quiet = 20ms, .longest = 1h});
    QSignalSpy written(&journal, &Journal::written);
    change(document, u"one"_s);
    QVERIFY(files().isEmpty());
    QVERIFY(written.wait());
    QCOMPARE(files().size(), 1);
    const auto left = JournalFile::read(QDir(journals()).filePath(files().constFirst()));
    QVERIFY(left);
    QCOMPARE(left->document.content, document.snapshot()->content());
    QVERIFY(left->written.secsTo(QDateTime::currentDateTime()) < 3600);
}

void TestJournal::isWrittenInTheMidstOfChanging()
{
    Document document;
    Journal journal(&document, journals(), {.quiet = 1h, .longest = 20ms});
    QSignalSpy written(&journal, &Journal::written);
    change(document, u"one"_s);
    QVERIFY(written.wait());
    change(document, u"two"_s);
    QVERIFY(written.wait());
    QCOMPARE(files().size(), 1);
}

void TestJournal::goesWhenChangesAreSaved()
{
    Document document;
    Journal journal(&document, journals(), quick);
    QVERIFY(document.open(sample()));
    change(document, u"one"_s);
    journal.writeNow();
    QCOMPARE(files().size(), 1);
    QVERIFY(document.save(document.path()));
    QVERIFY(files().isEmpty());
    QVERIFY(QDir(journals()).isEmpty());
    // Also when it is just being written.
    change(document, u"two"_s);
    QTest::qWait(2);
    QVERIFY(document.save(document.path()));
    QTest::qWait(50);
    QVERIFY(QDir(journals()).isEmpty());
}

void TestJournal::goesWhenChangesAreUndone()
{
    Document document;
    Journal journal(&document, journals(), quick);
    change(document, u"one"_s);
    journal.writeNow();
    document.undoStack()->undo();
    QVERIFY(files().isEmpty());
    document.undoStack()->redo();
    journal.writeNow();
    QCOMPARE(files().size(), 1);
}

void TestJournal::goesWithAnotherDictionary()
{
    Document document;
    Journal journal(&document, journals(), quick);
    QVERIFY(document.open(sample()));
    change(document, u"one"_s);
    journal.writeNow();
    QVERIFY(document.open(sample()));
    QVERIFY(files().isEmpty());
    // But not when there is none to be opened.
    change(document, u"one"_s);
    journal.writeNow();
    QVERIFY(!document.open(m_folder->filePath(u"missing.mvdb"_s)));
    QCOMPARE(files().size(), 1);
}

void TestJournal::goesWhenChangesAreGivenUp()
{
    {
        Document document;
        Journal journal(&document, journals(), quick);
        change(document, u"one"_s);
        journal.writeNow();
        journal.discard();
        QVERIFY(files().isEmpty());
    }
    QVERIFY(Recovery::find(journals()).isEmpty());
}

void TestJournal::staysWhenTheProgramEnds()
{
    {
        Document document;
        Journal journal(&document, journals(), {.quiet = 1h, .longest = 1h});
        change(document, u"one"_s);
    }
    QCOMPARE(Recovery::find(journals()).size(), 1);
}

void TestJournal::nothingIsWrittenWithoutAChange()
{
    Document document;
    Journal journal(&document, journals(), quick);
    QVERIFY(document.open(sample()));
    document.commit(u"nothing"_s);
    journal.writeNow();
    QVERIFY(!QDir(journals()).exists());
}

void TestJournal::nobodyElseMayReadIt()
{
    leaveBehind(sample(), u"one"_s);
    const QFileInfo file(QDir(journals()).filePath(files().constFirst()));
    constexpr auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther
        | QFile::WriteOther | QFile::ExeOther;
    QVERIFY(!(file.permissions() & others));
    QVERIFY(!(QFileInfo(journals()).permissions() & others));
}

void TestJournal::holdsOnlyWholeSteps()
{
    Document document;
    Journal journal(&document, journals(), quick);
    change(document, u"whole"_s);
    // Half a change: somebody asks the person something in the midst of it.
    document.root()->setLabel(u"half"_s);
    QSignalSpy written(&journal, &Journal::written);
    QVERIFY(written.wait());
    const auto left = JournalFile::read(QDir(journals()).filePath(files().constFirst()));
    QVERIFY(left->document.content.contains("whole"));
    QVERIFY(!left->document.content.contains("half"));
}

void TestJournal::keepsWhatTheFileKeeps()
{
    const QString path = sample();
    Document direct;
    QVERIFY(direct.open(path));
    change(direct, u"one"_s);
    leaveBehind(path, u"one"_s);
    Document document;
    Journal journal(&document, journals(), quick);
    QCOMPARE(Recovery::recover(Recovery::find(journals()).constFirst().journal, &document, &journal),
             QString());
    QVERIFY(DictionaryEquality::equal(*document.root(), *direct.root()));
    QVERIFY(document.save(path));
    const QByteArray recovered = read(path);
    QVERIFY(recovered.contains(R"("colour": "blue")") || recovered.contains(R"("colour":"blue")"));
    QVERIFY(direct.save(path, DocumentFile::OverwriteOthersChanges));
    QCOMPARE(recovered, read(path));
}

void TestJournal::recoveredChangesAreUnsaved()
{
    const QString path = sample();
    const QByteArray before = read(path);
    leaveBehind(path, u"one"_s);
    const QList<LeftChanges> found = Recovery::find(journals());
    QCOMPARE(found.size(), 1);
    QCOMPARE(found.constFirst().path, path);
    QVERIFY(found.constFirst().written.isValid());
    Document document;
    Journal journal(&document, journals(), quick);
    QSignalSpy modified(&document, &Document::modifiedChanged);
    QCOMPARE(Recovery::recover(found.constFirst().journal, &document, &journal), QString());
    QVERIFY(document.isModified());
    QCOMPARE(modified.last().first().toBool(), true);
    QCOMPARE(document.path(), path);
    QCOMPARE(document.root()->getLabel(), u"one"_s);
    QCOMPARE(read(path), before);
    QVERIFY(document.save(path));
    QVERIFY(!document.isModified());
    QVERIFY(files().isEmpty());
}

void TestJournal::goesWithTheDictionaryThatWasRecovered()
{
    leaveBehind(sample(), u"one"_s);
    Document document;
    Journal journal(&document, journals(), quick);
    QCOMPARE(Recovery::recover(Recovery::find(journals()).constFirst().journal, &document, &journal),
             QString());
    QCOMPARE(files().size(), 1);
    QVERIFY(document.open(sample()));
    QVERIFY(files().isEmpty());
}

void TestJournal::readsTheirFileOnceHoweverManyThereAre()
{
    constexpr int size = 4 << 20;
    const QString path = sample();
    leaveBehind(path, u"one"_s);
    leaveBehind(path, u"two"_s);
    leaveBehind(path, u"three"_s);
    write(path, QByteArray(size, ' '));
    const qint64 before = bytesRead();
    const QList<LeftChanges> found = Recovery::find(journals());
    QVERIFY(bytesRead() - before < 2 * size);
    QCOMPARE(found.size(), 3);
    for (const LeftChanges &changes : found)
        QCOMPARE(int(changes.state), int(LeftChanges::State::ChangedSince));
}

void TestJournal::recoveringMayBeCancelled()
{
    leaveBehind(sample(), u"one"_s);
    const QString path = Recovery::find(journals()).constFirst().journal;
    Document document;
    Journal journal(&document, journals(), quick);
    QString said;
    bool waits = false;
    document.setWait([&](const QString &text, bool mayCancel, const std::function<void()> &work) {
        said = text;
        if (waits || !mayCancel)
            work();
        return waits || !mayCancel;
    });
    QCOMPARE(Recovery::recover(path, &document, &journal), QString());
    QCOMPARE(said, u"Recovering “census.mvdb”…"_s);
    QVERIFY(!document.isModified());
    QVERIFY(document.path().isEmpty());
    QCOMPARE(Recovery::find(journals()).size(), 1);
    waits = true;
    QCOMPARE(Recovery::recover(path, &document, &journal), QString());
    QCOMPARE(document.root()->getLabel(), u"one"_s);
    QVERIFY(document.isModified());
}

void TestJournal::staysUntilTheEndWhenGivenUp()
{
    {
        Document document;
        Journal journal(&document, journals(), quick);
        change(document, u"one"_s);
        journal.setGivenUp(true);
        journal.writeNow();
        QCOMPARE(files().size(), 1);
    }
    QVERIFY(files().isEmpty());
    {
        Document document;
        Journal journal(&document, journals(), quick);
        change(document, u"one"_s);
        journal.setGivenUp(true);
        change(document, u"two"_s); // The end did not come.
    }
    QCOMPARE(files().size(), 1);
}

void TestJournal::goesOnWithTheSameJournal()
{
    leaveBehind({}, u"one"_s);
    const QStringList before = files();
    {
        Document document;
        Journal journal(&document, journals(), quick);
        QCOMPARE(Recovery::recover(Recovery::find(journals()).constFirst().journal, &document, &journal),
                 QString());
        QCOMPARE(files(), before);
        change(document, u"two"_s);
        journal.writeNow();
        QCOMPARE(files(), before);
    }
    Document document;
    Journal journal(&document, journals(), quick);
    QCOMPARE(Recovery::recover(Recovery::find(journals()).constFirst().journal, &document, &journal),
             QString());
    QCOMPARE(document.root()->getLabel(), u"two"_s);
}

void TestJournal::tellsWhatBecameOfTheFile_data()
{
    QTest::addColumn<QString>("fate");
    QTest::addColumn<int>("state");
    QTest::addRow("none") << u"none"_s << int(LeftChanges::State::NeverSaved);
    QTest::addRow("same") << u"same"_s << int(LeftChanges::State::AsItWas);
    QTest::addRow("changed") << u"changed"_s << int(LeftChanges::State::ChangedSince);
    QTest::addRow("gone") << u"gone"_s << int(LeftChanges::State::Gone);
}

void TestJournal::tellsWhatBecameOfTheFile()
{
    QFETCH(const QString, fate);
    QFETCH(const int, state);
    const QString path = fate == "none"_L1 ? QString() : sample();
    leaveBehind(path, u"one"_s);
    if (fate == "changed"_L1)
        write(path, R"({"root": [{"name": "CENSUT", "colour": "blue", "variables": [{"name": "AGE"}]}]})");
    if (fate == "gone"_L1)
        QVERIFY(QFile::remove(path));
    QCOMPARE(int(Recovery::find(journals()).constFirst().state), state);
}

void TestJournal::savingWarnsOfOthersChanges()
{
    const QString path = sample();
    leaveBehind(path, u"one"_s);
    write(path, R"({"root": [{"name": "OTHER"}]})");
    Document document;
    Journal journal(&document, journals(), quick);
    QCOMPARE(Recovery::recover(Recovery::find(journals()).constFirst().journal, &document, &journal),
             QString());
    QVERIFY(!document.save(path));
    QCOMPARE(document.error(), DocumentFile::Error::ChangedByOthers);
    QVERIFY(document.save(path, DocumentFile::OverwriteOthersChanges));
}

void TestJournal::savingWarnsOfLosses()
{
    const QString path = m_folder->filePath(u"census.mvdb"_s);
    write(path, R"({"root": [{"name": "CENSUS", "note": 1, "note": 2}]})");
    leaveBehind(path, u"one"_s);
    Document document;
    Journal journal(&document, journals(), quick);
    QCOMPARE(Recovery::recover(Recovery::find(journals()).constFirst().journal, &document, &journal),
             QString());
    QVERIFY(!document.save(path));
    QCOMPARE(document.error(), DocumentFile::Error::LosesContent);
}

void TestJournal::isNotOfferedWhileItsInstanceLives()
{
    auto document = std::make_unique<Document>();
    auto journal = std::make_unique<Journal>(document.get(), journals(), quick);
    change(*document, u"one"_s);
    journal->writeNow();
    QCOMPARE(files().size(), 1);
    QVERIFY(!Recovery::any(journals()));
    QVERIFY(Recovery::find(journals()).isEmpty());
    Recovery::remove(QDir(journals()).filePath(files().constFirst()));
    QCOMPARE(files().size(), 1);
    journal.reset();
    QVERIFY(Recovery::any(journals()));
    Recovery::remove(QDir(journals()).filePath(files().constFirst()));
    QVERIFY(files().isEmpty());
}

void TestJournal::isRecoveredOnce()
{
    leaveBehind({}, u"one"_s);
    const QString path = Recovery::find(journals()).constFirst().journal;
    Document first;
    Journal firstJournal(&first, journals(), quick);
    QCOMPARE(Recovery::recover(path, &first, &firstJournal), QString());
    Document second;
    Journal secondJournal(&second, journals(), quick);
    QVERIFY(!Recovery::recover(path, &second, &secondJournal).isEmpty());
    QVERIFY(!second.isModified());
}

void TestJournal::damagedJournalsAreLeftAlone_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addRow("empty") << QByteArray();
    QTest::addRow("another kind") << QByteArray("{\"root\": []}");
    leaveBehind({}, u"one"_s);
    const QByteArray whole = read(QDir(journals()).filePath(files().constFirst()));
    QTest::addRow("cut in the header") << whole.left(12);
    QTest::addRow("cut in the content") << whole.chopped(5);
    QByteArray garbled = whole;
    garbled.replace("{", "[");
    QTest::addRow("garbled content") << garbled;
}

void TestJournal::damagedJournalsAreLeftAlone()
{
    QFETCH(const QByteArray, bytes);
    QVERIFY(JournalFolder::make(journals()));
    const QString path = QDir(journals()).filePath(u"x.journal"_s);
    write(path, bytes);
    const QList<LeftChanges> found = Recovery::find(journals());
    Document document;
    Journal journal(&document, journals(), quick);
    QVERIFY(!Recovery::recover(path, &document, &journal).isEmpty());
    QVERIFY(!document.isModified());
    QVERIFY(QFile::exists(path));
    QVERIFY(found.isEmpty() || bytes.size() > 12);
}

void TestJournal::saysWhenItCannotBeWritten()
{
    write(journals(), "in the way");
    Document document;
    Journal journal(&document, journals(), quick);
    QSignalSpy failed(&journal, &Journal::failed);
    change(document, u"one"_s);
    QVERIFY(failed.wait());
    QVERIFY(!failed.constFirst().constFirst().toString().isEmpty());
    // It tries again, without being asked to.
    QVERIFY(QFile::remove(journals()));
    QSignalSpy written(&journal, &Journal::written);
    QVERIFY(written.wait());
    QCOMPARE(Recovery::find(journals()).size(), 0);
    QCOMPARE(files().size(), 1);
}

void TestJournal::cleansUpAfterOthers()
{
    leaveBehind({}, u"one"_s);
    const QString name = files().constFirst();
    const QDir folder(journals());
    write(folder.filePath(name + u".part"_s), "half");
    write(folder.filePath(name + u".part.aBcDeF"_s), "half");
    Document document;
    Journal journal(&document, journals(), quick);
    change(document, u"two"_s);
    journal.writeNow();
    const QString living =
        folder.filePath(files().constFirst() == name ? files().constLast() : files().constFirst());
    write(living + u".part"_s, "being written");
    JournalFolder::cleanUp(journals());
    QVERIFY(!folder.exists(name + u".part"_s));
    QVERIFY(!folder.exists(name + u".part.aBcDeF"_s));
    QVERIFY(folder.exists(name));
    QVERIFY(!folder.exists(name + u".lock"_s));
    QVERIFY(QFile::exists(living + u".part"_s));
    QVERIFY(QFile::exists(living + u".lock"_s));
}

void TestJournal::aFileIsClaimedByOneAtATime()
{
    const QString path = sample();
    FileClaim first(journals());
    FileClaim second(journals());
    QVERIFY(!second.isOpenElsewhere(path));
    QVERIFY(first.claim(path));
    QVERIFY(!first.isOpenElsewhere(path));
    QVERIFY(second.isOpenElsewhere(path));
    QVERIFY(!second.claim(path));
    QVERIFY(first.claim(path));
    QVERIFY(first.claim(m_folder->filePath(u"new.mvdb"_s)));
    QVERIFY(second.claim(path));
    QVERIFY(second.isOpenElsewhere(m_folder->filePath(u"new.mvdb"_s)));
    QVERIFY(first.claim({}));
    QVERIFY(!second.isOpenElsewhere(m_folder->filePath(u"new.mvdb"_s)));
}

void TestJournal::aClaimFollowsLinks()
{
    const QString path = sample();
    const QString link = m_folder->filePath(u"link.mvdb"_s);
    QVERIFY(QFile::link(path, link));
    FileClaim first(journals());
    const FileClaim second(journals());
    QVERIFY(first.claim(link));
    QVERIFY(second.isOpenElsewhere(path));
}

QTEST_GUILESS_MAIN(TestJournal)
#include "tst_journal.moc"
