#include "documents/checks/internal/Rules.h"
#include "documents/internal/Values.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

// Rules that compare the variables of one entity with one another.
namespace Checks
{
namespace
{
void namesDiffer(const Entity &entity, Report &report)
{
    forEachRepeated(
        entity.variables, [](const TDcVariable *variable) { return folded(variable->getName()); },
        [&](TDcVariable *variable, const TDcVariable *first) {
            report.add(entity, *variable,
                       DictionaryCheck::tr("Another variable is called \"%1\" too.").arg(first->getName()),
                       DictionaryCheck::tr("Rename one of them."));
        });
}

/// What a hasty reader sees of a name.
QString looks(const QString &name)
{
    QString shape = folded(name);
    shape.remove(u'_');
    return shape.replace(u'O', u'0').replace(u'I', u'1').replace(u'L', u'1');
}

void namesLookDifferent(const Entity &entity, Report &report)
{
    forEachRepeated(
        entity.variables, [](const TDcVariable *variable) { return looks(variable->getName()); },
        [&](TDcVariable *variable, const TDcVariable *first) {
            if (folded(variable->getName()) != folded(first->getName()))
                report.add(
                    entity, *variable,
                    DictionaryCheck::tr("The name is easily mistaken for \"%1\".").arg(first->getName()),
                    DictionaryCheck::tr("Choose names that differ more."));
        });
}

void aliasesDiffer(const Entity &entity, Report &report)
{
    forEachRepeated(
        entity.variables, [](const TDcVariable *variable) { return folded(variable->getAlias()); },
        [&](TDcVariable *variable, const TDcVariable *first) {
            report.add(entity, *variable,
                       DictionaryCheck::tr("The variable \"%1\" has the alias \"%2\" too.")
                           .arg(first->getName(), first->getAlias()),
                       DictionaryCheck::tr("Change one of the aliases."));
        });
}

void aliasesAreNoNames(const Entity &entity, Report &report)
{
    for (TDcVariable *variable : entity.variables) {
        const TDcVariable *named = entity.names.value(folded(variable->getAlias()));
        if (named && named != variable)
            report.add(entity, *variable,
                       DictionaryCheck::tr("The alias \"%1\" is the name of another variable.")
                           .arg(variable->getAlias()),
                       DictionaryCheck::tr("Change the alias."));
    }
}

void namesAreNoEntities(const Entity &entity, Report &report)
{
    for (TDcVariable *variable : entity.variables) {
        if (entity.dictionary.entityNames.contains(folded(variable->getName())))
            report.add(entity, *variable, DictionaryCheck::tr("The variable is called as an entity is."),
                       DictionaryCheck::tr("Rename the variable."));
    }
}

/// The variable table refuses such a group when it is typed.
void groupsAreNoNames(const Entity &entity, Report &report)
{
    QSet<QString> told;
    for (TDcVariable *variable : entity.variables) {
        const QString group = folded(variable->getGroup());
        if (group.isEmpty() || told.contains(group)
            || !(entity.names.contains(group) || entity.aliases.contains(group)))
            continue;
        told.insert(group);
        report.add(entity, *variable,
                   DictionaryCheck::tr("The group \"%1\" is also the name or the alias of a variable.")
                       .arg(variable->getGroup()),
                   DictionaryCheck::tr("Change the group."));
    }
}

void tagsDiffer(const Entity &entity, Report &report)
{
    forEachRepeated(
        entity.variables,
        [](const TDcVariable *variable) {
            return variable->getTag() == 0 ? QString() : QString::number(variable->getTag());
        },
        [&](TDcVariable *variable, const TDcVariable *first) {
            report.add(entity, *variable,
                       DictionaryCheck::tr("The variable \"%1\" has the tag %2 too.")
                           .arg(first->getName(), QString::number(first->getTag())),
                       DictionaryCheck::tr("Give each variable a tag of its own."));
        });
}

/// Where the values of a variable lie in their record, counted from 1. Where no start is known there is no
/// place: documents leave the first position out.
struct Extent {
    TDcVariable *variable;
    QString record;
    int start;
    qint64 end;
};

QList<Extent> extents(const Entity &entity)
{
    QList<Extent> places;
    for (TDcVariable *variable : entity.variables) {
        const MetadataVariables *metadata = variable->getMetadataVariables();
        const int start = Values::start(*variable);
        const bool known = start > 1 || (metadata && metadata->getStart() > 0);
        if (known && variable->getFieldSize() > 0)
            places.append({variable, metadata ? metadata->getRecord() : QString(), start,
                           qint64(start) + variable->getFieldSize() - 1});
    }
    std::stable_sort(places.begin(), places.end(), [](const Extent &left, const Extent &right) {
        return std::pair(left.record, left.start) < std::pair(right.record, right.start);
    });
    return places;
}

void layoutsDoNotOverlap(const Entity &entity, Report &report)
{
    const QList<Extent> places = extents(entity);
    const Extent *widest = nullptr; // the one that reaches furthest so far
    for (const Extent &place : places) {
        const bool sameRecord = widest && widest->record == place.record;
        if (sameRecord && place.start <= widest->end)
            report.add(entity, *place.variable,
                       DictionaryCheck::tr("The positions %1 to %2 overlap those of \"%3\", which end at %4.")
                           .arg(QString::number(place.start), QString::number(place.end),
                                widest->variable->getName(), QString::number(widest->end)),
                       DictionaryCheck::tr("Correct the start or the length of one of them."));
        if (!sameRecord || place.end > widest->end)
            widest = &place;
    }
}

constexpr Rule<Entity> rules[] = {
    {"variable-name-duplicate"_L1, Severity::Error,
     QT_TRANSLATE_NOOP("DictionaryCheck", "Two variables of an entity have the same name"), namesDiffer},
    {"variable-name-near-duplicate"_L1, Severity::Warning,
     QT_TRANSLATE_NOOP("DictionaryCheck", "Two variables of an entity have names that look alike"),
     namesLookDifferent},
    {"variable-alias-duplicate"_L1, Severity::Error,
     QT_TRANSLATE_NOOP("DictionaryCheck", "Two variables of an entity have the same alias"), aliasesDiffer},
    {"variable-alias-is-name"_L1, Severity::Error,
     QT_TRANSLATE_NOOP("DictionaryCheck", "A variable's alias is the name of another variable"),
     aliasesAreNoNames},
    {"variable-name-is-entity"_L1, Severity::Error,
     QT_TRANSLATE_NOOP("DictionaryCheck", "A variable is called as an entity"), namesAreNoEntities},
    {"group-is-variable"_L1, Severity::Error,
     QT_TRANSLATE_NOOP("DictionaryCheck", "A group is called as a variable"), groupsAreNoNames},
    {"tag-duplicate"_L1, Severity::Warning,
     QT_TRANSLATE_NOOP("DictionaryCheck", "Two variables of an entity have the same tag"), tagsDiffer},
    {"layout-overlap"_L1, Severity::Error,
     QT_TRANSLATE_NOOP("DictionaryCheck", "Two variables lie on the same positions of a record"),
     layoutsDoNotOverlap},
};
} // namespace

std::span<const Rule<Entity>> entityNameRules()
{
    return rules;
}
} // namespace Checks
