#include "documents/sources/SourceReader.h"
#include "SourceFiles.h"
#include "tests/support/Growth.h"

using namespace Qt::Literals::StringLiterals;

namespace
{
const QByteArray package = R"({
  "name": "census",
  "resources": [
    {"name": "persons", "path": "persons.csv", "schema": {
      "missingValues": ["", "NA", "-99"],
      "fields": [
        {"name": "id", "type": "integer", "title": "Person", "description": "Not used"},
        {"name": "sex", "type": "integer", "description": "Sex",
         "categories": [{"value": 1, "label": "Male"}, {"value": 2, "label": "Female"}]},
        {"name": "region", "type": "string", "categories": ["N", "S"], "missingValues": ["X"],
         "constraints": {"maxLength": 2}},
        {"name": "income", "type": "number", "constraints": {"minimum": 0, "maximum": 99.5}},
        {"name": "born", "type": "date"}
      ]}},
    {"name": "houses", "schema": {"fields": [{"name": "year", "type": "year"}]}}
  ]
})";
} // namespace

class tst_TableSchema : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsAPackage();
    void readsABareSchema();
    void labelledMissingValuesAreCategoriesToo();
    void missingValuesTakeTimeInProportion();
    void readsASchemaBesideThePackage();
    void notesAResourceWithoutSchema();
    void refuses_data();
    void refuses();
    void everyTruncationIsRefused();
};

void tst_TableSchema::readsAPackage()
{
    const SourceFiles files;
    const SourceFields result = SourceReader::read(files.write(u"datapackage.json"_s, package));
    QCOMPARE(messages(result.errors), QString());
    QCOMPARE(messages(result.notes), QString());
    QCOMPARE(
        fieldLines(result),
        (QStringList{u"id|INTEGER|0.0|:|NA;-99|Person|"_s, u"sex|INTEGER|0.0|:|NA;-99|Sex|1 Male;2 Female"_s,
                     u"region|STRING|2.0|:|X||N;S"_s, u"income|REAL|0.0|0:99.5|NA;-99||"_s,
                     u"born|STRING|0.0|:|NA;-99||"_s, u"year|INTEGER|0.0|:|||"_s}));
    QCOMPARE(result.list()->first()->record, u"persons"_s);
    QCOMPARE(result.list()->at(4)->relativePosition, 5);
    QCOMPARE(result.list()->last()->record, u"houses"_s);
    QCOMPARE(result.list()->last()->relativePosition, 1);
    QCOMPARE(result.list()->last()->getDataProviderType(), u"TABLESCHEMA"_s);
}

void tst_TableSchema::readsABareSchema()
{
    const SourceFiles files;
    const SourceFields result = SourceReader::read(
        files.write(u"persons.json"_s, R"({"fields": [{"name": "age", "type": "integer"}]})"));
    QCOMPARE(fieldLines(result), QStringList{u"age|INTEGER|0.0|:|||"_s});
    QCOMPARE(result.list()->first()->record, u"persons"_s);
}

void tst_TableSchema::labelledMissingValuesAreCategoriesToo()
{
    const SourceFiles files;
    const SourceFields result = SourceReader::read(files.write(
        u"a.json"_s,
        R"({"fields": [{"name": "a"}], "missingValues": [{"value": "-9", "label": "Refused"}, "not asked"]})"));
    QCOMPARE(fieldLines(result), QStringList{u"a|STRING|0.0|:|-9;not asked||-9 Refused"_s});
}

void tst_TableSchema::missingValuesTakeTimeInProportion()
{
    const SourceFiles files;
    const auto read = [&files](int fields, int codes) {
        QByteArray text("{\"missingValues\": [\"-1\"");
        for (int i = 0; i < codes; ++i)
            text += ", \"" + QByteArray::number(i) + '"';
        text += "], \"fields\": [{\"name\": \"a\"}" + QByteArray(", {\"name\": \"b\"}").repeated(fields - 1);
        const SourceFields result = SourceReader::read(files.write(u"a.json"_s, text + "]}"));
        QCOMPARE(result.list()->size(), fields);
        QCOMPARE(result.list()->last()->missing.count(u'\t'), codes);
    };
    // 100 when each code is searched for among those before it.
    QVERIFY(growth([&](int codes) { read(1, codes); }, 2000, 20000) < 30);
    // 100 when every field reads them anew.
    QVERIFY(growth([&](int fields) { read(fields, 20000); }, 1, 100) < 30);
}

