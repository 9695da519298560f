#pragma once

#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "model/ValueLabelElement.h"

#include <QString>

#include <algorithm>
#include <memory>

/// Dictionaries of any size for benchmarks: always the same for the same size, like real ones in the lengths
/// of their texts and in what their variables hold.
namespace GeneratedDictionary
{
using namespace Qt::Literals::StringLiterals;

inline constexpr int variablesPerEntity = 100;
inline constexpr int childrenPerEntity = 10;

/// A variable with metadata, two ranges and \a labels value labels; with four about 500 bytes of JSON.
inline std::unique_ptr<TDcVariable> makeVariable(int number, int labels = 4)
{
    static const QString types[] = {u"integer"_s, u"real"_s, u"string"_s, u"integer"_s};
    const QString digits = QString::number(number);
    auto variable = std::make_unique<TDcVariable>();
    variable->setName(u"VAR"_s + digits);
    variable->setAlias(u"v"_s + digits);
    variable->setLabel(u"What was answered to question "_s + digits);
    variable->setGroup(u"Group "_s + QString::number(number % 37));
    variable->setVarType(types[number % 4]);
    variable->setSize(1 + number % 40);
    variable->setDecimals(number % 4);
    variable->setTag(1 + number);
    variable->setNotappl(98);
    variable->setMissing(99);
    variable->setFieldRelativePosition(2 + number % 900);
    variable->setFieldSize(1 + number % 12);

    auto metadata = std::make_unique<MetadataVariables>();
    metadata->setField(u"F"_s + digits);
    for (int i = 0; i < 2; ++i) {
        auto range = std::make_unique<Range>();
        range->setRangeMin(i * 50 + 0.5);
        range->setRangeMax(i * 50 + 49);
        metadata->addItemRange(range.release());
    }
    variable->setMetadataVariables(metadata.release());
    for (int i = 1; i <= labels; ++i) {
        auto element = std::make_unique<ValueLabelElement>();
        element->setValue(QString::number(i));
        element->setLabel(u"Answer "_s + QString::number(i));
        variable->addValueLabelElement(element.release());
    }
    return variable;
}

inline std::unique_ptr<TDcEntity> makeEntity(int number)
{
    const QString digits = QString::number(number);
    auto entity = std::make_unique<TDcEntity>();
    entity->setName(u"ENTITY"_s + digits);
    entity->setAlias(u"e"_s + digits);
    entity->setLabel(u"Records of level "_s + digits);
    entity->setSelectable(number % 2 == 0);
    return entity;
}

/// Hangs \a count entities below \a root, childrenPerEntity under each one. Returns them all, \a root first,
/// breadth first.
inline QList<TDcEntity *> addEntities(TDcEntity &root, int count)
{
    QList<TDcEntity *> entities{&root};
    for (int i = 1; i <= count; ++i) {
        TDcEntity *parent = entities.at((i - 1) / childrenPerEntity);
        TDcEntity *entity = makeEntity(i).release();
        entity->setLevel(parent->getLevel() + 1);
        parent->getChildren()->append(entity);
        entities.append(entity);
    }
    return entities;
}

/// A dictionary with \a variables variables, perEntity of them in each entity but the last.
inline std::unique_ptr<TDcEntity> make(int variables, int perEntity = variablesPerEntity, int labels = 4)
{
    auto root = makeEntity(0);
    const QList<TDcEntity *> entities = addEntities(*root, std::max(0, (variables - 1) / perEntity));
    for (int i = 0; i < variables; ++i)
        entities.at(i / perEntity)->addVariables(makeVariable(i, labels).release());
    return root;
}
} // namespace GeneratedDictionary
