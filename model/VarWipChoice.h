#pragma once

#include "model/model_quillon_export.h"

#include <QString>

/// Where a variable's data come from in a work file.
class MODEL_QUILLON_EXPORT VarWipChoice
{
public:
    VarWipChoice() = default;
    ~VarWipChoice() = default;
    Q_DISABLE_COPY_MOVE(VarWipChoice)

    [[nodiscard]] QString getDataProvider() const { return m_dataProvider; }
    void setDataProvider(const QString &dataProvider) { m_dataProvider = dataProvider; }

    [[nodiscard]] QString getRecType() const { return m_recType; }
    void setRecType(const QString &recType) { m_recType = recType; }

    [[nodiscard]] QString getField() const { return m_field; }
    void setField(const QString &field) { m_field = field; }

    /// First position in the record, counted from 1; 0 when not known.
    [[nodiscard]] int getStart() const { return m_start; }
    void setStart(int start) { m_start = start; }

private:
    QString m_dataProvider;
    QString m_recType;
    QString m_field;
    int m_start = 0;
};
