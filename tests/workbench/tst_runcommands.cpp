#include "tests/support/MessageBoxAnswer.h"
#include "tests/workbench/IsolatedSettings.h"
#include "workbench/FileCommands.h"
#include "workbench/MainWindow.h"
#include "workbench/run/RunWizard.h"

#include "model/TDcEntity.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

class TestRunCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void opensTheDictionaryFirst_data();
    void opensTheDictionaryFirst();
    void asksWhenAnotherDictionaryIsOpen_data();
    void asksWhenAnotherDictionaryIsOpen();
    void stopsWhereUnsavedChangesStay();
    void asksNothingAboutTheOpenDictionary();
    void saysThatTheDictionaryIsMissing();
    void saysThatTheDictionaryIsMissingAsTheOpenOneIs();
    void namesADictionaryOfAnotherSystemAsItWasWritten();
    void saysThatTheDictionaryIsUnreadable();
    void asksNothingAboutData_data();
    void asksNothingAboutData();
    void refusesADictionary();
    void opensWhatIsChosenAsAnyFile_data();
    void opensWhatIsChosenAsAnyFile();
    void opensUnasked();
    void failsUnasked_data();
    void failsUnasked();

private:
    QString write(const QString &name, const QByteArray &text);
    /// A run configuration whose source file is \a source.
    QString run(const QString &source, const QString &name = u"run.lsd.json"_s);
    [[nodiscard]] RunWizard *wizard() const { return m_window->findChild<RunWizard *>(); }
    [[nodiscard]] QString root() const { return m_window->document()->root()->getName(); }

    std::unique_ptr<IsolatedSettings> m_settings;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MainWindow> m_window;
};

namespace
{
const QByteArray census = R"({"name":"CENSUS","variables":[{"name":"SEX","type":"integer"}]})";
const QByteArray farms = R"({"name":"FARMS"})";
} // namespace

void TestRunCommands::init()
{
    m_settings = std::make_unique<IsolatedSettings>();
    m_folder = std::make_unique<QTemporaryDir>();
    m_window = std::make_unique<MainWindow>();
    m_window->show();
}

void TestRunCommands::cleanup()
{
    m_window.reset();
    m_settings.reset();
}

QString TestRunCommands::write(const QString &name, const QByteArray &text)
{
    const QString path = m_folder->filePath(name);
    QFile file(path);
    const bool written = QDir().mkpath(QFileInfo(path).absolutePath()) && file.open(QIODevice::WriteOnly)
        && file.write(text) == text.size();
    return written ? path : QString();
}

QString TestRunCommands::run(const QString &source, const QString &name)
{
    const QString text =
        uR"({"type": "config", "database": {"name": "R", "sourceFile": "%1"}})"_s.arg(source);
    return write(name, text.toUtf8());
}

void TestRunCommands::opensTheDictionaryFirst_data()
{
    QTest::addColumn<QString>("dictionary");
    QTest::addColumn<QString>("source");
    QTest::addRow("whole path") << u"data/census.mvdb"_s << u"%1/data/census.mvdb"_s;
    QTest::addRow("seen from the run") << u"data/census.mvdb"_s << u"../data/census.mvdb"_s;
    QTest::addRow("with another separator") << u"data/census.mvdb"_s << uR"(..\\data\\census.mvdb)"_s;
    QTest::addRow("moved with the run") << u"runs/census.mvdb"_s << uR"(C:\\data\\census.mvdb)"_s;
    QTest::addRow("in capitals") << u"runs/CENSUS.MVDB"_s << u"CENSUS.MVDB"_s;
}

void TestRunCommands::opensTheDictionaryFirst()
{
    QFETCH(const QString, dictionary);
    QFETCH(QString, source);
    const QString path = write(dictionary, census);
    if (source.contains(u"%1"_s))
        source = source.arg(m_folder->path());
    const MessageBoxAnswer box;
    m_window->open(run(source, u"runs/run.lsd.json"_s));
    QVERIFY(wizard());
    QCOMPARE(m_window->document()->path(), QFileInfo(path).absoluteFilePath());
    QCOMPARE(root(), u"CENSUS"_s);
    QVERIFY(box.shown().isEmpty());
}

