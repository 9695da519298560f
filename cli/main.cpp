#include "cli/Convert.h"
#include "cli/Failure.h"
#include "cli/Output.h"
#include "cli/Show.h"
#include "cli/Text.h"

#include <CLI/CLI.hpp>
#include <QFile>

#include <cstdio>
#include <iostream>

namespace
{
constexpr int statusOfErrors = 2;

int run(int argc, char **argv, Cli::Output &output)
{
    CLI::App app("Shows and converts data dictionaries.", "quillon");
    app.set_version_flag("--version", "quillon " QUILLON_VERSION);
    app.require_subcommand(1);
    int status = 0;
    Cli::addConvert(app, output, status);
    Cli::addShow(app, output);
    try {
        app.parse(argc, argv);
        output.flush();
        return status;
    } catch (const CLI::ParseError &error) {
        // Also how help and version are asked for, which is no error.
        return app.exit(error) == 0 ? 0 : statusOfErrors;
    }
}
} // namespace

int main(int argc, char **argv)
{
    QFile standardOutput;
    (void)standardOutput.open(stdout, QIODevice::WriteOnly);
    Cli::Output output(standardOutput, Cli::Output::coloursSuitStandardOutput());
    try {
        return run(argc, argv, output);
    } catch (const Cli::Failure &failure) {
        std::cerr << "quillon: " << Cli::Text::printable(failure.message()).toStdString() << '\n';
    } catch (const std::exception &error) {
        std::cerr << "quillon: " << error.what() << '\n';
    }
    return statusOfErrors;
}
