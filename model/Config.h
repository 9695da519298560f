#pragma once

#include "model/ConfigDb.h"
#include "model/ConfigEntities.h"
#include "model/ConfigOptions.h"
#include "model/DocumentOrigin.h"
#include "model/model_quillon_export.h"
#include "model/OwnedList.h"

#include <memory>

/// A run configuration: a database, options and the entities that take part. Owns its three parts.
class MODEL_QUILLON_EXPORT Config : public FromDocument
{
public:
    Config() = default;
    ~Config() = default;
    Q_DISABLE_COPY_MOVE(Config)

    [[nodiscard]] ConfigDb *getDataBase() const { return m_dataBase.get(); }
    /// Takes \a dataBase over and deletes the one before, unless it is the same.
    void setDataBase(ConfigDb *dataBase);

    [[nodiscard]] ConfigOptions *getOptions() const { return m_options.get(); }
    /// Takes \a options over and deletes the ones before, unless they are the same.
    void setOptions(ConfigOptions *options);

    /// The live list of entities in the order of the document. Never null.
    [[nodiscard]] QList<ConfigEntities *> *getEntities() const { return m_entities.get(); }
    /// Takes \a entities over; see OwnedList::reset().
    void setEntities(QList<ConfigEntities *> *entities) { m_entities.reset(entities); }

private:
    std::unique_ptr<ConfigDb> m_dataBase = std::make_unique<ConfigDb>();
    std::unique_ptr<ConfigOptions> m_options = std::make_unique<ConfigOptions>();
    OwnedList<ConfigEntities> m_entities;
};
