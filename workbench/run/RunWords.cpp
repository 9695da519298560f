#include "workbench/run/RunWords.h"

#include "common/Constants.h"
#include "model/Config.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "workbench/run/RunDraft.h"

#include <QDir>
#include <QLocale>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{
QString listed(const QStringList &names)
{
    return QLocale().createSeparatedList(names);
}

QString bullets(const QStringList &richLines)
{
    return richLines.isEmpty() ? QString() : u"<ul><li>"_s + richLines.join(u"</li><li>"_s) + u"</li></ul>"_s;
}

QString paragraph(const QString &richText)
{
    return u"<p>"_s + richText + u"</p>"_s;
}

QStringList escaped(QStringList lines)
{
    std::transform(lines.cbegin(), lines.cend(), lines.begin(),
                   [](const QString &line) { return line.toHtmlEscaped(); });
    return lines;
}
} // namespace

QString RunWords::nameProblem(const RunDraft &draft)
{
    return draft.dataBase().getName().trimmed().isEmpty() ? tr("Give the run a name.") : QString();
}

QString RunWords::entitiesProblem(const RunDraft &draft)
{
    return draft.chosen().isEmpty() ? tr("Tick at least one entity that takes part.") : QString();
}

QString RunWords::variablesProblem(const RunDraft &draft)
{
    const QList<TDcEntity *> entities = draft.chosen();
    const auto empty = std::find_if(entities.cbegin(), entities.cend(), [&draft](const TDcEntity *entity) {
        return !entity->getVariables()->isEmpty() && !draft.settings(entity).getAllVariables()
            && RunDraft::checkedVariables(entity).isEmpty();
    });
    return empty == entities.cend()
        ? QString()
        : tr("Tick at least one variable of %1, or go back and leave it out.").arg((*empty)->getName());
}

QStringList RunWords::unknown(const RunDraft &draft)
{
    QStringList lines;
    QStringList entities = draft.unknownEntities();
    std::replace(entities.begin(), entities.end(), QString(), tr("one without a name"));
    if (!entities.isEmpty())
        lines.append(tr("Entities that the dictionary does not have: %1").arg(listed(entities)));
    const QList<TDcEntity *> chosen = draft.chosen();
    for (const TDcEntity *entity : chosen) {
        if (const QStringList variables = draft.unknownVariables(entity); !variables.isEmpty())
            lines.append(tr("Variables that %1 does not have: %2").arg(entity->getName(), listed(variables)));
    }
    return lines;
}

namespace
{
/// One line of the summary for \a entity: sentences, each for itself.
QString entityLine(const RunDraft &draft, const TDcEntity *entity)
{
    const ConfigEntities &settings = draft.settings(entity);
    const QString name = u"<b>"_s + entity->getName().toHtmlEscaped() + u"</b>"_s;
    const QLocale locale;
    QStringList sentences{settings.getAllVariables()
                              ? RunWords::tr("%1 with all variables.").arg(name)
                              : RunWords::tr("%1 with %2 of %3 variables.")
                                    .arg(name, locale.toString(RunDraft::checkedVariables(entity).size()),
                                         locale.toString(entity->getVariables()->size()))};
    if (!settings.getRecType().isEmpty())
        sentences.append(RunWords::tr("The record type is %1.").arg(settings.getRecType().toHtmlEscaped()));
    if (!settings.getCheckSequence())
        sentences.append(RunWords::tr("The sequence of its records is not checked."));
    if (settings.getCreateSDC())
        sentences.append(RunWords::tr("SDC is created."));
    if (settings.getCheckDelete())
        sentences.append(RunWords::tr("It is marked for deletion."));
    return sentences.join(Constants::blank);
}

QStringList facts(const ConfigDb &database)
{
    const std::pair<QString, QString> all[] = {
        {RunWords::tr("Label: %1"), database.getLabel()},
        {RunWords::tr("Author: %1"), database.getAuthor()},
        {RunWords::tr("Project: %1"), database.getProject()},
        {RunWords::tr("Folder: %1"), QDir::toNativeSeparators(database.getFolder())},
        {RunWords::tr("Source file: %1"), QDir::toNativeSeparators(database.getSourceFile())},
        {RunWords::tr("Filter: %1"), database.getFilter()},
        {RunWords::tr("Selection filter: %1"), database.getSelectFilter()},
        {RunWords::tr("File filter: %1"), database.getFileFilter()},
    };
    QStringList lines;
    for (const auto &[text, value] : all) {
        if (!value.isEmpty())
            lines.append(text.arg(value));
    }
    return lines;
}
} // namespace

QString RunWords::summary(const RunDraft &draft)
{
    const ConfigDb &database = draft.dataBase();
    QStringList lines = facts(database);
    if (draft.options().getCreateNoRanges())
        lines.append(tr("No ranges are created."));
    if (draft.options().getCreateNotAppMissingInRange())
        lines.append(tr("The codes for not applicable and missing are in the ranges."));
    if (!database.getPassword().isEmpty())
        lines.append(tr("The password stands in the file as it is. Only you will be able to read the file."));

    QStringList entities;
    const QList<TDcEntity *> chosen = draft.chosen();
    std::transform(chosen.cbegin(), chosen.cend(), std::back_inserter(entities),
                   [&draft](const TDcEntity *entity) { return entityLine(draft, entity); });

    QString text =
        paragraph(tr("The run is called %1.").arg(u"<b>"_s + database.getName().toHtmlEscaped() + u"</b>"_s))
        + bullets(escaped(lines)) + paragraph(tr("These entities take part:")) + bullets(entities);
    if (const QStringList kept = unknown(draft); !kept.isEmpty())
        text += paragraph(tr("Kept as it is in the file:")) + bullets(escaped(kept));
    return text;
}
