#pragma once

#include "model/MetadataVariables.h"
#include "model/TDcVariable.h"
#include "model/ValueLabelElement.h"

#include <memory>
#include <utility>

/// A variable of type \a type with these ranges.
[[nodiscard]] inline std::unique_ptr<TDcVariable> makeRanged(
    const QString &type, std::initializer_list<std::pair<double, double>> bounds)
{
    auto variable = std::make_unique<TDcVariable>();
    variable->setVarType(type);
    variable->setMetadataVariables(new MetadataVariables);
    for (const auto &[minimum, maximum] : bounds) {
        auto *range = new Range;
        range->setRangeMin(minimum);
        range->setRangeMax(maximum);
        variable->getMetadataVariables()->addItemRange(range);
    }
    return variable;
}

/// A variable with these codes and labels as its categories.
[[nodiscard]] inline std::unique_ptr<TDcVariable> makeLabelled(
    std::initializer_list<std::pair<QString, QString>> categories)
{
    auto variable = std::make_unique<TDcVariable>();
    for (const auto &[code, label] : categories) {
        auto *element = new ValueLabelElement;
        element->setValue(code);
        element->setLabel(label);
        variable->addValueLabelElement(element);
    }
    return variable;
}
