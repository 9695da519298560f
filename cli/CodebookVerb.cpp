#include "cli/CodebookVerb.h"

#include "cli/DocumentReader.h"
#include "cli/Failure.h"
#include "cli/Input.h"
#include "cli/Output.h"
#include "cli/Progress.h"
#include "cli/Target.h"
#include "cli/Text.h"
#include "documents/codebook/Codebook.h"
#include "documents/DictionaryFile.h"

#include <CLI/CLI.hpp>
#include <QBuffer>
#include <QFileInfo>
#include <QGuiApplication>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace
{
QByteArray pdf(const TDcEntity *root)
{
    qputenv("QT_QPA_PLATFORM", "offscreen"); // Fonts need an application, but no display.
    int count = 1;
    char name[] = "quillon";
    char *arguments[] = {name, nullptr};
    const QGuiApplication application(count, arguments);
    QBuffer buffer;
    (void)buffer.open(QIODevice::WriteOnly);
    const QString problem = Codebook::writePdf(root, buffer);
    if (!problem.isEmpty())
        throw Cli::Failure(problem);
    return buffer.data();
}
} // namespace

namespace Cli
{
void addCodebook(CLI::App &app, Output &output)
{
    struct Options {
        std::string in, out;
        bool force = false;
    };
    const auto options = std::make_shared<Options>();
    CLI::App *verb = app.add_subcommand("codebook", "Write a description of a dictionary for people");
    verb->add_option("FILE", options->in, Input::optionText)->required();
    verb->add_option("-o,--output", options->out, "The page (.html) or PDF document (.pdf) to write")
        ->type_name("OUT")
        ->required();
    verb->add_flag("--force", options->force, "Write over a file that is there already");
    verb->footer("Examples:\n"
                 "  quillon codebook survey.mvdb -o survey.html\n"
                 "  quillon codebook survey.mvdb -o survey.pdf --force");
    verb->callback([options, &output] {
        codebook(QString::fromStdString(options->in), QString::fromStdString(options->out),
                 options->force ? Overwrite::Allowed : Overwrite::Never, output);
    });
}

void codebook(const QString &in, const QString &out, Overwrite overwrite, Output &output)
{
    const QString suffix = QFileInfo(out).suffix().toLower();
    if (suffix != "html"_L1 && suffix != "pdf"_L1)
        throw Failure(u"%1: a codebook ends in .html or .pdf"_s.arg(out));
    checkTarget(in, out, overwrite);
    const std::unique_ptr<DictionaryFile> file = openDictionary(in);
    {
        const Progress progress(u"Writing "_s + out);
        save(out, suffix == "pdf"_L1 ? pdf(file->root()) : Codebook::html(file->root()));
    }
    output.line(Text::printable(u"%1: written"_s.arg(out)));
}
} // namespace Cli
