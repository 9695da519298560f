#include "cli/Show.h"

#include "cli/DocumentReader.h"
#include "cli/Failure.h"
#include "cli/Input.h"
#include "cli/NearMatches.h"
#include "cli/Output.h"
#include "cli/ShowJson.h"
#include "cli/ShowText.h"
#include "model/PreOrder.h"
#include "model/TDcEntity.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace
{
QList<Cli::ShownEntity> inTreeOrder(const Cli::Entities &entities)
{
    QList<Cli::ShownEntity> all;
    QHash<const TDcEntity *, const TDcEntity *> parents;
    for (const auto &root : entities) {
        preOrder(root.get(), [&](TDcEntity *entity) {
            all.append({entity, parents.value(entity)});
            for (const TDcEntity *child : std::as_const(*entity->getChildren()))
                parents.insert(child, entity);
        });
    }
    return all;
}

/// What to tell somebody who asked for an entity that is not there.
QString unknownEntity(const QString &path, const QString &wanted, const QList<Cli::ShownEntity> &all)
{
    QStringList names;
    for (const auto &shown : all)
        names.append(shown.entity->getName());
    return u"%1: there is no entity \"%2\""_s.arg(Cli::Input::nameOf(path), wanted)
        + Cli::didYouMean(wanted, names);
}
} // namespace

namespace Cli
{
void addShow(CLI::App &app, Output &output)
{
    struct Options {
        std::string file;
        std::string entity;
        bool json = false;
    };
    const auto options = std::make_shared<Options>();
    CLI::App *verb = app.add_subcommand("show", "Show a dictionary: its entities and their variables");
    verb->add_option("FILE", options->file, Input::optionText)->required();
    verb->add_option("--entity", options->entity, "Show only the entity with this name")->type_name("NAME");
    verb->add_flag("--json", options->json, "Print JSON for other programs");
    verb->footer("Examples:\n"
                 "  quillon show survey.mvdb\n"
                 "  quillon show survey.mvdb --entity PERSON\n"
                 "  quillon show survey.mvdb --json | jq '.entities[].name'");
    verb->callback([options, &output] {
        show(QString::fromStdString(options->file), QString::fromStdString(options->entity),
             options->json ? ShowForm::Json : ShowForm::Text, output);
    });
}

void show(const QString &path, const QString &entity, ShowForm form, Output &output)
{
    const Entities entities = openEntities(path);
    QList<ShownEntity> shown = inTreeOrder(entities);
    if (!entity.isEmpty()) {
        const QList<ShownEntity> all = shown;
        shown.removeIf(
            [&entity](const ShownEntity &candidate) { return candidate.entity->getName() != entity; });
        if (shown.isEmpty())
            throw Failure(unknownEntity(path, entity, all));
    }
    if (form == ShowForm::Json)
        output.raw(shownAsJson(path, shown));
    else
        showAsText(Input::nameOf(path), shown, output);
}
} // namespace Cli
