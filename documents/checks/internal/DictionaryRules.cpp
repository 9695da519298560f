#include "documents/checks/internal/Rules.h"

using namespace Qt::Literals::StringLiterals;

// Rules that compare entities with one another.
namespace Checks
{
namespace
{
void entityNamesDiffer(const Dictionary &dictionary, Report &report)
{
    forEachRepeated(
        dictionary.entities, [](const EntityNode &node) { return folded(node.entity->getName()); },
        [&report](const EntityNode &node, const EntityNode &first) {
            report.add(node, DictionaryCheck::tr("The entity %1 has this name too.").arg(first.path()),
                       DictionaryCheck::tr("Rename one of them."));
        });
}

void entityAliasesDiffer(const Dictionary &dictionary, Report &report)
{
    forEachRepeated(
        dictionary.entities, [](const EntityNode &node) { return folded(node.entity->getAlias()); },
        [&report](const EntityNode &node, const EntityNode &first) {
            report.add(node,
                       DictionaryCheck::tr("The entity %1 has the alias \"%2\" too.")
                           .arg(first.path(), node.entity->getAlias()),
                       DictionaryCheck::tr("Change one of the aliases."));
        });
}

void entityAliasesAreNoNames(const Dictionary &dictionary, Report &report)
{
    for (const EntityNode &node : dictionary.entities) {
        const TDcEntity *named = dictionary.entityNames.value(folded(node.entity->getAlias()));
        if (named && named != node.entity)
            report.add(node,
                       DictionaryCheck::tr("The alias \"%1\" is the name of another entity.")
                           .arg(node.entity->getAlias()),
                       DictionaryCheck::tr("Change the alias."));
    }
}

/// Entity names may be no group names: the entity could not be renamed to what it is called.
void entityNamesAreNoGroups(const Dictionary &dictionary, Report &report)
{
    QSet<QString> groups;
    for (const EntityNode &node : dictionary.entities) {
        for (const TDcVariable *variable : std::as_const(*node.entity->getVariables())) {
            if (variable)
                groups.insert(folded(variable->getGroup()));
        }
    }
    for (const EntityNode &node : dictionary.entities) {
        const QString name = folded(node.entity->getName());
        if (!name.isEmpty() && groups.contains(name))
            report.add(
                node, DictionaryCheck::tr("The name of the entity is also the name of a group of variables."),
                DictionaryCheck::tr("Rename the entity or the group."));
    }
}

void oneSpellingOfTypes(const Dictionary &dictionary, Report &report)
{
    QString document;
    QString model;
    for (const EntityNode &node : dictionary.entities) {
        for (const TDcVariable *variable : std::as_const(*node.entity->getVariables())) {
            if (!variable)
                continue;
            const QString word = variable->getVarType();
            const TypeWord type(word);
            if (type.spelling() == TypeWord::Spelling::Document && document.isEmpty())
                document = word;
            if (type.spelling() == TypeWord::Spelling::Model && model.isEmpty())
                model = word;
        }
    }
    if (!document.isEmpty() && !model.isEmpty())
        report.add(dictionary,
                   DictionaryCheck::tr(
                       "Some types are spelt as documents spell them (\"%1\") and some as the program does "
                       "(\"%2\").")
                       .arg(document, model),
                   DictionaryCheck::tr("Use one spelling: the layer compares types letter by letter."));
}

void groupsDiffer(const Dictionary &dictionary, Report &report)
{
    QHash<QString, QString> spellings;
    QSet<QString> told;
    for (const EntityNode &node : dictionary.entities) {
        for (const TDcVariable *variable : std::as_const(*node.entity->getVariables())) {
            const QString group = variable ? variable->getGroup() : QString();
            if (group.isEmpty())
                continue;
            const QString first = *spellings.insert(folded(group), spellings.value(folded(group), group));
            if (first != group && !told.contains(group)) {
                told.insert(group);
                report.add(
                    dictionary,
                    DictionaryCheck::tr("The groups \"%1\" and \"%2\" differ in letter case or blanks only.")
                        .arg(first, group),
                    DictionaryCheck::tr("Give them the same name."));
            }
        }
    }
}

constexpr Rule<Dictionary> rules[] = {
    {"entity-name-duplicate"_L1, Severity::Error,
     QT_TRANSLATE_NOOP("DictionaryCheck", "Two entities have the same name"), entityNamesDiffer},
    {"entity-alias-duplicate"_L1, Severity::Error,
     QT_TRANSLATE_NOOP("DictionaryCheck", "Two entities have the same alias"), entityAliasesDiffer},
    {"entity-alias-is-name"_L1, Severity::Error,
     QT_TRANSLATE_NOOP("DictionaryCheck", "An entity's alias is the name of another entity"),
     entityAliasesAreNoNames},
    {"entity-name-is-group"_L1, Severity::Error,
     QT_TRANSLATE_NOOP("DictionaryCheck", "An entity is called as a group of variables"),
     entityNamesAreNoGroups},
    {"type-spelling-mixed"_L1, Severity::Note,
     QT_TRANSLATE_NOOP("DictionaryCheck", "Types are spelt in two ways"), oneSpellingOfTypes},
    {"group-near-duplicate"_L1, Severity::Warning,
     QT_TRANSLATE_NOOP("DictionaryCheck", "Two groups differ in letter case or blanks only"), groupsDiffer},
};
} // namespace

std::span<const Rule<Dictionary>> dictionaryRules()
{
    return rules;
}
} // namespace Checks
