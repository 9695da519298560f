#include "cli/Check.h"

#include "cli/DocumentReader.h"
#include "cli/Input.h"
#include "cli/Output.h"
#include "cli/Progress.h"
#include "cli/Text.h"
#include "documents/checks/DictionaryCheck.h"
#include "documents/DictionaryFile.h"

#include <CLI/CLI.hpp>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace
{
QLatin1StringView keyword(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return "error"_L1;
    case Severity::Warning:
        return "warning"_L1;
    case Severity::Note:
        break;
    }
    return "note"_L1;
}

void printText(const QString &name, const QList<Finding> &findings, Cli::Output &output)
{
    for (const Finding &finding : findings) {
        const QString place = finding.place.isEmpty() ? name : finding.place;
        output.line(u"%1: %2: %3 [%4]"_s.arg(output.strong(Cli::Text::printable(place)),
                                             DictionaryCheck::severityName(finding.severity).toLower(),
                                             Cli::Text::printable(finding.message), finding.rule));
        if (!finding.suggestion.isEmpty())
            output.line(u"    "_s + Cli::Text::printable(finding.suggestion));
    }
    output.line(Cli::Text::printable(name) + u": "_s + DictionaryCheck::summary(findings));
}

void printJson(const QString &path, const QList<Finding> &findings, Cli::Output &output)
{
    QJsonArray list;
    for (const Finding &finding : findings) {
        list.append(QJsonObject{{"message"_L1, finding.message},
                                {"place"_L1, finding.place},
                                {"rule"_L1, finding.rule},
                                {"severity"_L1, keyword(finding.severity)},
                                {"suggestion"_L1, finding.suggestion}});
    }
    const QJsonObject content{{"file"_L1, path}, {"findings"_L1, list}};
    output.raw(Cli::Text::printableJson(QJsonDocument(content).toJson()));
}
} // namespace

namespace Cli
{
void addCheck(CLI::App &app, Output &output, int &status)
{
    struct Options {
        std::string file;
        bool json = false;
    };
    const auto options = std::make_shared<Options>();
    CLI::App *verb = app.add_subcommand("check", "Look for what is wrong in a dictionary");
    verb->add_option("FILE", options->file, Input::optionText)->required();
    verb->add_flag("--json", options->json, "Print JSON for other programs");
    verb->footer("Examples:\n"
                 "  quillon check survey.mvdb\n"
                 "  quillon check survey.mvdb --json | jq '.findings[] | select(.severity == \"error\")'\n"
                 "Ends with status 0 if there is nothing wrong and with 1 if there is, be it a note.");
    verb->callback([options, &output, &status] {
        const bool clean = check(QString::fromStdString(options->file),
                                 options->json ? CheckForm::Json : CheckForm::Text, output);
        status = clean ? 0 : 1;
    });
}

bool check(const QString &path, CheckForm form, Output &output)
{
    const std::unique_ptr<DictionaryFile> file = openDictionary(path);
    QList<Finding> findings;
    {
        const Progress progress(u"Checking "_s + Input::nameOf(path));
        findings = DictionaryCheck::check(file->root());
    }
    if (form == CheckForm::Json)
        printJson(path, findings, output);
    else
        printText(Input::nameOf(path), findings, output);
    return findings.isEmpty();
}
} // namespace Cli
