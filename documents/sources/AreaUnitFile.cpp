#include "documents/sources/AreaUnitFile.h"

#include "documents/sources/internal/CsvColumns.h"
#include "documents/sources/internal/CsvTable.h"
#include "model/PreOrder.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace
{
enum Column { Code, Parent, Name, FirstArea, SecondArea, Area };

struct Row {
    std::unique_ptr<SelectionTreeUnit> unit;
    QString parent;
    qint64 line = 0;
};

std::unique_ptr<SelectionTreeUnit> makeUnit(const CsvColumns &columns, const QStringList &cells)
{
    const auto cellOr = [&](Column column, const QString &otherwise) {
        const QString cell = columns.cell(cells, column);
        return cell.isEmpty() ? otherwise : cell;
    };
    auto unit = std::make_unique<SelectionTreeUnit>();
    unit->setCode(columns.cell(cells, Code));
    unit->setName(cellOr(Name, unit->getCode()));
    const QString first = cellOr(FirstArea, unit->getCode());
    const QString second = cellOr(SecondArea, cellOr(Area, unit->getName()));
    unit->setArea({first.toStdString(), second.toStdString()});
    return unit;
}

/// The codes of the ring of parents that \a start leads into, beginning with the ring's lowest line; empty
/// when an earlier start has led there. \a seen remembers which rows have been passed.
QList<qsizetype> ring(qsizetype start, const QList<qsizetype> &parents, QList<int> &seen, int mark)
{
    qsizetype row = start;
    while (row >= 0 && seen.at(row) == 0) {
        seen[row] = mark;
        row = parents.at(row);
    }
    QList<qsizetype> rows;
    if (row < 0 || seen.at(row) != mark)
        return rows;
    const qsizetype first = row;
    do {
        rows.append(row);
        row = parents.at(row);
    } while (row != first);
    std::rotate(rows.begin(), std::min_element(rows.begin(), rows.end()), rows.end());
    return rows;
}
} // namespace

SourceAreaUnits AreaUnitFile::read(const QString &path, const SourceOptions &options)
{
    SourceAreaUnits result;
    CsvColumns columns({u"code"_s, u"parent"_s, u"name"_s, u"area1"_s, u"area2"_s, u"area"_s});
    std::vector<Row> rows;
    QHash<QString, qsizetype> byCode;
    const auto report = [&](qint64 line, const QString &problem) {
        result.errors.append({path, CsvTable::place(line), problem});
    };

    bool header = options.header;
    CsvTable table(path, options);
    const auto damage = table.read([&](const CsvRow &row) {
        if (std::exchange(header, false)) {
            columns.setHeader(row.cells);
            return columns.has(Code) ? QString() : tr("No column is called \"code\".");
        }
        auto unit = makeUnit(columns, row.cells);
        const QString code = unit->getCode();
        if (code.isEmpty()) {
            report(row.line, tr("The code is empty."));
        } else if (byCode.contains(code)) {
            report(row.line,
                   tr("The code \"%1\" stands in line %2 too.")
                       .arg(code)
                       .arg(rows[size_t(byCode.value(code))].line));
        } else {
            byCode.insert(code, qsizetype(rows.size()));
            rows.push_back({std::move(unit), columns.cell(row.cells, Parent), row.line});
        }
        return QString();
    });
    result.cancelled = table.cancelled();
    if (damage)
        result.errors.append(*damage);
    if (damage || result.cancelled)
        return result;

    QList<qsizetype> parents;
    for (const Row &row : rows) {
        parents.append(row.parent.isEmpty() ? -1 : byCode.value(row.parent, -1));
        if (!row.parent.isEmpty() && parents.last() < 0)
            report(
                row.line,
                tr("The parent \"%1\" of \"%2\" is not in the file.").arg(row.parent, row.unit->getCode()));
    }
    QList<int> seen(parents.size(), 0);
    for (qsizetype start = 0; start < parents.size(); ++start) {
        const QList<qsizetype> members = ring(start, parents, seen, int(start) + 1);
        if (members.isEmpty())
            continue;
        QStringList codes;
        for (const qsizetype member : members)
            codes.append(rows[size_t(member)].unit->getCode());
        codes.append(codes.first());
        report(rows[size_t(members.first())].line,
               tr("The unit lies below itself: %1.").arg(codes.join(u" < "_s)));
    }
    if (!result.ok())
        return result;

    std::vector<SelectionTreeUnit *> units(rows.size());
    std::transform(rows.cbegin(), rows.cend(), units.begin(), [](const Row &row) { return row.unit.get(); });
    for (size_t i = 0; i < rows.size(); ++i) {
        const qsizetype parent = parents.at(qsizetype(i));
        auto *list = parent < 0 ? result.list() : units[size_t(parent)]->getChildren();
        list->append(rows[i].unit.release());
    }
    for (SelectionTreeUnit *root : std::as_const(*result.list())) {
        preOrder(root, [](SelectionTreeUnit *unit) {
            for (SelectionTreeUnit *child : std::as_const(*unit->getChildren()))
                child->setLevel(unit->getLevel() + 1);
        });
    }
    return result;
}
