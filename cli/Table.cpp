#include "cli/Table.h"

#include "cli/Text.h"

#include <algorithm>
#include <numeric>

using namespace Qt::Literals::StringLiterals;
using Cli::Table;

namespace
{
constexpr int gap = 2;
// What a column of texts keeps while the others can still give way, and what it keeps in any case.
constexpr int readable = 8;
constexpr int narrowest = 4;

QString blanks(int count)
{
    return QString(std::max(0, count), u' ');
}

/// The lines on the screen that \a cell takes in a column of \a width whose texts take \a most at most.
QStringList broken(const Table::Cell &cell, int width, int most)
{
    QStringList lines;
    for (const Table::Line &line : cell) {
        const int indent = Cli::Text::width(line.lead);
        const int room = std::max(1, std::min(width - indent, most));
        QString lead = line.lead;
        for (const QString &part : Cli::Text::width(line.text) <= room
                 ? QStringList(line.text)
                 : Cli::Text::wrapped(line.text, room)) {
            lines.append(lead + part);
            lead = blanks(indent);
        }
    }
    return lines;
}

int widest(const QStringList &lines)
{
    return std::accumulate(lines.cbegin(), lines.cend(), 0, [](int width, const QString &line) {
        return std::max(width, Cli::Text::width(line));
    });
}

/// The widest column that can give way; -1 when there is none.
qsizetype yielding(const QList<int> &widths, const QList<int> &limits)
{
    qsizetype widest = -1;
    for (qsizetype column = 0; column < widths.size(); ++column) {
        if (widths.at(column) > limits.at(column) && (widest < 0 || widths.at(column) > widths.at(widest)))
            widest = column;
    }
    return widest;
}

QString withoutTrailingBlanks(QString line)
{
    while (line.endsWith(u' '))
        line.chop(1);
    return line;
}

/// One row on the screen. Columns of width 0 are left out.
QStringList rowLines(const QList<QStringList> &cells, const QList<int> &widths,
                     const QList<Table::Column> &columns)
{
    const auto taller = [](const QStringList &left, const QStringList &right) {
        return left.size() < right.size();
    };
    const qsizetype height = std::max_element(cells.cbegin(), cells.cend(), taller)->size();
    QStringList lines;
    for (qsizetype i = 0; i < height; ++i) {
        QString line;
        for (qsizetype column = 0; column < cells.size(); ++column) {
            if (widths.at(column) == 0)
                continue;
            if (!line.isEmpty())
                line += blanks(gap);
            const QString text = cells.at(column).value(i);
            const QString padding = blanks(widths.at(column) - Cli::Text::width(text));
            line += columns.at(column).alignment == Table::Right ? padding + text : text + padding;
        }
        lines.append(withoutTrailingBlanks(line));
    }
    return lines;
}
} // namespace

namespace Cli
{
void Table::addRow(const QList<Cell> &cells)
{
    Q_ASSERT(cells.size() == m_columns.size());
    m_rows.append(cells);
}

void Table::print(Output &output) const
{
    const QList<int> wanted = widths(output.columns());
    QList<QStringList> cells;
    for (qsizetype column = 0; column < m_columns.size(); ++column)
        cells.append(wanted.at(column) == 0
                         ? QStringList()
                         : broken({m_columns.at(column).title}, wanted.at(column), unlimited));
    for (const QString &line : rowLines(cells, wanted, m_columns))
        output.line(output.faint(line));
    for (const QList<Cell> &row : m_rows) {
        for (qsizetype column = 0; column < m_columns.size(); ++column)
            cells[column] = broken(row.at(column), wanted.at(column), m_columns.at(column).most);
        for (const QString &line : rowLines(cells, wanted, m_columns))
            output.line(line);
    }
}

/// The width of each column; 0 for an empty one. \a available is that of the table, 0 for any.
QList<int> Table::widths(int available) const
{
    QList<int> widths;
    for (qsizetype column = 0; column < m_columns.size(); ++column)
        widths.append(widthOf(column));
    const auto shown = std::count_if(widths.cbegin(), widths.cend(), [](int width) { return width > 0; });
    int excess = std::accumulate(widths.cbegin(), widths.cend(), int(shown - 1) * gap) - available;
    if (available == 0 || excess <= 0)
        return widths;
    for (const int least : {readable, narrowest}) {
        const QList<int> limits = leastWidths(least);
        while (excess > 0) {
            const qsizetype column = yielding(widths, limits);
            if (column < 0)
                break;
            --widths[column];
            --excess;
        }
    }
    return widths;
}

/// What each column keeps: texts \a least, numbers what they and the words of their title need.
QList<int> Table::leastWidths(int least) const
{
    QList<int> widths;
    for (qsizetype column = 0; column < m_columns.size(); ++column) {
        const auto &[title, alignment, most] = m_columns.at(column);
        widths.append(alignment == Left ? least : std::max(widthOfCells(column), widest(title.split(u' '))));
    }
    return widths;
}

int Table::widthOf(qsizetype column) const
{
    const int width = widthOfCells(column);
    return width == 0 ? 0 : std::max(width, Text::width(m_columns.at(column).title));
}

int Table::widthOfCells(qsizetype column) const
{
    int width = 0;
    for (const QList<Cell> &row : m_rows)
        width = std::max(width, widest(broken(row.at(column), unlimited, m_columns.at(column).most)));
    return width;
}

} // namespace Cli
