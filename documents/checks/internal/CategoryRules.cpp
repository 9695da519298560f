#include "documents/checks/internal/Values.h"
#include "model/ValueLabelElement.h"

#include <cmath>
#include <optional>

using namespace Qt::Literals::StringLiterals;

// Rules about the categories of a variable.
namespace Checks
{
namespace
{
QList<ValueLabelElement *> labels(const Variable &subject)
{
    QList<ValueLabelElement *> found = *subject.variable.getValueLabelElementList();
    found.removeAll(nullptr);
    return found;
}

std::optional<double> numericCode(const ValueLabelElement &element)
{
    bool ok = false;
    const double value = element.getValue().trimmed().toDouble(&ok);
    return ok && std::isfinite(value) ? std::optional(value) : std::nullopt;
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

void codesFit(const Variable &subject, Report &report)
{
    const int positions = width(subject);
    for (ValueLabelElement *element : labels(subject)) {
        if (positions > 0 && element->getValue().trimmed().size() > positions)
            report.add(subject, *element,
                       DictionaryCheck::tr("The code %1 does not fit into the length of %2.")
                           .arg(element->getValue(), QString::number(positions)),
                       DictionaryCheck::tr("Shorten the code or widen the variable."));
    }
}

constexpr Rule<Variable> rules[] = {
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

std::span<const Rule<Variable>> categoryRules()
{
    return rules;
}
} // namespace Checks
