#pragma once

#include "model/DocumentOrigin.h"
#include "model/model_quillon_export.h"

#include <QString>
#include <utility>

/// One category of a variable: a code and what it stands for. The code is text for every type of variable.
class MODEL_QUILLON_EXPORT ValueLabelElement : public FromDocument
{
public:
    ValueLabelElement() = default;
    ~ValueLabelElement() = default;
    Q_DISABLE_COPY_MOVE(ValueLabelElement)

    [[nodiscard]] QString getValue() const { return m_value; }
    void setValue(QString value) { m_value = std::move(value); }

    [[nodiscard]] QString getLabel() const { return m_label; }
    void setLabel(const QString &label) { m_label = label; }

private:
    QString m_value;
    QString m_label;
};
