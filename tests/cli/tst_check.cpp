#include "tests/cli/Program.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{
const auto sound = json("{'name': 'A', 'label': 'Homes', 'variables': ["
                        "{'name': 'V', 'label': 'One', 'type': 'STRING', 'size': 3}]}");
const auto broken =
    json("{'name': 'A\\u009b', 'label': 'Homes', 'variables': ["
         "{'name': 'V', 'label': 'One', 'type': 'INTEGER', 'metadata': {'range': {'min': 9, 'max': 1}}}]}");
} // namespace

class TestCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysThatNothingIsWrong()
    {
        const TestFolder folder;
        const QString path = folder.write(u"d.mvdb"_s, sound);
        const ProgramRun run = runProgram({u"check"_s, path});
        QCOMPARE(run.output, path + u": No problems found.\n"_s);
        QCOMPARE(run.errors, QString());
        QCOMPARE(run.status, 0);
    }

    void tellsWhatIsWrongAndWhere()
    {
        const TestFolder folder;
        const QString path = folder.write(u"d.mvdb"_s, broken);
        const ProgramRun run = runProgram({u"check"_s, path});
        QCOMPARE(run.errors, QString());
        QCOMPARE(run.status, 1);
        // The control character of the name is made visible.
        const QStringList lines = run.output.split(u'\n', Qt::SkipEmptyParts);
        const QStringList reversed = lines.filter(u"[range-reversed]"_s);
        QCOMPARE(reversed.size(), 1);
        QVERIFY2(reversed.first().startsWith(u"A\\x9b/V: error: "_s), qPrintable(reversed.first()));
        QVERIFY(lines.value(lines.indexOf(reversed.first()) + 1).startsWith(u"    "_s));
        QVERIFY2(lines.last().startsWith(path + u": Errors: "_s), qPrintable(lines.last()));
    }

    void printsJsonForOtherPrograms()
    {
        const TestFolder folder;
        const ProgramRun run = runProgram({u"check"_s, folder.write(u"d.mvdb"_s, broken), u"--json"_s});
        QCOMPARE(run.status, 1);
        const QJsonArray findings =
            QJsonDocument::fromJson(run.output.toUtf8()).object().value("findings"_L1).toArray();
        const auto reversed = std::find_if(findings.cbegin(), findings.cend(), [](const QJsonValue &finding) {
            return finding["rule"_L1] == "range-reversed"_L1;
        });
        QVERIFY(reversed != findings.cend());
        QCOMPARE((*reversed)["severity"_L1].toString(), u"error"_s);
        QCOMPARE((*reversed)["place"_L1].toString(), u"A\u009b/V"_s);
        QVERIFY(!run.output.contains(QChar(0x9b)));

        const ProgramRun nothing = runProgram({u"check"_s, folder.write(u"s.mvdb"_s, sound), u"--json"_s});
        QCOMPARE(nothing.status, 0);
        const QJsonObject content = QJsonDocument::fromJson(nothing.output.toUtf8()).object();
        QCOMPARE(content.value("findings"_L1), QJsonValue(QJsonArray()));
    }

    void anErrorNamesTheFileOnce()
    {
        const TestFolder folder;
        const QString path = folder.write(u"d.mvdb"_s, "{\n\"a\":");
        QCOMPARE(runProgram({u"check"_s, path}).errors.count(path), 1);
        QCOMPARE(runProgram({u"check"_s, path + u'x'}).errors.count(path), 1);
    }

    void whatCannotBeReadIsAnError_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addRow("malformed") << "{"_ba;
        QTest::addRow("no dictionary") << "{}"_ba;
        QTest::addRow("two roots") << json("{'root': [{'name': 'A'}, {'name': 'B'}]}");
    }
    void whatCannotBeReadIsAnError()
    {
        QFETCH(QByteArray, content);
        const TestFolder folder;
        const QString path = folder.write(u"d.mvdb"_s, content);
        const ProgramRun run = runProgram({u"check"_s, path});
        QVERIFY2(run.errors.startsWith(u"quillon: %1: "_s.arg(path)), qPrintable(run.errors));
        QCOMPARE(run.output, QString());
        QCOMPARE(run.status, 2);
    }
};

QTEST_APPLESS_MAIN(TestCheck)
#include "tst_check.moc"
