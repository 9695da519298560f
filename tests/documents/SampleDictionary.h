#pragma once

#include "model/MetadataVariables.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "model/ValueLabelElement.h"

#include <memory>

/// A small dictionary in which nothing is wrong: HOUSE with HOUSE_ID and WGT, below it PERSON with PERS_ID,
/// SEX, INCOME and NAME.
namespace SampleDictionary
{
using namespace Qt::Literals::StringLiterals;

inline TDcVariable *addVariable(TDcEntity &entity, const QString &name, const QString &label,
                                const QString &type, int start, int length)
{
    auto *variable = new TDcVariable;
    variable->setName(name);
    variable->setLabel(label);
    variable->setVarType(type);
    variable->setFieldSize(length);
    variable->setSize(type == "STRING"_L1 ? length : 0);
    variable->setTag(int(entity.getVariables()->size()) + 1);
    auto *metadata = new MetadataVariables;
    metadata->setField(name);
    metadata->setStart(start);
    metadata->setLength(length);
    metadata->setRecord(entity.getName());
    variable->setMetadataVariables(metadata);
    entity.addVariables(variable);
    return variable;
}

inline Range *addRange(TDcVariable &variable, double min, double max)
{
    auto *range = new Range;
    range->setRangeMin(min);
    range->setRangeMax(max);
    variable.getMetadataVariables()->addItemRange(range);
    return range;
}

inline ValueLabelElement *addLabel(TDcVariable &variable, const QString &code, const QString &label)
{
    auto *element = new ValueLabelElement;
    element->setValue(code);
    element->setLabel(label);
    variable.addValueLabelElement(element);
    return element;
}

inline std::unique_ptr<TDcEntity> make()
{
    auto house = std::make_unique<TDcEntity>();
    house->setName(u"HOUSE"_s);
    house->setLabel(u"Households"_s);
    house->setAlias(u"hh"_s);
    house->setRefCode(u"HOUSE_ID"_s);
    house->setWeightVariable(u"WGT"_s);
    house->setSelectable(true);
    addVariable(*house, u"HOUSE_ID"_s, u"Number of the household"_s, u"STRING"_s, 1, 8);
    TDcVariable *weight = addVariable(*house, u"WGT"_s, u"Weight"_s, u"REAL"_s, 9, 8);
    weight->setDecimals(2);
    weight->setMissing(-1);
    weight->setNotappl(-2);
    addRange(*weight, 0, 9999.99);

    auto *person = new TDcEntity;
    person->setName(u"PERSON"_s);
    person->setLabel(u"Persons"_s);
    person->setLevel(2);
    person->setRefCode(u"PERS_ID"_s);
    person->setSelectable(true);
    person->setDocumentationEntity(u"Everybody who usually lives in the household."_s);
    house->getChildren()->append(person);
    addVariable(*person, u"PERS_ID"_s, u"Number of the person"_s, u"STRING"_s, 1, 2);
    TDcVariable *sex = addVariable(*person, u"SEX"_s, u"Sex"_s, u"INTEGER"_s, 3, 1);
    sex->setMissing(9);
    sex->setAlias(u"gender"_s);
    sex->setGroup(u"Demography"_s);
    addRange(*sex, 1, 2);
    addLabel(*sex, u"1"_s, u"Male"_s);
    addLabel(*sex, u"2"_s, u"Female"_s);
    addLabel(*sex, u"9"_s, u"No answer"_s);
    TDcVariable *income = addVariable(*person, u"INCOME"_s, u"Monthly income"_s, u"INTEGER"_s, 4, 6);
    income->setMissing(999999);
    income->setNotappl(999998);
    income->setGroup(u"Economy"_s);
    addRange(*income, 0, 10000);
    addRange(*income, 10001, 900000);
    addVariable(*person, u"NAME"_s, u"Given name"_s, u"STRING"_s, 10, 20);
    return house;
}
} // namespace SampleDictionary
