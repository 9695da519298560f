#include "cli/FieldDrop.h"
#include "documents/DictionaryFile.h"
#include "documents/sources/SourceReader.h"
#include "model/TDcEntity.h"
#include "model/ValueLabelElement.h"
#include "tests/cli/Program.h"
#include "tests/documents/DataFileWriter.h"

#include <QMimeData>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr auto people = "HH_AGE,HH_SEX,NAME,W\n1,2,ab,1.5\n30,1,c,2\n";

QByteArray survey()
{
    DataFileWriter writer(readstat_begin_writing_sav);
    readstat_label_set_t *sexes = readstat_add_label_set(writer.engine(), READSTAT_TYPE_DOUBLE, "sexes");
    readstat_label_double_value(sexes, 1, "Male");
    readstat_label_double_value(sexes, 2, "Female");
    readstat_variable_set_label_set(writer.addNumbers("P_SEX", "Sex", "F1.0", {1, 2, 2}), sexes);
    writer.addNumbers("AGE", "Age in years", "F3.0", {4, 70, 31});
    writer.addTexts("TOWN", "Where", 12, {"Ayacucho", "Lima", "Puno"});
    return writer.bytes();
}

/// name|alias|field|label|type|size|missing|notapp|tag|ranges|values
QString line(const TDcVariable &variable)
{
    QStringList ranges;
    for (const Range *range : std::as_const(*variable.getMetadataVariables()->getRange()))
        ranges.append(u"%1..%2"_s.arg(range->getRangeMin()).arg(range->getRangeMax()));
    QStringList values;
    for (const ValueLabelElement *element : std::as_const(*variable.getValueLabelElementList()))
        values.append(element->getValue() + u'=' + element->getLabel());
    return QStringList{variable.getName(),
                       variable.getAlias(),
                       variable.getMetadataVariables()->getField(),
                       variable.getLabel(),
                       variable.getVarType(),
                       QString::number(variable.getSize()),
                       QString::number(variable.getMissing()),
                       QString::number(variable.getNotappl()),
                       QString::number(variable.getTag()),
                       ranges.join(u','),
                       values.join(u',')}
        .join(u'|');
}

QStringList lines(const TDcEntity &entity)
{
    QStringList all;
    for (const TDcVariable *variable : std::as_const(*entity.getVariables()))
        all.append(line(*variable));
    return all;
}

/// What stands in the dictionary at \a path.
QStringList linesOf(const QString &path)
{
    DictionaryFile file;
    return file.open(path) ? lines(*file.root()) : QStringList{file.errorText()};
}
} // namespace

