#pragma once

#include "cli/Output.h"

#include <QList>
#include <QStringList>

#include <limits>
#include <utility>

namespace Cli
{
/// A table for a terminal: aligned columns, cells of one or more lines. A column whose cells are all empty is
/// not shown. Where the output has a width, the widest columns of texts give way until the table fits.
class Table
{
public:
    enum Alignment { Left, Right };

    static constexpr int unlimited = std::numeric_limits<int>::max();

    struct Column {
        QString title;
        Alignment alignment = Left;
        int most = unlimited; ///< Terminal columns that a text may take before it goes on in the next line.
    };

    /// A line of a cell. Where it is too long, the text goes on below itself; the lead is never broken.
    struct Line {
        Line(QString all) : text(std::move(all)) { }
        Line(QString head, QString rest) : lead(std::move(head)), text(std::move(rest)) { }

        QString lead;
        QString text;
    };
    using Cell = QList<Line>;

    explicit Table(const QList<Column> &columns) : m_columns(columns) { }

    /// Adds a row with one cell for each column.
    void addRow(const QList<Cell> &cells);

    void print(Output &output) const;

private:
    [[nodiscard]] QList<int> widths(int available) const;
    [[nodiscard]] QList<int> leastWidths(int least) const;
    [[nodiscard]] int widthOf(qsizetype column) const;
    [[nodiscard]] int widthOfCells(qsizetype column) const;

    QList<Column> m_columns;
    QList<QList<Cell>> m_rows;
};
} // namespace Cli
