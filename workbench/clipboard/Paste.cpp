#include "workbench/clipboard/Paste.h"

#include "workbench/clipboard/PasteTarget.h"

#include <QHash>
#include <QLocale>
#include <QSet>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr qsizetype mostNamed = 10; // Columns that a message names before it only counts.
constexpr qsizetype mostQuoted = 60; // Characters of a text that a message quotes.

QString folded(const QString &name)
{
    return name.trimmed().toCaseFolded();
}

QString excerpt(const QString &text)
{
    const QString line = text.simplified();
    return line.size() <= mostQuoted ? line : line.left(mostQuoted) + u'…';
}

/// The columns by name.
QHash<QString, int> positions(const PasteTarget &target)
{
    QHash<QString, int> positions;
    const QList<PasteTarget::Column> columns = target.columns();
    // What a name means in the interface's language comes before what it means in English.
    for (qsizetype i = 0; i < columns.size(); ++i)
        positions.insert(folded(columns.at(i).english), int(i));
    for (qsizetype i = 0; i < columns.size(); ++i)
        positions.insert(folded(columns.at(i).name), int(i));
    return positions;
}

} // namespace

/// A row of text and where it goes.
struct Paste::Record {
    const TabText::Row *source;
    int row; ///< Of the target.
};

// Names of columns are words, and each stands there once; a good part of them is known, or a key.
bool Paste::hasHeader(const PasteTarget &target, const TabText &table)
{
    if (table.rows.size() < 2)
        return false;
    const QHash<QString, int> known = positions(target);
    const QList<int> keys = target.keyColumns();
    QSet<QString> seen;
    qsizetype named = 0;
    bool key = false;
    for (const QString &cell : table.rows.first().cells) {
        const QString name = folded(cell);
        bool isNumber = false;
        (void)name.toDouble(&isNumber);
        if (name.isEmpty())
            continue;
        if (isNumber || seen.contains(name))
            return false;
        seen.insert(name);
        named += known.contains(name) ? 1 : 0;
        key = key || keys.contains(known.value(name, -1));
    }
    return named > 0 && (key || named * 2 >= seen.size());
}

void Paste::refuse(int line, const QString &what, const QString &why)
{
    refusals.append({line, what, why});
}

void Paste::takeHeader(const PasteTarget &target, const TabText::Row &header)
{
    const QHash<QString, int> known = positions(target);
    QStringList unknown;
    qsizetype count = 0;
    for (const QString &cell : header.cells) {
        const int column = known.value(folded(cell), -1);
        // Two names of one column, in two languages: the first counts.
        const bool free = column >= 0 && !m_columns.contains(column);
        m_columns.append(free ? column : -1);
        if (free || cell.trimmed().isEmpty())
            continue;
        if (++count <= mostNamed)
            unknown.append(excerpt(cell));
    }
    if (count == 0)
        return;
    const QString names = unknown.join(u", "_s);
    refuse(header.line,
           count > mostNamed ? tr("%1 and %L2 more").arg(names, QLocale().toString(count - mostNamed))
                             : names,
           count == 1 ? tr("There is no such column, so it was left out.")
                      : tr("There are no such columns, so they were left out."));
}

QList<Paste::Record> Paste::place(PasteTarget &target, const QList<TabText::Row> &rows, int firstRow)
{
    QList<qsizetype> keyCells;
    if (firstRow < 0) {
        const QList<int> keyColumns = target.keyColumns();
        std::transform(keyColumns.cbegin(), keyColumns.cend(), std::back_inserter(keyCells),
                       [this](int column) { return m_columns.indexOf(column); });
    }
    QList<Record> records;
    for (const TabText::Row &source : rows) {
        const bool blank = std::all_of(source.cells.cbegin(), source.cells.cend(),
                                       [](const QString &cell) { return cell.trimmed().isEmpty(); });
        QStringList keys;
        std::transform(keyCells.cbegin(), keyCells.cend(), std::back_inserter(keys),
                       [&source](qsizetype cell) { return source.cells.value(cell); });
        int row = keys.isEmpty() ? std::exchange(firstRow, firstRow + 1) : target.find(keys);
        const bool beyond = row < 0 || row >= target.rowCount();
        if (blank && (beyond || !keys.isEmpty()))
            continue;
        if (beyond) {
            row = target.rowCount();
            target.add(keys);
            m_added.insert(row);
        }
        records.append({&source, row});
    }
    return records;
}

Paste Paste::into(PasteTarget &target, const TabText &table, int row, int column, const Progress &progress)
{
    Paste paste;
    paste.error = table.error;
    if (paste.error.isEmpty() && table.rows.isEmpty())
        paste.error = tr("There is no text on the clipboard.");
    if (!paste.error.isEmpty())
        return paste;

    QList<TabText::Row> rows = table.rows;
    int firstRow = std::max(row, 0);
    const bool header = hasHeader(target, table);
    if (header) {
        paste.takeHeader(target, rows.takeFirst());
        const QList<int> keys = target.keyColumns();
        const bool byKey = std::all_of(keys.cbegin(), keys.cend(),
                                       [&paste](int key) { return paste.m_columns.contains(key); });
        firstRow = byKey ? -1 : firstRow;
    } else {
        for (int i = std::max(column, 0); i < target.displayedColumns(); ++i)
            paste.m_columns.append(i);
    }

    const QList<Record> records = paste.place(target, rows, firstRow);
    for (qsizetype i = 0; i < records.size(); ++i) {
        if (progress && !progress(int(i), int(records.size()))) {
            paste.refuse(records.at(i).source->line, tr("This line and those below"),
                         tr("Pasting was stopped."));
            break;
        }
        paste.store(target, records.at(i));
    }
    for (int added : std::as_const(paste.m_added)) {
        if (!paste.m_pasted.contains(added))
            target.discard(added);
    }
    target.finish();
    return paste;
}

void Paste::store(PasteTarget &target, const Record &record)
{
    const QStringList &cells = record.source->cells;
    const qsizetype count = std::min(cells.size(), m_columns.size());
    bool any = false;
    for (qsizetype i = 0; i < count; ++i) {
        const int column = m_columns.at(i);
        const QString why = column < 0 ? QString() : target.store(record.row, column, cells.at(i));
        any = any || (column >= 0 && why.isEmpty());
        if (why.isEmpty())
            continue;
        refuse(record.source->line,
               tr("%1 \"%2\"").arg(target.columns().at(column).name, excerpt(cells.at(i))), why);
        // A new row without its key is none.
        if (m_added.contains(record.row) && target.keyColumns().contains(column))
            return;
    }
    if (any)
        m_pasted.insert(record.row);
    if (std::any_of(cells.cbegin() + count, cells.cend(),
                    [](const QString &cell) { return !cell.isEmpty(); }))
        refuse(record.source->line, tr("Cells after the first %L1").arg(count),
               tr("There is no column for them."));
}

QStringList Paste::report() const
{
    QStringList lines;
    std::transform(refusals.cbegin(), refusals.cend(), std::back_inserter(lines), [](const Refusal &refusal) {
        return tr("Line %L1: %2. %3", "what was refused, and why")
            .arg(refusal.line)
            .arg(refusal.what, refusal.why);
    });
    return lines;
}
