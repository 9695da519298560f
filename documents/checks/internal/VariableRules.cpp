#include "common/Constants.h"
#include "common/Validate.h"
#include "documents/checks/internal/Rules.h"
#include "model/MetadataVariables.h"

using namespace Qt::Literals::StringLiterals;

// Rules about one variable: its name, its type and its layout.
namespace Checks
{
namespace
{
constexpr int LargestTag = 9999; ///< The variable table cuts larger ones.

void nameIsThere(const Variable &subject, Report &report)
{
    if (!Validate().validateEmpty(subject.variable.getName()))
        report.add(subject, DictionaryCheck::tr("The variable has no name."),
                   DictionaryCheck::tr("Give it a name."));
}

void nameIsValid(const Variable &subject, Report &report)
{
    const QString name = subject.variable.getName();
    if (!Validate().validateStringC(name))
        report.add(subject, DictionaryCheck::tr("The name \"%1\" is not valid.").arg(name),
                   DictionaryCheck::tr("Use letters, digits and underscores only."));
}

void nameStartsWell(const Variable &subject, Report &report)
{
    const QString name = subject.variable.getName().trimmed();
    if (!name.isEmpty() && Validate().validateStringC(name) && !Validate().validateName(name))
        report.add(subject, DictionaryCheck::tr("The name begins with a digit."),
                   DictionaryCheck::tr("Begin it with a letter: statistics packages refuse it otherwise."));
}

void nameHasNoBlanks(const Variable &subject, Report &report)
{
    const QString name = subject.variable.getName();
    if (!name.trimmed().isEmpty() && name != name.trimmed())
        report.add(subject, DictionaryCheck::tr("The name begins or ends with blanks."),
                   DictionaryCheck::tr("Remove them."));
}

void labelIsThere(const Variable &subject, Report &report)
{
    if (subject.variable.getLabel().trimmed().isEmpty())
        report.add(subject, DictionaryCheck::tr("The variable has no label."),
                   DictionaryCheck::tr("Say what it measures."));
}

void typeIsThere(const Variable &subject, Report &report)
{
    if (subject.type.kind() == TypeWord::Kind::None)
        report.add(subject, DictionaryCheck::tr("The variable has no type; documents call it \"integer\"."),
                   DictionaryCheck::tr("Choose its type."));
}

void typeIsKnown(const Variable &subject, Report &report)
{
    if (subject.type.kind() != TypeWord::Kind::Unknown)
        return;
    const QString word = subject.variable.getVarType();
    const QString likely = TypeWord::likely(word);
    report.add(
        subject, DictionaryCheck::tr("The type \"%1\" is not known.").arg(word),
        likely.isEmpty()
            ? DictionaryCheck::tr("Use \"integer\", \"real\" or \"string\".")
            : DictionaryCheck::tr("Write it \"%1\": types are compared letter by letter.").arg(likely));
}

void textHasSize(const Variable &subject, Report &report)
{
    if (subject.type.isText() && subject.variable.getSize() <= 0)
        report.add(subject, DictionaryCheck::tr("The text has no size; documents give it the size 1."),
                   DictionaryCheck::tr("Set how many characters it may have."));
}

void decimalsBelongToReals(const Variable &subject, Report &report)
{
    if ((subject.type.isText() || subject.type.isInteger()) && subject.variable.getDecimals() > 0)
        report.add(subject,
                   DictionaryCheck::tr("Decimals are set to %1, but the type has none.")
                       .arg(subject.variable.getDecimals()),
                   DictionaryCheck::tr("Make it a real number or set the decimals to 0."));
}

void decimalsFit(const Variable &subject, Report &report)
{
    const int decimals = subject.variable.getDecimals();
    const int width = subject.variable.getFieldSize();
    if (subject.type.isInteger() || subject.type.isText())
        return;
    if (decimals < 0 || (width > 0 && decimals > width))
        report.add(subject,
                   DictionaryCheck::tr("The decimals (%1) do not fit into the length (%2).")
                       .arg(decimals)
                       .arg(width),
                   DictionaryCheck::tr("Correct the decimals or the length."));
}

void tagIsInBounds(const Variable &subject, Report &report)
{
    const int tag = subject.variable.getTag();
    if (tag < 0 || tag > LargestTag)
        report.add(subject,
                   DictionaryCheck::tr("The tag %1 is not between 0 and %2.").arg(tag).arg(LargestTag),
                   DictionaryCheck::tr("Choose another tag: it would be changed by the next edit."));
}

bool isLookup(const Variable &subject)
{
    const MetadataVariables *metadata = subject.variable.getMetadataVariables();
    return metadata && metadata->getLookup();
}

void lookupIsSelectable(const Variable &subject, Report &report)
{
    if (isLookup(subject) && !subject.owner.entity().getSelectable())
        report.add(subject,
                   DictionaryCheck::tr("The variable is a lookup, but its entity is not selectable."),
                   DictionaryCheck::tr(
                       "Make the entity selectable: lookups are taken by selectable entities only."));
}

void layoutIsWhole(const Variable &subject, Report &report)
{
    const MetadataVariables *metadata = subject.variable.getMetadataVariables();
    if (metadata && metadata->getStart() > 0 && subject.variable.getFieldSize() <= 0)
        report.add(subject, DictionaryCheck::tr("The record has a start position for it but no length."),
                   DictionaryCheck::tr("Set the length."));
}

constexpr Rule<Variable> rules[] = {
    {"variable-name-missing"_L1, Severity::Error,
     QT_TRANSLATE_NOOP("DictionaryCheck", "A variable has no name"), nameIsThere},
    {"variable-name-invalid"_L1, Severity::Error,
     QT_TRANSLATE_NOOP("DictionaryCheck", "A variable's name holds other characters than names may"),
     nameIsValid},
    {"variable-name-digit"_L1, Severity::Warning,
     QT_TRANSLATE_NOOP("DictionaryCheck", "A variable's name begins with a digit"), nameStartsWell},
    {"variable-name-blanks"_L1, Severity::Warning,
     QT_TRANSLATE_NOOP("DictionaryCheck", "A variable's name has blanks around it"), nameHasNoBlanks},
    {"variable-label-missing"_L1, Severity::Note,
     QT_TRANSLATE_NOOP("DictionaryCheck", "A variable has no label"), labelIsThere},
    {"type-missing"_L1, Severity::Warning, QT_TRANSLATE_NOOP("DictionaryCheck", "A variable has no type"),
     typeIsThere},
    {"type-unknown"_L1, Severity::Error, QT_TRANSLATE_NOOP("DictionaryCheck", "A type is not known"),
     typeIsKnown},
    {"size-missing"_L1, Severity::Warning, QT_TRANSLATE_NOOP("DictionaryCheck", "A text has no size"),
     textHasSize},
    {"decimals-without-real"_L1, Severity::Warning,
     QT_TRANSLATE_NOOP("DictionaryCheck", "A whole number or text has decimals"), decimalsBelongToReals},
    {"decimals-do-not-fit"_L1, Severity::Error,
     QT_TRANSLATE_NOOP("DictionaryCheck", "The decimals do not fit into the field"), decimalsFit},
    {"tag-out-of-bounds"_L1, Severity::Warning,
     QT_TRANSLATE_NOOP("DictionaryCheck", "A tag is out of bounds"), tagIsInBounds},
    {"lookup-not-selectable"_L1, Severity::Warning,
     QT_TRANSLATE_NOOP("DictionaryCheck", "A lookup stands in an entity that is not selectable"),
     lookupIsSelectable},
    {"layout-without-length"_L1, Severity::Warning,
     QT_TRANSLATE_NOOP("DictionaryCheck", "A field has a start but no length"), layoutIsWhole},
};
} // namespace

std::span<const Rule<Variable>> variableRules()
{
    return rules;
}
} // namespace Checks
