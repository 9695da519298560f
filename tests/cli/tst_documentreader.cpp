#include "cli/DocumentReader.h"
#include "cli/Failure.h"
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

QString failureOfPath(const QString &path)
{
    try {
        (void)readDocument(path);
    } catch (const Failure &failure) {
        return failure.message();
    }
    return {};
}

constexpr auto noDictionary =
    "FILE: is not a dictionary document: neither \"entities\" nor \"root\" nor an entity was found"_L1;
} // namespace

class TestDocumentReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsWhereTextIsNotJson_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("place");
        QTest::addRow("bad word") << json("{'a': tru}") << u"1:7"_s;
        QTest::addRow("text without quotes") << json("{'a': x}") << u"1:7"_s;
        QTest::addRow("comma before the end of an object") << "{\"a\": 1,\n}"_ba << u"2:1"_s;
        QTest::addRow("comma before the end of a list") << "[1,]"_ba << u"1:4"_s;
        QTest::addRow("comma missing in an object") << json("{'a': 1 'b': 2}") << u"1:9"_s;
        QTest::addRow("comma missing in a list") << "[1 2]"_ba << u"1:4"_s;
        QTest::addRow("colon missing") << json("{'a' 1}") << u"1:6"_s;
        QTest::addRow("value missing") << json("{'a': }") << u"1:7"_s;
        QTest::addRow("wrong bracket") << json("{'a': [1}}") << u"1:9"_s;
        QTest::addRow("name without quotes") << "{a: 1}"_ba << u"1:2"_s;
        QTest::addRow("leading zero") << json("{'a': 01}") << u"1:8"_s;
        QTest::addRow("number that breaks off") << json("{'a': 1.x}") << u"1:9"_s;
        QTest::addRow("escape") << json("{'a': '\\u12g4'}") << u"1:12"_s;
        QTest::addRow("bytes that are not UTF-8") << "{\"\xc3\xa9\": \"\xff\"}"_ba << u"1:8"_s;
        QTest::addRow("something behind") << "{}\n  x"_ba << u"2:3"_s;
        QTest::addRow("ends in an object") << "{\"a\": 1,\n \"b\": {}"_ba << u"2:9"_s;
        QTest::addRow("ends behind a line end") << "{\"a\": 1,\n"_ba << u"2:1"_s;
        QTest::addRow("ends in a text") << "{\"a\": \"xy"_ba << u"1:10"_s;
        QTest::addRow("ends in a number") << "[12"_ba << u"1:4"_s;
        QTest::addRow("characters, not bytes") << json("{'ñ年🚜': tru}") << u"1:9"_s;
        QTest::addRow("byte order mark") << "\xef\xbb\xbf{\"a\": tru}"_ba << u"1:7"_s;
        QTest::addRow("line ends of Windows") << "{\r\n\"a\": tru}"_ba << u"2:6"_s;
        QTest::addRow("line ends of old") << "{\r\"a\": tru}"_ba << u"2:6"_s;
        QTest::addRow("nested too deeply") << QByteArray(1100, '[') << u"1:1025"_s;
    }
    void tellsWhereTextIsNotJson()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, place);
        const QString message = failureOf(text);
        QVERIFY2(message.startsWith(u"FILE:%1: is not JSON: "_s.arg(place)), qPrintable(message));
    }

    void positionsOutsideTheTextAreItsEnds()
    {
        const QByteArray text("ab\nc");
        const TextPosition end = textPosition(text, 100);
        QCOMPARE(end.line, 2);
        QCOMPARE(end.column, 2);
        const TextPosition start = textPosition(text, -1);
        QCOMPARE(start.line, 1);
        QCOMPARE(start.column, 1);
    }

    void refusesWhatIsNoDictionary_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("message");
        const QString other = noDictionary;
        QTest::addRow("empty file") << ""_ba << u"FILE: is empty"_s;
        QTest::addRow("blank file") << " \n\n"_ba << u"FILE: is empty"_s;
        QTest::addRow("empty object") << "{}"_ba << other;
        QTest::addRow("list") << json("[{'name': 'A', 'variables': []}]") << other;
        QTest::addRow("keys that no dictionary has") << json("{'name': 'a package', 'version': 1}") << other;
        QTest::addRow("other letter case") << json("{'Entities': [], 'ROOT': []}") << other;
        QTest::addRow("text under entities") << json("{'entities': 'abc'}") << other;
        QTest::addRow("null under root") << json("{'root': null}") << other;
        QTest::addRow("run configuration")
            << json("{'type': 'config', 'database': {}, 'options': {}, 'entities': [{'name': 'A'}]}")
            << u"FILE: is a run configuration, not a dictionary document"_s;
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

    void saysWhyAFileCannotBeRead()
    {
        const TestFolder folder;
        QCOMPARE(failureOfPath(folder.path(u"."_s)), folder.path(u"."_s) + u": is a directory, not a file"_s);
        const QString missing = folder.path(u"missing.mvdb"_s);
        QCOMPARE(failureOfPath(missing), missing + u": cannot be opened: No such file or directory"_s);
        // Opens for everybody, and fails to be read even for the superuser.
        const QString unreadable = failureOfPath(u"/proc/self/mem"_s);
        QVERIFY2(unreadable.startsWith(u"/proc/self/mem: cannot be read: "_s), qPrintable(unreadable));
    }
};

QTEST_APPLESS_MAIN(TestDocumentReader)
#include "tst_documentreader.moc"