void TestRunCommands::asksWhenAnotherDictionaryIsOpen_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("dictionary");
    QTest::addColumn<bool>("shows");
    QTest::addRow("open it") << u"Open It"_s << u"CENSUS"_s << true;
    QTest::addRow("keep") << u"Keep the Open One"_s << u"FARMS"_s << true;
    QTest::addRow("cancel") << u"Cancel"_s << u"FARMS"_s << false;
    QTest::addRow("escape") << QString() << u"FARMS"_s << false;
}

void TestRunCommands::asksWhenAnotherDictionaryIsOpen()
{
    QFETCH(const QString, answer);
    QFETCH(const bool, shows);
    QVERIFY(m_window->files()->open(write(u"farms.mvdb"_s, farms)));
    const QString path = write(u"census.mvdb"_s, census);
    const MessageBoxAnswer box({answer});
    m_window->open(run(u"census.mvdb"_s));
    QCOMPARE(box.texts(),
             QStringList({u"“run.lsd.json” was made for another dictionary than the one that is open."_s}));
    QCOMPARE(box.shown().constFirst().defaultButton, u"Keep the Open One"_s);
    QTEST(root(), "dictionary");
    QCOMPARE(wizard() != nullptr, shows);
}

void TestRunCommands::stopsWhereUnsavedChangesStay()
{
    QVERIFY(m_window->files()->open(write(u"farms.mvdb"_s, farms)));
    m_window->document()->root()->setLabel(u"All farms"_s);
    m_window->document()->commit();
    const QString path = write(u"census.mvdb"_s, census);
    const MessageBoxAnswer box({u"Open It"_s, u"Cancel"_s});
    m_window->open(run(u"census.mvdb"_s));
    QCOMPARE(box.shown().size(), 2);
    QVERIFY(!wizard());
    QCOMPARE(root(), u"FARMS"_s);
}

void TestRunCommands::asksNothingAboutTheOpenDictionary()
{
    QVERIFY(m_window->files()->open(write(u"census.mvdb"_s, census)));
    m_window->document()->root()->setLabel(u"All of us"_s);
    m_window->document()->commit();
    const MessageBoxAnswer box;
    m_window->open(run(u"./census.mvdb"_s));
    QVERIFY(wizard());
    QVERIFY(box.shown().isEmpty());
    QCOMPARE(m_window->document()->root()->getLabel(), u"All of us"_s);
}

void TestRunCommands::saysThatTheDictionaryIsMissing()
{
    QVERIFY(m_window->files()->open(write(u"farms.mvdb"_s, farms)));
    const MessageBoxAnswer box({u"OK"_s});
    m_window->open(run(u"census.mvdb"_s));
    const QString path = QDir::toNativeSeparators(m_folder->filePath(u"census.mvdb"_s));
    QCOMPARE(box.texts(), QStringList({u"“%1” cannot be opened."_s.arg(path)}));
    QVERIFY(wizard());
    QCOMPARE(root(), u"FARMS"_s);
}

void TestRunCommands::saysThatTheDictionaryIsMissingAsTheOpenOneIs()
{
    const QString open = write(u"farms.mvdb"_s, farms);
    QVERIFY(m_window->files()->open(open));
    QVERIFY(QFile::remove(open));
    const MessageBoxAnswer box({u"OK"_s});
    m_window->open(run(u"census.mvdb"_s));
    QCOMPARE(box.shown().size(), 1);
    QVERIFY(wizard());
}

void TestRunCommands::namesADictionaryOfAnotherSystemAsItWasWritten()
{
    const MessageBoxAnswer box({u"OK"_s});
    m_window->open(run(uR"(C:\\data\\census.mvdb)"_s));
    QCOMPARE(box.texts(), QStringList({u"“C:/data/census.mvdb” cannot be opened."_s}));
    QVERIFY(wizard());
}

