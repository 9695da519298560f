#include "DataFileWriter.h"
#include "documents/sources/SourceReader.h"
#include "SourceFiles.h"

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace
{
const double missing = std::numeric_limits<double>::quiet_NaN();

enum Kind { Sav, Zsav, Por, Dta, Sas, Xport };

constexpr DataFileWriter::Begin begins[] = {
    readstat_begin_writing_sav, readstat_begin_writing_sav,      readstat_begin_writing_por,
    readstat_begin_writing_dta, readstat_begin_writing_sas7bdat, readstat_begin_writing_xport,
};
const QString suffixes[] = {u"sav"_s, u"zsav"_s, u"por"_s, u"dta"_s, u"sas7bdat"_s, u"xpt"_s};

/// Five persons: sex with labels (not for SAS, whose labels stand elsewhere), weight, name, size of family.
QByteArray persons(Kind kind)
{
    DataFileWriter writer(begins[kind]);
    if (kind == Zsav)
        readstat_writer_set_compression(writer.engine(), READSTAT_COMPRESS_BINARY);
    if (kind == Sav)
        readstat_writer_set_compression(writer.engine(), READSTAT_COMPRESS_ROWS);
    if (kind == Xport)
        readstat_writer_set_file_format_version(writer.engine(), 5);
    const bool spss = kind <= Por;
    const char *const sexFormat = spss ? "F2.0" : kind == Dta ? "%8.0g" : "SEXF";
    auto *sex = writer.addNumbers("SEX", "Sex", sexFormat, {1, 2, 1, 2, spss ? 99.0 : missing},
                                  kind == Dta ? READSTAT_TYPE_INT8 : READSTAT_TYPE_DOUBLE);
    if (spss) {
        auto *labels = readstat_add_label_set(writer.engine(), READSTAT_TYPE_DOUBLE, "sex");
        readstat_label_double_value(labels, 1, "Male");
        readstat_label_double_value(labels, 2, "Female");
        readstat_label_double_value(labels, 99, "No answer");
        readstat_variable_set_label_set(sex, labels);
        readstat_variable_add_missing_double_value(sex, 99);
    } else if (kind == Dta) {
        auto *labels = readstat_add_label_set(writer.engine(), READSTAT_TYPE_INT32, "sex");
        readstat_label_int32_value(labels, 1, "Male");
        readstat_label_int32_value(labels, 2, "Female");
        readstat_label_tagged_value(labels, 'a', "No answer");
        readstat_variable_set_label_set(sex, labels);
    }
    writer.addNumbers("WEIGHT", "",
                      spss              ? "F8.2"
                          : kind == Dta ? "%9.2f"
                                        : "BEST12",
                      {0.5, 1.25, 2, 3, missing});
    writer.addTexts("NAME", "Given name", 20, {"Ana", "Luis", "Eva", "", "Rosa"});
    writer.addNumbers("MEMBERS", "Size of family", "", {1, 4, 12, -3, 2});
    return writer.bytes();
}

QByteArray catalog()
{
    DataFileWriter writer([](readstat_writer_t *engine, void *context, long) {
        return readstat_begin_writing_sas7bcat(engine, context);
    });
    auto *labels = readstat_add_label_set(writer.engine(), READSTAT_TYPE_DOUBLE, "SEXF");
    readstat_label_double_value(labels, 1, "Male");
    readstat_label_double_value(labels, 2, "Female");
    return writer.bytes();
}

QString sourcePath(const SourceFiles &files, Kind kind)
{
    return files.write(u"persons."_s + suffixes[kind], persons(kind));
}
} // namespace

class tst_StatisticsFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsFields_data();
    void readsFields();
    void withoutDataTheFormatsDecide();
    void takesTheLabelsOfACatalog();
    void refusesAMissingCatalog();
    void namesTheRecordAfterTheFile();
    void keepsRangesOfMissingCodes();
    void keepsTaggedMissingValues();
    void wholeNumbersBeyond32BitsAreReal();
    void singlePrecisionHasFewDecimals();
    void aFractionOverrulesTheFormat();
    void longTexts();
    void leavesOutCodesThatALabelTextCannotHold();
    void readsOtherEncodings();
    void refusesAnUnknownEncoding();
    void reportsProgress();
    void canBeCancelled_data();
    void canBeCancelled();
    void refusesWhatIsNoFile();
    void saysWhatAndWhere();
    void everyTruncationGivesFieldsOrAnError_data() { kindsOfFiles(); }
    void everyTruncationGivesFieldsOrAnError();
    void everyTruncatedCatalogIsRefused();
    void aMissingEndIsNoticed_data();
    void aMissingEndIsNoticed();
    void garbageIsRefused_data() { kindsOfFiles(); }
    void garbageIsRefused();
    void changedBytesDoNoHarm_data() { kindsOfFiles(); }
    void changedBytesDoNoHarm();

