#include "cli/Table.h"

#include "cli/Text.h"

#include <algorithm>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr int gap = 2;

QString padded(const QString &text, int width, Cli::Table::Alignment alignment)
{
    const QString blanks(std::max(0, width - Cli::Text::width(text)), u' ');
    return alignment == Cli::Table::Right ? blanks + text : text + blanks;
}

int widest(const QStringList &lines)
{
    return std::accumulate(lines.cbegin(), lines.cend(), 0, [](int width, const QString &line) {
        return std::max(width, Cli::Text::width(line));
    });
}

QString withoutTrailingBlanks(QString line)
{
    while (line.endsWith(u' '))
        line.chop(1);
    return line;
}
} // namespace

namespace Cli
{
Table::Table(const QList<Column> &columns) : m_columns(columns), m_widths(columns.size(), 0) { }

void Table::addRow(const QList<QStringList> &cells)
{
    Q_ASSERT(cells.size() == m_columns.size());
    std::transform(cells.cbegin(), cells.cend(), m_widths.cbegin(), m_widths.begin(),
                   [](const QStringList &cell, int width) { return std::max(width, widest(cell)); });
    m_rows.append(cells);
}

void Table::print(Output &output) const
{
    QList<QStringList> titles;
    std::transform(m_columns.cbegin(), m_columns.cend(), std::back_inserter(titles),
                   [](const Column &column) { return QStringList(column.title); });
    printRow(output, titles, true);
    for (const QList<QStringList> &row : m_rows)
        printRow(output, row, false);
}

void Table::printRow(Output &output, const QList<QStringList> &cells, bool heading) const
{
    const auto taller = [](const QStringList &left, const QStringList &right) {
        return left.size() < right.size();
    };
    const qsizetype height = std::max_element(cells.cbegin(), cells.cend(), taller)->size();
    for (qsizetype i = 0; i < height; ++i) {
        QString line;
        for (qsizetype column = 0; column < cells.size(); ++column) {
            if (m_widths.at(column) == 0)
                continue;
            if (!line.isEmpty())
                line += QString(gap, u' ');
            const int width = std::max(m_widths.at(column), Text::width(m_columns.at(column).title));
            line += padded(cells.at(column).value(i), width, m_columns.at(column).alignment);
        }
        line = withoutTrailingBlanks(line);
        output.line(heading ? output.faint(line) : line);
    }
}
} // namespace Cli
