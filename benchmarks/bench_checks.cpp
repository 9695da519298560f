// Checks, codebooks and source fields: in proportion to the dictionary, and not much dearer than opening it.
#include "benchmarks/GeneratedDictionary.h"
#include "benchmarks/InTurn.h"
#include "business/ProcessDictionaryBusiness.h"
#include "documents/checks/DictionaryCheck.h"
#include "documents/codebook/Codebook.h"
#include "documents/sources/SourceReader.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <readstat.h>

namespace
{
constexpr double Goal = 3;

QByteArray documentOf(TDcEntity *root)
{
    QJsonObject object;
    ProcessDictionaryBusiness().getStructuraTreeRootToJson(root, &object);
    return QJsonDocument(QJsonObject{{QStringLiteral("root"), QJsonArray{object}}})
        .toJson(QJsonDocument::Compact);
}

/// Opens a document as the layer does: parse, turn into a map, read.
std::unique_ptr<OwnedList<TDcEntity>> opened(const QByteArray &bytes)
{
    auto entities = std::make_unique<OwnedList<TDcEntity>>();
    entities->reset(ProcessDictionaryBusiness().recorrerNodosJsonYCargaEstructuraEntidades(
        QJsonDocument::fromJson(bytes).object().toVariantMap(), 0));
    return entities;
}

/// Compares \a work on a dictionary, whose variables have ten value labels each, with opening it.
template <typename Work>
void againstOpening(benchmark::State &state, Work work)
{
    const auto root =
        GeneratedDictionary::make(int(state.range(0)), GeneratedDictionary::variablesPerEntity, 10);
    const QByteArray bytes = documentOf(root.get());
    runInTurn(
        state, Goal, [&] { return work(root.get()); }, [&] { return opened(bytes); });
    state.SetComplexityN(state.range(0));
}

void sizes(benchmark::internal::Benchmark *work)
{
    work->Arg(3'125)->Arg(12'500)->Arg(50'000)->Iterations(5)->Complexity();
    work->UseManualTime()->Unit(benchmark::kMillisecond);
}

void checkAgainstOpening(benchmark::State &state)
{
    againstOpening(state, [](TDcEntity *root) { return DictionaryCheck::check(root); });
}
BENCHMARK(checkAgainstOpening)->Apply(sizes);

void codebookAgainstOpening(benchmark::State &state)
{
    againstOpening(state, [](const TDcEntity *root) { return Codebook::html(root); });
}
BENCHMARK(codebookAgainstOpening)->Apply(sizes);

/// A data file of \a variables variables, half of them with value labels, and few rows.
QString dataFile(const QTemporaryDir &folder, int variables)
{
    QByteArray bytes;
    const std::unique_ptr<readstat_writer_t, decltype(&readstat_writer_free)> writer(readstat_writer_init(),
                                                                                     readstat_writer_free);
    readstat_set_data_writer(writer.get(), [](const void *data, size_t length, void *target) {
        static_cast<QByteArray *>(target)->append(static_cast<const char *>(data), qsizetype(length));
        return ssize_t(length);
    });
    for (int i = 0; i < variables; ++i) {
        const QByteArray name = "VAR" + QByteArray::number(i);
        readstat_variable_t *variable =
            readstat_add_variable(writer.get(), name.constData(), READSTAT_TYPE_DOUBLE, 8);
        readstat_variable_set_label(variable, ("What was answered to question " + name).constData());
        readstat_variable_set_format(variable, "F8.2");
        if (i % 2 == 0) {
            readstat_label_set_t *labels =
                readstat_add_label_set(writer.get(), READSTAT_TYPE_DOUBLE, name.constData());
            for (int code = 1; code <= 4; ++code)
                readstat_label_double_value(labels, code, "Answer");
            readstat_variable_set_label_set(variable, labels);
        }
    }
    readstat_begin_writing_sav(writer.get(), &bytes, 1);
    readstat_begin_row(writer.get());
    for (int i = 0; i < variables; ++i)
        readstat_insert_double_value(writer.get(), readstat_get_variable(writer.get(), i), i);
    readstat_end_row(writer.get());
    readstat_end_writing(writer.get());
    QFile file(folder.filePath(QStringLiteral("data.sav")));
    file.open(QIODevice::WriteOnly);
    file.write(bytes);
    return file.fileName();
}

/// What the library needs by itself for the metadata: variables and labels are called out and dropped.
int readMetadata(const QByteArray &path)
{
    int variables = 0;
    readstat_parser_t *parser = readstat_parser_init();
    readstat_set_variable_handler(parser, [](int, readstat_variable_t *, const char *, void *count) {
        ++*static_cast<int *>(count);
        return int(READSTAT_HANDLER_OK);
    });
    readstat_set_value_label_handler(parser, [](const char *, readstat_value_t, const char *, void *) {
        return int(READSTAT_HANDLER_OK);
    });
    readstat_parse_sav(parser, path.constData(), &variables);
    readstat_parser_free(parser);
    return variables;
}

void importAgainstMetadata(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString path = dataFile(folder, int(state.range(0)));
    SourceOptions options;
    options.readData = false;
    if (SourceReader::read(path, options).list()->size() != state.range(0))
        state.SkipWithError("the file cannot be read");
    runInTurn(
        state, Goal, [&] { return SourceReader::read(path, options); },
        [encoded = QFile::encodeName(path)] { return readMetadata(encoded); });
    state.SetComplexityN(state.range(0));
}
BENCHMARK(importAgainstMetadata)
    ->Arg(2'500)
    ->Arg(10'000)
    ->Iterations(9)
    ->Complexity()
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
} // namespace

BENCHMARK_MAIN();
