#pragma once

#include "business/internal/DocumentFields.h"
#include "model/MetadataVariables.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "model/ValueLabelElement.h"
#include "model/VarWipChoice.h"

#include <cmath>
#include <functional>

/// The dictionary document, key by key. Reader and writer differ on purpose; a comment marks each difference.
namespace DictionaryDocument
{
using namespace Document;
using namespace Qt::Literals::StringLiterals;

// The document's type words, compared exactly. No spelling is mapped onto another.
inline constexpr auto integerType = "integer"_L1;
inline constexpr auto realType = "real"_L1;
inline constexpr auto stringType = "string"_L1;

/// A category and the type of the variable that it belongs to, by which its code is written.
struct Category {
    ValueLabelElement &element;
    QString type;
    operator ValueLabelElement &() const { return element; }
};

/// A variable's physical layout, of which the variable keeps a part.
struct Layout {
    TDcVariable &variable;
    MetadataVariables &metadata;
    operator TDcVariable &() const { return variable; }
    operator MetadataVariables &() const { return metadata; }
};

/// An entity, and when it is read the object it is read from and its level.
struct EntityNode {
    TDcEntity &entity;
    const QVariantMap *object = nullptr;
    int level = 0;
    operator TDcEntity &() const { return entity; }
};

// The readers that call one another through the tables. Each appends what it reads.
QList<TDcEntity *> *readEntities(const QVariantMap &node, int parentLevel);
void readVariables(const QVariant &value, OwnedList<TDcVariable> &variables);
void readRanges(const QVariant &value, OwnedList<Range> &ranges);
void readValueLabels(const QVariant &value, OwnedList<ValueLabelElement> &elements);
void readMetadata(TDcVariable &variable, const QVariant &value);

/// Reads a list with \a readItems and hands its items to \a add, one by one.
template <typename Item, typename Add>
void addItems(void (*readItems)(const QVariant &, OwnedList<Item> &), const QVariant &value, Add add)
{
    OwnedList<Item> items;
    for (readItems(value, items); !items.get()->isEmpty(); items.get()->removeFirst())
        add(items.get()->first());
}

/// A bound of a range. Without a list around it the range loses its fractions.
inline double readBound(const QVariant &value, Form form)
{
    if (form == Form::Element)
        return value.toDouble();
    // toInt() alone would round.
    const bool fractional = value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Float;
    return fractional ? QVariant(std::trunc(value.toDouble())).toInt() : value.toInt();
}

/// A category's code, typed as the variable is; only a type that is empty or not a number's keeps it as text.
inline QJsonValue writeCode(const Category &category)
{
    const QString code = category.element.getValue();
    if (code.isEmpty())
        return leftOut();
    if (category.type == integerType)
        return code.toLongLong();
    if (category.type == realType)
        return code.toDouble();
    return code;
}

inline constexpr Field<Range> rangeFields[] = {
    {"max"_L1, always<&Range::getRangeMax>,
     [](Range &range, const QVariant &value, Form form) { range.setRangeMax(readBound(value, form)); }},
    {"min"_L1, always<&Range::getRangeMin>,
     [](Range &range, const QVariant &value, Form form) { range.setRangeMin(readBound(value, form)); }},
};

inline constexpr Field<Category> valueLabelFields[] = {
    {"label"_L1, textUnlessEmpty<&ValueLabelElement::getLabel>, text<&ValueLabelElement::setLabel>},
    // Written typed, read back as text.
    {"value"_L1, writeCode, text<&ValueLabelElement::setValue>},
};

inline constexpr Field<Layout> metadataFields[] = {
    // Written for "real" only, read for every type.
    {"decimals"_L1,
     [](const Layout &layout) {
         return layout.variable.getVarType() == realType ? QJsonValue(layout.variable.getDecimals())
                                                         : leftOut();
     },
     number<&TDcVariable::setDecimals>},
    {"field"_L1, textUnlessEmpty<&MetadataVariables::getField>, text<&MetadataVariables::setField>},
    // Written from the variable, read into both the metadata and the variable.
    {"length"_L1,
     [](const Layout &layout) {
         const int length = layout.variable.getFieldSize();
         return length > 0 ? QJsonValue(length) : leftOut();
     },
     [](Layout &layout, const QVariant &value, Form) {
         layout.metadata.setLength(value.toInt());
         layout.variable.setFieldSize(value.toInt());
     }},
    {"lookup"_L1, onlyWhen<&MetadataVariables::getLookup, true>, flag<&MetadataVariables::setLookup>},
    {"range"_L1,
     [](const Layout &layout) {
         return writeArray(rangeFields, *layout.metadata.getRange(), std::identity());
     },
     [](Layout &layout, const QVariant &value, Form) {
         addItems(readRanges, value, [&layout](Range *range) { layout.metadata.addItemRange(range); });
     }},
    {"record"_L1, neverWritten, text<&MetadataVariables::setRecord>},
    // Written from the variable's position, read into the metadata; reading puts the variable's back to 1.
    {"start"_L1,
     [](const Layout &layout) {
         const int position = layout.variable.getFieldRelativePosition();
         return position > 1 ? QJsonValue(position) : leftOut();
     },
     [](Layout &layout, const QVariant &value, Form) {
         if (const int start = value.toInt(); start > 1)
             layout.metadata.setStart(start);
         layout.variable.setFieldRelativePosition(1);
     }},
};

inline constexpr Field<TDcVariable> variableFields[] = {
    {"alias"_L1, textUnlessEmpty<&TDcVariable::getAlias>, text<&TDcVariable::setAlias>},
    {"documentation"_L1, textUnlessEmpty<&TDcVariable::getDocumentation>, neverRead},
    // Written as a constant, read as it stands; so is "local".
    {"fileName"_L1, [](const TDcVariable &) { return QJsonValue(QString()); },
     text<&TDcVariable::setFileName>},
    {"group"_L1, textUnlessEmpty<&TDcVariable::getGroup>, text<&TDcVariable::setGroup>},
    {"label"_L1, textUnlessEmpty<&TDcVariable::getLabel>, text<&TDcVariable::setLabel>},
    {"local"_L1, [](const TDcVariable &) { return QJsonValue(false); }, flag<&TDcVariable::setLocal>},
    {"metadata"_L1,
     [](const TDcVariable &variable) {
         MetadataVariables *metadata = variable.getMetadataVariables();
         if (!metadata)
             return leftOut();
         return QJsonValue(write(metadataFields, Layout{const_cast<TDcVariable &>(variable), *metadata}));
     },
     [](TDcVariable &variable, const QVariant &value, Form) { readMetadata(variable, value); }},
    {"missing"_L1, always<&TDcVariable::getMissing>, number<&TDcVariable::setMissing>},
    {"name"_L1, textUnlessEmpty<&TDcVariable::getName>, text<&TDcVariable::setName>},
    {"notapp"_L1, always<&TDcVariable::getNotappl>, number<&TDcVariable::setNotappl>},
    // Written for "string" only and never as 0, read for every type.
    {"size"_L1,
     [](const TDcVariable &variable) {
         if (variable.getVarType() != stringType)
             return leftOut();
         return QJsonValue(variable.getSize() == 0 ? 1 : variable.getSize());
     },
     number<&TDcVariable::setSize>},
    {"tag"_L1,
     [](const TDcVariable &variable) {
         return variable.getTag() != 0 ? QJsonValue(variable.getTag()) : leftOut();
     },
     number<&TDcVariable::setTag>},
    {"type"_L1,
     [](const TDcVariable &variable) {
         const QString type = variable.getVarType();
         return type.isEmpty() ? QJsonValue(integerType) : QJsonValue(type);
     },
     text<&TDcVariable::setVarType>},
    {"valueLabels"_L1,
     [](const TDcVariable &variable) {
         return writeArray(valueLabelFields, *variable.getValueLabelElementList(),
                           [type = variable.getVarType()](ValueLabelElement &element) {
                               return Category{element, type};
                           });
     },
     [](TDcVariable &variable, const QVariant &value, Form) {
         addItems(readValueLabels, value,
                  [&variable](ValueLabelElement *element) { variable.addValueLabelElement(element); });
     }},
};

/// Children are read from the whole object, so "entities" and "root" in one object give the same twice: the
/// first is read and the second passed over, or nested ones would double the work at every level.
inline void readChildren(EntityNode &node, const QVariant &, Form)
{
    node.entity.setChildren(readEntities(*node.object, node.level));
}

inline void readChildrenFromRoot(EntityNode &node, const QVariant &value, Form form)
{
    if (!node.object->contains(u"entities"_s))
        readChildren(node, value, form);
}

/// The weight variable has one spelling for each form: \a wanted says for which one the key counts.
template <Form wanted>
void weightVariable(EntityNode &node, const QVariant &value, Form form)
{
    if (form == wanted)
        node.entity.setWeightVariable(value.toString());
}

QJsonValue writeChildren(const EntityNode &node);

// The level is neither written nor read: it follows from the depth.
inline constexpr Field<EntityNode> entityFields[] = {
    {"alias"_L1, textUnlessEmpty<&TDcEntity::getAlias>, text<&TDcEntity::setAlias>},
    {"codeVar"_L1, textUnlessEmpty<&TDcEntity::getRefCode>, text<&TDcEntity::setRefCode>},
    {"documentation"_L1, textUnlessEmpty<&TDcEntity::getDocumentationEntity>,
     text<&TDcEntity::setDocumentationEntity>},
    {"entities"_L1, writeChildren, readChildren, Step::Children},
    {"label"_L1, textUnlessEmpty<&TDcEntity::getLabel>, text<&TDcEntity::setLabel>},
    {"labelVar"_L1, textUnlessEmpty<&TDcEntity::getRefLabel>, text<&TDcEntity::setRefLabel>},
    {"name"_L1, textUnlessEmpty<&TDcEntity::getName>, text<&TDcEntity::setName>},
    {"root"_L1, neverWritten, readChildrenFromRoot},
    {"selectable"_L1, always<&TDcEntity::getSelectable>, flag<&TDcEntity::setSelectable>},
    {"variables"_L1,
     [](const EntityNode &node) {
         return writeArray(variableFields, *node.entity.getVariables(), std::identity());
     },
     [](EntityNode &node, const QVariant &value, Form) {
         addItems(readVariables, value,
                  [&node](TDcVariable *variable) { node.entity.addVariables(variable); });
     },
     Step::Items},
    {"virtual"_L1, always<&TDcEntity::getIsvirtual>, flag<&TDcEntity::setIsvirtual>},
    {"weightVar"_L1, textUnlessEmpty<&TDcEntity::getWeightVariable>, weightVariable<Form::Element>},
    {"weigthVar"_L1, neverWritten, weightVariable<Form::Single>}, // misspelt, and meant to be
};

inline constexpr Field<VarWipChoice> sourceChoiceFields[] = {
    {"dataProvider"_L1, neverWritten, text<&VarWipChoice::setDataProvider>},
    {"field"_L1, neverWritten, text<&VarWipChoice::setField>},
    {"recType"_L1, neverWritten, text<&VarWipChoice::setRecType>},
    {"start"_L1, neverWritten, number<&VarWipChoice::setStart>},
};

static_assert(ascends(rangeFields) && ascends(valueLabelFields) && ascends(metadataFields)
              && ascends(variableFields) && ascends(entityFields) && ascends(sourceChoiceFields));
} // namespace DictionaryDocument
