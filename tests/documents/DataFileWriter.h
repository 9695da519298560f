#pragma once

#include <QByteArray>
#include <QFile>
#include <QList>
#include <QString>
#include <QTest>

#include <cmath>
#include <memory>
#include <vector>

#include <readstat.h>

/// Makes small data files for tests, with the library that also reads them.
class DataFileWriter
{
public:
    using Begin = readstat_error_t (*)(readstat_writer_t *writer, void *context, long rows);

    explicit DataFileWriter(Begin begin) : m_begin(begin)
    {
        readstat_set_data_writer(engine(), [](const void *data, size_t length, void *bytes) {
            static_cast<QByteArray *>(bytes)->append(static_cast<const char *>(data), qsizetype(length));
            return ssize_t(length);
        });
        readstat_writer_set_file_timestamp(engine(), 1600000000);
    }

    [[nodiscard]] readstat_writer_t *engine() const { return m_engine.get(); }

    /// A column of numbers; NaN is written as a missing value.
    readstat_variable_t *addNumbers(const char *name, const char *label, const char *format,
                                    const QList<double> &values, readstat_type_t type = READSTAT_TYPE_DOUBLE)
    {
        return add({name, label, format, type, 8, values, {}});
    }

    readstat_variable_t *addTexts(const char *name, const char *label, size_t width,
                                  const QList<QByteArray> &values)
    {
        return add({name, label, "", READSTAT_TYPE_STRING, width, {}, values});
    }

    /// Ends the writing and returns the file's content.
    [[nodiscard]] QByteArray bytes()
    {
        const qsizetype rows = m_columns.empty() ? 0 : m_columns.front().size();
        require(m_begin(engine(), &m_bytes, long(rows)));
        for (qsizetype row = 0; row < rows; ++row) {
            require(readstat_begin_row(engine()));
            for (const Column &column : m_columns)
                require(insert(column, row));
            require(readstat_end_row(engine()));
        }
        require(readstat_end_writing(engine()));
        return m_bytes;
    }

private:
    struct Column {
        const char *name;
        const char *label;
        const char *format;
        readstat_type_t type;
        size_t width;
        QList<double> numbers;
        QList<QByteArray> texts;
        readstat_variable_t *variable = nullptr;

        [[nodiscard]] qsizetype size() const { return std::max(numbers.size(), texts.size()); }
    };

    static void require(readstat_error_t error)
    {
        if (error != READSTAT_OK)
            qFatal("Writing a data file: %s", readstat_error_message(error));
    }

    readstat_variable_t *add(Column column)
    {
        column.variable = readstat_add_variable(engine(), column.name, column.type, column.width);
        readstat_variable_set_label(column.variable, column.label);
        if (*column.format)
            readstat_variable_set_format(column.variable, column.format);
        m_columns.push_back(column);
        return column.variable;
    }

    [[nodiscard]] readstat_error_t insert(const Column &column, qsizetype row) const
    {
        if (column.type == READSTAT_TYPE_STRING)
            return readstat_insert_string_value(engine(), column.variable, column.texts.at(row).constData());
        const double value = column.numbers.at(row);
        if (std::isnan(value))
            return readstat_insert_missing_value(engine(), column.variable);
        switch (column.type) {
        case READSTAT_TYPE_INT8:
            return readstat_insert_int8_value(engine(), column.variable, int8_t(value));
        case READSTAT_TYPE_INT16:
            return readstat_insert_int16_value(engine(), column.variable, int16_t(value));
        case READSTAT_TYPE_INT32:
            return readstat_insert_int32_value(engine(), column.variable, int32_t(value));
        case READSTAT_TYPE_FLOAT:
            return readstat_insert_float_value(engine(), column.variable, float(value));
        default:
            return readstat_insert_double_value(engine(), column.variable, value);
        }
    }

    Begin m_begin;
    std::unique_ptr<readstat_writer_t, decltype(&readstat_writer_free)> m_engine{readstat_writer_init(),
                                                                                 readstat_writer_free};
    std::vector<Column> m_columns;
    QByteArray m_bytes;
};
