#include "documents/internal/DictionaryDocument.h"

#include "documents/internal/DictionaryKeys.h"

using namespace Elements;
using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr auto weight = "weightVar"_L1;
constexpr auto misspeltWeight = "weigthVar"_L1;

bool differs(const Range &range)
{
    return Origin::of(range).changesWriting() || !Keys::needsNothingInstead(Keys::rangeKeys, range);
}

bool differs(const Keys::Category &category)
{
    return Origin::of(category.element).changesWriting()
        || !Keys::needsNothingInstead(Keys::valueLabelKeys, category);
}

bool differs(const Keys::Layout &layout)
{
    const MetadataVariables &metadata = layout;
    const QList<Range *> &ranges = *metadata.getRange();
    return layout.kept().changesWriting() || !Keys::needsNothingInstead(Keys::layoutKeys, layout)
        || std::any_of(ranges.cbegin(), ranges.cend(),
                       [](const Range *range) { return range && differs(*range); });
}

bool differs(const TDcVariable &variable)
{
    const QList<ValueLabelElement *> &labels = *variable.getValueLabelElementList();
    const QString type = variable.getVarType();
    return Origin::of(variable).changesWriting() || !Keys::needsNothingInstead(Keys::variableKeys, variable)
        || differs(Keys::Layout{variable, variable.getMetadataVariables()})
        || std::any_of(labels.cbegin(), labels.cend(), [&type](const ValueLabelElement *label) {
               return label && differs(Keys::Category{*label, type});
           });
}

void restoreRange(const Range &range, QJsonObject &json)
{
    Keys::restore(Keys::rangeKeys, range, Origin::of(range), json);
}

void restoreLayout(const Keys::Layout &layout, QJsonObject &json)
{
    const MetadataVariables &metadata = layout;
    Keys::restore(Keys::layoutKeys, layout, layout.kept(), json);
    restore(
        "range"_L1, *metadata.getRange(), layout.kept(), json,
        [](const Range &range) { return differs(range); }, restoreRange);
}

void restoreVariable(const TDcVariable &variable, QJsonObject &json)
{
    const Kept &kept = Origin::of(variable);
    Keys::restore(Keys::variableKeys, variable, kept, json);
    const Keys::Layout layout{variable, variable.getMetadataVariables()};
    if (differs(layout)) {
        QJsonObject written = json.take("metadata"_L1).toObject();
        restoreLayout(layout, written);
        json.insert("metadata"_L1, withElement(static_cast<const MetadataVariables &>(layout), written));
    }
    restore(
        "valueLabels"_L1, *variable.getValueLabelElementList(), kept, json,
        [type = variable.getVarType()](const ValueLabelElement &label) {
            return differs(Keys::Category{label, type});
        },
        [type = variable.getVarType()](const ValueLabelElement &label, QJsonObject &written) {
            Keys::restore(Keys::valueLabelKeys, Keys::Category{label, type}, Origin::of(label), written);
        });
}

/// In an object on its own the misspelt key counts, if there is one, and the other says nothing.
void restoreWeight(const TDcEntity &entity, Form form, QJsonObject &json)
{
    const QVariantMap &values = Origin::of(entity).values;
    const QVariant misspelt = values.value(misspeltWeight);
    const bool misspeltCounts = form == Form::Single && misspelt.isValid();
    if (misspelt.isValid()) {
        const bool unchanged = !misspeltCounts || misspelt.toString() == entity.getWeightVariable();
        Keys::put(json, misspeltWeight, unchanged ? misspelt : entity.getWeightVariable());
    }
    const auto usual = values.constFind(weight);
    if (usual != values.cend() && (misspeltCounts || usual->toString() == entity.getWeightVariable()))
        Keys::put(json, weight, *usual);
}

void restoreChildren(const TDcEntity &entity, QJsonObject &json)
{
    const Kept &kept = Origin::of(entity);
    const auto key = kept.childrenUnderRoot ? "root"_L1 : "entities"_L1;
    QJsonArray array = json.take("entities"_L1).toArray();
    const Form form = array.size() == 1 && kept.single.contains(key) ? Form::Single : Form::Element;
    qsizetype index = 0;
    for (const TDcEntity *child : std::as_const(*entity.getChildren())) {
        if (!child)
            continue;
        QJsonObject written = array.at(index).toObject();
        DictionaryDocument::restore(*child, written, form);
        array.replace(index++, withElement(*child, written));
    }
    QJsonValue children = withForm(key, array, kept);
    if (!kept.childrenUnderRoot && kept.values.contains("root"_L1)) {
        Keys::put(json, u"root"_s, kept.values.value("root"_L1));
        if (children.isUndefined()) // Without "entities" it would be taken for the children.
            children = QJsonArray();
    }
    Keys::put(json, key, children);
}
} // namespace

void DictionaryDocument::restore(const TDcEntity &entity, QJsonObject &json, Form form)
{
    const Kept &kept = Origin::of(entity);
    Keys::restore(Keys::entityKeys, entity, kept, json);
    restoreWeight(entity, form, json);
    Elements::restore(
        "variables"_L1, *entity.getVariables(), kept, json,
        [](const TDcVariable &variable) { return differs(variable); }, restoreVariable);
    restoreChildren(entity, json);
}
