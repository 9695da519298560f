#pragma once

#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "model/ValueLabelElement.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QVariantMap>

#include <cmath>
#include <memory>

/// The rules for reading a dictionary document once more, in the plainest way: every key looked up on its
/// own, both forms always tried, children read as often as keys ask for them. Slow, and what the readers must
/// agree with.
namespace PlainReader
{
using namespace Qt::Literals::StringLiterals;

/// Calls `make(map, single)` for each object of a list and for a single one.
template <typename Make>
void forEach(const QVariant &value, Make make)
{
    const QVariantList list = value.toList();
    for (const QVariant &element : list)
        make(element.toMap(), false);
    const QVariantMap map = value.toMap();
    if (!map.isEmpty())
        make(map, true);
}

inline double bound(const QVariant &value, bool single)
{
    if (!single)
        return value.toDouble();
    return value.typeId() == QMetaType::Double ? QVariant(std::trunc(value.toDouble())).toInt()
                                               : value.toInt();
}

inline void readVariable(TDcVariable &variable, const QVariantMap &map)
{
    const QStringList keys = map.keys();
    for (const QString &key : keys) {
        const QVariant value = map.value(key);
        if (key == "name"_L1)
            variable.setName(value.toString());
        if (key == "label"_L1)
            variable.setLabel(value.toString());
        if (key == "group"_L1)
            variable.setGroup(value.toString());
        if (key == "alias"_L1)
            variable.setAlias(value.toString());
        if (key == "type"_L1)
            variable.setVarType(value.toString());
        if (key == "fileName"_L1)
            variable.setFileName(value.toString());
        if (key == "local"_L1)
            variable.setLocal(value.toBool());
        if (key == "size"_L1)
            variable.setSize(value.toInt());
        if (key == "notapp"_L1)
            variable.setNotappl(value.toInt());
        if (key == "missing"_L1)
            variable.setMissing(value.toInt());
        if (key == "tag"_L1)
            variable.setTag(value.toInt());
        if (key == "valueLabels"_L1) {
            forEach(value, [&variable](const QVariantMap &object, bool) {
                auto *element = new ValueLabelElement;
                element->setLabel(object.value(u"label"_s).toString());
                element->setValue(object.value(u"value"_s).toString());
                variable.addValueLabelElement(element);
            });
        }
        if (key != "metadata"_L1)
            continue;
        const QVariantMap layout = value.toMap();
        auto *metadata = new MetadataVariables;
        metadata->setRecord(layout.value(u"record"_s).toString());
        metadata->setField(layout.value(u"field"_s).toString());
        metadata->setLookup(layout.value(u"lookup"_s).toBool());
        if (layout.contains(u"start"_s)) {
            if (layout.value(u"start"_s).toInt() > 1)
                metadata->setStart(layout.value(u"start"_s).toInt());
            variable.setFieldRelativePosition(1);
        }
        if (layout.contains(u"length"_s)) {
            metadata->setLength(layout.value(u"length"_s).toInt());
            variable.setFieldSize(layout.value(u"length"_s).toInt());
        }
        if (layout.contains(u"decimals"_s))
            variable.setDecimals(layout.value(u"decimals"_s).toInt());
        forEach(layout.value(u"range"_s), [metadata](const QVariantMap &object, bool single) {
            auto *range = new Range;
            range->setRangeMin(bound(object.value(u"min"_s), single));
            range->setRangeMax(bound(object.value(u"max"_s), single));
            metadata->addItemRange(range);
        });
        variable.setMetadataVariables(metadata);
    }
}

inline QList<TDcEntity *> *readEntities(const QVariantMap &node, int parentLevel)
{
    for (const auto &key : {u"entities"_s, u"root"_s}) {
        if (!node.contains(key))
            continue;
        auto result = std::make_unique<QList<TDcEntity *>>();
        forEach(node.value(key), [&result, parentLevel](const QVariantMap &map, bool single) {
            auto *entity = new TDcEntity;
            entity->setName(map.value(u"name"_s).toString());
            entity->setAlias(map.value(u"alias"_s).toString());
            entity->setLabel(map.value(u"label"_s).toString());
            entity->setRefCode(map.value(u"codeVar"_s).toString());
            entity->setRefLabel(map.value(u"labelVar"_s).toString());
            entity->setWeightVariable(map.value(single ? u"weigthVar"_s : u"weightVar"_s).toString());
            entity->setDocumentationEntity(map.value(u"documentation"_s).toString());
            entity->setIsvirtual(map.value(u"virtual"_s).toBool());
            entity->setSelectable(map.value(u"selectable"_s).toBool());
            forEach(map.value(u"variables"_s), [entity](const QVariantMap &object, bool) {
                entity->addVariables(new TDcVariable);
                readVariable(*entity->getVariables()->constLast(), object);
            });
            for (const auto &children : {u"entities"_s, u"root"_s}) {
                if (map.contains(children))
                    entity->setChildren(readEntities(map, parentLevel + 1));
            }
            entity->setLevel(parentLevel + 1);
            result->append(entity);
        });
        return result.release();
    }
    return nullptr;
}
} // namespace PlainReader
