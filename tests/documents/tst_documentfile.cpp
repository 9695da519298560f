#include "documents/DictionaryFile.h"
#include "documents/RunConfigurationFile.h"
#include "model/TDcEntity.h"
#include "tests/documents/Files.h"
#include "tests/documents/RandomDictionary.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace
{
const QByteArray smallDictionary = "{\"name\":\"A\",\"virtual\":true}";
const auto ownerAndGroup =
    QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser | QFile::ReadGroup;

/// Whatever \a work does happens in a process of its own. Its result is that process's wait status.
template <typename Work>
pid_t start(Work work)
{
    const pid_t child = fork();
    if (child == 0) {
        const int result = work();
        _exit(result); // Without the test's own farewells.
    }
    return child;
}

int statusOf(pid_t child)
{
    int status = 0;
    waitpid(child, &status, 0);
    return status;
}

/// A dictionary that takes a while to be written.
std::unique_ptr<TDcEntity> largeDictionary(const QString &name, int variables)
{
    auto root = std::make_unique<TDcEntity>();
    root->setName(name);
    RandomDictionary random(1);
    for (int i = 0; i < variables; ++i)
        root->addVariables(random.variable().release());
    return root;
}
} // namespace

class tst_DocumentFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void filesThatCannotBeReadAreRefused_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("problem");
        QTest::addRow("folder") << u"."_s << u"It is a folder, not a file."_s;
        QTest::addRow("nothing there") << u"missing"_s << u"There is no such file."_s;
        QTest::addRow("no name") << QString() << u"There is no such file."_s;
        QTest::addRow("a device that never ends")
            << u"/dev/zero"_s << u"It is a device or a pipe, not a file."_s;
        QTest::addRow("a pipe that nobody writes into")
            << u"pipe"_s << u"It is a device or a pipe, not a file."_s;
    }

    void filesThatCannotBeReadAreRefused()
    {
        QFETCH(QString, name);
        const TemporaryFile file;
        QCOMPARE(mkfifo(QFile::encodeName(file.folder() + u"/pipe"_s).constData(), S_IRUSR | S_IWUSR), 0);
        const QString path = name.isEmpty() ? name : QDir(file.folder()).absoluteFilePath(name);
        DictionaryFile dictionary;
        QVERIFY(!dictionary.open(path));
        QCOMPARE(dictionary.error(), DocumentFile::Error::CannotRead);
        QFETCH(QString, problem);
        QCOMPARE(dictionary.errorText(), path + u" cannot be read: "_s + problem);
        QVERIFY(DocumentFile::digestOf(path).isEmpty());
    }

    void whatIsToldToStopChangesNothing()
    {
        const TemporaryFile file(smallDictionary);
        std::stop_source stop;
        DictionaryFile dictionary;
        QVERIFY(!dictionary.open(u"/missing"_s, stop.get_token()));
        QVERIFY(stop.request_stop());
        const TDcEntity *root = dictionary.root();
        QVERIFY(!dictionary.open(file.path(), stop.get_token()));
        QCOMPARE(dictionary.error(), DocumentFile::Error::None);
        QCOMPARE(dictionary.errorText(), QString());
        const DocumentFile::Unsaved unsaved{smallDictionary, file.path(), {}, {}};
        QVERIFY(!dictionary.restore(unsaved, stop.get_token()));
        QCOMPARE(dictionary.error(), DocumentFile::Error::None);
        QCOMPARE(dictionary.root(), root);
        QCOMPARE(dictionary.path(), QString());
        RunConfigurationFile configuration;
        const Config *config = configuration.config();
        QVERIFY(!configuration.open(file.path(), stop.get_token()));
        QCOMPARE(configuration.config(), config);
        QVERIFY(dictionary.open(file.path()));
    }

    void aFileChangedByOthersIsNotOverwrittenUnasked()
    {
        const TemporaryFile file(smallDictionary);
        DictionaryFile dictionary;
        QVERIFY(dictionary.open(file.path()));
        QVERIFY(!dictionary.isChangedByOthers());
        const QByteArray theirs = QByteArray(smallDictionary).replace('A', 'B'); // Of the same size.
        file.set(theirs);
        QVERIFY(dictionary.isChangedByOthers());
        QVERIFY(!dictionary.save());
        QCOMPARE(dictionary.error(), DocumentFile::Error::ChangedByOthers);
        QCOMPARE(dictionary.errorText(), file.path() + u" has been changed since it was opened."_s);
        QCOMPARE(file.bytes(), theirs);
        QVERIFY(!dictionary.saveAs(file.path()));

        QVERIFY(dictionary.save(DocumentFile::OverwriteOthersChanges));
        QCOMPARE(dictionary.error(), DocumentFile::Error::None);
        QCOMPARE(file.bytes(), smallDictionary);
        QVERIFY(!dictionary.isChangedByOthers());
        QVERIFY(dictionary.save());
    }

    void aFileThatWasTouchedOnlyHasNotChanged()
    {
        const TemporaryFile file(smallDictionary);
        DictionaryFile dictionary;
        QVERIFY(dictionary.open(file.path()));
        file.set(smallDictionary);
        QVERIFY(!dictionary.isChangedByOthers());
        QVERIFY(dictionary.save());
    }

    void aFileThatIsGoneIsWrittenAgain()
    {
        const TemporaryFile file(smallDictionary);
        DictionaryFile dictionary;
        QVERIFY(dictionary.open(file.path()));
        QVERIFY(QFile::remove(file.path()));
        QVERIFY(!dictionary.isChangedByOthers());
        QVERIFY(dictionary.save());
        QCOMPARE(file.bytes(), smallDictionary);
    }

    void aReadOnlyFileOpensReadOnly()
    {
        const TemporaryFile file(smallDictionary);
        QVERIFY(QFile::setPermissions(file.path(), QFile::ReadOwner));
        DictionaryFile dictionary;
        QVERIFY(dictionary.open(file.path()));
        QVERIFY(dictionary.isReadOnly());
        dictionary.root()->setName(u"B"_s);
        QVERIFY(!dictionary.save());
        QCOMPARE(dictionary.error(), DocumentFile::Error::ReadOnly);
        QCOMPARE(dictionary.errorText(), file.path() + u" is read-only."_s);
        QCOMPARE(file.bytes(), smallDictionary);

        const QString other = file.folder() + u"/other"_s;
        QVERIFY(dictionary.saveAs(other));
        QCOMPARE(dictionary.path(), other);
        QVERIFY(!dictionary.isReadOnly());
        QVERIFY(dictionary.save());
    }

    void permissionsStay()
    {
        const TemporaryFile file(smallDictionary);
        QVERIFY(QFile::setPermissions(file.path(), ownerAndGroup));
        DictionaryFile dictionary;
        QVERIFY(dictionary.open(file.path()));
        QVERIFY(dictionary.save());
        QCOMPARE(QFile::permissions(file.path()), QFile::Permissions(ownerAndGroup));
    }

    void aLinkStaysALink()
    {
        const TemporaryFile file(smallDictionary);
        const QString link = file.folder() + u"/link"_s;
        const QString second = file.folder() + u"/second"_s;
        QVERIFY(QFile::link(file.path(), link));
        QVERIFY(QFile::link(link, second));
        DictionaryFile dictionary;
        QVERIFY(dictionary.open(second));
        dictionary.root()->setName(u"B"_s);
        QVERIFY(dictionary.save());
        QVERIFY(QFileInfo(link).isSymLink());
        QVERIFY(QFileInfo(second).isSymLink());
        QVERIFY(file.bytes().contains("\"B\""));
        // The same file by another name is no other file.
        file.set(smallDictionary);
        QVERIFY(!dictionary.saveAs(file.path()));
        QCOMPARE(dictionary.error(), DocumentFile::Error::ChangedByOthers);
    }

    void withoutAFileThereIsNothingToSaveTo()
    {
        DictionaryFile dictionary;
        QVERIFY(!dictionary.save());
        QCOMPARE(dictionary.error(), DocumentFile::Error::CannotWrite);
        QCOMPARE(dictionary.errorText(), u"There is no file yet to be saved to."_s);
        const TemporaryFile file;
        QVERIFY(!dictionary.saveAs(file.folder() + u"/missing/file"_s));
        QCOMPARE(dictionary.error(), DocumentFile::Error::CannotWrite);
        QVERIFY(dictionary.path().isEmpty());
        QVERIFY(!dictionary.saveAs(file.folder()));
        QVERIFY(dictionary.saveAs(file.path()));
        QCOMPARE(dictionary.path(), file.path());
    }

    void savingElsewhereLosesNothingOfTheFileThere()
    {
        const TemporaryFile file("{\"name\": \"A\", \"x\": 1, \"x\": 2}");
        DictionaryFile dictionary;
        QVERIFY(dictionary.open(file.path()));
        QCOMPARE(dictionary.losses().size(), 1);
        QVERIFY(dictionary.saveAs(file.folder() + u"/other"_s));
        QVERIFY(dictionary.losses().isEmpty());
    }

    void whatCouldNotBeReadAgainIsNotWritten()
    {
        const TemporaryFile file(smallDictionary);
        int levels = 500;
        const auto save = [&](int depth) {
            DictionaryFile dictionary;
            QVERIFY(dictionary.open(file.path()));
            TDcEntity *last = dictionary.root();
            for (int level = 1; level < depth; ++level) {
                auto *child = new TDcEntity;
                child->setLabel(u"[[{\"{[\\"_s); // Nothing is nested in a text.
                last->getChildren()->append(child);
                last = child;
            }
            const QByteArray before = file.bytes();
            if (dictionary.save()) {
                levels = depth;
            } else {
                QCOMPARE(dictionary.error(), DocumentFile::Error::CannotWrite);
                QCOMPARE(file.bytes(), before);
            }
        };
        for (int depth = 505; depth < 520; ++depth) {
            save(depth);
            DictionaryFile again;
            QVERIFY2(again.open(file.path()), qPrintable(again.errorText()));
            file.set(smallDictionary);
        }
        QCOMPARE(levels, 512); // The root in its object, each of the others in its list.
    }

    void aFullDiskLeavesTheOldFile()
    {
        const TemporaryFile file(smallDictionary);
        const int status = statusOf(start([&] {
            // No file may grow beyond this: what the kernel answers is what it answers for a full disk.
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit{.rlim_cur = 100'000, .rlim_max = 100'000};
            setrlimit(RLIMIT_FSIZE, &limit);
            DictionaryFile dictionary;
            if (!dictionary.open(file.path()))
                return 1;
            dictionary.setRoot(largeDictionary(u"B"_s, 2000));
            if (dictionary.content().size() < 200'000)
                return 2;
            if (dictionary.save())
                return 3;
            return dictionary.error() == DocumentFile::Error::CannotWrite ? 0 : 4;
        }));
        QVERIFY(WIFEXITED(status));
        QCOMPARE(WEXITSTATUS(status), 0);
        QCOMPARE(file.bytes(), smallDictionary);
        QCOMPARE(QDir(file.folder()).entryList(QDir::Files),
                 QStringList{u"document"_s}); // Nothing left behind.
    }

    void aKilledProcessLeavesTheOldFileOrTheNewOne()
    {
        const TemporaryFile file;
        DictionaryFile first;
        first.setRoot(largeDictionary(u"FIRST"_s, 500));
        QVERIFY(first.saveAs(file.path()));
        const QByteArray one = file.bytes();
        const QByteArray other = QByteArray(one).replace("FIRST", "OTHER");

        // How long one saving takes says when to kill.
        QElapsedTimer timer;
        timer.start();
        QVERIFY(first.save());
        const int whole = int(timer.nsecsElapsed() / 1000);

        QRandomGenerator random(1);
        int killed = 0;
        int changed = 0;
        QByteArray last = one;
        for (int i = 0; i < 80; ++i) {
            const pid_t child = start([&file] {
                DictionaryFile dictionary;
                if (!dictionary.open(file.path()))
                    return 1;
                const bool isFirst = dictionary.root()->getName() == u"FIRST"_s;
                for (int round = 0; round < 1000; ++round) {
                    dictionary.root()->setName(isFirst == (round % 2 == 0) ? u"OTHER"_s : u"FIRST"_s);
                    if (!dictionary.save())
                        return 2;
                }
                return 0;
            });
            usleep(useconds_t(random.bounded(1000, 4 * whole + 2000)));
            kill(child, SIGKILL);
            killed += WIFSIGNALED(statusOf(child)) ? 1 : 0;
            const QByteArray now = file.bytes();
            QVERIFY(now == one || now == other);
            changed += now != last ? 1 : 0;
            last = now;
        }
        QCOMPARE(killed, 80);
        QVERIFY(changed > 10); // Or nothing was saved at all.
    }
};

QTEST_GUILESS_MAIN(tst_DocumentFile)
#include "tst_documentfile.moc"