private:
    static void kindsOfFiles()
    {
        QTest::addColumn<int>("kind");
        for (int kind = Sav; kind <= Xport; ++kind)
            QTest::addRow("%s", qPrintable(suffixes[kind])) << kind;
    }
};

void tst_StatisticsFile::readsFields_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("provider");
    QTest::addColumn<QStringList>("fields");
    const QStringList spss{u"SEX|INTEGER|2.0|1:2|99|Sex|1 Male;2 Female;99 No answer"_s,
                           u"WEIGHT|REAL|8.2|0.5:3|||"_s, u"NAME|STRING|20.0|:||Given name|"_s};
    const QString declared = u"MEMBERS|REAL|8.2|-3:12||Size of family|"_s; // F8.2 unless said otherwise
    QTest::addRow("sav") << int(Sav) << u"SPSS"_s << spss + QStringList{declared};
    QTest::addRow("zsav") << int(Zsav) << u"SPSS"_s << spss + QStringList{declared};
    QTest::addRow("por") << int(Por) << u"SPSS"_s << spss + QStringList{declared};
    QTest::addRow("dta") << int(Dta) << u"STATA"_s
                         << QStringList{u"SEX|INTEGER|8.0|1:2|.a|Sex|1 Male;2 Female;.a No answer"_s,
                                        u"WEIGHT|REAL|9.2|0.5:3|||"_s, spss.at(2),
                                        u"MEMBERS|INTEGER|10.0|-3:12||Size of family|"_s};
    const QStringList sas{u"SEX|INTEGER|1.0|1:2||Sex|"_s, u"WEIGHT|REAL|12.2|0.5:3|||"_s, spss.at(2),
                          u"MEMBERS|INTEGER|2.0|-3:12||Size of family|"_s};
    QTest::addRow("sas7bdat") << int(Sas) << u"SAS"_s << sas;
    QTest::addRow("xpt") << int(Xport) << u"SAS"_s << sas;
}

void tst_StatisticsFile::readsFields()
{
    QFETCH(int, kind);
    const SourceFiles files;
    const SourceFields result = SourceReader::read(sourcePath(files, Kind(kind)));
    QCOMPARE(messages(result.errors), QString());
    QCOMPARE(messages(result.notes), QString());
    QTEST(fieldLines(result), "fields");
    int position = 0;
    for (TDcSourceField *field : std::as_const(*result.list())) {
        QTEST(field->getDataProviderType(), "provider");
        QCOMPARE(field->relativePosition, ++position);
        QCOMPARE(field->record, u"persons"_s);
        QCOMPARE(field->notApp, QString());
    }
}

void tst_StatisticsFile::withoutDataTheFormatsDecide()
{
    const SourceFiles files;
    SourceOptions options;
    options.readData = false;
    const SourceFields result = SourceReader::read(sourcePath(files, Dta), options);
    QCOMPARE(
        fieldLines(result),
        (QStringList{u"SEX|INTEGER|8.0|:|.a|Sex|1 Male;2 Female;.a No answer"_s, u"WEIGHT|REAL|9.2|:|||"_s,
                     u"NAME|STRING|20.0|:||Given name|"_s, u"MEMBERS|REAL|10.0|:||Size of family|"_s}));
}

void tst_StatisticsFile::takesTheLabelsOfACatalog()
{
    const SourceFiles files;
    const QString path = sourcePath(files, Sas);
    const QString beside = files.write(u"persons.sas7bcat"_s, catalog());
    QCOMPARE(SourceReader::read(path).list()->first()->categories, u"1 Male\t2 Female"_s);

    SourceOptions options;
    options.catalog = files.path(u"labels.sas7bcat"_s);
    QVERIFY(QFile::rename(beside, options.catalog));
    QCOMPARE(SourceReader::read(path).list()->first()->categories, QString());
    QCOMPARE(SourceReader::read(path, options).list()->first()->categories, u"1 Male\t2 Female"_s);
}

