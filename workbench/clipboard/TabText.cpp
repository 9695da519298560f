#include "workbench/clipboard/TabText.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr auto quote = u'"';

bool isBinary(QChar character)
{
    return character.unicode() < u' ' && !character.isSpace();
}

QString plainText(QString text)
{
    text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    while (text.endsWith(QChar::Null)) // Some programs count the end of their text in.
        text.chop(1);
    return text;
}

/// Reads the cell that begins at \a at and moves there behind it. False when its quotation mark never closes.
bool readCell(QStringView text, qsizetype &at, QString &cell)
{
    if (at < text.size() && text.at(at) == quote) {
        for (++at;; ++at) {
            const qsizetype end = text.indexOf(quote, at);
            if (end < 0)
                return false;
            cell += text.sliced(at, end - at);
            at = end + 1;
            if (at >= text.size() || text.at(at) != quote)
                break;
            cell += quote;
        }
    }
    const auto rest = text.sliced(at);
    const auto *const end = std::find_if(
        rest.cbegin(), rest.cend(), [](QChar character) { return character == u'\t' || character == u'\n'; });
    cell += rest.first(end - rest.cbegin());
    at += end - rest.cbegin();
    return true;
}

QString quoted(const QString &cell)
{
    const bool plain = std::none_of(cell.cbegin(), cell.cend(), [](QChar character) {
        return character == u'\t' || character == u'\n' || character == u'\r' || character == quote;
    });
    return plain ? cell : u'"' + QString(cell).replace(quote, u"\"\""_s) + u'"';
}
} // namespace

TabText TabText::parse(const QString &text)
{
    const QString plain = plainText(text);
    TabText table;
    if (std::any_of(plain.cbegin(), plain.cend(), isBinary)) {
        table.error = tr("The clipboard does not hold a table but characters that are no text.");
        return table;
    }
    int line = 1;
    for (qsizetype at = 0; at < plain.size(); ++at) {
        Row row{line, {}};
        for (bool more = plain.at(at) != u'\n'; more; at += more ? 1 : 0) {
            QString cell;
            if (!readCell(plain, at, cell)) {
                table.rows.clear();
                table.error =
                    tr("The quotation mark that a cell of line %L1 begins with is never closed.").arg(line);
                return table;
            }
            line += int(cell.count(u'\n'));
            row.cells.append(cell);
            more = at < plain.size() && plain.at(at) == u'\t';
        }
        ++line;
        table.rows.append(row);
    }
    return table;
}

QString TabText::write(const QList<QStringList> &rows)
{
    QString text;
    for (const QStringList &row : rows) {
        QStringList cells;
        std::transform(row.cbegin(), row.cend(), std::back_inserter(cells), quoted);
        text += cells.join(u'\t') + u'\n';
    }
    return text;
}
