#include "cli/ShowJson.h"

#include "cli/Text.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "model/ValueLabelElement.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::Literals::StringLiterals;

namespace
{
template <typename Items, typename Make>
QJsonArray listOf(const Items &items, Make make)
{
    QJsonArray list;
    for (const auto &item : items)
        list.append(make(item));
    return list;
}

QJsonValue layout(const MetadataVariables *metadata)
{
    if (!metadata)
        return QJsonValue::Null;
    return QJsonObject{
        {"field"_L1, metadata->getField()},
        {"length"_L1, metadata->getLength()},
        {"lookup"_L1, metadata->getLookup()},
        {"ranges"_L1,
         listOf(*metadata->getRange(),
                [](const Range *range) {
                    return QJsonObject{{"max"_L1, range->getRangeMax()}, {"min"_L1, range->getRangeMin()}};
                })},
        {"record"_L1, metadata->getRecord()},
        {"start"_L1, metadata->getStart()},
    };
}

QJsonObject variable(const TDcVariable *variable)
{
    return {
        {"alias"_L1, variable->getAlias()},
        {"decimals"_L1, variable->getDecimals()},
        {"documentation"_L1, variable->getDocumentation()},
        {"fieldSize"_L1, variable->getFieldSize()},
        {"fileName"_L1, variable->getFileName()},
        {"group"_L1, variable->getGroup()},
        {"label"_L1, variable->getLabel()},
        {"layout"_L1, layout(variable->getMetadataVariables())},
        {"local"_L1, variable->getLocal()},
        {"missing"_L1, variable->getMissing()},
        {"name"_L1, variable->getName()},
        {"notapp"_L1, variable->getNotappl()},
        {"size"_L1, variable->getSize()},
        {"tag"_L1, variable->getTag()},
        {"type"_L1, variable->getVarType()},
        {"valueLabels"_L1,
         listOf(*variable->getValueLabelElementList(),
                [](const ValueLabelElement *element) {
                    return QJsonObject{{"label"_L1, element->getLabel()}, {"value"_L1, element->getValue()}};
                })},
    };
}

QJsonObject entity(const Cli::ShownEntity &shown)
{
    const TDcEntity &entity = *shown.entity;
    return {
        {"alias"_L1, entity.getAlias()},
        {"codeVar"_L1, entity.getRefCode()},
        {"documentation"_L1, entity.getDocumentationEntity()},
        {"label"_L1, entity.getLabel()},
        {"labelVar"_L1, entity.getRefLabel()},
        {"level"_L1, entity.getLevel()},
        {"name"_L1, entity.getName()},
        {"parent"_L1, shown.parent ? QJsonValue(shown.parent->getName()) : QJsonValue::Null},
        {"selectable"_L1, entity.getSelectable()},
        {"variables"_L1, listOf(*entity.getVariables(), variable)},
        {"virtual"_L1, entity.getIsvirtual()},
        {"weightVar"_L1, entity.getWeightVariable()},
    };
}
} // namespace

QByteArray Cli::shownAsJson(const QString &path, const QList<ShownEntity> &entities)
{
    const QJsonObject content{{"entities"_L1, listOf(entities, entity)}, {"file"_L1, path}};
    return Text::printableJson(QJsonDocument(content).toJson());
}