void tst_StatisticsFile::refusesAMissingCatalog()
{
    const SourceFiles files;
    SourceOptions options;
    options.catalog = files.path(u"nowhere.sas7bcat"_s);
    const SourceFields result = SourceReader::read(sourcePath(files, Sas), options);
    QCOMPARE(messages(result.errors), u"nowhere.sas7bcat: There is no such file."_s);
    QVERIFY(result.list()->isEmpty());
}

void tst_StatisticsFile::namesTheRecordAfterTheFile()
{
    const SourceFiles files;
    const SourceFields result = SourceReader::read(files.write(u"census.2020 año.SAV"_s, persons(Sav)));
    QCOMPARE(messages(result.errors), QString());
    QCOMPARE(result.list()->first()->record, u"census.2020 año"_s);
}

void tst_StatisticsFile::keepsRangesOfMissingCodes()
{
    const SourceFiles files;
    DataFileWriter writer(readstat_begin_writing_sav);
    auto *income = writer.addNumbers("INCOME", "", "F8.0", {100, 2000, 9000, 9998, -1});
    readstat_variable_add_missing_double_range(income, 9000, 9999);
    readstat_variable_add_missing_double_value(income, -1);
    auto *region = writer.addTexts("REGION", "", 2, {"N", "S", "X", "S", "N"});
    readstat_variable_add_missing_string_value(region, "X");
    const SourceFields result = SourceReader::read(files.write(u"a.sav"_s, writer.bytes()));
    QCOMPARE(fieldLines(result),
             (QStringList{u"INCOME|INTEGER|8.0|100:2000|9000..9999;-1||"_s, u"REGION|STRING|2.0|:|X||"_s}));
}

void tst_StatisticsFile::keepsTaggedMissingValues()
{
    const SourceFiles files;
    DataFileWriter writer(readstat_begin_writing_dta);
    auto *age = writer.addNumbers("age", "", "", {}, READSTAT_TYPE_INT16);
    QByteArray bytes;
    readstat_set_data_writer(writer.engine(), [](const void *data, size_t length, void *target) {
        static_cast<QByteArray *>(target)->append(static_cast<const char *>(data), qsizetype(length));
        return ssize_t(length);
    });
    readstat_begin_writing_dta(writer.engine(), &bytes, 2);
    readstat_begin_row(writer.engine());
    readstat_insert_tagged_missing_value(writer.engine(), age, 'c');
    readstat_end_row(writer.engine());
    readstat_begin_row(writer.engine());
    readstat_insert_int16_value(writer.engine(), age, 7);
    readstat_end_row(writer.engine());
    readstat_end_writing(writer.engine());
    const SourceFields result = SourceReader::read(files.write(u"a.dta"_s, bytes));
    QCOMPARE(messages(result.errors), QString());
    QCOMPARE(result.list()->first()->missing, u".c"_s);
    QCOMPARE(result.list()->first()->rangeMax, u"7"_s);
}

void tst_StatisticsFile::wholeNumbersBeyond32BitsAreReal()
{
    const SourceFiles files;
    DataFileWriter writer(readstat_begin_writing_sav);
    writer.addNumbers("FITS", "", "F10.0", {-2147483648.0, 2147483647.0});
    writer.addNumbers("ID", "", "F8.0", {1, 12345678901.0});
    const SourceFields result = SourceReader::read(files.write(u"a.sav"_s, writer.bytes()));
    QCOMPARE(
        fieldLines(result),
        (QStringList{u"FITS|INTEGER|11.0|-2147483648:2147483647|||"_s, u"ID|REAL|11.0|1:12345678901|||"_s}));
}

void tst_StatisticsFile::singlePrecisionHasFewDecimals()
{
    const SourceFiles files;
    DataFileWriter writer(readstat_begin_writing_dta);
    writer.addNumbers("share", "", "", {0.1, 0.25}, READSTAT_TYPE_FLOAT);
    const SourceFields result = SourceReader::read(files.write(u"a.dta"_s, writer.bytes()));
    QCOMPARE(result.list()->first()->decimals, 2);
    QCOMPARE(result.list()->first()->getFieldType(), u"REAL"_s);
    QCOMPARE(result.list()->first()->rangeMin, u"0.1"_s);
}