void TestRunCommands::saysThatTheDictionaryIsUnreadable()
{
    const QString path = write(u"census.mvdb"_s, R"({"name":)");
    const MessageBoxAnswer box({u"OK"_s});
    m_window->open(run(u"census.mvdb"_s));
    QCOMPARE(box.texts(), QStringList({u"“%1” cannot be opened."_s.arg(QDir::toNativeSeparators(path))}));
    QVERIFY(wizard());
    QVERIFY(m_window->document()->path().isEmpty());
}

void TestRunCommands::asksNothingAboutData_data()
{
    QTest::addColumn<QString>("source");
    QTest::addRow("data") << u"C:/surveys/household.dat"_s;
    QTest::addRow("nothing") << QString();
}

void TestRunCommands::asksNothingAboutData()
{
    QFETCH(const QString, source);
    const MessageBoxAnswer box;
    m_window->open(run(source));
    QVERIFY(wizard());
    QVERIFY(box.shown().isEmpty());
    QVERIFY(m_window->document()->path().isEmpty());
}

void TestRunCommands::refusesADictionary()
{
    const MessageBoxAnswer box({u"OK"_s});
    m_window->open(write(u"census.lsd.json"_s, census));
    QVERIFY(!wizard());
    QCOMPARE(box.shown().size(), 1);
}

void TestRunCommands::opensWhatIsChosenAsAnyFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isRun");
    QTest::addRow("dictionary") << u"census.mvdb"_s << false;
    QTest::addRow("run configuration") << u"run.lsd.json"_s << true;
}

void TestRunCommands::opensWhatIsChosenAsAnyFile()
{
    QFETCH(const QString, name);
    QFETCH(const bool, isRun);
    write(u"census.mvdb"_s, census);
    run(u"census.mvdb"_s);
    QTimer::singleShot(0, m_window.get(), [this, &name] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        dialog->selectFile(m_folder->filePath(name));
        QMetaObject::invokeMethod(dialog, "accept");
    });
    const MessageBoxAnswer box;
    (*m_window->actions())[ActionId::FileOpen]->trigger();
    QVERIFY(box.shown().isEmpty());
    QCOMPARE(root(), u"CENSUS"_s);
    QCOMPARE(wizard() != nullptr, isRun);
}

void TestRunCommands::opensUnasked()
{
    const MessageBoxAnswer box;
    QVERIFY(m_window->files()->open(write(u"farms.mvdb"_s, farms)));
    const QString path = write(u"census.mvdb"_s, census);
    QCOMPARE(m_window->openUnasked(run(u"census.mvdb"_s)), QString());
    QVERIFY(wizard());
    QCOMPARE(root(), u"CENSUS"_s);
    delete wizard();
    QCOMPARE(m_window->openUnasked(m_folder->filePath(u"farms.mvdb"_s)), QString());
    QCOMPARE(root(), u"FARMS"_s);
    QCOMPARE(m_window->openUnasked(run(u"elsewhere.mvdb"_s)), QString());
    QVERIFY(wizard());
    QVERIFY(box.shown().isEmpty());
}

void TestRunCommands::failsUnasked_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("text");
    QTest::addRow("dictionary") << u"census.mvdb"_s << QByteArray("[]");
    QTest::addRow("run configuration") << u"run.lsd.json"_s << QByteArray("[]");
    QTest::addRow("run configuration that is a dictionary") << u"run.lsd.json"_s << census;
}

void TestRunCommands::failsUnasked()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, text);
    const MessageBoxAnswer box;
    QVERIFY(!m_window->openUnasked(write(name, text)).isEmpty());
    QVERIFY(!wizard());
    QVERIFY(box.shown().isEmpty());
}

QTEST_MAIN(TestRunCommands)
#include "tst_runcommands.moc"
