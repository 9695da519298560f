#pragma once

#include "model/model_quillon_export.h"

#include <QString>

/// A reference to a lookup table.
class MODEL_QUILLON_EXPORT TDcLookup
{
public:
    TDcLookup() = default;
    ~TDcLookup() = default;
    Q_DISABLE_COPY_MOVE(TDcLookup)

    [[nodiscard]] QString getId() const { return m_id; }
    void setId(const QString &id) { m_id = id; }

    [[nodiscard]] QString getLabel() const { return m_label; }
    void setLabel(const QString &label) { m_label = label; }

private:
    QString m_id;
    QString m_label;
};
