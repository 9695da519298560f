#include "cli/Diff.h"

#include "cli/DocumentReader.h"
#include "cli/Failure.h"
#include "cli/Input.h"
#include "cli/OtherKeys.h"
#include "cli/Output.h"
#include "cli/Progress.h"
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

struct Comparison {
    DictionaryDifference difference;
    Cli::OtherDifferences others;

    [[nodiscard]] bool isEmpty() const { return difference.isEmpty() && others.isEmpty(); }
};

Comparison compare(const QString &before, const QString &after)
{
    if (Cli::Input::isStandard(before) && Cli::Input::isStandard(after))
        throw Cli::Failure(u"standard input can be read only once: give one of the two as a file"_s);
    const std::unique_ptr<DictionaryFile> left = Cli::openDictionary(before);
    const std::unique_ptr<DictionaryFile> right = Cli::openDictionary(after);
    const Cli::Progress progress(u"Comparing "_s + Cli::Input::nameOf(before) + u" and "_s
                                 + Cli::Input::nameOf(after));
    const auto difference = DictionaryDifference::between(*left->root(), *right->root());
    // With that applied, only what the objects do not know can differ.
    if (!difference.apply(*left->root()))
        throw Cli::Failure(
            u"%1 and %2 cannot be compared"_s.arg(Cli::Input::nameOf(before), Cli::Input::nameOf(after)));
    return {difference, Cli::otherDifferences(left->content(), right->content())};
}

/// What cannot be seen in the objects, line by line.
QStringList linesOf(const Cli::OtherDifferences &others)
{
    QStringList lines;
    for (const Cli::Difference &key : others.keys)
        lines.append(u"Other key "_s + key.toString());
    for (const Cli::Difference &value : others.values)
        lines.append(u"Other value "_s + value.toString());
    return lines;
}

QJsonArray asJson(const QList<Cli::Difference> &differences, const QStringList &lines)
{
    QJsonArray list;
    for (qsizetype i = 0; i < differences.size(); ++i) {
        const Cli::Difference &other = differences.at(i);
        QJsonObject object{{"key"_L1, other.key}, {"path"_L1, other.place}, {"text"_L1, lines.at(i)}};
        if (!other.before.isUndefined())
            object.insert("before"_L1, other.before);
        if (!other.after.isUndefined())
            object.insert("after"_L1, other.after);
        list.append(object);
    }
    return list;
}

QByteArray asJson(const QString &before, const QString &after, const Comparison &comparison)
{
    const QList<DictionaryChange> changes = comparison.difference.changes();
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
    const auto &[keys, values] = comparison.others;
    const QStringList lines = linesOf(comparison.others);
    const QJsonObject content{{"after"_L1, after},
                              {"before"_L1, before},
                              {"changes"_L1, list},
                              {"otherKeys"_L1, asJson(keys, lines)},
                              {"otherValues"_L1, asJson(values, lines.sliced(keys.size()))}};
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
    CLI::Option *before = verb->add_option("A", options->before,
                                           "The dictionary document before; - reads it from standard input");
    CLI::Option *after = verb->add_option("B", options->after,
                                          "The dictionary document after; - reads it from standard input");
    CLI::Option *json = verb->add_flag("--json", options->json, "Print JSON for other programs");
    before->needs(after);
    verb->add_option("--textconv", options->convert,
                     "Print this one, a line for each value, for version control")
        ->type_name("FILE")
        ->excludes(before, after, json);
    verb->footer("Examples:\n"
                 "  quillon diff old.mvdb new.mvdb\n"
                 "  quillon diff old.mvdb new.mvdb --json | jq '.changes[].text'\n"
                 "  git show main:survey.mvdb | quillon diff - survey.mvdb\n"
                 "  git config diff.quillon.textconv 'quillon diff --textconv'\n"
                 "Ends with status 0 if the dictionaries are equal and with 1 if they are not. The order of\n"
                 "keys and the layout of the file do not count; keys that are not known do, and so do\n"
                 "values that cannot stand where they do, such as a list for a label.");
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
    const Comparison comparison = compare(before, after);
    if (form == DiffForm::Json) {
        output.raw(asJson(before, after, comparison));
        return comparison.isEmpty();
    }
    if (!comparison.difference.isEmpty() || comparison.isEmpty()) {
        for (const QString &line : comparison.difference.text())
            output.line(Text::printable(line));
    }
    for (const QString &line : linesOf(comparison.others))
        output.line(Text::printable(line));
    return comparison.isEmpty();
}
} // namespace Cli
