#pragma once

#include "model/MetadataVariables.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "model/ValueLabelElement.h"

#include <QLatin1StringView>
#include <QVariant>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <type_traits>

/// What makes an object of a dictionary what it is: one table of properties for each class, which copy,
/// equality and difference share. Lists and parts are not in it; they are told by their objects.
namespace Properties
{
using namespace Qt::Literals::StringLiterals;

template <typename Object>
struct Property {
    QLatin1StringView name;
    QVariant (*get)(const Object &);
    void (*set)(Object &, const QVariant &);
    bool (*same)(const Object &, const Object &);
    void (*copy)(Object &to, const Object &from);
};

template <typename Class, typename Value>
Class classOf(Value (Class::*)() const);

/// Not a number equals itself here, or an object would differ from its copy.
template <typename Value>
bool sameValue(const Value &left, const Value &right)
{
    if constexpr (std::is_floating_point_v<Value>)
        return left == right || (std::isnan(left) && std::isnan(right));
    else
        return left == right;
}

template <auto getter, auto setter, typename Object = decltype(classOf(getter))>
consteval Property<Object> property(QLatin1StringView name)
{
    using Value = std::remove_cvref_t<decltype((std::declval<const Object &>().*getter)())>;
    return {.name = name,
            .get = [](const Object &object) { return QVariant::fromValue<Value>((object.*getter)()); },
            .set = [](Object &object, const QVariant &value) { (object.*setter)(value.value<Value>()); },
            .same = [](const Object &left,
                       const Object &right) { return sameValue<Value>((left.*getter)(), (right.*getter)()); },
            .copy = [](Object &to, const Object &from) { (to.*setter)((from.*getter)()); }};
}

inline constexpr Property<TDcEntity> entityProperties[] = {
    property<&TDcEntity::getName, &TDcEntity::setName>("name"_L1),
    property<&TDcEntity::getLabel, &TDcEntity::setLabel>("label"_L1),
    property<&TDcEntity::getAlias, &TDcEntity::setAlias>("alias"_L1),
    property<&TDcEntity::getRefCode, &TDcEntity::setRefCode>("code variable"_L1),
    property<&TDcEntity::getRefLabel, &TDcEntity::setRefLabel>("label variable"_L1),
    property<&TDcEntity::getWeightVariable, &TDcEntity::setWeightVariable>("weight variable"_L1),
    property<&TDcEntity::getDocumentationEntity, &TDcEntity::setDocumentationEntity>("documentation"_L1),
    property<&TDcEntity::getLevel, &TDcEntity::setLevel>("level"_L1),
    property<&TDcEntity::getIsvirtual, &TDcEntity::setIsvirtual>("virtual"_L1),
    property<&TDcEntity::getSelectable, &TDcEntity::setSelectable>("selectable"_L1),
    property<&TDcEntity::getCheckDelete, &TDcEntity::setCheckDelete>("marked for deletion"_L1),
};

inline constexpr Property<TDcVariable> variableProperties[] = {
    property<&TDcVariable::getName, &TDcVariable::setName>("name"_L1),
    property<&TDcVariable::getLabel, &TDcVariable::setLabel>("label"_L1),
    property<&TDcVariable::getAlias, &TDcVariable::setAlias>("alias"_L1),
    property<&TDcVariable::getGroup, &TDcVariable::setGroup>("group"_L1),
    property<&TDcVariable::getVarType, &TDcVariable::setVarType>("type"_L1),
    property<&TDcVariable::getDocumentation, &TDcVariable::setDocumentation>("documentation"_L1),
    property<&TDcVariable::getFileName, &TDcVariable::setFileName>("file name"_L1),
    property<&TDcVariable::getSize, &TDcVariable::setSize>("size"_L1),
    property<&TDcVariable::getDecimals, &TDcVariable::setDecimals>("decimals"_L1),
    property<&TDcVariable::getFieldSize, &TDcVariable::setFieldSize>("field size"_L1),
    property<&TDcVariable::getFieldRelativePosition, &TDcVariable::setFieldRelativePosition>("position"_L1),
    property<&TDcVariable::getMissing, &TDcVariable::setMissing>("missing code"_L1),
    property<&TDcVariable::getNotappl, &TDcVariable::setNotappl>("not-applicable code"_L1),
    property<&TDcVariable::getTag, &TDcVariable::setTag>("tag"_L1),
    property<&TDcVariable::getChecked, &TDcVariable::setChecked>("checked"_L1),
    property<&TDcVariable::getLevel, &TDcVariable::setLevel>("level"_L1),
    property<&TDcVariable::getLocal, &TDcVariable::setLocal>("local"_L1),
};

inline constexpr Property<MetadataVariables> layoutProperties[] = {
    property<&MetadataVariables::getRecord, &MetadataVariables::setRecord>("record"_L1),
    property<&MetadataVariables::getField, &MetadataVariables::setField>("field"_L1),
    property<&MetadataVariables::getStart, &MetadataVariables::setStart>("start"_L1),
    property<&MetadataVariables::getLength, &MetadataVariables::setLength>("length"_L1),
    property<&MetadataVariables::getLookup, &MetadataVariables::setLookup>("lookup"_L1),
};

inline constexpr Property<Range> rangeProperties[] = {
    property<&Range::getRangeMin, &Range::setRangeMin>("minimum"_L1),
    property<&Range::getRangeMax, &Range::setRangeMax>("maximum"_L1),
};

inline constexpr Property<ValueLabelElement> valueLabelProperties[] = {
    property<&ValueLabelElement::getValue, &ValueLabelElement::setValue>("code"_L1),
    property<&ValueLabelElement::getLabel, &ValueLabelElement::setLabel>("label"_L1),
};

// The table of an object's class.
constexpr const auto &of(const TDcEntity &)
{
    return entityProperties;
}
constexpr const auto &of(const TDcVariable &)
{
    return variableProperties;
}
constexpr const auto &of(const MetadataVariables &)
{
    return layoutProperties;
}
constexpr const auto &of(const Range &)
{
    return rangeProperties;
}
constexpr const auto &of(const ValueLabelElement &)
{
    return valueLabelProperties;
}

template <typename Object>
[[nodiscard]] bool same(const Object &left, const Object &right)
{
    return std::ranges::all_of(of(left),
                               [&](const Property<Object> &each) { return each.same(left, right); });
}

/// The origin goes along: a copy keeps what its document said about the original.
template <typename Object>
void copy(Object &to, const Object &from)
{
    std::ranges::for_each(of(from), [&](const Property<Object> &each) { each.copy(to, from); });
    to.setOrigin(from.origin());
}
} // namespace Properties
