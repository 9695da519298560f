#pragma once

#include "business/business_quillon_export.h"
#include "model/Config.h"

#include <QJsonDocument>
#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>

/// Converts a run configuration to a document and back. Stateless.
///
/// Reading and writing are not inverse, on purpose; the field tables in RunCreationBusiness.cpp show every
/// difference. The reader rejects nothing.
class BUSINESS_QUILLON_EXPORT RunCreationBusiness
{
public:
    /// The document of \a config, whose three parts must be there. The password is written in clear text.
    [[nodiscard]] QJsonDocument exportConfigToJson(Config *config);

    /// Reads a document's root object into a new configuration, which belongs to the caller. A part that the
    /// document lacks stays as Config made it.
    [[nodiscard]] Config *recorrerNodosEntitiesJsonYCargaEstructuraConfig(QMap<QString, QVariant> root);

    /// The texts of the elements of \a value in a new list, which belongs to the caller. Only lists have
    /// elements here; any other value, a text too, gives an empty list.
    [[nodiscard]] QList<QString> *recorrerVariablesNodosJson(QVariant value);
};
