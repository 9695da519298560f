#include "cli/Convert.h"

#include "cli/Input.h"
#include "cli/Output.h"
#include "cli/Progress.h"
#include "cli/RoundTrip.h"
#include "cli/Target.h"
#include "cli/Text.h"

#include <CLI/CLI.hpp>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace
{
Cli::RoundTrip readAndWrite(const QString &in)
{
    const Cli::Progress progress(u"Converting "_s + Cli::Input::nameOf(in));
    return Cli::roundTrip(Cli::readDocument(in));
}
} // namespace

namespace Cli
{
void addConvert(CLI::App &app, Output &output, int &status)
{
    struct Options {
        std::string in;
        std::string out;
        bool lossy = false, force = false;
    };
    const auto options = std::make_shared<Options>();
    CLI::App *verb =
        app.add_subcommand("convert", "Read a dictionary and write it again, telling what that loses");
    verb->add_option("IN", options->in, Input::optionText)->required();
    verb->add_option("OUT", options->out, "The file to write")->required();
    verb->add_flag("--lossy", options->lossy, "Write the file even if something is lost");
    verb->add_flag("--force", options->force, "Write over a file that is there already");
    verb->footer("Examples:\n"
                 "  quillon convert survey.mvdb copy.mvdb\n"
                 "  quillon convert --lossy survey.mvdb copy.mvdb --force\n"
                 "Ends with status 1 and writes nothing if something would be lost.");
    verb->callback([options, &output, &status] {
        const bool written =
            convert(QString::fromStdString(options->in), QString::fromStdString(options->out),
                    options->lossy ? Losses::Accepted : Losses::Refused,
                    options->force ? Overwrite::Allowed : Overwrite::Never, output);
        status = written ? 0 : 1;
    });
}

bool convert(const QString &in, const QString &out, Losses losses, Overwrite overwrite, Output &output)
{
    checkTarget(in, out, overwrite);
    const RoundTrip trip = readAndWrite(in);
    for (const QString &line : trip.unkept)
        output.line(Text::printable(line));
    for (const Difference &loss : trip.losses)
        output.line(Text::printable(loss.toString()));

    const bool write = trip.lost() == 0 || losses == Losses::Accepted;
    if (write)
        save(out, trip.written);
    const QString lost = trip.lost() == 0 ? u"nothing lost"_s
                                          : Text::counted(trip.lost(), u"value"_s, u"values"_s) + u" lost"_s;
    output.line(
        Text::printable(write ? u"%1: written, %2"_s.arg(out, lost)
                              : u"%1: not written, %2 (--lossy writes it all the same)"_s.arg(out, lost)));
    return write;
}
} // namespace Cli
