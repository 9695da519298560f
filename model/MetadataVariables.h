#pragma once

#include "model/DocumentOrigin.h"
#include "model/model_quillon_export.h"
#include "model/OwnedList.h"
#include "model/Range.h"

#include <QString>

/// Where a variable's values lie in a source record, and which ranges they may take.
///
/// Owns its ranges.
class MODEL_QUILLON_EXPORT MetadataVariables : public FromDocument
{
public:
    MetadataVariables() = default;
    ~MetadataVariables() = default;
    Q_DISABLE_COPY_MOVE(MetadataVariables)

    /// Name of the source record.
    [[nodiscard]] QString getRecord() const { return m_record; }
    void setRecord(const QString &record) { m_record = record; }

    /// Name of the field in the source.
    [[nodiscard]] QString getField() const { return m_field; }
    void setField(const QString &field) { m_field = field; }

    /// First position in the record, counted from 1; 0 when not known.
    [[nodiscard]] int getStart() const { return m_start; }
    void setStart(int start) { m_start = start; }

    /// Number of positions; 0 when not known.
    [[nodiscard]] int getLength() const { return m_length; }
    void setLength(int length) { m_length = length; }

    /// Whether the values come from a lookup table.
    [[nodiscard]] bool getLookup() const { return m_lookup; }
    void setLookup(bool lookup) { m_lookup = lookup; }

    /// The live list of valid ranges. Never null.
    [[nodiscard]] QList<Range *> *getRange() const { return m_range.get(); }
    /// Takes \a range over; see OwnedList::reset().
    void setRange(QList<Range *> *range) { m_range.reset(range); }
    /// Appends \a range, which the metadata then owns.
    void addItemRange(Range *range) { m_range.append(range); }

private:
    QString m_record;
    QString m_field;
    int m_start = 0;
    int m_length = 0;
    bool m_lookup = false;
    OwnedList<Range> m_range;
};
