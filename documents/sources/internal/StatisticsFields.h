#pragma once

#include "documents/sources/internal/FieldText.h"
#include "documents/sources/internal/NumberFormat.h"
#include "documents/sources/SourceResult.h"

#include <QCoreApplication>
#include <QHash>

#include <vector>

#include <readstat.h>

/// What a file kind adds to the length of a text when it stores it.
enum class Padding {
    None,
    EndMark, ///< One character.
    Blocks, ///< Up to the next multiple of a block: only the display format knows the length.
};

/// Where fields come from.
struct Provider {
    QString name; ///< The data provider type of the fields.
    Padding padding = Padding::None;
};

/// Collects what the parser of a data file calls out, and makes source fields of it.
///
/// Labels may come before the variables, after them or from another file, so all is put together at the end.
class StatisticsFields
{
    Q_DECLARE_TR_FUNCTIONS(StatisticsFields)

public:
    explicit StatisticsFields(Provider provider) : m_provider(std::move(provider)) { }

    void addLabel(const char *set, const readstat_value_t &value, const char *label);
    void addVariable(readstat_variable_t *variable, const char *labelSet);
    void addValue(int row, readstat_variable_t *variable, const readstat_value_t &value);

    /// Appends the fields to \a result, all of them in the record \a record.
    void finish(SourceFields &result, const QString &file, const QString &record) const;

    /// The row that is being read, counted from 1; 0 before the first.
    [[nodiscard]] int row() const { return m_row; }

private:
    struct Field {
        QString name;
        QString label;
        QString labelSet;
        readstat_type_t type = READSTAT_TYPE_DOUBLE;
        NumberFormat format;
        int storageWidth = 0;
        CodeList missing;
        ObservedNumbers numbers;
        qsizetype observedLength = 0;
        quint32 tags = 0; ///< Missing values ".a" to ".z" that occur, one bit each.
    };
    struct Labels {
        QString categories;
        CodeList missing; ///< Labelled codes that are missing by their nature.
        QStringList unusable; ///< Codes that a category text cannot hold.
    };

    void writeNumber(const Field &field, TDcSourceField &item) const;
    [[nodiscard]] const Labels *labelsOf(const Field &field) const;
    [[nodiscard]] int stringSize(const Field &field) const;

    Provider m_provider;
    std::vector<Field> m_fields;
    QHash<QString, Labels> m_labels;
    int m_row = 0;
};
