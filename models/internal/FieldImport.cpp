#include "models/internal/FieldImport.h"

#include "common/Constants.h"
#include "model/TDcVariable.h"
#include "model/ValueLabelElement.h"
#include "models/internal/FieldPayload.h"

#include <algorithm>
#include <cmath>
#include <limits>

using namespace FieldPayload;

namespace
{
constexpr int lookupSize = 64;

QString textOf(const QJsonObject &object, QLatin1StringView key)
{
    return object.value(key).toVariant().toString();
}

int numberOf(const QJsonObject &object, QLatin1StringView key)
{
    return object.value(key).toVariant().toInt();
}

void readNames(TDcVariable &variable, const QString &name, const QString &splitter)
{
    const qsizetype end = name.indexOf(splitter);
    if (end > 0) { // A name that begins with the splitter stays whole.
        variable.setName(name.left(end));
        variable.setAlias(name.mid(end + 1)); // However long the splitter is.
    } else {
        variable.setName(name);
    }
    variable.getMetadataVariables()->setField(name);
}

/// A bound as text, read as the variable's type wants it; 0 if it is no such number.
double bound(const QString &text, const QString &type)
{
    return type == Constants::typeInteger ? double(text.toLongLong()) : text.toDouble();
}

/// \a value without its fraction, as near to it as an int can be.
int truncated(double value)
{
    using Limits = std::numeric_limits<int>;
    if (std::isnan(value))
        return 0;
    return int(std::clamp(value, double(Limits::min()), double(Limits::max())));
}

/// Sets codes that lie outside the range from \a min to \a max.
void setCodesBeside(TDcVariable &variable, double min, double max)
{
    if (min > 1.0) {
        variable.setNotappl(0);
        variable.setMissing(1);
    } else if (min > 0.0) {
        variable.setNotappl(0);
        variable.setMissing(truncated(max + 1));
    } else {
        variable.setNotappl(truncated(max + 2));
        variable.setMissing(truncated(max + 1));
    }
}

/// The variable's type must be set.
void readRange(TDcVariable &variable, const QJsonObject &field)
{
    const QString type = variable.getVarType();
    if (type == Constants::typeString) {
        variable.getMetadataVariables()->setRange(nullptr);
        variable.setNotappl(0);
        variable.setMissing(0);
        return;
    }
    const double min = bound(textOf(field, rangeMinKey), type);
    const double max = bound(textOf(field, rangeMaxKey), type);
    auto *range = new Range;
    range->setRangeMin(min);
    range->setRangeMax(max);
    variable.getMetadataVariables()->addItemRange(range);
    setCodesBeside(variable, min, max);
}

/// A range read before stays.
void makeLookup(TDcVariable &variable)
{
    variable.setVarType(Constants::typeString);
    variable.getMetadataVariables()->setLookup(true);
    variable.setFieldSize(lookupSize);
    variable.setSize(lookupSize);
    variable.setMissing(0);
    variable.setNotappl(0);
}
} // namespace

void FieldImport::read(TDcVariable &variable, const QJsonObject &field, const QString &splitter)
{
    variable.setMetadataVariables(new MetadataVariables);
    readNames(variable, textOf(field, nameKey), splitter);
    variable.setLabel(textOf(field, labelKey));

    OwnedList<ValueLabelElement> elements;
    readCategories(field.value(categoriesKey).toVariant(), elements);
    variable.setValueLabelElementList(elements.release());

    if (field.contains(fieldTypeKey))
        variable.setVarType(textOf(field, fieldTypeKey));
    readRange(variable, field);
    variable.setFieldRelativePosition(1); // Whatever place the field had in its source.
    variable.setDecimals(numberOf(field, decimalsKey));
    variable.setFieldSize(numberOf(field, sizeKey));
    variable.setSize(variable.getFieldSize());
    if (textOf(field, typeKey) == lookupType)
        makeLookup(variable);
}

void FieldImport::readCategories(const QVariant &categories, OwnedList<ValueLabelElement> &elements)
{
    QVariantList list = categories.toList();
    if (list.isEmpty())
        list.append(categories);
    for (const QVariant &entry : std::as_const(list)) {
        const QVariantMap category = entry.toMap();
        const QString code = category.value(categoryCodeKey).toString();
        if (code.isEmpty())
            continue;
        auto element = std::make_unique<ValueLabelElement>();
        element->setLabel(category.value(categoryLabelKey).toString());
        element->setValue(code);
        elements.append(std::move(element));
    }
}
