#include "documents/sources/SourceReader.h"
#include "tests/support/MessageBoxAnswer.h"
#include "tests/workbench/Bench.h"
#include "tests/workbench/IsolatedSettings.h"
#include "workbench/panels/SourcesPanel.h"
#include "workbench/panels/SourceTab.h"
#include "workbench/Progress.h"
#include "workbench/SourceCommands.h"
#include "workbench/SourceFiles.h"

#include <QApplication>
#include <QFile>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

class TestSourceCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void opensGoodFiles();
    void saysWhatIsWrongAndWhere_data();
    void saysWhatIsWrongAndWhere();
    void offersWhatWasReadOtherwise();
    void keepsWhatWasOpenWhenAFileIsDamaged();
    void aSecondFileReplacesTheFirst();
    void listsManyProblemsInTheDetails();
    void showsProblemsAsPlainText();
    void endsTheProgressBeforeItSaysWhatIsWrong();
    void saysNothingOfWhatWasCancelled();

private:
    [[nodiscard]] QString write(const QString &name, const QByteArray &contents);
    [[nodiscard]] static QStringList shown(const SourceTab *tab);

    std::unique_ptr<IsolatedSettings> m_settings;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Bench> m_bench;
    std::unique_ptr<SourcesPanel> m_panel;
    std::unique_ptr<SourceCommands> m_commands;
};

void TestSourceCommands::init()
{
    m_settings = std::make_unique<IsolatedSettings>();
    m_folder = std::make_unique<QTemporaryDir>();
    m_bench = std::make_unique<Bench>();
    m_panel = std::make_unique<SourcesPanel>(m_bench->workspace());
    m_commands = std::make_unique<SourceCommands>(m_bench->workspace(), m_panel.get());
}

void TestSourceCommands::cleanup()
{
    m_commands.reset();
    m_panel.reset();
    m_bench.reset();
    m_folder.reset();
    m_settings.reset();
}

QString TestSourceCommands::write(const QString &name, const QByteArray &contents)
{
    QFile file(m_folder->filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size() ? file.fileName()
                                                                                      : QString();
}

QStringList TestSourceCommands::shown(const SourceTab *tab)
{
    QStringList names;
    const QAbstractItemModel *model = tab->view()->model();
    for (int row = 0; row < model->rowCount(); ++row)
        names.append(model->index(row, 0).data().toString());
    return names;
}

void TestSourceCommands::opensGoodFiles()
{
    const MessageBoxAnswer boxes({u"OK"_s});
    QVERIFY(m_commands->openDataset(QStringLiteral(QUILLON_SOURCE_DIR "/samples/health.sav")));
    QVERIFY(!shown(m_panel->dataset()).isEmpty());
    QVERIFY(m_commands->openCsv(write(u"people.csv"_s, "AGE,SEX\n12,1\n")));
    QCOMPARE(shown(m_panel->csv()), QStringList({u"AGE"_s, u"SEX"_s}));
    QVERIFY(m_commands->openLookups(write(u"areas.csv"_s, "id,label\n1,North\n2,South\n")));
    QCOMPARE(shown(m_panel->lookups()).size(), 2);
    QCOMPARE(boxes.texts(), QStringList());
}

void TestSourceCommands::saysWhatIsWrongAndWhere_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QString>("place");
    QTest::addRow("no dataset") << u"dataset"_s << u"people.sav"_s << QByteArray("no such thing")
                                << QString();
    QTest::addRow("empty dataset") << u"dataset"_s << u"people.dta"_s << QByteArray() << QString();
    QTest::addRow("unknown kind") << u"dataset"_s << u"people.doc"_s << QByteArray("x") << QString();
    QTest::addRow("empty text") << u"csv"_s << u"people.csv"_s << QByteArray() << QString();
    QTest::addRow("open quote") << u"csv"_s << u"people.csv"_s << QByteArray("A,B\n1,\"2\n") << u"2"_s;
    QTest::addRow("id twice") << u"lookups"_s << u"areas.csv"_s << QByteArray("id,label\n1,N\n1,S\n")
                              << u"3"_s;
}

void TestSourceCommands::saysWhatIsWrongAndWhere()
{
    QFETCH(const QString, kind);
    QFETCH(const QString, name);
    QFETCH(const QByteArray, contents);
    QFETCH(const QString, place);
    const QString path = write(name, contents);
    QString what;
    const MessageBoxAnswer boxes([&what](const ShownBox &) {
        what = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())->informativeText();
        return u"OK"_s;
    });
    if (kind == u"dataset"_s)
        QVERIFY(!m_commands->openDataset(path));
    else if (kind == u"csv"_s)
        QVERIFY(!m_commands->openCsv(path));
    else
        QVERIFY(!m_commands->openLookups(path));
    QCOMPARE(boxes.texts(), QStringList({u"The file cannot be read."_s}));
    QVERIFY2(what.contains(name), what.toUtf8());
    QVERIFY2(what.contains(place), what.toUtf8());
    for (const SourceTab *tab : {m_panel->dataset(), m_panel->csv(), m_panel->lookups()})
        QCOMPARE(shown(tab), QStringList());
}

