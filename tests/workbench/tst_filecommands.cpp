#include "tests/support/MessageBoxAnswer.h"
#include "tests/support/Trees.h"
#include "tests/workbench/IsolatedSettings.h"
#include "workbench/FileCommands.h"
#include "workbench/MainWindow.h"
#include "workbench/panels/VariableForm.h"

#include <QAction>
#include <QFileDialog>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

class TestFileCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void savesTheFirstChangeWhileItIsStillBeingTyped();
    void doesNotWriteWhatTheFileHoldsAlready();
    void writesAFileThatIsGone();
    void savesAReadOnlyDictionaryElsewhere();
    void asksBeforeContentIsLost_data();
    void asksBeforeContentIsLost();
    void revertsOnlyWhenThePersonSaysSo_data();
    void revertsOnlyWhenThePersonSaysSo();
    void keepsTheDictionaryWhenAnotherCannotBeOpened_data();
    void keepsTheDictionaryWhenAnotherCannotBeOpened();
    void startsAnEmptyDictionary();

private:
    [[nodiscard]] QString write(const QString &name, const QByteArray &text);
    [[nodiscard]] static QByteArray bytes(const QString &path);
    [[nodiscard]] QAction *action(ActionId id) const { return (*m_window->actions())[id]; }
    [[nodiscard]] TDcEntity *root() const { return m_window->document()->root(); }
    void changeLabel();

    std::unique_ptr<IsolatedSettings> m_settings;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MainWindow> m_window;
};

namespace
{
const QByteArray census = R"({"name":"CENSUS","label":"Old","variables":[{"name":"SEX","type":"integer"}]})";
}

void TestFileCommands::init()
{
    qApp->setQuitOnLastWindowClosed(false);
    m_settings = std::make_unique<IsolatedSettings>();
    m_folder = std::make_unique<QTemporaryDir>();
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestFileCommands::cleanup()
{
    m_window.reset();
    m_folder.reset();
    m_settings.reset();
}

QString TestFileCommands::write(const QString &name, const QByteArray &text)
{
    const QString path = m_folder->filePath(name);
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() ? path : QString();
}

QByteArray TestFileCommands::bytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void TestFileCommands::changeLabel()
{
    root()->setLabel(u"New"_s);
    m_window->document()->commit();
}

void TestFileCommands::savesTheFirstChangeWhileItIsStillBeingTyped()
{
    const QString path = write(u"census.mvdb"_s, census);
    QVERIFY(m_window->files()->open(path));
    auto *field = m_window->findChild<VariableForm *>()->findChild<QLineEdit *>();
    QCOMPARE(field->text(), u"SEX"_s);
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, u"GENDER"_s);
    QVERIFY(!m_window->isWindowModified());
    QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!m_window->isWindowModified());
    QVERIFY(bytes(path).contains("GENDER"));
}

void TestFileCommands::doesNotWriteWhatTheFileHoldsAlready()
{
    const QString path = write(u"census.mvdb"_s, census);
    QVERIFY(m_window->files()->open(path));
    action(ActionId::FileSave)->trigger();
    QCOMPARE(bytes(path), census); // Saving would have laid it out anew.
}

void TestFileCommands::writesAFileThatIsGone()
{
    const QString path = write(u"census.mvdb"_s, census);
    QVERIFY(m_window->files()->open(path));
    QVERIFY(QFile::remove(path));
    const MessageBoxAnswer box({u"Overwrite"_s}); // For somebody took it away.
    action(ActionId::FileSave)->trigger();
    QVERIFY(bytes(path).contains("SEX"));
}

void TestFileCommands::savesAReadOnlyDictionaryElsewhere()
{
    const QString path = write(u"census.mvdb"_s, census);
    const QString copy = m_folder->filePath(u"copy.mvdb"_s);
    QVERIFY(m_window->document()->open(path, Document::Access::ReadOnly));
    changeLabel();
    QTimer::singleShot(0, m_window.get(), [&copy] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        dialog->selectFile(copy);
        QMetaObject::invokeMethod(dialog, "accept");
    });
    action(ActionId::FileSave)->trigger();
    QCOMPARE(bytes(path), census);
    QVERIFY(bytes(copy).contains("New"));
    QCOMPARE(m_window->document()->path(), copy);
    QVERIFY(!m_window->document()->isReadOnly());
}

