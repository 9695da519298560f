#include "tests/cli/Program.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace
{
const auto survey =
    json("{'name': 'A', 'label': 'Homes', 'variables': [{'name': 'AGE', 'label': 'Age <b>'}]}");
} // namespace

class TestCodebookVerb : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesWhatTheEndingSays_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("begin");
        QTest::addRow("page") << u"c.html"_s << "<!DOCTYPE html>"_ba;
        QTest::addRow("capitals") << u"c.HTML"_s << "<!DOCTYPE html>"_ba;
        QTest::addRow("PDF") << u"c.pdf"_s << "%PDF-"_ba;
    }
    void writesWhatTheEndingSays()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, begin);
        const TestFolder folder;
        const QString out = folder.path(name);
        const ProgramRun run = runProgram({u"codebook"_s, folder.write(u"d.mvdb"_s, survey), u"-o"_s, out});
        QCOMPARE(run.errors, QString());
        QCOMPARE(run.output, out + u": written\n"_s);
        QCOMPARE(run.status, 0);
        QCOMPARE(folder.read(name).first(begin.size()).toUpper(), begin.toUpper());
    }

    void refusesAnotherEndingAndAFileThatIsThere()
    {
        const TestFolder folder;
        const QString in = folder.write(u"d.mvdb"_s, survey);
        const QString odd = folder.path(u"c.txt"_s);
        QCOMPARE(runProgram({u"codebook"_s, in, u"-o"_s, odd}).errors,
                 u"quillon: %1: a codebook ends in .html or .pdf\n"_s.arg(odd));
        const QString out = folder.write(u"c.html"_s, "precious");
        QCOMPARE(runProgram({u"codebook"_s, in, u"-o"_s, out}).status, 2);
        QCOMPARE(folder.read(u"c.html"_s), "precious"_ba);
        QCOMPARE(runProgram({u"codebook"_s, in, u"-o"_s, out, u"--force"_s}).status, 0);
        QVERIFY(folder.read(u"c.html"_s).contains("Age &lt;b&gt;"));
    }
};

QTEST_APPLESS_MAIN(TestCodebookVerb)
#include "tst_codebookverb.moc"