void TestSourceCommands::offersWhatWasReadOtherwise()
{
    const MessageBoxAnswer boxes({u"OK"_s});
    const auto notes = [](const SourceTab *tab) { return tab->findChild<QToolButton *>(u"notes"_s); };
    for (const SourceTab *tab : {m_panel->dataset(), m_panel->csv(), m_panel->lookups()})
        QVERIFY(notes(tab)->isHidden());
    // A name twice and one that is missing.
    QVERIFY(m_commands->openCsv(write(u"people.csv"_s, "AGE,,AGE\n12,1,3\n")));
    QVERIFY(!notes(m_panel->csv())->isHidden());
    QCOMPARE(notes(m_panel->csv())->text(), u"Notes (2)…"_s);
    QVERIFY(notes(m_panel->dataset())->isHidden());
    QCOMPARE(boxes.texts(), QStringList()); // Nobody is kept from working.
    notes(m_panel->csv())->click();
    QTRY_COMPARE(boxes.texts(),
                 QStringList({u"The file was read, but not everything as it stands there."_s}));
    QCOMPARE(boxes.shown().first().format, Qt::PlainText);
    // They go with what they are about, and stay where it stays.
    QVERIFY(!m_commands->openCsv(m_folder->filePath(u"missing.csv"_s)));
    QVERIFY(!notes(m_panel->csv())->isHidden());
    QVERIFY(m_commands->openCsv(write(u"good.csv"_s, "AGE,SEX\n12,1\n")));
    QVERIFY(notes(m_panel->csv())->isHidden());
    QVERIFY(m_commands->openDataset(write(u"data.csv"_s, "AGE,\n12,1\n")));
    QCOMPARE(notes(m_panel->dataset())->text(), u"Notes (1)…"_s);
}

void TestSourceCommands::keepsWhatWasOpenWhenAFileIsDamaged()
{
    QVERIFY(m_commands->openCsv(write(u"people.csv"_s, "AGE,SEX\n12,1\n")));
    const MessageBoxAnswer boxes({u"OK"_s});
    QVERIFY(!m_commands->openCsv(m_folder->filePath(u"missing.csv"_s)));
    QCOMPARE(boxes.shown().size(), 1);
    QCOMPARE(shown(m_panel->csv()), QStringList({u"AGE"_s, u"SEX"_s}));
}

void TestSourceCommands::aSecondFileReplacesTheFirst()
{
    QVERIFY(m_commands->openCsv(write(u"one.csv"_s, "AGE,SEX\n12,1\n")));
    QVERIFY(m_commands->openCsv(write(u"two.csv"_s, "WAGE\n1200\n")));
    QCOMPARE(shown(m_panel->csv()), QStringList({u"WAGE"_s}));
    QVERIFY(m_commands->openDataset(write(u"three.csv"_s, "A,B\n1,2\n")));
    QVERIFY(m_commands->openDataset(write(u"four.csv"_s, "C\n1\n")));
    QCOMPARE(shown(m_panel->dataset()), QStringList({u"C"_s}));
    QVERIFY(m_commands->openLookups(write(u"five.csv"_s, "id,label\n1,N\n")));
    QVERIFY(m_commands->openLookups(write(u"six.csv"_s, "id,label\n7,S\n8,W\n")));
    QCOMPARE(shown(m_panel->lookups()).size(), 2);
}

void TestSourceCommands::listsManyProblemsInTheDetails()
{
    QList<SourceProblem> problems;
    for (int i = 1; i <= 7; ++i)
        problems.append({u"a.csv"_s, u"line %1"_s.arg(i), u"Wrong."_s});
    QString shortly;
    QString wholly;
    const MessageBoxAnswer boxes([&](const ShownBox &) {
        const auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        shortly = box->informativeText();
        wholly = box->detailedText();
        return u"OK"_s;
    });
    SourceFiles::report(nullptr, problems);
    QCOMPARE(shortly.count(u'\n'), 4);
    QCOMPARE(wholly.count(u'\n'), 6);
    SourceFiles::report(nullptr, problems.first(5));
    QCOMPARE(wholly, QString());
    QCOMPARE(boxes.shown().size(), 2);
}

void TestSourceCommands::showsProblemsAsPlainText()
{
    const MessageBoxAnswer boxes({u"OK"_s});
    SourceFiles::report(nullptr, {{u"<b>a.csv"_s, {}, u"Wrong."_s}});
    QCOMPARE(boxes.shown().first().format, Qt::PlainText);
}

void TestSourceCommands::endsTheProgressBeforeItSaysWhatIsWrong()
{
    const QString path = write(u"broken.csv"_s, "a,b\n1\n");
    bool seen = true;
    QTimer::singleShot(0, this, [&seen] {
        const QWidgetList windows = QApplication::topLevelWidgets();
        seen = std::any_of(windows.cbegin(), windows.cend(),
                           [](const QWidget *window) { return window->objectName() == "progress"_L1; });
        QApplication::activeModalWidget()->close();
    });
    QVERIFY(!m_commands->openCsv(path));
    QVERIFY(!seen);
}

void TestSourceCommands::saysNothingOfWhatWasCancelled()
{
    QByteArray text("A,B\n");
    for (int i = 0; i < 20'000; ++i)
        text += "1,2\n";
    const QString path = write(u"large.csv"_s, text);
    Progress progress(u"Reading"_s, nullptr);
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto dialog = std::find_if(windows.cbegin(), windows.cend(), [](const QWidget *window) {
        return window->objectName() == "progress"_L1;
    });
    QVERIFY(dialog != windows.cend());
    qobject_cast<QProgressDialog *>(*dialog)->cancel();
    const SourceFields result = SourceReader::read(path, SourceFiles::options(progress));
    QVERIFY(result.cancelled);
    QVERIFY(!result.ok());
    const MessageBoxAnswer boxes({u"OK"_s});
    SourceFiles::report(nullptr, result.errors);
    QCOMPARE(boxes.shown().size(), 0);
}

QTEST_MAIN(TestSourceCommands)
#include "tst_sourcecommands.moc"
