#include "documents/internal/DictionaryDocument.h"

#include "documents/internal/DictionaryKeys.h"

using namespace Elements;
using namespace Qt::Literals::StringLiterals;

namespace
{
void rememberRange(Range &range, const QVariantMap &map, const QVariant &element, Form form)
{
    if (form == Form::Single) { // Only here the layer cuts fractions off.
        range.setRangeMin(map.value(u"min"_s).toDouble());
        range.setRangeMax(map.value(u"max"_s).toDouble());
    }
    Kept kept{.element = element};
    Keys::remember(Keys::rangeKeys, range, map, kept);
    Origin::attach(range, std::move(kept));
}

void rememberLayout(TDcVariable &variable, const QVariant &value)
{
    MetadataVariables &metadata = *variable.getMetadataVariables();
    const bool isObject = value.typeId() == QMetaType::QVariantMap;
    const QVariantMap map = value.toMap();
    // The layer resets the position that it writes as "start".
    variable.setFieldRelativePosition(Keys::positionFrom(metadata.getStart()));

    Kept kept{.element = isObject ? QVariant() : value,
              .start = metadata.getStart(),
              .length = metadata.getLength()};
    Keys::remember(Keys::layoutKeys, Keys::Layout{variable, &metadata}, map, kept);
    if (const auto ranges = map.constFind(u"range"_s); ranges != map.cend()) {
        rememberForm(u"range"_s, *ranges, kept);
        forEach(*metadata.getRange(), *ranges, rememberRange);
    }
    Origin::attach(metadata, std::move(kept));
}

void rememberVariable(TDcVariable &variable, const QVariantMap &map, const QVariant &element, Form)
{
    static const QString metadataKey = u"metadata"_s;
    static const QString valueLabelsKey = u"valueLabels"_s;
    static const QString documentationKey = u"documentation"_s;
    // The layer does not read it.
    variable.setDocumentation(map.value(documentationKey).toString());

    Kept kept{.element = element};
    Keys::remember(Keys::variableKeys, variable, map, kept);
    if (const auto layout = map.constFind(metadataKey); layout != map.cend())
        rememberLayout(variable, *layout);
    if (const auto labels = map.constFind(valueLabelsKey); labels != map.cend()) {
        rememberForm(valueLabelsKey, *labels, kept);
        forEach(*variable.getValueLabelElementList(), *labels,
                [type = variable.getVarType()](ValueLabelElement &label, const QVariantMap &object,
                                               const QVariant &value, Form) {
                    Kept keptOfLabel{.element = value};
                    Keys::remember(Keys::valueLabelKeys, Keys::Category{label, type}, object, keptOfLabel);
                    Origin::attach(label, std::move(keptOfLabel));
                });
    }
    Origin::attach(variable, std::move(kept));
}

/// A single object has a spelling of its own for the weight variable. What it holds under the usual one,
/// which is the one that the layer writes, is dropped by the reader.
void rememberWeight(TDcEntity &entity, const QVariantMap &map, Form form, Kept &kept)
{
    const QString weight = u"weightVar"_s;
    const QString misspelt = u"weigthVar"_s;
    const QVariant value = map.value(weight);
    const bool isMisspelt = map.contains(misspelt);
    if (isMisspelt)
        kept.values.insert(misspelt, map.value(misspelt));
    if (form == Form::Single && !isMisspelt)
        entity.setWeightVariable(value.toString());
    const bool usual = !value.isValid() || Keys::isFilledText(value);
    if (!usual || (form == Form::Single && isMisspelt))
        kept.values.insert(weight, value);
}
} // namespace

void DictionaryDocument::remember(TDcEntity &entity, const QVariantMap &map, const QVariant &element,
                                  Form form)
{
    const QString variablesKey = u"variables"_s;
    Kept kept{.element = element};
    Keys::remember(Keys::entityKeys, entity, map, kept);
    rememberWeight(entity, map, form, kept);
    if (const auto variables = map.constFind(variablesKey); variables != map.cend()) {
        rememberForm(variablesKey, *variables, kept);
        forEach(*entity.getVariables(), *variables, rememberVariable);
    }

    const QString childrenKey = map.contains(u"entities"_s) ? u"entities"_s : u"root"_s;
    kept.childrenUnderRoot = childrenKey == u"root"_s && map.contains(childrenKey);
    if (!kept.childrenUnderRoot && map.contains(u"root"_s)) // Beside "entities" it counts for nothing.
        kept.values.insert(u"root"_s, map.value(u"root"_s));
    if (const auto children = map.constFind(childrenKey); children != map.cend()) {
        rememberForm(childrenKey, *children, kept);
        forEach(*entity.getChildren(), *children, remember);
    }
    Origin::attach(entity, std::move(kept));
}