void tst_StatisticsFile::aFractionOverrulesTheFormat()
{
    const SourceFiles files;
    DataFileWriter writer(readstat_begin_writing_sav);
    writer.addNumbers("X", "", "F4.0", {1, 2.125});
    const SourceFields result = SourceReader::read(files.write(u"a.sav"_s, writer.bytes()));
    QCOMPARE(fieldLines(result), QStringList{u"X|REAL|5.3|1:2.125|||"_s});
}

void tst_StatisticsFile::longTexts()
{
    const SourceFiles files;
    DataFileWriter writer(readstat_begin_writing_sav);
    writer.addTexts("SHORT", "", 5, {"abc"});
    writer.addTexts("LONG", "", 1001, {QByteArray(900, 'x')});
    const SourceFields result = SourceReader::read(files.write(u"a.sav"_s, writer.bytes()));
    QCOMPARE(messages(result.errors), QString());
    QCOMPARE(result.list()->size(), 2);
    QCOMPARE(result.list()->at(0)->size, 5);
    QCOMPARE(result.list()->at(1)->size, 1001);
}

void tst_StatisticsFile::leavesOutCodesThatALabelTextCannotHold()
{
    const SourceFiles files;
    DataFileWriter writer(readstat_begin_writing_sav);
    auto *answer = writer.addTexts("ANSWER", "", 8, {"no idea"});
    auto *labels = readstat_add_label_set(writer.engine(), READSTAT_TYPE_STRING, "answers");
    readstat_label_string_value(labels, "yes", "Yes,\tof course");
    readstat_label_string_value(labels, "no idea", "Does not know");
    readstat_variable_set_label_set(answer, labels);
    const SourceFields result = SourceReader::read(files.write(u"a.sav"_s, writer.bytes()));
    QCOMPARE(result.list()->first()->categories, u"yes Yes, of course"_s);
    QCOMPARE(
        messages(result.notes),
        u"a.sav, variable ANSWER: These codes are empty or hold blanks and are left out of the categories: "
        "\"no idea\"."_s);
}

void tst_StatisticsFile::readsOtherEncodings()
{
    const SourceFiles files;
    DataFileWriter writer(readstat_begin_writing_xport);
    writer.addNumbers("X", "A\xf1o", "", {1});
    const QString path = files.write(u"a.xpt"_s, writer.bytes());
    SourceOptions options;
    options.encoding = u"WINDOWS-1252"_s;
    QCOMPARE(SourceReader::read(path, options).list()->first()->label, u"Año"_s);
}

void tst_StatisticsFile::refusesAnUnknownEncoding()
{
    const SourceFiles files;
    SourceOptions options;
    options.encoding = u"no-such-encoding"_s;
    const SourceFields result = SourceReader::read(sourcePath(files, Xport), options);
    QVERIFY(!result.ok());
    QVERIFY(messages(result.errors).contains(u"persons.xpt"_s));
}

void tst_StatisticsFile::reportsProgress()
{
    const SourceFiles files;
    DataFileWriter writer(readstat_begin_writing_sav);
    writer.addNumbers("X", "", "F8.2", QList<double>(50000, 1.5));
    QList<double> parts;
    SourceOptions options;
    options.progress = [&parts](double part) {
        parts.append(part);
        return true;
    };
    QVERIFY(SourceReader::read(files.write(u"a.sav"_s, writer.bytes()), options).ok());
    QVERIFY(parts.size() > 10);
    QVERIFY(std::is_sorted(parts.cbegin(), parts.cend()));
    QVERIFY(parts.first() >= 0 && parts.last() <= 1);
}

void tst_StatisticsFile::canBeCancelled_data()
{
    QTest::addColumn<int>("kind");
    for (int kind = Sav; kind <= Xport; ++kind)
        QTest::addRow("%s", qPrintable(suffixes[kind])) << kind;
}

void tst_StatisticsFile::canBeCancelled()
{
    QFETCH(int, kind);
    const SourceFiles files;
    SourceOptions options;
    int calls = 0;
    options.progress = [&calls](double) {
        ++calls;
        return false;
    };
    const SourceFields result = SourceReader::read(sourcePath(files, Kind(kind)), options);
    QCOMPARE(calls, 1);
    QVERIFY(result.cancelled);
    QVERIFY(!result.ok());
    QVERIFY(result.list()->isEmpty());
    QCOMPARE(messages(result.errors), QString());
}

