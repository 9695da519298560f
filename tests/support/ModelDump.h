#pragma once

#include "model/Config.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "model/ValueLabelElement.h"
#include "model/VarWipChoice.h"

#include <QJsonArray>
#include <QJsonObject>

/// What objects of the model hold, as JSON, for comparisons: every property that differs from a new object's,
/// under the property's name. Knows nothing of the documents.
namespace ModelDump
{
QJsonValue dump(const Range &range);
QJsonValue dump(const ValueLabelElement &element);
QJsonValue dump(const TDcVariable &variable);
QJsonValue dump(const TDcEntity &entity);
QJsonValue dump(const ConfigEntities &entity);

class Dump
{
public:
    template <typename Value>
    Dump &add(QLatin1StringView property, const Value &value, const Value &initial = {})
    {
        if (value != initial)
            m_object.insert(property, value);
        return *this;
    }

    template <typename Item>
    Dump &addList(QLatin1StringView property, const QList<Item *> &items)
    {
        QJsonArray array;
        for (const Item *item : items)
            array.append(dump(*item));
        return add(property, array);
    }

    operator QJsonValue() const { return m_object; }

private:
    QJsonObject m_object;
};

inline QJsonValue dump(const Range &range)
{
    return QJsonArray{range.getRangeMin(), range.getRangeMax()};
}

inline QJsonValue dump(const ValueLabelElement &element)
{
    return Dump()
        .add(QLatin1StringView("value"), element.getValue())
        .add(QLatin1StringView("label"), element.getLabel());
}

inline QJsonValue dump(const MetadataVariables &metadata)
{
    using namespace Qt::Literals::StringLiterals;
    return Dump()
        .add("record"_L1, metadata.getRecord())
        .add("field"_L1, metadata.getField())
        .add("start"_L1, metadata.getStart())
        .add("length"_L1, metadata.getLength())
        .add("lookup"_L1, metadata.getLookup())
        .addList("range"_L1, *metadata.getRange());
}

inline QJsonValue dump(const TDcVariable &variable)
{
    using namespace Qt::Literals::StringLiterals;
    Dump all;
    all.add("name"_L1, variable.getName())
        .add("label"_L1, variable.getLabel())
        .add("alias"_L1, variable.getAlias())
        .add("group"_L1, variable.getGroup())
        .add("varType"_L1, variable.getVarType())
        .add("documentation"_L1, variable.getDocumentation())
        .add("fileName"_L1, variable.getFileName())
        .add("size"_L1, variable.getSize())
        .add("decimals"_L1, variable.getDecimals())
        .add("fieldSize"_L1, variable.getFieldSize())
        .add("fieldRelativePosition"_L1, variable.getFieldRelativePosition(), 1)
        .add("missing"_L1, variable.getMissing())
        .add("notappl"_L1, variable.getNotappl())
        .add("tag"_L1, variable.getTag())
        .add("checked"_L1, variable.getChecked())
        .add("level"_L1, variable.getLevel())
        .add("local"_L1, variable.getLocal())
        .addList("valueLabels"_L1, *variable.getValueLabelElementList());
    if (variable.getMetadataVariables())
        all.add("metadata"_L1, dump(*variable.getMetadataVariables()), QJsonValue(QJsonValue::Undefined));
    return all;
}

inline QJsonValue dump(const TDcEntity &entity)
{
    using namespace Qt::Literals::StringLiterals;
    return Dump()
        .add("name"_L1, entity.getName())
        .add("label"_L1, entity.getLabel())
        .add("alias"_L1, entity.getAlias())
        .add("refCode"_L1, entity.getRefCode())
        .add("refLabel"_L1, entity.getRefLabel())
        .add("weightVariable"_L1, entity.getWeightVariable())
        .add("documentationEntity"_L1, entity.getDocumentationEntity())
        .add("level"_L1, entity.getLevel(), 1)
        .add("isvirtual"_L1, entity.getIsvirtual())
        .add("selectable"_L1, entity.getSelectable())
        .add("checkDelete"_L1, entity.getCheckDelete())
        .addList("variables"_L1, *entity.getVariables())
        .addList("children"_L1, *entity.getChildren());
}

inline QJsonValue dump(const VarWipChoice &choice)
{
    using namespace Qt::Literals::StringLiterals;
    return Dump()
        .add("dataProvider"_L1, choice.getDataProvider())
        .add("recType"_L1, choice.getRecType())
        .add("field"_L1, choice.getField())
        .add("start"_L1, choice.getStart());
}

inline QJsonValue dump(const ConfigDb &dataBase)
{
    using namespace Qt::Literals::StringLiterals;
    return Dump()
        .add("name"_L1, dataBase.getName())
        .add("label"_L1, dataBase.getLabel())
        .add("author"_L1, dataBase.getAuthor())
        .add("filter"_L1, dataBase.getFilter())
        .add("selectFilter"_L1, dataBase.getSelectFilter())
        .add("fileFilter"_L1, dataBase.getFileFilter())
        .add("folder"_L1, dataBase.getFolder())
        .add("project"_L1, dataBase.getProject())
        .add("sourceFile"_L1, dataBase.getSourceFile())
        .add("password"_L1, dataBase.getPassword());
}

inline QJsonValue dump(const ConfigEntities &entity)
{
    using namespace Qt::Literals::StringLiterals;
    return Dump()
        .add("name"_L1, entity.getName())
        .add("recType"_L1, entity.getRecType())
        .add("allVariables"_L1, entity.getAllVariables())
        .add("checkSequence"_L1, entity.getCheckSequence(), true)
        .add("createSDC"_L1, entity.getCreateSDC())
        .add("checkDelete"_L1, entity.getCheckDelete())
        .add("checkSelectable"_L1, entity.getCheckSelectable())
        .add("variables"_L1, QJsonArray::fromStringList(*entity.getVariables()));
}

inline QJsonValue dump(const Config &config)
{
    using namespace Qt::Literals::StringLiterals;
    const ConfigOptions &options = *config.getOptions();
    return Dump()
        .add("dataBase"_L1, dump(*config.getDataBase()), QJsonValue(QJsonObject()))
        .add("createNotAppMissingInRange"_L1, options.getCreateNotAppMissingInRange())
        .add("createNoRanges"_L1, options.getCreateNoRanges())
        .addList("entities"_L1, *config.getEntities());
}

/// Dumps a list that a reader returned and frees it with its objects; null stands for no list.
template <typename Item>
[[nodiscard]] QJsonValue dumpAndFree(QList<Item *> *items)
{
    if (!items)
        return QJsonValue::Null;
    QJsonArray array;
    for (const Item *item : std::as_const(*items))
        array.append(dump(*item));
    qDeleteAll(*items);
    delete items;
    return array;
}
} // namespace ModelDump
