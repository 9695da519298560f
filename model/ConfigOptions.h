#pragma once

#include "model/DocumentOrigin.h"
#include "model/model_quillon_export.h"

#include <QtGlobal>

/// The options of a run.
class MODEL_QUILLON_EXPORT ConfigOptions : public FromDocument
{
public:
    ConfigOptions() = default;
    ~ConfigOptions() = default;
    Q_DISABLE_COPY_MOVE(ConfigOptions)

    [[nodiscard]] bool getCreateNotAppMissingInRange() const { return m_createNotAppMissingInRange; }
    void setCreateNotAppMissingInRange(bool createNotAppMissingInRange)
    {
        m_createNotAppMissingInRange = createNotAppMissingInRange;
    }

    [[nodiscard]] bool getCreateNoRanges() const { return m_createNoRanges; }
    void setCreateNoRanges(bool createNoRanges) { m_createNoRanges = createNoRanges; }

private:
    bool m_createNotAppMissingInRange = false;
    bool m_createNoRanges = false;
};
