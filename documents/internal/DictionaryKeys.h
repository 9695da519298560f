#pragma once

#include "documents/internal/Keys.h"
#include "model/MetadataVariables.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "model/ValueLabelElement.h"

/// The keys of dictionary documents as files keep them.
namespace Keys
{
/// The type words by which the layer writes.
inline constexpr auto integerType = "integer"_L1;
inline constexpr auto realType = "real"_L1;
inline constexpr auto stringType = "string"_L1;

/// A category and the type of its variable, by which its code is written.
struct Category {
    const ValueLabelElement &element;
    const QString &type;
    operator const ValueLabelElement &() const { return element; }
};

/// A variable's layout, of which the variable keeps a part. A variable without one may still have that part.
struct Layout {
    const TDcVariable &variable;
    const MetadataVariables *metadata; ///< Null when the variable has none: then the layer writes none.

    operator const TDcVariable &() const { return variable; }
    operator const MetadataVariables &() const
    {
        static const MetadataVariables none;
        return metadata ? *metadata : none;
    }
    [[nodiscard]] const Kept &kept() const
    {
        return Origin::of(static_cast<const MetadataVariables &>(*this));
    }
};

// Numbers that are no numbers have no other way into a document.
template <auto get>
std::optional<QJsonValue> unlessFinite(const Range &range)
{
    const double bound = valueOf<get>(range);
    return std::isfinite(bound) ? std::nullopt : std::optional(QJsonValue(QString::number(bound)));
}

template <auto get>
constexpr Key<Range> bound(QLatin1StringView name)
{
    return {.name = name,
            .usual = [](const Range &, const QVariant &value) { return isNumber(value); },
            .holds =
                [](const Range &range, const QVariant &value) {
                    const double read = value.toDouble();
                    return read == valueOf<get>(range)
                        || (std::isnan(read) && std::isnan(valueOf<get>(range)));
                },
            .instead = unlessFinite<get>};
}

inline constexpr Key<Range> rangeKeys[] = {
    bound<&Range::getRangeMax>("max"_L1),
    bound<&Range::getRangeMin>("min"_L1),
};

/// The layer makes 0 of a code that is no number although the type says so; it is kept as the text it is.
inline std::optional<QJsonValue> codeThatIsNoNumber(const Category &category)
{
    bool isNumber = true;
    const QString code = category.element.getValue();
    if (category.type == integerType)
        code.toLongLong(&isNumber);
    else if (category.type == realType)
        isNumber = std::isfinite(code.toDouble(&isNumber)) && isNumber;
    return isNumber || code.isEmpty() ? std::nullopt : std::optional(QJsonValue(code));
}

inline constexpr Key<Category> valueLabelKeys[] = {
    text<&ValueLabelElement::getLabel, Category>("label"_L1),
    {.name = "value"_L1,
     .usual =
         [](const Category &category, const QVariant &value) {
             if (!value.isValid())
                 return true;
             if (category.type == integerType)
                 return value.typeId() == QMetaType::LongLong;
             return category.type == realType ? isNumber(value) : isFilledText(value);
         },
     .holds = holdsText<&ValueLabelElement::getValue, Category>,
     .instead = codeThatIsNoNumber},
};

/// What is read from \a start for the variable; positions count from 1.
inline int positionFrom(int start)
{
    return start > 1 ? start : 1;
}

inline int startFrom(int start)
{
    return start > 1 ? start : 0;
}

/// The layer writes the variable's position. It counts unless only the layout's start was changed.
inline std::optional<QJsonValue> startOfLayout(const Layout &layout)
{
    const MetadataVariables &metadata = layout;
    const int position = layout.variable.getFieldRelativePosition();
    if (!layout.metadata)
        return position > 1 ? std::optional(QJsonValue(position)) : std::nullopt;
    const int original = layout.kept().start;
    if (position != positionFrom(original) || metadata.getStart() == startFrom(original))
        return std::nullopt;
    return metadata.getStart() > 1 ? QJsonValue(metadata.getStart()) : QJsonValue(QJsonValue::Undefined);
}

/// The layer writes the variable's field size when it is above 0. It counts unless only the layout's length
/// was changed.
inline std::optional<QJsonValue> lengthOfLayout(const Layout &layout)
{
    const MetadataVariables &metadata = layout;
    const int size = layout.variable.getFieldSize();
    const int original = layout.kept().length;
    if (layout.metadata && size == original && metadata.getLength() != original)
        return metadata.getLength() != 0 ? QJsonValue(metadata.getLength())
                                         : QJsonValue(QJsonValue::Undefined);
    return size < 0 || (size > 0 && !layout.metadata) ? std::optional(QJsonValue(size)) : std::nullopt;
}

inline constexpr Key<Layout> layoutKeys[] = {
    // Written for "real" only, read for every type.
    {.name = "decimals"_L1,
     .usual =
         [](const Layout &layout, const QVariant &value) {
             return layout.variable.getVarType() == realType ? isInteger(value) : isMissingOrNotZero(value);
         },
     .holds = holdsInteger<&TDcVariable::getDecimals, Layout>,
     .instead = [](const Layout &layout) -> std::optional<QJsonValue> {
         const int decimals = layout.variable.getDecimals();
         const bool isWritten = layout.metadata && layout.variable.getVarType() == realType;
         return isWritten || decimals == 0 ? std::nullopt : std::optional(QJsonValue(decimals));
     }},
    text<&MetadataVariables::getField, Layout>("field"_L1),
    {.name = "length"_L1,
     .usual =
         [](const Layout &, const QVariant &value) {
             return !value.isValid() || (isInteger(value) && value.toInt() > 0);
         },
     .holds =
         [](const Layout &layout, const QVariant &value) {
             const MetadataVariables &metadata = layout;
             return value.toInt() == layout.variable.getFieldSize() && value.toInt() == metadata.getLength();
         },
     .instead = lengthOfLayout},
    flagUnless<&MetadataVariables::getLookup, false, Layout>("lookup"_L1),
    {.name = "range"_L1},
    textNotWritten<&MetadataVariables::getRecord, Layout>("record"_L1),
    {.name = "start"_L1,
     .usual =
         [](const Layout &, const QVariant &value) {
             return !value.isValid() || (isInteger(value) && value.toInt() > 1);
         },
     .holds =
         [](const Layout &layout, const QVariant &value) {
             const MetadataVariables &metadata = layout;
             return positionFrom(value.toInt()) == layout.variable.getFieldRelativePosition()
                 && startFrom(value.toInt()) == metadata.getStart();
         },
     .instead = startOfLayout},
};

inline constexpr Key<TDcVariable> variableKeys[] = {
    text<&TDcVariable::getAlias>("alias"_L1),
    text<&TDcVariable::getDocumentation>("documentation"_L1),
    // Written as a constant; so is "local".
    {.name = "fileName"_L1,
     .usual = [](const TDcVariable &, const QVariant &value) { return isText(value); },
     .holds = holdsText<&TDcVariable::getFileName, TDcVariable>,
     .instead = textNotWritten<&TDcVariable::getFileName>("fileName"_L1).instead},
    text<&TDcVariable::getGroup>("group"_L1),
    text<&TDcVariable::getLabel>("label"_L1),
    {.name = "local"_L1,
     .usual = [](const TDcVariable &, const QVariant &value) { return isFlag(value); },
     .holds = holdsFlag<&TDcVariable::getLocal, false, TDcVariable>,
     .instead = flagNotWritten<&TDcVariable::getLocal>("local"_L1).instead},
    {.name = "metadata"_L1},
    integer<&TDcVariable::getMissing>("missing"_L1),
    text<&TDcVariable::getName>("name"_L1),
    integer<&TDcVariable::getNotappl>("notapp"_L1),
    // Written for "string" only and never as 0, read for every type.
    {.name = "size"_L1,
     .usual =
         [](const TDcVariable &variable, const QVariant &value) {
             return isMissingOrNotZero(value) && (value.isValid() || variable.getVarType() != stringType);
         },
     .holds = holdsInteger<&TDcVariable::getSize, TDcVariable>,
     .instead = [](const TDcVariable &variable) -> std::optional<QJsonValue> {
         const bool isWritten = variable.getVarType() == stringType || variable.getSize() == 0;
         return isWritten ? std::nullopt : std::optional(QJsonValue(variable.getSize()));
     }},
    {.name = "tag"_L1,
     .usual = [](const TDcVariable &, const QVariant &value) { return isMissingOrNotZero(value); },
     .holds = holdsInteger<&TDcVariable::getTag, TDcVariable>},
    {.name = "type"_L1,
     .usual = [](const TDcVariable &, const QVariant &value) { return isFilledText(value); },
     .holds = holdsText<&TDcVariable::getVarType, TDcVariable>},
    {.name = "valueLabels"_L1},
};

inline constexpr Key<TDcEntity> entityKeys[] = {
    text<&TDcEntity::getAlias>("alias"_L1),
    text<&TDcEntity::getRefCode>("codeVar"_L1),
    text<&TDcEntity::getDocumentationEntity>("documentation"_L1),
    {.name = "entities"_L1},
    text<&TDcEntity::getLabel>("label"_L1),
    text<&TDcEntity::getRefLabel>("labelVar"_L1),
    text<&TDcEntity::getName>("name"_L1),
    {.name = "root"_L1},
    flag<&TDcEntity::getSelectable>("selectable"_L1),
    {.name = "variables"_L1},
    flag<&TDcEntity::getIsvirtual>("virtual"_L1),
    {.name = "weightVar"_L1},
    {.name = "weigthVar"_L1}, // misspelt, and meant to be
};

static_assert(ascends(rangeKeys) && ascends(valueLabelKeys) && ascends(layoutKeys) && ascends(variableKeys)
              && ascends(entityKeys));
} // namespace Keys
