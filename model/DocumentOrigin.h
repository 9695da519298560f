#pragma once

#include "model/model_quillon_export.h"

#include <QExplicitlySharedDataPointer>
#include <QSharedData>

#include <utility>

/// What a document said about an object beyond what the object itself can hold. Only whoever reads and
/// writes documents knows what is in it.
class MODEL_QUILLON_EXPORT DocumentOrigin : public QSharedData
{
public:
    DocumentOrigin() = default;
    virtual ~DocumentOrigin();
    Q_DISABLE_COPY_MOVE(DocumentOrigin)
};

/// Lets an object carry its origin along, wherever it is moved to and for as long as it lives: a table beside
/// the objects would take a new object for a deleted one that had the same address.
class FromDocument
{
public:
    using OriginPointer = QExplicitlySharedDataPointer<const DocumentOrigin>;

    /// Null for an object that no document said anything unusual about.
    [[nodiscard]] const OriginPointer &origin() const { return m_origin; }
    void setOrigin(OriginPointer origin) { m_origin = std::move(origin); }

private:
    OriginPointer m_origin;
};