class TestImport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void makesADictionaryOfAnSpssFile()
    {
        const TestFolder folder;
        const QString out = folder.path(u"d.mvdb"_s);
        const ProgramRun run =
            runProgram({u"import"_s, folder.write(u"survey.sav"_s, survey()), u"-o"_s, out});
        QCOMPARE(run.errors, QString());
        QCOMPARE(run.output, out + u": written, 3 variables\n"_s);
        QCOMPARE(run.status, 0);
        QCOMPARE(linesOf(out),
                 QStringList({u"P|SEX|P_SEX|Sex|INTEGER|1|3|0|1|1..2|1=Male,2=Female"_s,
                              u"AGE||AGE|Age in years|INTEGER|3|1|0|2|4..70|"_s,
                              u"TOWN||TOWN|Where|STRING|12|0|0|3||"_s}));
        DictionaryFile file;
        QVERIFY(file.open(out));
        QCOMPARE(file.root()->getName(), u"survey"_s);
        QCOMPARE(file.root()->getLevel(), 1);
    }

    void theVariablesAreThoseOfADrop()
    {
        const TestFolder folder;
        const QString in = folder.write(u"people.csv"_s, people);
        const QString out = folder.path(u"d.mvdb"_s);
        QCOMPARE(runProgram({u"import"_s, in, u"-o"_s, out, u"--entity"_s, u"PERSON"_s}).status, 0);

        const SourceFields fields = SourceReader::read(in);
        QVERIFY(fields.ok());
        const DatasetPropertiesFieldsModel source(nullptr, fields.list(), u"*"_s);
        QModelIndexList rows;
        for (int row = 0; row < source.rowCount(); ++row)
            rows.append(source.index(row, 0));
        const std::unique_ptr<QMimeData> dragged(source.mimeData(rows));
        DictionaryFile dropped;
        dropped.root()->setName(u"PERSON"_s);
        VariableDiccionaryModel target(nullptr, dropped.root(), dropped.root());
        QVERIFY(target.dropMimeData(dragged.get(), Qt::CopyAction, 0, 0, {}));

        QCOMPARE(linesOf(out), lines(*dropped.root()));
        QCOMPARE(folder.read(u"d.mvdb"_s), dropped.content());
    }

    void namesAreSplitAsToldTo_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("names");
        QTest::addRow("at the underscore") << QStringList() << u"HH/AGE.YEARS HH_A/SEX.X"_s;
        QTest::addRow("elsewhere") << QStringList{u"--splitter"_s, u"."_s} << u"HH_AGE/YEARS HH_SEX/X"_s;
        QTest::addRow("not at all") << QStringList{u"--no-split"_s} << u"HH_AGE.YEARS/ HH_SEX.X/"_s;
    }
    void namesAreSplitAsToldTo()
    {
        QFETCH(QStringList, arguments);
        const TestFolder folder;
        const QString out = folder.path(u"d.mvdb"_s);
        const QString in = folder.write(u"d.csv"_s, "HH_AGE.YEARS,HH_SEX.X\n1,2\n");
        QCOMPARE(runProgram(QStringList{u"import"_s, in, u"-o"_s, out} + arguments).status, 0);
        QStringList names;
        for (const QString &variable : linesOf(out))
            names.append(variable.section(u'|', 0, 1).replace(u'|', u'/'));
        QTEST(names.join(u' '), "names");
    }

    void tellsWhichVariablesCameOutUnderAnotherName()
    {
        const TestFolder folder;
        const QString in = folder.write(u"people.csv"_s, people);
        const ProgramRun run = runProgram({u"import"_s, in, u"-o"_s, folder.path(u"d.mvdb"_s)});
        QCOMPARE(
            run.errors,
            u"quillon: field \"HH_SEX\": its variable is called \"HH_A\", since there is a \"HH\" already\n"_s);
        QCOMPARE(run.status, 0);
    }

    void tellsThatNamesAreRepeatedWhereLettersRunOut()
    {
        const TestFolder folder;
        QStringList names;
        for (int i = 0; i < 29; ++i)
            names.append(u"Q_%1"_s.arg(i));
        const QByteArray row = names.join(u',').toUtf8();
        const QString in = folder.write(u"d.csv"_s, row + '\n' + row + '\n');
        const ProgramRun run = runProgram({u"import"_s, in, u"-o"_s, folder.path(u"d.mvdb"_s)});
        QVERIFY2(run.errors.endsWith(u"quillon: 3 variables are called \"Q_Z\""
                                     " (--no-split keeps the fields' names whole)\n"_s),
                 qPrintable(run.errors));
    }

    void refusesWhereADropWouldAsk_data()
    {
        QTest::addColumn<QByteArray>("header");
        QTest::addColumn<QString>("error");
        QTest::addRow("the same name twice")
            << "NAME,AGE,NAME"_ba << u"the fields \"NAME\" and \"NAME\" make the same variable"_s;
        QTest::addRow("the same name once it is split")
            << "AGE_,AGE"_ba
            << u"the fields \"AGE_\" and \"AGE\" make the same variable (--no-split keeps the fields' names whole)"_s;
        QTest::addRow("the same name once it is renamed")
            << "Q-X,Q-Y,Q_A-Y"_ba
            << u"the fields \"Q-Y\" and \"Q_A-Y\" make the same variable (--no-split keeps the fields' names whole)"_s;
    }
    void refusesWhereADropWouldAsk()
    {
        QFETCH(QByteArray, header);
        QFETCH(QString, error);
        const TestFolder folder;
        const QString in =
            folder.write(u"d.csv"_s, header + "\n1,2,3\n"_ba.first(header.count(',') * 2 + 2) + '\n');
        QStringList arguments{u"import"_s, in, u"-o"_s, folder.path(u"d.mvdb"_s)};
        if (header.contains('-'))
            arguments += {u"--splitter=-"_s};
        const ProgramRun run = runProgram(arguments);
        QVERIFY2(run.errors.endsWith(u"quillon: %1: %2\n"_s.arg(in, error)), qPrintable(run.errors));
        QCOMPARE(run.status, 2);
        QVERIFY(!QFile::exists(folder.path(u"d.mvdb"_s)));
    }

    void readsTextFilesAsToldTo()
    {
        const TestFolder folder;
        const QString out = folder.path(u"d.mvdb"_s);
        const QString in = folder.write(u"d.csv"_s, "a,b;A\xF1o\n1,5;7\n");
        const ProgramRun run = runProgram(
            {u"import"_s, in, u"-o"_s, out, u"--delimiter"_s, u";"_s, u"--encoding"_s, u"latin1"_s});
        QCOMPARE(run.errors, QString());
        QCOMPARE(linesOf(out).join(u' ').count(u"|Año|"_s), 1);
        QCOMPARE(linesOf(out).first().section(u'|', 0, 0), u"a,b"_s);
        QCOMPARE(runProgram({u"import"_s, in, u"-o"_s, out, u"--force"_s, u"--no-header"_s, u"--delimiter"_s,
                             u";"_s, u"--encoding"_s, u"latin1"_s})
                     .status,
                 0);
        QCOMPARE(linesOf(out).first().section(u'|', 0, 0), u"V1"_s);
    }

    void withoutDataRangesStayUnknown()
    {
        const TestFolder folder;
        const QString out = folder.path(u"d.mvdb"_s);
        const QString in = folder.write(u"survey.sav"_s, survey());
        QCOMPARE(runProgram({u"import"_s, in, u"-o"_s, out, u"--no-data"_s}).status, 0);
        QCOMPARE(linesOf(out).at(1), u"AGE||AGE|Age in years|INTEGER|3|1|2|2|0..0|"_s);
    }

    void takesOneRecordAlone()
    {
        const TestFolder folder;
        const QString in = folder.write(u"datapackage.json"_s, json(R"({'resources': [
            {'name': 'homes', 'schema': {'fields': [{'name': 'id', 'type': 'integer'}]}},
            {'name': 'cars', 'schema': {'fields': [{'name': 'id', 'type': 'string'}]}}]})"));
        const QString out = folder.path(u"d.mvdb"_s);
        const auto record = [&](const QString &name) {
            return runProgram({u"import"_s, in, u"-o"_s, out, u"--record"_s, name});
        };
        QCOMPARE(record(u"cars"_s).errors, QString());
        QCOMPARE(linesOf(out).size(), 1);
        QCOMPARE(linesOf(out).first().section(u'|', 4, 4), u"STRING"_s);
        QVERIFY(QFile::remove(out));
        QCOMPARE(record(u"bikes"_s).errors,
                 u"quillon: %1: there are no fields of a record \"bikes\"\n"_s.arg(in));
    }

    void writesOverADictionaryOnlyWhenToldTo()
    {
        const TestFolder folder;
        const QString in = folder.write(u"people.csv"_s, people);
        const QString out = folder.write(u"d.mvdb"_s, "precious");
        const ProgramRun refused = runProgram({u"import"_s, in, u"-o"_s, out});
        QCOMPARE(refused.errors, u"quillon: %1: is there already (--force writes over it)\n"_s.arg(out));
        QCOMPARE(refused.status, 2);
        QCOMPARE(folder.read(u"d.mvdb"_s), "precious"_ba);
        QCOMPARE(runProgram({u"import"_s, in, u"-o"_s, out, u"--force"_s}).status, 0);
        QCOMPARE(linesOf(out).size(), 4);
    }

    void neverWritesOverTheDataFile()
    {
        const TestFolder folder;
        const QString in = folder.write(u"people.csv"_s, people);
        const ProgramRun run = runProgram({u"import"_s, in, u"-o"_s, in, u"--force"_s});
        QCOMPARE(run.errors, u"quillon: %1 and %1 are the same file\n"_s.arg(in));
        QCOMPARE(run.status, 2);
        QCOMPARE(folder.read(u"people.csv"_s), QByteArray(people));
    }

    void anErrorLeavesTheDictionaryAsItWas_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("error");
        QTest::addRow("damaged") << u"d.sav"_s << survey().first(400) << QStringList() << u"quillon: d.sav"_s;
        QTest::addRow("unknown kind")
            << u"d.xyz"_s << "x"_ba << QStringList() << u"quillon: d.xyz: This kind"_s;
        QTest::addRow("uneven rows") << u"d.csv"_s << "a,b\n1,2,3\n"_ba << QStringList()
                                     << u"quillon: d.csv, line 2"_s;
        const auto name = [](const char *row, const QString &entity, const QString &error) {
            QTest::newRow(row) << u"d.csv"_s << QByteArray(people) << QStringList{u"--entity"_s, entity}
                               << u"quillon: the entity cannot be called \"%1\": "_s.arg(entity) + error;
        };
        const auto invalid = u"The name \"%1\" is not valid. "_s;
        name("entity that begins with a digit", u"9"_s, invalid.arg(u"9"_s));
        name("entity with a blank", u"a b"_s, invalid.arg(u"a b"_s));
        name("entity with a long name", QString(51, u'a'), u"The name has 51 characters. "_s);
        QTest::addRow("entity called as the data file")
            << u"my-survey.csv"_s << QByteArray(people) << QStringList()
            << u"quillon: the entity cannot be called \"my-survey\": "_s;
        QTest::addRow("no fields") << u"d.json"_s << R"({"fields": []})"_ba << QStringList()
                                   << u"quillon: FOLDER/d.json: there are no fields\n"_s;
        QTest::addRow("catalog of a text file")
            << u"d.csv"_s << QByteArray(people) << QStringList{u"--catalog"_s, u"nothere"_s}
            << u"quillon: FOLDER/d.csv: --catalog is only for files ending in .sas7bdat, .xpt"_s;
        QTest::addRow("encoding of JSON")
            << u"d.json"_s << R"({"fields": []})"_ba << QStringList{u"--encoding"_s, u"latin1"_s}
            << u"quillon: FOLDER/d.json: --encoding is only for files ending in .sav, "_s;
        QTest::addRow("delimiter of a file without one")
            << u"d.sav"_s << survey() << QStringList{u"--delimiter"_s, u";"_s}
            << u"quillon: FOLDER/d.sav: --delimiter is only for files ending in .csv, .tsv, .tab, .txt"_s;
        QTest::addRow("header of a file without one")
            << u"d.sav"_s << survey() << QStringList{u"--no-header"_s}
            << u"quillon: FOLDER/d.sav: --no-header is only for files ending in .csv, .tsv, .tab, .txt"_s;
        QTest::addRow("splitter") << u"d.csv"_s << QByteArray(people) << QStringList{u"--splitter"_s, u"__"_s}
                                  << u"quillon: --splitter: \"__\" is more than one character"_s;
        QTest::addRow("delimiter") << u"d.csv"_s << QByteArray(people)
                                   << QStringList{u"--delimiter"_s, u"::"_s}
                                   << u"quillon: --delimiter: \"::\" is more than one character"_s;
    }
    void anErrorLeavesTheDictionaryAsItWas()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        QFETCH(QStringList, arguments);
        QFETCH(QString, error);
        const TestFolder folder;
        const QString out = folder.write(u"out.mvdb"_s, "precious");
        const ProgramRun run = runProgram(
            QStringList{u"import"_s, folder.write(name, content), u"-o"_s, out, u"--force"_s} + arguments);
        QVERIFY2(run.errors.startsWith(error.replace(u"FOLDER"_s, QFileInfo(out).path())),
                 qPrintable(run.errors));
        QCOMPARE(run.status, 2);
        QCOMPARE(run.output, QString());
        QCOMPARE(folder.read(u"out.mvdb"_s), "precious"_ba);
    }

    void aDropThatIsRefusedLeavesTheEntityEmpty()
    {
        const TestFolder folder;
        const SourceFields fields = SourceReader::read(folder.write(u"d.csv"_s, "A,B_,B\n1,2,3\n"));
        TDcEntity entity;
        Cli::FieldDrop drop(entity, *fields.list(), u"*"_s);
        QVERIFY_EXCEPTION_THROWN((void)drop.run(), std::exception);
        QVERIFY(entity.getVariables()->isEmpty());
    }
};

QTEST_APPLESS_MAIN(TestImport)
#include "tst_import.moc"
