// Fields from a data file, and a dictionary of them: not much dearer than what the library that reads such
// files needs by itself.
#include "benchmarks/InTurn.h"
#include "cli/FieldDrop.h"
#include "documents/DictionaryFile.h"
#include "documents/sources/SourceReader.h"
#include "model/TDcEntity.h"

#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <readstat.h>

namespace
{
constexpr double Goal = 3;

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

/// Measures \a work, which gets fields without a look at the values, against the library alone.
template <typename Work>
void againstMetadata(benchmark::State &state, double goal, Work work)
{
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false")); // As the terminal program does.
    const QTemporaryDir folder;
    const QString path = dataFile(folder, int(state.range(0)));
    SourceOptions options;
    options.readData = false;
    if (SourceReader::read(path, options).list()->size() != state.range(0))
        state.SkipWithError("the file cannot be read");
    runInTurn(
        state, goal, [&] { return work(SourceReader::read(path, options), folder); },
        [encoded = QFile::encodeName(path)] { return readMetadata(encoded); });
    state.SetComplexityN(state.range(0));
}

void metadataSizes(benchmark::internal::Benchmark *work)
{
    work->Arg(2'500)->Arg(10'000)->Iterations(9)->Complexity();
    work->UseManualTime()->Unit(benchmark::kMillisecond);
}

void fieldsAgainstMetadata(benchmark::State &state)
{
    againstMetadata(state, 0, [](SourceFields fields, const QTemporaryDir &) { return fields; });
}
BENCHMARK(fieldsAgainstMetadata)->Apply(metadataSizes);

/// All of an import: the fields are read and dropped onto an entity, and the dictionary is saved.
void importAgainstMetadata(benchmark::State &state)
{
    againstMetadata(state, Goal, [](const SourceFields &fields, const QTemporaryDir &folder) {
        auto entity = std::make_unique<TDcEntity>();
        entity->setName(QStringLiteral("DATA"));
        (void)Cli::FieldDrop(*entity, *fields.list(), QStringLiteral("*")).run();
        auto made = std::make_unique<DictionaryFile>();
        made->setRoot(std::move(entity));
        if (!made->saveAs(folder.filePath(QStringLiteral("made.mvdb"))))
            std::abort();
        return made;
    });
}
BENCHMARK(importAgainstMetadata)->Apply(metadataSizes);
} // namespace

BENCHMARK_MAIN();
