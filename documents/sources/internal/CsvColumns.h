#pragma once

#include <QStringList>

#include <algorithm>

/// Finds named columns in the rows of a text file, whatever their order and letter case.
class CsvColumns
{
public:
    /// \a names are the columns in the order that they have without a header row.
    explicit CsvColumns(const QStringList &names) : m_names(names)
    {
        for (qsizetype i = 0; i < names.size(); ++i)
            m_positions.append(i);
    }

    /// Takes the names from a header row. Columns that it does not name have no cells.
    void setHeader(const QStringList &cells)
    {
        std::transform(m_names.cbegin(), m_names.cend(), m_positions.begin(), [&cells](const QString &name) {
            const auto named = [&name](const QString &cell) {
                return cell.compare(name, Qt::CaseInsensitive) == 0;
            };
            const auto found = std::find_if(cells.cbegin(), cells.cend(), named);
            return found == cells.cend() ? -1 : found - cells.cbegin();
        });
    }

    [[nodiscard]] bool has(qsizetype column) const { return m_positions.at(column) >= 0; }
    /// The cell of column \a column in \a cells; empty where there is none.
    [[nodiscard]] QString cell(const QStringList &cells, qsizetype column) const
    {
        return cells.value(m_positions.at(column));
    }

private:
    QStringList m_names;
    QList<qsizetype> m_positions;
};
