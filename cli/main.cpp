#include "cli/Check.h"
#include "cli/CodebookVerb.h"
#include "cli/Convert.h"
#include "cli/Diff.h"
#include "cli/Failure.h"
#include "cli/Import.h"
#include "cli/NearMatches.h"
#include "cli/Output.h"
#include "cli/Show.h"
#include "cli/Text.h"

#include <CLI/CLI.hpp>
#include <QFile>
#include <QLocale>
#include <QLoggingCategory>

#include <cstdio>
#include <functional>
#include <iostream>
#include <sstream>

#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr int statusOfErrors = 2;

/// A first word that is no verb gets a better answer than the parser has.
void checkVerb(const CLI::App &app, int argc, char **argv)
{
    const QString word = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString();
    QStringList verbs;
    for (const CLI::App *verb : app.get_subcommands(std::function<bool(const CLI::App *)>()))
        verbs.append(QString::fromStdString(verb->get_name()));
    if (word.isEmpty() || word.startsWith(u'-') || verbs.contains(word))
        return;
    throw Cli::Failure(u"there is no verb \"%1\""_s.arg(word) + Cli::didYouMean(word, verbs)
                       + u" (quillon --help lists them)"_s);
}

int run(int argc, char **argv, Cli::Output &output)
{
    CLI::App app("Makes, shows, checks and compares data dictionaries.", "quillon");
    app.set_version_flag("--version", "quillon " QUILLON_VERSION);
    app.require_subcommand(1);
    int status = 0;
    Cli::addCheck(app, output, status);
    Cli::addCodebook(app, output);
    Cli::addConvert(app, output, status);
    Cli::addDiff(app, output, status);
    Cli::addImport(app, output);
    Cli::addShow(app, output);
    app.footer("quillon VERB --help tells more about a verb, with examples.");
    checkVerb(app, argc, argv);
    try {
        app.parse(argc, argv);
        output.flush();
        return status;
    } catch (const CLI::ParseError &error) {
        // Also how help and version are asked for, which is no error.
        std::ostringstream answer;
        const int code = app.exit(error, answer, std::cerr);
        output.raw(QByteArray::fromStdString(answer.str()));
        output.flush();
        return code == 0 ? 0 : statusOfErrors;
    }
}
} // namespace

int main(int argc, char **argv)
{
    // Standard error is for what the program has to say, not for Qt's remarks.
    QLoggingCategory::setFilterRules(u"*.debug=false\n*.warning=false"_s);
    // Its texts are English, and what reads them expects the same numbers everywhere.
    QLocale::setDefault(QLocale::c());
    QFile standardOutput;
    (void)standardOutput.open(stdout, QIODevice::WriteOnly);
    Cli::Output output(standardOutput, Cli::Output::coloursSuitStandardOutput(),
                       Cli::Output::columnsOf(STDOUT_FILENO));
    try {
        return run(argc, argv, output);
    } catch (const Cli::Failure &failure) {
        std::cerr << "quillon: " << Cli::Text::printable(failure.message()).toStdString() << '\n';
    } catch (const std::exception &error) {
        std::cerr << "quillon: " << error.what() << '\n';
    }
    return statusOfErrors;
}
