#include "documents/checks/internal/Rules.h"
#include "model/MetadataVariables.h"
#include "model/ValueLabelElement.h"

#include <algorithm>
#include <cmath>
#include <optional>

using namespace Qt::Literals::StringLiterals;

// Rules about the values that a variable may take: its ranges, its categories and its missing codes.
namespace Checks
{
namespace
{
QString number(double value)
{
    return QString::number(value, 'g', 15);
}

/// The ranges of a variable, without nulls. A lookup's values come from its table: what is left of a range
/// has no meaning.
QList<Range *> ranges(const Variable &subject)
{
    const MetadataVariables *metadata = subject.variable.getMetadataVariables();
    QList<Range *> found;
    if (metadata && !metadata->getLookup())
        found = *metadata->getRange();
    found.removeAll(nullptr);
    return found;
}

QList<ValueLabelElement *> labels(const Variable &subject)
{
    QList<ValueLabelElement *> found = *subject.variable.getValueLabelElementList();
    found.removeAll(nullptr);
    return found;
}

QString rangeText(const Range &range)
{
    return DictionaryCheck::tr("%1 to %2").arg(number(range.getRangeMin()), number(range.getRangeMax()));
}

bool contains(const QList<Range *> &list, double value)
{
    return std::any_of(list.cbegin(), list.cend(), [value](const Range *range) {
        return range->getRangeMin() <= value && value <= range->getRangeMax();
    });
}

std::optional<double> numericCode(const ValueLabelElement &element)
{
    bool ok = false;
    const double value = element.getValue().trimmed().toDouble(&ok);
    return ok && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

void rangesAscend(const Variable &subject, Report &report)
{
    for (Range *range : ranges(subject)) {
        if (range->getRangeMin() > range->getRangeMax())
            report.add(
                subject, *range,
                DictionaryCheck::tr("The range %1 is reversed: nothing lies in it.").arg(rangeText(*range)),
                DictionaryCheck::tr("Exchange its bounds."));
    }
}

void rangesDoNotOverlap(const Variable &subject, Report &report)
{
    QList<Range *> sorted = ranges(subject);
    sorted.removeIf([](const Range *range) { return !(range->getRangeMin() <= range->getRangeMax()); });
    std::stable_sort(sorted.begin(), sorted.end(), [](const Range *left, const Range *right) {
        return left->getRangeMin() < right->getRangeMin();
    });
    const Range *highest = nullptr; // the one that reaches highest so far
    for (Range *range : sorted) {
        if (highest && range->getRangeMin() <= highest->getRangeMax())
            report.add(subject, *range,
                       DictionaryCheck::tr("The ranges %1 and %2 overlap.")
                           .arg(rangeText(*highest), rangeText(*range)),
                       DictionaryCheck::tr("Join them or correct a bound."));
        if (!highest || range->getRangeMax() > highest->getRangeMax())
            highest = range;
    }
}

void textHasNoRanges(const Variable &subject, Report &report)
{
    const QList<Range *> list = ranges(subject);
    if (subject.type.isText() && !list.isEmpty())
        report.add(subject, *list.first(), DictionaryCheck::tr("The variable holds text but has a range."),
                   DictionaryCheck::tr("Remove the range or change the type."));
}

void integersHaveWholeRanges(const Variable &subject, Report &report)
{
    if (!subject.type.isInteger())
        return;
    const auto whole = [](double bound) { return std::trunc(bound) == bound; };
    for (Range *range : ranges(subject)) {
        if (!whole(range->getRangeMin()) || !whole(range->getRangeMax()))
            report.add(
                subject, *range,
                DictionaryCheck::tr("The range %1 of a whole number has fractions.").arg(rangeText(*range)),
                DictionaryCheck::tr("Round the bounds or make the variable a real number."));
    }
}

/// Both codes are always there, so two zeros say that none has been chosen.
bool codesAreChosen(const TDcVariable &variable)
{
    return variable.getMissing() != 0 || variable.getNotappl() != 0;
}

void missingIsOutside(const Variable &subject, Report &report)
{
    const int code = subject.variable.getMissing();
    if (!subject.type.isText() && codesAreChosen(subject.variable) && contains(ranges(subject), code))
        report.add(subject, DictionaryCheck::tr("The missing code %1 is a valid value.").arg(code),
                   DictionaryCheck::tr("Choose a code outside the ranges."));
}

void notApplicableIsOutside(const Variable &subject, Report &report)
{
    const int code = subject.variable.getNotappl();
    if (!subject.type.isText() && codesAreChosen(subject.variable) && contains(ranges(subject), code))
        report.add(subject, DictionaryCheck::tr("The not-applicable code %1 is a valid value.").arg(code),
                   DictionaryCheck::tr("Choose a code outside the ranges."));
}

void zeroIsNoValue(const Variable &subject, Report &report)
{
    if (subject.type.isNumber() && !codesAreChosen(subject.variable) && contains(ranges(subject), 0))
        report.add(
            subject,
            DictionaryCheck::tr("The missing and the not-applicable code are 0, which is a valid value."),
            DictionaryCheck::tr("Choose codes outside the ranges."));
}

void codesDiffer(const Variable &subject, Report &report)
{
    if (codesAreChosen(subject.variable) && subject.variable.getMissing() == subject.variable.getNotappl())
        report.add(subject,
                   DictionaryCheck::tr("Missing and not applicable have the same code, %1.")
                       .arg(subject.variable.getMissing()),
                   DictionaryCheck::tr("Give them different codes."));
}

void labelsAreInside(const Variable &subject, Report &report)
{
    const QList<Range *> list = ranges(subject);
    if (list.isEmpty() || subject.type.isText())
        return;
    for (ValueLabelElement *element : labels(subject)) {
        const auto code = numericCode(*element);
        const bool special =
            code && (*code == subject.variable.getMissing() || *code == subject.variable.getNotappl());
        if (code && !special && !contains(list, *code))
            report.add(subject, *element,
                       DictionaryCheck::tr("The category %1 \"%2\" lies outside the ranges.")
                           .arg(number(*code), element->getLabel()),
                       DictionaryCheck::tr("Widen a range, or remove the category."));
    }
}

void categoriesHaveDifferentCodes(const Variable &subject, Report &report)
{
    forEachRepeated(
        labels(subject),
        [&subject](const ValueLabelElement *element) {
            const auto code = subject.type.isText() ? std::nullopt : numericCode(*element);
            return code ? number(*code) : element->getValue().trimmed();
        },
        [&](ValueLabelElement *element, const ValueLabelElement *first) {
            report.add(subject, *element,
                       DictionaryCheck::tr("The code %1 stands for \"%2\" and for \"%3\".")
                           .arg(element->getValue(), first->getLabel(), element->getLabel()),
                       DictionaryCheck::tr("Keep one of the two."));
        });
}

void numbersHaveNumericCodes(const Variable &subject, Report &report)
{
    if (!subject.type.isNumber())
        return;
    for (ValueLabelElement *element : labels(subject)) {
        if (element->getValue().trimmed().isEmpty())
            continue;
        const auto code = numericCode(*element);
        const bool fits = code && (!subject.type.isInteger() || std::trunc(*code) == *code);
        if (!fits)
            report.add(subject, *element,
                       (subject.type.isInteger() ? DictionaryCheck::tr("The code \"%1\" is no whole number.")
                                                 : DictionaryCheck::tr("The code \"%1\" is no number."))
                           .arg(element->getValue()),
                       DictionaryCheck::tr("Correct the code: documents would keep a number in its place."));
    }
}

void categoriesHaveCodes(const Variable &subject, Report &report)
{
    for (ValueLabelElement *element : labels(subject)) {
        if (element->getValue().trimmed().isEmpty())
            report.add(subject, *element,
                       DictionaryCheck::tr("The category \"%1\" has no code.").arg(element->getLabel()),
                       DictionaryCheck::tr("Give it a code or remove it."));
    }
}

void categoriesHaveLabels(const Variable &subject, Report &report)
{
    for (ValueLabelElement *element : labels(subject)) {
        if (!element->getValue().trimmed().isEmpty() && element->getLabel().trimmed().isEmpty())
            report.add(subject, *element,
                       DictionaryCheck::tr("The code %1 has no label.").arg(element->getValue()),
                       DictionaryCheck::tr("Say what it stands for."));
    }
}

void labelsDiffer(const Variable &subject, Report &report)
{
    forEachRepeated(
        labels(subject), [](const ValueLabelElement *element) { return folded(element->getLabel()); },
        [&](ValueLabelElement *element, const ValueLabelElement *first) {
            if (element->getValue().trimmed() != first->getValue().trimmed())
                report.add(subject, *element,
                           DictionaryCheck::tr("The codes %1 and %2 have the same label, \"%3\".")
                               .arg(first->getValue(), element->getValue(), element->getLabel()),
                           DictionaryCheck::tr("Say how they differ."));
        });
}

/// Positions that a value has in its record: 0 when not known.
int width(const Variable &subject)
{
    const int length = subject.variable.getFieldSize();
    return length <= 0 && subject.type.isText() ? subject.variable.getSize() : length;
}

void codesFit(const Variable &subject, Report &report)
{
    const int positions = width(subject);
    for (ValueLabelElement *element : labels(subject)) {
        if (positions > 0 && element->getValue().trimmed().size() > positions)
            report.add(subject, *element,
                       DictionaryCheck::tr("The code %1 has more than %2 characters.")
                           .arg(element->getValue())
                           .arg(positions),
                       DictionaryCheck::tr("Shorten the code or widen the variable."));
    }
}

void rangesFit(const Variable &subject, Report &report)
{
    const int positions = width(subject);
    if (positions <= 0 || !subject.type.isNumber())
        return;
    // The digits before the point count: decimals may be implied.
    const auto tooWide = [positions](double bound) {
        return QString::number(std::trunc(bound), 'f', 0).size() > positions;
    };
    for (Range *range : ranges(subject)) {
        if (tooWide(range->getRangeMin()) || tooWide(range->getRangeMax()))
            report.add(subject, *range,
                       DictionaryCheck::tr("The range %1 does not fit into %2 positions.")
                           .arg(rangeText(*range))
                           .arg(positions),
                       DictionaryCheck::tr("Correct the range or the length."));
    }
}

constexpr Rule<Variable> rules[] = {
    {"range-reversed"_L1, Severity::Error,
     QT_TRANSLATE_NOOP("DictionaryCheck", "A range's minimum is above its maximum"), rangesAscend},
    {"range-overlap"_L1, Severity::Warning, QT_TRANSLATE_NOOP("DictionaryCheck", "Two ranges overlap"),
     rangesDoNotOverlap},
    {"range-of-text"_L1, Severity::Warning, QT_TRANSLATE_NOOP("DictionaryCheck", "A text has a range"),
     textHasNoRanges},
    {"range-fraction"_L1, Severity::Warning,
     QT_TRANSLATE_NOOP("DictionaryCheck", "A whole number's range has fractions"), integersHaveWholeRanges},
    {"range-too-wide"_L1, Severity::Warning,
     QT_TRANSLATE_NOOP("DictionaryCheck", "A range does not fit into the field"), rangesFit},
    {"missing-in-range"_L1, Severity::Error,
     QT_TRANSLATE_NOOP("DictionaryCheck", "A missing code is a valid value"), missingIsOutside},
    {"not-applicable-in-range"_L1, Severity::Error,
     QT_TRANSLATE_NOOP("DictionaryCheck", "A not-applicable code is a valid value"), notApplicableIsOutside},
    {"missing-not-chosen"_L1, Severity::Note,
     QT_TRANSLATE_NOOP("DictionaryCheck", "No missing codes are chosen and 0 is a valid value"),
     zeroIsNoValue},
    {"missing-is-not-applicable"_L1, Severity::Warning,
     QT_TRANSLATE_NOOP("DictionaryCheck", "Missing and not applicable have the same code"), codesDiffer},
    {"label-outside-ranges"_L1, Severity::Warning,
     QT_TRANSLATE_NOOP("DictionaryCheck", "A category lies outside the ranges"), labelsAreInside},
    {"code-duplicate"_L1, Severity::Error,
     QT_TRANSLATE_NOOP("DictionaryCheck", "Two categories have the same code"), categoriesHaveDifferentCodes},
    {"code-not-numeric"_L1, Severity::Error,
     QT_TRANSLATE_NOOP("DictionaryCheck", "A number's category has a code that is no such number"),
     numbersHaveNumericCodes},
    {"code-missing"_L1, Severity::Error, QT_TRANSLATE_NOOP("DictionaryCheck", "A category has no code"),
     categoriesHaveCodes},
    {"code-too-wide"_L1, Severity::Warning,
     QT_TRANSLATE_NOOP("DictionaryCheck", "A code does not fit into the field"), codesFit},
    {"label-missing"_L1, Severity::Warning, QT_TRANSLATE_NOOP("DictionaryCheck", "A code has no label"),
     categoriesHaveLabels},
    {"label-duplicate"_L1, Severity::Note,
     QT_TRANSLATE_NOOP("DictionaryCheck", "Two codes have the same label"), labelsDiffer},
};
} // namespace

std::span<const Rule<Variable>> valueRules()
{
    return rules;
}
} // namespace Checks
