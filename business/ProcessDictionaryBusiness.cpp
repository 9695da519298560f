#include "business/ProcessDictionaryBusiness.h"

#include "business/internal/DictionaryFields.h"

#include <QDebug>

#include <exception>

namespace
{
/// Runs \a work; a standard exception ends it and goes to the debug log.
template <typename Work>
void guarded(Work work)
{
    try {
        work();
    } catch (const std::exception &error) {
        qDebug("%s", error.what());
    }
}

/// Applies the keys of \a map to \a variable. An exception costs one key, not the variable.
void readVariable(TDcVariable &variable, const QVariantMap &map)
{
    using namespace DictionaryDocument;
    forEachKnownKey(variableFields, map, [&variable](const Field<TDcVariable> &field, const QVariant &value) {
        guarded([&] { field.read(variable, value, Form::Element); });
    });
}
} // namespace

namespace DictionaryDocument
{
/// Fills \a out as far as it can be filled. An exception costs an entity what comes after it, not its parent.
void writeEntity(TDcEntity &entity, QJsonObject &out)
{
    guarded([&] {
        for (const Step step : {Step::Own, Step::Items, Step::Children})
            write(entityFields, EntityNode{.entity = entity}, out, step);
    });
}

QJsonValue writeChildren(const EntityNode &node)
{
    QJsonArray children;
    for (TDcEntity *child : std::as_const(*node.entity.getChildren())) {
        if (!child)
            continue;
        QJsonObject written;
        writeEntity(*child, written);
        children.append(written);
    }
    return children.isEmpty() ? leftOut() : QJsonValue(children);
}

/// Null when there is no list of entities or it cannot be read to its end.
QList<TDcEntity *> *readEntities(const QVariantMap &node, int parentLevel)
{
    auto found = node.constFind(u"entities"_s);
    if (found == node.cend())
        found = node.constFind(u"root"_s);
    if (found == node.cend())
        return nullptr;

    QList<TDcEntity *> *result = nullptr;
    guarded([&] {
        OwnedList<TDcEntity> entities;
        forEachObject(*found, [&entities, level = parentLevel + 1](const QVariantMap &object, Form form) {
            auto entity = std::make_unique<TDcEntity>();
            EntityNode described{*entity, &object, level};
            read(entityFields, described, object, form);
            entity->setLevel(level);
            entities.append(std::move(entity));
        });
        result = entities.release();
    });
    return result;
}

void readVariables(const QVariant &value, OwnedList<TDcVariable> &variables)
{
    guarded([&] {
        forEachObject(value, [&variables](const QVariantMap &object, Form) {
            auto variable = std::make_unique<TDcVariable>();
            readVariable(*variable, object);
            variables.append(std::move(variable));
        });
    });
}

void readRanges(const QVariant &value, OwnedList<Range> &ranges)
{
    guarded([&] {
        forEachObject(value, [&ranges](const QVariantMap &object, Form form) {
            auto range = std::make_unique<Range>();
            read(rangeFields, *range, object, form);
            ranges.append(std::move(range));
        });
    });
}

void readValueLabels(const QVariant &value, OwnedList<ValueLabelElement> &elements)
{
    guarded([&] {
        forEachObject(value, [&elements](const QVariantMap &object, Form) {
            auto element = std::make_unique<ValueLabelElement>();
            Category category{*element, {}};
            read(valueLabelFields, category, object);
            elements.append(std::move(element));
        });
    });
}

void readMetadata(TDcVariable &variable, const QVariant &value)
{
    auto metadata = std::make_unique<MetadataVariables>();
    Layout layout{variable, *metadata};
    withObject(value, [&layout](const QVariantMap &object) { read(metadataFields, layout, object); });
    variable.setMetadataVariables(metadata.release());
}
} // namespace DictionaryDocument

using namespace DictionaryDocument;

void ProcessDictionaryBusiness::getStructuraTreeRootToJson(TDcEntity *entity, QJsonObject *out)
{
    writeEntity(*entity, *out);
}

QList<TDcEntity *> *ProcessDictionaryBusiness::recorrerNodosJsonYCargaEstructuraEntidades(
    QMap<QString, QVariant> node, int parentLevel)
{
    return readEntities(node, parentLevel);
}

QList<TDcVariable *> *ProcessDictionaryBusiness::recorrerVariablesNodosJson(QVariant value)
{
    OwnedList<TDcVariable> variables;
    readVariables(value, variables);
    return variables.release();
}

void ProcessDictionaryBusiness::loadItemFromVariables(QString key, TDcVariable *variable,
                                                      QMap<QString, QVariant> object)
{
    if (const auto entry = object.constFind(key); entry != object.cend())
        readVariable(*variable, {{key, *entry}});
}

QList<Range *> *ProcessDictionaryBusiness::itemVariableSubitemRange(QVariant value)
{
    OwnedList<Range> ranges;
    readRanges(value, ranges);
    return ranges.release();
}

void ProcessDictionaryBusiness::loadItemVariableSubitemVarWipChoice(VarWipChoice *choice,
                                                                    QMap<QString, QVariant> object,
                                                                    QString key)
{
    guarded([&] {
        withObject(object.value(key),
                   [choice](const QVariantMap &map) { read(sourceChoiceFields, *choice, map); });
    });
}

QList<ValueLabelElement *> *ProcessDictionaryBusiness::recorrerValoresPorVariablesNodosJson(QVariant value)
{
    OwnedList<ValueLabelElement> elements;
    readValueLabels(value, elements);
    return elements.release();
}

QList<ValueLabelElement *> *ProcessDictionaryBusiness::recorrerVectorValoresPorVariablesNodosJson(
    QVariant value)
{
    OwnedList<ValueLabelElement> elements;
    guarded([&] {
        forEachObject(value, [&elements](const QVariantMap &object, Form) {
            if (const auto entry = object.constFind(u"valueLabelElement"_s); entry != object.cend())
                readValueLabels(*entry, elements);
        });
    });
    return elements.release();
}