void TestFileCommands::asksBeforeContentIsLost_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("saves");
    QTest::addRow("save anyway") << u"Save Anyway"_s << true;
    QTest::addRow("cancel") << u"Cancel"_s << false;
    QTest::addRow("escape") << QString() << false;
}

void TestFileCommands::asksBeforeContentIsLost()
{
    QFETCH(const QString, answer);
    QFETCH(const bool, saves);
    const QByteArray twice = R"({"name":"CENSUS","label":"Lost","label":"Old"})";
    const QString path = write(u"census.mvdb"_s, twice);
    QVERIFY(m_window->files()->open(path));
    changeLabel();
    const MessageBoxAnswer box({answer});
    action(ActionId::FileSave)->trigger();
    QCOMPARE(box.shown().size(), 1);
    QCOMPARE(box.shown().constFirst().defaultButton, u"Cancel"_s);
    QCOMPARE(m_window->isWindowModified(), !saves);
    QCOMPARE(bytes(path) == twice, !saves);
}

void TestFileCommands::revertsOnlyWhenThePersonSaysSo_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("label");
    QTest::addRow("revert") << u"Revert"_s << u"Old"_s;
    QTest::addRow("cancel") << u"Cancel"_s << u"New"_s;
    QTest::addRow("escape") << QString() << u"New"_s;
}

void TestFileCommands::revertsOnlyWhenThePersonSaysSo()
{
    QFETCH(const QString, answer);
    QFETCH(const QString, label);
    QVERIFY(m_window->files()->open(write(u"census.mvdb"_s, census)));
    QVERIFY(!action(ActionId::FileRevert)->isEnabled());
    changeLabel();
    const MessageBoxAnswer box({answer});
    action(ActionId::FileRevert)->trigger();
    QCOMPARE(box.shown().size(), 1);
    QCOMPARE(box.shown().constFirst().defaultButton, u"Cancel"_s);
    QCOMPARE(root()->getLabel(), label);
    QCOMPARE(m_window->isWindowModified(), label == u"New"_s);
}

void TestFileCommands::keepsTheDictionaryWhenAnotherCannotBeOpened_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addRow("no JSON") << QByteArray("{\"name\":");
    QTest::addRow("no root") << QByteArray("{\"entities\": []}");
    QTest::addRow("empty") << QByteArray();
}

void TestFileCommands::keepsTheDictionaryWhenAnotherCannotBeOpened()
{
    QFETCH(const QByteArray, text);
    const QString path = write(u"census.mvdb"_s, census);
    const QString broken = write(u"broken.mvdb"_s, text);
    QVERIFY(m_window->files()->open(path));
    RecentFiles::add(broken);
    const MessageBoxAnswer box({u"OK"_s});
    QVERIFY(!m_window->files()->open(broken));
    QCOMPARE(box.texts(), QStringList({u"“%1” cannot be opened."_s.arg(QDir::toNativeSeparators(broken))}));
    QCOMPARE(m_window->document()->path(), path);
    QCOMPARE(root()->getName(), u"CENSUS"_s);
    QCOMPARE(RecentFiles::paths(), QStringList({path})); // Nobody is offered it again.
    QCOMPARE(bytes(broken), text);
}

void TestFileCommands::startsAnEmptyDictionary()
{
    QVERIFY(m_window->files()->open(write(u"census.mvdb"_s, census)));
    changeLabel();
    {
        const MessageBoxAnswer box({u"Cancel"_s});
        action(ActionId::FileNew)->trigger();
        QCOMPARE(root()->getName(), u"CENSUS"_s);
    }
    const MessageBoxAnswer box({u"Discard"_s});
    action(ActionId::FileNew)->trigger();
    QCOMPARE(m_window->document()->path(), QString());
    QVERIFY(root()->getName() != u"CENSUS"_s);
    QVERIFY(!m_window->isWindowModified());
}

QTEST_MAIN(TestFileCommands)
#include "tst_filecommands.moc"
