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
template <typename Object>
struct Property {
    QLatin1StringView name; ///< English; DictionaryChange::propertyText() translates it.
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
consteval Property<Object> property(const char *name)
{
    using Value = std::remove_cvref_t<decltype((std::declval<const Object &>().*getter)())>;
    return {.name = QLatin1StringView(name),
            .get = [](const Object &object) { return QVariant::fromValue<Value>((object.*getter)()); },
            .set = [](Object &object, const QVariant &value) { (object.*setter)(value.value<Value>()); },
            .same = [](const Object &left,
                       const Object &right) { return sameValue<Value>((left.*getter)(), (right.*getter)()); },
            .copy = [](Object &to, const Object &from) { (to.*setter)((from.*getter)()); }};
}

inline constexpr Property<TDcEntity> entityProperties[] = {
    property<&TDcEntity::getName, &TDcEntity::setName>(QT_TRANSLATE_NOOP("DictionaryDifference", "name")),
    property<&TDcEntity::getLabel, &TDcEntity::setLabel>(QT_TRANSLATE_NOOP("DictionaryDifference", "label")),
    property<&TDcEntity::getAlias, &TDcEntity::setAlias>(QT_TRANSLATE_NOOP("DictionaryDifference", "alias")),
    property<&TDcEntity::getRefCode, &TDcEntity::setRefCode>(
        QT_TRANSLATE_NOOP("DictionaryDifference", "code variable")),
    property<&TDcEntity::getRefLabel, &TDcEntity::setRefLabel>(
        QT_TRANSLATE_NOOP("DictionaryDifference", "label variable")),
    property<&TDcEntity::getWeightVariable, &TDcEntity::setWeightVariable>(
        QT_TRANSLATE_NOOP("DictionaryDifference", "weight variable")),
    property<&TDcEntity::getDocumentationEntity, &TDcEntity::setDocumentationEntity>(
        QT_TRANSLATE_NOOP("DictionaryDifference", "documentation")),
    property<&TDcEntity::getLevel, &TDcEntity::setLevel>(QT_TRANSLATE_NOOP("DictionaryDifference", "level")),
    property<&TDcEntity::getIsvirtual, &TDcEntity::setIsvirtual>(
        QT_TRANSLATE_NOOP("DictionaryDifference", "virtual")),
    property<&TDcEntity::getSelectable, &TDcEntity::setSelectable>(
        QT_TRANSLATE_NOOP("DictionaryDifference", "selectable")),
    property<&TDcEntity::getCheckDelete, &TDcEntity::setCheckDelete>(
        QT_TRANSLATE_NOOP("DictionaryDifference", "marked for deletion")),
};

inline constexpr Property<TDcVariable> variableProperties[] = {
    property<&TDcVariable::getName, &TDcVariable::setName>(QT_TRANSLATE_NOOP("DictionaryDifference", "name")),
    property<&TDcVariable::getLabel, &TDcVariable::setLabel>(
        QT_TRANSLATE_NOOP("DictionaryDifference", "label")),
    property<&TDcVariable::getAlias, &TDcVariable::setAlias>(
        QT_TRANSLATE_NOOP("DictionaryDifference", "alias")),
    property<&TDcVariable::getGroup, &TDcVariable::setGroup>(
        QT_TRANSLATE_NOOP("DictionaryDifference", "group")),
    property<&TDcVariable::getVarType, &TDcVariable::setVarType>(
        QT_TRANSLATE_NOOP("DictionaryDifference", "type")),
    property<&TDcVariable::getDocumentation, &TDcVariable::setDocumentation>(
        QT_TRANSLATE_NOOP("DictionaryDifference", "documentation")),
    property<&TDcVariable::getFileName, &TDcVariable::setFileName>(
        QT_TRANSLATE_NOOP("DictionaryDifference", "file name")),
    property<&TDcVariable::getSize, &TDcVariable::setSize>(QT_TRANSLATE_NOOP("DictionaryDifference", "size")),
    property<&TDcVariable::getDecimals, &TDcVariable::setDecimals>(
        QT_TRANSLATE_NOOP("DictionaryDifference", "decimals")),
    property<&TDcVariable::getFieldSize, &TDcVariable::setFieldSize>(
        QT_TRANSLATE_NOOP("DictionaryDifference", "field size")),
    property<&TDcVariable::getFieldRelativePosition, &TDcVariable::setFieldRelativePosition>(
        QT_TRANSLATE_NOOP("DictionaryDifference", "position")),
    property<&TDcVariable::getMissing, &TDcVariable::setMissing>(
        QT_TRANSLATE_NOOP("DictionaryDifference", "missing code")),
    property<&TDcVariable::getNotappl, &TDcVariable::setNotappl>(
        QT_TRANSLATE_NOOP("DictionaryDifference", "not-applicable code")),
    property<&TDcVariable::getTag, &TDcVariable::setTag>(QT_TRANSLATE_NOOP("DictionaryDifference", "tag")),
    property<&TDcVariable::getChecked, &TDcVariable::setChecked>(
        QT_TRANSLATE_NOOP("DictionaryDifference", "checked")),
    property<&TDcVariable::getLevel, &TDcVariable::setLevel>(
        QT_TRANSLATE_NOOP("DictionaryDifference", "level")),
    property<&TDcVariable::getLocal, &TDcVariable::setLocal>(
        QT_TRANSLATE_NOOP("DictionaryDifference", "local")),
};

inline constexpr Property<MetadataVariables> layoutProperties[] = {
    property<&MetadataVariables::getRecord, &MetadataVariables::setRecord>(
        QT_TRANSLATE_NOOP("DictionaryDifference", "record")),
    property<&MetadataVariables::getField, &MetadataVariables::setField>(
        QT_TRANSLATE_NOOP("DictionaryDifference", "field")),
    property<&MetadataVariables::getStart, &MetadataVariables::setStart>(
        QT_TRANSLATE_NOOP("DictionaryDifference", "start")),
    property<&MetadataVariables::getLength, &MetadataVariables::setLength>(
        QT_TRANSLATE_NOOP("DictionaryDifference", "length")),
    property<&MetadataVariables::getLookup, &MetadataVariables::setLookup>(
        QT_TRANSLATE_NOOP("DictionaryDifference", "lookup")),
};

inline constexpr Property<Range> rangeProperties[] = {
    property<&Range::getRangeMin, &Range::setRangeMin>(QT_TRANSLATE_NOOP("DictionaryDifference", "minimum")),
    property<&Range::getRangeMax, &Range::setRangeMax>(QT_TRANSLATE_NOOP("DictionaryDifference", "maximum")),
};

inline constexpr Property<ValueLabelElement> valueLabelProperties[] = {
    property<&ValueLabelElement::getValue, &ValueLabelElement::setValue>(
        QT_TRANSLATE_NOOP("DictionaryDifference", "code")),
    property<&ValueLabelElement::getLabel, &ValueLabelElement::setLabel>(
        QT_TRANSLATE_NOOP("DictionaryDifference", "label")),
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
