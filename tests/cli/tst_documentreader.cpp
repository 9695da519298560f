#include "cli/DocumentReader.h"
#include "cli/Failure.h"
#include "documents/DictionaryFile.h"
#include "model/TDcEntity.h"
#include "tests/cli/Program.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace Cli;

namespace
{
/// What readDocument() says against \a content, with the file called FILE.
QString failureOf(const QByteArray &content)
{
    const TestFolder folder;
    const QString path = folder.write(u"d.mvdb"_s, content);
    try {
        (void)readDocument(path);
    } catch (const Failure &failure) {
        return failure.message().replace(path, u"FILE"_s);
    }
    return {};
}
} // namespace

class TestDocumentReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsAMistakeAsTheFileItselfDoes_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addRow("no JSON") << json("{'a': tru}");
        QTest::addRow("comma before the end") << "{\"a\": 1,\n}"_ba;
        QTest::addRow("empty file") << ""_ba;
        QTest::addRow("blank file") << " \n\n"_ba;
        QTest::addRow("no entity") << "{}"_ba;
        QTest::addRow("run configuration")
            << json("{'type': 'config', 'name': 'A', 'database': {}, 'entities': [{'name': 'A'}]}");
    }
    void tellsAMistakeAsTheFileItselfDoes()
    {
        QFETCH(QByteArray, text);
        const TestFolder folder;
        const QString path = folder.write(u"d.mvdb"_s, text);
        DictionaryFile file;
        QVERIFY(!file.open(path));
        for (const char *verb : {"show", "check", "convert"}) {
            QStringList arguments{QString::fromLatin1(verb), path};
            if (arguments.first() == "convert"_L1)
                arguments.append(folder.path(u"out.mvdb"_s));
            const ProgramRun run = runProgram(arguments);
            QCOMPARE(run.errors, u"quillon: %1\n"_s.arg(file.errorText()));
            QCOMPARE(run.status, 2);
        }
    }

    void tellsWhereTextIsNotJson()
    {
        QCOMPARE(failureOf("{\n  \"a\": tru}"), u"FILE: line 2, column 8: illegal value"_s);
    }

    void refusesWhatIsNoDictionary_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("message");
        const QString other = u"FILE: There is no root entity."_s;
        QTest::addRow("empty object") << "{}"_ba << other;
        QTest::addRow("keys that no dictionary has") << json("{'format': 'x', 'version': 1}") << other;
        QTest::addRow("other letter case") << json("{'Entities': [], 'ROOT': []}") << other;
        QTest::addRow("text under entities") << json("{'entities': 'abc'}") << other;
        QTest::addRow("null under root") << json("{'root': null}") << other;
        QTest::addRow("run configuration")
            << json("{'type': 'config', 'database': {}, 'options': {}, 'entities': [{'name': 'A'}]}")
            << u"FILE: This is a run configuration, not a dictionary."_s;
    }
    void refusesWhatIsNoDictionary()
    {
        QFETCH(QByteArray, text);
        QTEST(failureOf(text), "message");
    }

    void findsTheEntities_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("rootKey");
        QTest::addColumn<QStringList>("names");
        QTest::addRow("under entities") << json("{'entities': [{'name': 'A'}, {'name': 'B'}]}")
                                        << u"entities"_s << QStringList{u"A"_s, u"B"_s};
        QTest::addRow("under root") << json("{'root': [{'name': 'A'}]}") << u"root"_s << QStringList{u"A"_s};
        QTest::addRow("on its own under root")
            << json("{'root': {'name': 'A'}}") << u"root"_s << QStringList{u"A"_s};
        QTest::addRow("entities win over root")
            << json("{'root': [{'name': 'R'}], 'entities': [{'name': 'E'}]}") << u"entities"_s
            << QStringList{u"E"_s};
        QTest::addRow("the document itself")
            << json("{'name': 'A', 'selectable': true}") << QString() << QStringList{u"A"_s};
        QTest::addRow("the document itself, with children")
            << json("{'name': 'A', 'entities': [{'name': 'B'}]}") << QString() << QStringList{u"A"_s};
        QTest::addRow("the document itself, with variables and no name")
            << json("{'variables': []}") << QString() << QStringList{QString()};
        QTest::addRow("a list") << json("[{'name': 'A'}, {'name': 'B'}]") << QString()
                                << QStringList{u"A"_s, u"B"_s};
        QTest::addRow("the document itself, with a label and children")
            << json("{'label': 'L', 'codeVar': 'K', 'entities': [{'name': 'C'}]}") << QString()
            << QStringList{QString()};
        QTest::addRow("in a document that has a name")
            << json("{'name': 'Census', 'root': [{'name': 'A'}]}") << u"root"_s << QStringList{u"A"_s};
        QTest::addRow("none") << json("{'entities': []}") << u"entities"_s << QStringList();
        QTest::addRow("behind a byte order mark")
            << "\xef\xbb\xbf{\"root\": [{\"name\": \"A\"}]}"_ba << u"root"_s << QStringList{u"A"_s};
    }
    void findsTheEntities()
    {
        QFETCH(QByteArray, text);
        const TestFolder folder;
        const DictionaryDocument document = readDocument(folder.write(u"d.mvdb"_s, text));
        QTEST(document.rootKey, "rootKey");
        QStringList names;
        for (const auto &entity : readEntities(document)) {
            names.append(entity->getName());
            QCOMPARE(entity->getLevel(), 1);
        }
        QTEST(names, "names");
    }

    void anEntityThatIsTheDocumentKeepsItsWeightVariable()
    {
        const TestFolder folder;
        const DictionaryDocument document =
            readDocument(folder.write(u"d.mvdb"_s, json("{'name': 'A', 'variables': [], 'weightVar': 'W'}")));
        QCOMPARE(readEntities(document).at(0)->getWeightVariable(), u"W"_s);
    }
};

QTEST_APPLESS_MAIN(TestDocumentReader)
#include "tst_documentreader.moc"