void tst_TableSchema::readsASchemaBesideThePackage()
{
    const SourceFiles files;
    files.write(u"schema.json"_s, R"({"fields": [{"name": "age", "type": "integer"}]})");
    const SourceFields result = SourceReader::read(
        files.write(u"datapackage.json"_s, R"({"resources": [{"name": "p", "schema": "schema.json"}]})"));
    QCOMPARE(messages(result.errors), QString());
    QCOMPARE(fieldLines(result), QStringList{u"age|INTEGER|0.0|:|||"_s});
    QCOMPARE(result.list()->first()->record, u"p"_s);
}

void tst_TableSchema::notesAResourceWithoutSchema()
{
    const SourceFiles files;
    const SourceFields result =
        SourceReader::read(files.write(u"a.json"_s, R"({"resources": [{"name": "p", "path": "p.csv"}]})"));
    QVERIFY(result.ok());
    QCOMPARE(messages(result.notes), u"a.json, resource p: The resource has no schema and is left out."_s);
}

void tst_TableSchema::refuses_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("error");
    QTest::addRow("no JSON")
        << QByteArray("{\n\"a\": }")
        << u"a.json, line 2, column 6: This is no valid JSON: object is missing after a comma."_s;
    QTest::addRow("a list") << QByteArray("[]") << u"a.json: The file holds no JSON object."_s;
    QTest::addRow("neither") << QByteArray("{}") << u"a.json, schema: A table schema must list its fields."_s;
    QTest::addRow("no resources") << QByteArray(R"({"resources": []})")
                                  << u"a.json, resources: A data package must list its resources."_s;
    QTest::addRow("no resource object") << QByteArray(R"({"resources": [7]})")
                                        << u"a.json, resource 1: A resource must be an object with a name."_s;
    QTest::addRow("no fields") << QByteArray(R"({"resources": [{"name": "p", "schema": {"fields": 7}}]})")
                               << u"a.json, resource p: A table schema must list its fields."_s;
    QTest::addRow("no name") << QByteArray(R"({"fields": [{"name": "a"}, {"type": "string"}]})")
                             << u"a.json, schema, field 2: A field must have a name."_s;
    QTest::addRow("no file") << QByteArray(R"({"resources": [{"name": "p", "schema": "none.json"}]})")
                             << u"a.json, none.json: There is no such file."_s;
    for (const char *const path :
         {"../a.json", "/etc/passwd", "x/../../a.json", "https://example.org/a.json"}) {
        QTest::addRow("elsewhere: %s", path)
            << QByteArray(R"({"resources": [{"name": "p", "schema": ")") + path + R"("}]})"
            << u"a.json, resource p: The schema \"%1\" does not lie beside the package."_s.arg(
                   QString::fromLatin1(path));
    }
}

void tst_TableSchema::refuses()
{
    QFETCH(QByteArray, content);
    const SourceFiles files;
    const SourceFields result = SourceReader::read(files.write(u"a.json"_s, content));
    QTEST(messages(result.errors), "error");
    QVERIFY(result.list()->isEmpty());
}

void tst_TableSchema::everyTruncationIsRefused()
{
    const SourceFiles files;
    const QString path = files.write(u"a.json"_s, package);
    for (qsizetype length = package.size() - 1; length-- > 0;) {
        QVERIFY(QFile::resize(path, length));
        const SourceFields result = SourceReader::read(path);
        QVERIFY2(!result.ok(), qPrintable(QString::number(length)));
        QVERIFY(result.list()->isEmpty());
    }
}

QTEST_GUILESS_MAIN(tst_TableSchema)
#include "tst_tableschema.moc"