void tst_StatisticsFile::refusesWhatIsNoFile()
{
    const SourceFiles files;
    QCOMPARE(messages(SourceReader::read(files.path(u"none.sav"_s)).errors),
             u"none.sav: There is no such file."_s);
    QVERIFY(QDir().mkdir(files.path(u"folder.dta"_s)));
    QCOMPARE(messages(SourceReader::read(files.path(u"folder.dta"_s)).errors),
             u"folder.dta: It is a folder, not a file."_s);
    QCOMPARE(
        messages(SourceReader::read(files.write(u"a.xlsx"_s, "x")).errors),
        u"a.xlsx: This kind of file is not known. Known are: sav, zsav, por, dta, sas7bdat, xpt, csv, tsv, "
        "tab, txt, json."_s);
}

void tst_StatisticsFile::saysWhatAndWhere()
{
    const SourceFiles files;
    const QByteArray whole = persons(Sas);
    const QString path = files.write(u"cut.sas7bdat"_s, whole.left(whole.size() - 100));
    const QString message = messages(SourceReader::read(path).errors);
    QVERIFY2(message.contains(u"cut.sas7bdat, "_s), qPrintable(message));
    QVERIFY2(message.contains(u"byte "_s), qPrintable(message));
    QVERIFY2(message.contains(u"damaged"_s), qPrintable(message));
}

void tst_StatisticsFile::everyTruncationGivesFieldsOrAnError()
{
    QFETCH(int, kind);
    const SourceFiles files;
    everyTruncation(files, u"cut."_s + suffixes[kind], persons(Kind(kind)),
                    [](const QString &path) { return SourceReader::read(path); });
}

void tst_StatisticsFile::everyTruncatedCatalogIsRefused()
{
    const SourceFiles files;
    const QString path = sourcePath(files, Sas);
    everyTruncation(files, u"persons.sas7bcat"_s, catalog(),
                    [&path](const QString &) { return SourceReader::read(path); });
}

void tst_StatisticsFile::aMissingEndIsNoticed_data()
{
    QTest::addColumn<int>("kind");
    // Here the parser alone takes a file without its last bytes: a Stata file loses its labels silently.
    QTest::addRow("dta") << int(Dta);
    QTest::addRow("xpt") << int(Xport);
}

void tst_StatisticsFile::aMissingEndIsNoticed()
{
    QFETCH(int, kind);
    const SourceFiles files;
    QByteArray cut = persons(Kind(kind));
    cut.chop(79);
    const SourceFields result = SourceReader::read(files.write(u"cut."_s + suffixes[kind], cut));
    QVERIFY(!result.ok());
    QVERIFY(messages(result.errors).contains(u"its end is missing"_s));
}

void tst_StatisticsFile::garbageIsRefused()
{
    QFETCH(int, kind);
    const SourceFiles files;
    for (const QByteArray &garbage : {QByteArray(), QByteArray("x"), QByteArray(8000, '\0'),
                                      QByteArray(8000, '\xff'), QByteArray("name,age\nAna,7\n")}) {
        const SourceFields result = SourceReader::read(files.write(u"a."_s + suffixes[kind], garbage));
        QVERIFY(!result.ok());
        QVERIFY(result.list()->isEmpty());
    }
}

void tst_StatisticsFile::changedBytesDoNoHarm()
{
    QFETCH(int, kind);
    const SourceFiles files;
    const QByteArray whole = persons(Kind(kind));
    QFile file(files.write(u"a."_s + suffixes[kind], whole));
    QVERIFY(file.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    const auto put = [&file](qsizetype at, char byte) {
        file.seek(at);
        return file.putChar(byte);
    };
    const qsizetype step = std::max<qsizetype>(1, whole.size() / 700);
    for (qsizetype at = 0; at < whole.size(); at += step) {
        QVERIFY(put(at, char(~whole.at(at))));
        const SourceFields result = SourceReader::read(file.fileName());
        QVERIFY(result.ok() || result.list()->isEmpty());
        QVERIFY(put(at, whole.at(at)));
    }
}

QTEST_GUILESS_MAIN(tst_StatisticsFile)
#include "tst_statisticsfile.moc"
