#include "common/Validate.h"
#include "documents/checks/internal/Rules.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

// Rules about one entity.
namespace Checks
{
namespace
{
constexpr qsizetype LongestName = 50; ///< As much as the layer takes when an entity is renamed.

void nameIsThere(const Entity &entity, Report &report)
{
    if (!Validate().validateEmpty(entity.entity().getName()))
        report.add(entity, DictionaryCheck::tr("The entity has no name."),
                   DictionaryCheck::tr("Give it a name."));
}

void nameIsValid(const Entity &entity, Report &report)
{
    Validate validate;
    const QString name = entity.entity().getName();
    if (!name.trimmed().isEmpty() && !(validate.validateName(name) && validate.validateStringC(name)))
        report.add(
            entity, DictionaryCheck::tr("The name \"%1\" is not valid.").arg(name),
            DictionaryCheck::tr("Use letters, digits and underscores only, and no digit at the start."));
}

void nameIsShort(const Entity &entity, Report &report)
{
    const qsizetype length = entity.entity().getName().trimmed().size();
    if (length > LongestName)
        report.add(entity, DictionaryCheck::tr("The name has %1 characters.").arg(length),
                   DictionaryCheck::tr("Shorten it to %1.").arg(LongestName));
}

void nameHasNoBlanks(const Entity &entity, Report &report)
{
    const QString name = entity.entity().getName();
    if (!name.trimmed().isEmpty() && name != name.trimmed())
        report.add(entity, DictionaryCheck::tr("The name begins or ends with blanks."),
                   DictionaryCheck::tr("Remove them."));
}

void labelIsThere(const Entity &entity, Report &report)
{
    if (entity.entity().getLabel().trimmed().isEmpty())
        report.add(entity, DictionaryCheck::tr("The entity has no label."),
                   DictionaryCheck::tr("Say what one record of it stands for."));
}

void holdsSomething(const Entity &entity, Report &report)
{
    if (entity.variables.isEmpty() && entity.entity().getChildren()->isEmpty())
        report.add(entity, DictionaryCheck::tr("The entity has neither variables nor entities below it."),
                   DictionaryCheck::tr("Add its variables or remove it."));
}

void levelIsDepth(const Entity &entity, Report &report)
{
    const int expected = entity.node.parent ? entity.node.parent->entity->getLevel() + 1 : 1;
    const int level = entity.entity().getLevel();
    if (level != expected)
        report.add(entity, DictionaryCheck::tr("The level is %1 and should be %2.").arg(level).arg(expected),
                   DictionaryCheck::tr("Set the level to the depth in the tree: trees are shown by it."));
}

/// The variable that plays a role; its name is compared exactly but for blanks around it.
TDcVariable *roleVariable(const Entity &entity, const QString &name)
{
    const auto found = std::find_if(
        entity.variables.cbegin(), entity.variables.cend(),
        [wanted = name.trimmed()](const TDcVariable *item) { return item->getName().trimmed() == wanted; });
    return found == entity.variables.cend() ? nullptr : *found;
}

void requireRole(const Entity &entity, const QString &name, const QString &message, Report &report)
{
    if (name.trimmed().isEmpty() || roleVariable(entity, name))
        return;
    const TDcVariable *similar = entity.names.value(folded(name));
    report.add(entity, message.arg(name),
               similar ? DictionaryCheck::tr("Perhaps \"%1\" is meant.").arg(similar->getName())
                       : DictionaryCheck::tr("Name a variable of this entity, or none."));
}

void refCodeExists(const Entity &entity, Report &report)
{
    requireRole(entity, entity.entity().getRefCode(),
                DictionaryCheck::tr("The reference code variable \"%1\" does not exist in this entity."),
                report);
}

void refLabelExists(const Entity &entity, Report &report)
{
    requireRole(entity, entity.entity().getRefLabel(),
                DictionaryCheck::tr("The reference label variable \"%1\" does not exist in this entity."),
                report);
}

void weightExists(const Entity &entity, Report &report)
{
    requireRole(entity, entity.entity().getWeightVariable(),
                DictionaryCheck::tr("The weight variable \"%1\" does not exist in this entity."), report);
}

void weightIsNumber(const Entity &entity, Report &report)
{
    const QString name = entity.entity().getWeightVariable();
    TDcVariable *weight = name.trimmed().isEmpty() ? nullptr : roleVariable(entity, name);
    if (weight && TypeWord(weight->getVarType()).isText())
        report.add(entity, *weight, DictionaryCheck::tr("The weight variable holds text."),
                   DictionaryCheck::tr("Make it a number or choose another weight variable."));
}

void selectableHasCode(const Entity &entity, Report &report)
{
    if (entity.entity().getSelectable() && entity.entity().getRefCode().trimmed().isEmpty())
        report.add(
            entity, DictionaryCheck::tr("The entity is selectable but has no reference code variable."),
            DictionaryCheck::tr("Choose a reference code variable or make the entity not selectable."));
}

void selectableBelowSelectable(const Entity &entity, Report &report)
{
    if (entity.entity().getSelectable() && entity.node.parent && !entity.node.parent->entity->getSelectable())
        report.add(entity, DictionaryCheck::tr("The entity is selectable but the one above it is not."),
                   DictionaryCheck::tr("Make the entity above selectable too, or this one not."));
}

constexpr Rule<Entity> rules[] = {
    {"entity-name-missing"_L1, Severity::Error, QT_TRANSLATE_NOOP("DictionaryCheck", "An entity has no name"),
     nameIsThere},
    {"entity-name-invalid"_L1, Severity::Error,
     QT_TRANSLATE_NOOP("DictionaryCheck", "An entity's name holds other characters than names may"),
     nameIsValid},
    {"entity-name-long"_L1, Severity::Error,
     QT_TRANSLATE_NOOP("DictionaryCheck", "An entity's name is too long"), nameIsShort},
    {"entity-name-blanks"_L1, Severity::Warning,
     QT_TRANSLATE_NOOP("DictionaryCheck", "An entity's name has blanks around it"), nameHasNoBlanks},
    {"entity-label-missing"_L1, Severity::Note,
     QT_TRANSLATE_NOOP("DictionaryCheck", "An entity has no label"), labelIsThere},
    {"entity-empty"_L1, Severity::Note, QT_TRANSLATE_NOOP("DictionaryCheck", "An entity holds nothing"),
     holdsSomething},
    {"entity-level"_L1, Severity::Error,
     QT_TRANSLATE_NOOP("DictionaryCheck", "An entity's level is not its depth"), levelIsDepth},
    {"reference-code-unknown"_L1, Severity::Error,
     QT_TRANSLATE_NOOP("DictionaryCheck", "A reference code variable does not exist"), refCodeExists},
    {"reference-label-unknown"_L1, Severity::Error,
     QT_TRANSLATE_NOOP("DictionaryCheck", "A reference label variable does not exist"), refLabelExists},
    {"weight-unknown"_L1, Severity::Error,
     QT_TRANSLATE_NOOP("DictionaryCheck", "A weight variable does not exist"), weightExists},
    {"weight-text"_L1, Severity::Error, QT_TRANSLATE_NOOP("DictionaryCheck", "A weight variable holds text"),
     weightIsNumber},
    {"selectable-without-code"_L1, Severity::Error,
     QT_TRANSLATE_NOOP("DictionaryCheck", "A selectable entity has no reference code"), selectableHasCode},
    {"selectable-below-unselectable"_L1, Severity::Warning,
     QT_TRANSLATE_NOOP("DictionaryCheck", "A selectable entity lies below one that is not"),
     selectableBelowSelectable},
};
} // namespace

std::span<const Rule<Entity>> entityRules()
{
    return rules;
}
} // namespace Checks
