#include "cli/Import.h"

#include "cli/Failure.h"
#include "cli/FieldDrop.h"
#include "cli/Interruption.h"
#include "cli/Output.h"
#include "cli/Progress.h"
#include "cli/Target.h"
#include "cli/Text.h"
#include "documents/checks/DictionaryCheck.h"
#include "documents/DictionaryFile.h"
#include "documents/sources/SourceReader.h"
#include "model/TDcEntity.h"

#include <CLI/CLI.hpp>
#include <QFileInfo>

#include <algorithm>
#include <iostream>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr auto example =
    "Examples:\n"
    "  quillon import survey.sav -o survey.mvdb\n"
    "  quillon import persons.csv -o persons.mvdb --entity PERSON --delimiter ';'\n"
    "  quillon import register.dta -o register.mvdb --no-split --no-data\n"
    "Variables come out as if the fields had been dropped onto an entity: a name such as\n"
    "HH_AGE is split into name and alias, missing and not-applicable codes lie beside the\n"
    "range. The types of a text file's columns are guessed from its values.";

/// The record that stands for all of them.
constexpr auto everyRecord = "*"_L1;

void note(const QString &text)
{
    std::cerr << "quillon: " << Cli::Text::printable(text).toStdString() << '\n';
}

/// Refuses an option that says nothing about files but those that end in one of \a suffixes.
void requireKind(const QString &path, const QString &option, const QStringList &suffixes)
{
    if (!suffixes.contains(QFileInfo(path).suffix().toLower()))
        throw Cli::Failure(
            u"%1: --%2 is only for files ending in .%3"_s.arg(path, option, suffixes.join(u", ."_s)));
}

void checkOptions(const Cli::ImportOptions &options)
{
    const QStringList texts{u"csv"_s, u"tsv"_s, u"tab"_s, u"txt"_s};
    if (!options.source.encoding.isEmpty()) {
        QStringList encoded = SourceReader::suffixes();
        encoded.removeOne(u"json"_s); // JSON has but one.
        requireKind(options.dataFile, u"encoding"_s, encoded);
    }
    if (!options.source.catalog.isEmpty())
        requireKind(options.dataFile, u"catalog"_s, {u"sas7bdat"_s, u"xpt"_s});
    if (!options.source.delimiter.isNull())
        requireKind(options.dataFile, u"delimiter"_s, texts);
    if (!options.source.header)
        requireKind(options.dataFile, u"no-header"_s, texts);
}

QStringList messages(const QList<SourceProblem> &problems)
{
    QStringList lines;
    for (const SourceProblem &problem : problems)
        lines.append(problem.message());
    return lines;
}

SourceFields readFields(const Cli::ImportOptions &options)
{
    Cli::Progress progress(u"Reading "_s + options.dataFile);
    SourceOptions source = options.source;
    source.progress = [&progress](double part) {
        progress.show(part);
        return true;
    };
    SourceFields fields = SourceReader::read(options.dataFile, source);
    if (!fields.ok())
        throw Cli::Failure(messages(fields.errors).join(u'\n'));
    return fields;
}

QStringList run(Cli::FieldDrop &drop, const Cli::ImportOptions &options)
{
    const Cli::Progress progress(u"Making variables of "_s + options.dataFile);
    try {
        return drop.run();
    } catch (const Cli::Failure &failure) {
        throw Cli::Failure(u"%1: %2"_s.arg(options.dataFile, failure.message()));
    }
}

void write(std::unique_ptr<TDcEntity> entity, const QString &path)
{
    const Cli::Progress progress(u"Writing "_s + path);
    const Cli::Uninterrupted held;
    DictionaryFile file;
    file.setRoot(std::move(entity));
    if (!file.saveAs(path, DocumentFile::OverwriteOthersChanges))
        throw Cli::Failure(file.errorText());
}

std::unique_ptr<TDcEntity> newEntity(const Cli::ImportOptions &options)
{
    auto entity = std::make_unique<TDcEntity>();
    entity->setName(options.entity.isEmpty() ? QFileInfo(options.dataFile).completeBaseName()
                                             : options.entity);
    // What a check would call an error right away; all there is to check yet is the name.
    const QList<Finding> findings = DictionaryCheck::check(entity.get());
    const auto error = std::find_if(findings.cbegin(), findings.cend(), [](const Finding &finding) {
        return finding.severity == Severity::Error;
    });
    if (error != findings.cend())
        throw Cli::Failure(u"the entity cannot be called \"%1\": %2 %3 (--entity gives another name)"_s.arg(
            entity->getName(), error->message, error->suggestion));
    return entity;
}
} // namespace

