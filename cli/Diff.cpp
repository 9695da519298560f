#include "cli/Diff.h"

#include "cli/DocumentReader.h"
#include "cli/Failure.h"
#include "cli/Output.h"
#include "cli/Text.h"
#include "cli/TextConverter.h"
#include "documents/DictionaryDifference.h"
#include "documents/DictionaryFile.h"

#include <CLI/CLI.hpp>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace
{
QLatin1StringView keyword(DictionaryChange::Kind kind)
{
    switch (kind) {
    case DictionaryChange::Kind::Added:
        return "added"_L1;
    case DictionaryChange::Kind::Removed:
        return "removed"_L1;
    case DictionaryChange::Kind::Moved:
        return "moved"_L1;
    case DictionaryChange::Kind::Renamed:
        return "renamed"_L1;
    case DictionaryChange::Kind::Changed:
        break;
    }
    return "changed"_L1;
}

QLatin1StringView keyword(DictionaryChange::What what)
{
    switch (what) {
    case DictionaryChange::What::Entity:
        return "entity"_L1;
    case DictionaryChange::What::Variable:
        return "variable"_L1;
    case DictionaryChange::What::Layout:
        return "layout"_L1;
    case DictionaryChange::What::Range:
        return "range"_L1;
    case DictionaryChange::What::ValueLabel:
        break;
    }
    return "valueLabel"_L1;
}

QByteArray asJson(const QString &before, const QString &after, const QList<DictionaryChange> &changes)
{
    QJsonArray list;
    for (const DictionaryChange &change : changes) {
        list.append(QJsonObject{{"after"_L1, QJsonValue::fromVariant(change.after)},
                                {"before"_L1, QJsonValue::fromVariant(change.before)},
                                {"kind"_L1, keyword(change.kind)},
                                {"path"_L1, change.path},
                                {"property"_L1, change.property},
                                {"text"_L1, change.text()},
                                {"what"_L1, keyword(change.what)}});
    }
    const QJsonObject content{{"after"_L1, after}, {"before"_L1, before}, {"changes"_L1, list}};
    return Cli::Text::printableJson(QJsonDocument(content).toJson());
}
} // namespace

namespace Cli
{
void addDiff(CLI::App &app, Output &output, int &status)
{
    struct Options {
        std::string before, after, convert;
        bool json = false;
    };
    const auto options = std::make_shared<Options>();
    CLI::App *verb = app.add_subcommand("diff", "Compare two dictionaries");
    CLI::Option *before = verb->add_option("A", options->before, "The dictionary document before");
    CLI::Option *after = verb->add_option("B", options->after, "The dictionary document after");
    CLI::Option *json = verb->add_flag("--json", options->json, "Print JSON for other programs");
    before->needs(after);
    verb->add_option("--textconv", options->convert,
                     "Print this one, a line for each value, for version control")
        ->type_name("FILE")
        ->excludes(before, after, json);
    verb->footer("Examples:\n"
                 "  quillon diff old.mvdb new.mvdb\n"
                 "  quillon diff old.mvdb new.mvdb --json | jq '.changes[].text'\n"
                 "  git config diff.quillon.textconv 'quillon diff --textconv'\n"
                 "Ends with status 0 if the dictionaries are equal and with 1 if they are not. The order of\n"
                 "keys, the layout of the file and keys that are not known do not count.");
    verb->callback([options, &output, &status] {
        const auto text = [](const std::string &value) { return QString::fromStdString(value); };
        if (!options->convert.empty()) {
            convertToText(text(options->convert), output);
            return;
        }
        if (options->after.empty())
            throw CLI::RequiredError("A and B");
        const bool equal = diff(text(options->before), text(options->after),
                                options->json ? DiffForm::Json : DiffForm::Text, output);
        status = equal ? 0 : 1;
    });
}

bool diff(const QString &before, const QString &after, DiffForm form, Output &output)
{
    const std::unique_ptr<DictionaryFile> left = openDictionary(before);
    const std::unique_ptr<DictionaryFile> right = openDictionary(after);
    const auto difference = DictionaryDifference::between(*left->root(), *right->root());
    if (form == DiffForm::Json) {
        output.raw(asJson(before, after, difference.changes()));
        return difference.isEmpty();
    }
    for (const QString &line : difference.text())
        output.line(Text::printable(line));
    return difference.isEmpty();
}
} // namespace Cli
