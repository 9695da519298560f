#pragma once

#include "model/model_quillon_export.h"

#include <QString>
#include <QtGlobal>

/// One field of a data source, offered for drag and drop onto an entity's variables.
///
/// The properties are plain members on purpose: sources fill them in bulk, and the dataset model numbers the
/// fields it shows through `tag`.
class MODEL_QUILLON_EXPORT TDcSourceField
{
public:
    TDcSourceField() = default;
    ~TDcSourceField() = default;
    Q_DISABLE_COPY_MOVE(TDcSourceField)

    /// What kind of source the field comes from, for instance a statistics package or a text file.
    [[nodiscard]] QString getDataProviderType() { return m_dataProviderType; }
    void setDataProviderType(const QString &dataProviderType) { m_dataProviderType = dataProviderType; }

    /// A type word such as "STRING", "REAL" or "INTEGER".
    [[nodiscard]] QString getFieldType() { return m_fieldType; }
    void setFieldType(const QString &fieldType) { m_fieldType = fieldType; }

    QString name;
    QString label;
    int tag = 0; ///< Position number, counted from 1.
    QString categories; ///< Entries separated by tabs, each a code, a blank and a label.
    QString rangeMin; ///< Lowest valid value as text; empty when not known.
    QString rangeMax; ///< Highest valid value as text; empty when not known.
    int relativePosition = 0; ///< Position of the field in its record.
    int decimals = 0;
    int size = 0; ///< Width of the field in characters.
    QString missing; ///< Code of a missing value as text.
    QString notApp; ///< Code of a value that does not apply as text.
    QString record; ///< Name of the record the field belongs to.

private:
    QString m_dataProviderType;
    QString m_fieldType;
};