namespace Cli
{
void addImport(CLI::App &app, Output &output)
{
    struct Options {
        std::string in, out, entity, record = "*", splitter, encoding, delimiter, catalog;
        bool noSplit = false, noData = false, noHeader = false, force = false;
    };
    const auto options = std::make_shared<Options>();
    CLI::App *verb = app.add_subcommand("import", "Make a dictionary from the fields of a data file");
    const std::string suffixes = SourceReader::suffixes().join(u", "_s).toStdString();
    verb->add_option("DATAFILE", options->in, "The data file: " + suffixes)->required();
    verb->add_option("-o,--output", options->out, "The dictionary to write")->type_name("DICT")->required();
    verb->add_option("--entity", options->entity, "Name of the entity; otherwise the data file's name")
        ->type_name("NAME");
    verb->add_option("--record", options->record, "Only the fields of this record or resource")
        ->type_name("NAME");
    CLI::Option *splitter =
        verb->add_option("--splitter", options->splitter, "Part names from aliases here; otherwise at _")
            ->type_name("CHAR");
    verb->add_flag("--no-split", options->noSplit, "Keep names whole")->excludes(splitter);
    verb->add_option("--encoding", options->encoding, "Encoding of the texts, such as windows-1252");
    verb->add_option("--delimiter", options->delimiter,
                     "What separates the cells of a text file; \\t for tabs")
        ->type_name("CHAR");
    verb->add_flag("--no-header", options->noHeader, "The first row of a text file is data");
    verb->add_option("--catalog", options->catalog, "The value labels of a SAS data file")->type_name("FILE");
    verb->add_flag("--no-data", options->noData, "Do not look at the values, so that ranges stay unknown");
    verb->add_flag("--force", options->force, "Write over a dictionary that is there already");
    verb->footer(example);
    verb->callback([options, &output] {
        const auto text = [](const std::string &value) { return QString::fromStdString(value); };
        ImportOptions what{.dataFile = text(options->in),
                           .dictionary = text(options->out),
                           .entity = text(options->entity),
                           .record = text(options->record),
                           .splitNames = !options->noSplit,
                           .splitter = text(options->splitter),
                           .overwrite = options->force,
                           .source = {.readData = !options->noData,
                                      .encoding = text(options->encoding),
                                      .delimiter = {},
                                      .header = !options->noHeader,
                                      .catalog = text(options->catalog),
                                      .progress = {}}};
        const QString delimiter = options->delimiter == "\\t" ? u"\t"_s : text(options->delimiter);
        if (what.splitter.size() > 1)
            throw Failure(u"--splitter: \"%1\" is more than one character"_s.arg(what.splitter));
        if (delimiter.size() > 1)
            throw Failure(u"--delimiter: \"%1\" is more than one character"_s.arg(delimiter));
        if (!delimiter.isEmpty())
            what.source.delimiter = delimiter.front();
        import(what, output);
    });
}

void import(const ImportOptions &options, Output &output)
{
    checkTarget(options.dataFile, options.dictionary,
                options.overwrite ? Overwrite::Allowed : Overwrite::Never);
    checkOptions(options);
    std::unique_ptr<TDcEntity> entity = newEntity(options);
    const SourceFields fields = readFields(options);
    for (const QString &message : messages(fields.notes))
        note(message);

    FieldDrop drop(*entity, *fields.list(), options.record);
    if (options.splitNames && !options.splitter.isEmpty())
        drop.splitNamesAt(options.splitter);
    else if (!options.splitNames)
        drop.keepNamesWhole();
    const QStringList renamed = run(drop, options);
    if (entity->getVariables()->isEmpty())
        throw Failure(options.record == everyRecord ? u"%1: there are no fields"_s.arg(options.dataFile)
                                                    : u"%1: there are no fields of a record \"%2\""_s.arg(
                                                        options.dataFile, options.record));
    for (const QString &message : renamed)
        note(message);

    const qsizetype variables = entity->getVariables()->size();
    write(std::move(entity), options.dictionary);
    output.line(Text::printable(u"%1: written, %2"_s.arg(
        options.dictionary, Text::counted(variables, u"variable"_s, u"variables"_s))));
}
} // namespace Cli
