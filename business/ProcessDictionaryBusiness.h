#pragma once

#include "business/business_quillon_export.h"
#include "model/TDcEntity.h"
#include "model/VarWipChoice.h"

#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>

/// Converts an entity tree to a dictionary document and back. Stateless.
///
/// Reading and writing are not inverse, on purpose; the field tables in internal/DictionaryFields.h show
/// every difference. The readers reject nothing: keys they do not know are ignored, missing ones leave the
/// defaults and values of the wrong type go through QVariant's conversions. A list is whatever
/// QVariant::toList() makes of a value, so a text counts as the list of its characters.
///
/// Lists and objects that a reader returns belong to the caller. A standard exception is written to the
/// debug log and ends the reading (or writing) where it occurs.
class BUSINESS_QUILLON_EXPORT ProcessDictionaryBusiness
{
public:
    /// Fills \a out, the caller's, with the entity object of \a entity and everything below it.
    void getStructuraTreeRootToJson(TDcEntity *entity, QJsonObject *out);

    /// Reads the entities under "entities" or, when there is no such key, under "root". They get
    /// \a parentLevel + 1 as their level. Null when neither key is there and after an exception.
    [[nodiscard]] QList<TDcEntity *> *recorrerNodosJsonYCargaEstructuraEntidades(QMap<QString, QVariant> node,
                                                                                 int parentLevel);

    /// Reads the value of a "variables" key.
    [[nodiscard]] QList<TDcVariable *> *recorrerVariablesNodosJson(QVariant value);
    /// Applies what \a object holds under \a key to \a variable; unknown keys do nothing.
    void loadItemFromVariables(QString key, TDcVariable *variable, QMap<QString, QVariant> object);
    /// Reads the value of a "range" key. Bounds of a single object lose their fractions.
    [[nodiscard]] QList<Range *> *itemVariableSubitemRange(QVariant value);
    /// Fills \a choice from the object that \a object holds under \a key.
    void loadItemVariableSubitemVarWipChoice(VarWipChoice *choice, QMap<QString, QVariant> object,
                                             QString key);

    /// Reads the value of a "valueLabels" key.
    [[nodiscard]] QList<ValueLabelElement *> *recorrerValoresPorVariablesNodosJson(QVariant value);
    /// Reads a vector of objects that hold value labels under "valueLabelElement", joined in order.
    [[nodiscard]] QList<ValueLabelElement *> *recorrerVectorValoresPorVariablesNodosJson(QVariant value);
};
