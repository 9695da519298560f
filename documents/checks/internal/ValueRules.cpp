#include "documents/checks/internal/Values.h"

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

// Rules about the ranges of a variable and about its missing codes.
namespace Checks
{
namespace
{
QString rangeText(const Range &range)
{
    return DictionaryCheck::tr("%1 to %2").arg(number(range.getRangeMin()), number(range.getRangeMax()));
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

void missingIsOutside(const Variable &subject, Report &report)
{
    const int code = subject.variable.getMissing();
    if (!subject.type.isText() && Values::codesAreChosen(subject.variable) && contains(ranges(subject), code))
        report.add(subject, DictionaryCheck::tr("The missing code %1 is a valid value.").arg(code),
                   DictionaryCheck::tr("Choose a code outside the ranges."));
}

void notApplicableIsOutside(const Variable &subject, Report &report)
{
    const int code = subject.variable.getNotappl();
    if (!subject.type.isText() && Values::codesAreChosen(subject.variable) && contains(ranges(subject), code))
        report.add(subject, DictionaryCheck::tr("The not-applicable code %1 is a valid value.").arg(code),
                   DictionaryCheck::tr("Choose a code outside the ranges."));
}

void zeroIsNoValue(const Variable &subject, Report &report)
{
    if (subject.type.isNumber() && !Values::codesAreChosen(subject.variable) && contains(ranges(subject), 0))
        report.add(
            subject,
            DictionaryCheck::tr("The missing and the not-applicable code are 0, which is a valid value."),
            DictionaryCheck::tr("Choose codes outside the ranges."));
}

void codesDiffer(const Variable &subject, Report &report)
{
    if (Values::codesAreChosen(subject.variable)
        && subject.variable.getMissing() == subject.variable.getNotappl())
        report.add(subject,
                   DictionaryCheck::tr("Missing and not applicable have the same code, %1.")
                       .arg(subject.variable.getMissing()),
                   DictionaryCheck::tr("Give them different codes."));
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
                       DictionaryCheck::tr("The range %1 does not fit into the length of %2.")
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
};
} // namespace

std::span<const Rule<Variable>> valueRules()
{
    return rules;
}
} // namespace Checks
