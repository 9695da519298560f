#include "business/RunCreationBusiness.h"

#include "business/internal/DocumentFields.h"
#include "model/Config.h"

using namespace Document;
using namespace Qt::Literals::StringLiterals;

// The run configuration, key by key. Reader and writer differ on purpose; a comment marks each difference.
namespace
{
/// Folders are written with "/" wherever the configuration was made, so that every platform can read them.
template <auto get>
QJsonValue path(const ConfigDb &dataBase)
{
    QString path = get_<get>(dataBase);
    return path.isEmpty() ? leftOut() : QJsonValue(path.replace(u'\\', u'/'));
}

constexpr Field<ConfigDb> dataBaseFields[] = {
    // Read under a key of its own, never written.
    {"XXXproject"_L1, neverWritten, text<&ConfigDb::setProject>},
    {"author"_L1, textUnlessEmpty<&ConfigDb::getAuthor>, neverRead},
    {"fileFilter"_L1, neverWritten, text<&ConfigDb::setFileFilter>},
    {"filter"_L1, neverWritten, text<&ConfigDb::setFilter>},
    // Read as it stands: the separators do not become native again.
    {"folder"_L1, path<&ConfigDb::getFolder>, text<&ConfigDb::setFolder>},
    {"label"_L1, textUnlessEmpty<&ConfigDb::getLabel>, neverRead},
    {"name"_L1, textUnlessEmpty<&ConfigDb::getName>, text<&ConfigDb::setName>},
    {"password"_L1, textUnlessEmpty<&ConfigDb::getPassword>, text<&ConfigDb::setPassword>},
    {"selectFilter"_L1, neverWritten, text<&ConfigDb::setSelectFilter>},
    {"sourceFile"_L1, path<&ConfigDb::getSourceFile>, text<&ConfigDb::setSourceFile>},
};

constexpr Field<ConfigOptions> optionFields[] = {
    {"createNoRanges"_L1, always<&ConfigOptions::getCreateNoRanges>, flag<&ConfigOptions::setCreateNoRanges>},
    {"createNotAppMissingInRange"_L1, always<&ConfigOptions::getCreateNotAppMissingInRange>,
     flag<&ConfigOptions::setCreateNotAppMissingInRange>},
};

QJsonValue writeNames(const ConfigEntities &entity)
{
    const QJsonArray names = QJsonArray::fromStringList(*entity.getVariables());
    return names.isEmpty() ? leftOut() : QJsonValue(names);
}

/// A text is no list of names here, however it is encoded.
void readNames(ConfigEntities &entity, const QVariant &value, Form)
{
    if (value.typeId() == QMetaType::QString || value.typeId() == QMetaType::QByteArray)
        return;
    forEachElement(value, [&entity](const QVariant &name) { entity.addVariables(name.toString()); });
}

constexpr Field<ConfigEntities> entityFields[] = {
    {"allVariables"_L1, always<&ConfigEntities::getAllVariables>, flag<&ConfigEntities::setAllVariables>},
    // Written only to say no: without the key the sequence is checked.
    {"checkSequence"_L1, onlyWhen<&ConfigEntities::getCheckSequence, false>,
     flag<&ConfigEntities::setCheckSequence>},
    // Written only to say yes.
    {"createSDC"_L1, onlyWhen<&ConfigEntities::getCreateSDC, true>, flag<&ConfigEntities::setCreateSDC>},
    {"delete"_L1, neverWritten, flag<&ConfigEntities::setCheckDelete>},
    {"name"_L1, textUnlessEmpty<&ConfigEntities::getName>, text<&ConfigEntities::setName>},
    {"recType"_L1, textUnlessEmpty<&ConfigEntities::getRecType>, text<&ConfigEntities::setRecType>},
    {"selectable"_L1, neverWritten, flag<&ConfigEntities::setCheckSelectable>},
    {"variables"_L1, writeNames, readNames},
};

/// Makes a part of the configuration anew and fills it from \a value.
template <auto set, typename Part, std::size_t Size>
void readPart(Config &config, const Field<Part> (&fields)[Size], const QVariant &value)
{
    auto part = std::make_unique<Part>();
    withObject(value, [&](const QVariantMap &object) { read(fields, *part, object); });
    (config.*set)(part.release());
}

void readEntities(Config &config, const QVariant &value, Form)
{
    OwnedList<ConfigEntities> entities;
    forEachElement(value, [&entities](const QVariant &element) {
        auto entity = std::make_unique<ConfigEntities>();
        withObject(element, [&entity](const QVariantMap &object) { read(entityFields, *entity, object); });
        entities.append(std::move(entity));
    });
    if (!entities.get()->isEmpty())
        config.setEntities(entities.release());
}

constexpr Field<Config> configFields[] = {
    {"database"_L1,
     [](const Config &config) { return QJsonValue(write(dataBaseFields, *config.getDataBase())); },
     [](Config &config, const QVariant &value, Form) {
         readPart<&Config::setDataBase>(config, dataBaseFields, value);
     }},
    {"entities"_L1,
     [](const Config &config) {
         const QJsonValue entities = writeArray(entityFields, *config.getEntities(), std::identity());
         return entities.isUndefined() ? QJsonValue(QJsonArray()) : entities;
     },
     readEntities},
    {"options"_L1, [](const Config &config) { return QJsonValue(write(optionFields, *config.getOptions())); },
     [](Config &config, const QVariant &value, Form) {
         readPart<&Config::setOptions>(config, optionFields, value);
     }},
    {"type"_L1, [](const Config &) { return QJsonValue("config"_L1); }, neverRead},
};

static_assert(ascends(dataBaseFields) && ascends(optionFields) && ascends(entityFields)
              && ascends(configFields));
} // namespace

QJsonDocument RunCreationBusiness::exportConfigToJson(Config *config)
{
    return QJsonDocument(write(configFields, *config));
}

Config *RunCreationBusiness::recorrerNodosEntitiesJsonYCargaEstructuraConfig(QMap<QString, QVariant> root)
{
    auto config = std::make_unique<Config>();
    read(configFields, *config, root);
    return config.release();
}

QList<QString> *RunCreationBusiness::recorrerVariablesNodosJson(QVariant value)
{
    ConfigEntities entity;
    readNames(entity, value, Form::Element);
    return new QList<QString>(*entity.getVariables());
}
