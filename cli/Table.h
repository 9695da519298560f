#pragma once

#include "cli/Output.h"

#include <QList>
#include <QStringList>

namespace Cli
{
/// A table for a terminal: aligned columns, cells of one or more lines. A column whose cells are all empty is
/// not shown.
class Table
{
public:
    enum Alignment { Left, Right };

    struct Column {
        QString title;
        Alignment alignment = Left;
    };

    explicit Table(const QList<Column> &columns);

    /// Adds a row with one cell for each column; a cell is a list of lines.
    void addRow(const QList<QStringList> &cells);

    void print(Output &output) const;

private:
    void printRow(Output &output, const QList<QStringList> &cells, bool heading) const;

    QList<Column> m_columns;
    QList<int> m_widths; ///< Of the cells alone; 0 for an empty column.
    QList<QList<QStringList>> m_rows;
};
} // namespace Cli
