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

/// The units of a file on their way from rows to trees.
class Units
{
    Q_DECLARE_TR_FUNCTIONS(AreaUnitFile)

public:
    Units(const QString &path, SourceAreaUnits &result) : m_path(path), m_result(result) { }

    void add(const CsvColumns &columns, const CsvRow &row)
    {
        auto unit = makeUnit(columns, row.cells);
        const QString code = unit->getCode();
        if (code.isEmpty()) {
            report(row.line, tr("The code is empty."));
        } else if (m_byCode.contains(code)) {
            report(row.line,
                   tr("The code \"%1\" stands in line %2 too.")
                       .arg(code, QString::number(m_rows[size_t(m_byCode.value(code))].line)));
        } else {
            m_byCode.insert(code, qsizetype(m_rows.size()));
            m_rows.push_back({std::move(unit), columns.cell(row.cells, Parent), row.line});
        }
    }

    void findParents()
    {
        for (const Row &row : m_rows) {
            m_parents.append(row.parent.isEmpty() ? -1 : m_byCode.value(row.parent, -1));
            if (!row.parent.isEmpty() && m_parents.last() < 0)
                report(row.line,
                       tr("The parent \"%1\" of \"%2\" is not in the file.")
                           .arg(row.parent, row.unit->getCode()));
        }
    }

    void reportRings()
    {
        QList<int> seen(m_parents.size(), 0);
        for (qsizetype start = 0; start < m_parents.size(); ++start) {
            const QList<qsizetype> members = ring(start, m_parents, seen, int(start) + 1);
            if (members.isEmpty())
                continue;
            QStringList codes;
            for (const qsizetype member : members)
                codes.append(m_rows[size_t(member)].unit->getCode());
            codes.append(codes.first());
            report(m_rows[size_t(members.first())].line,
                   tr("The unit lies below itself: %1.").arg(codes.join(u" < "_s)));
        }
    }

    /// Hangs each unit below its parent. Only for what no problem has been reported of.
    void build()
    {
        std::vector<SelectionTreeUnit *> units(m_rows.size());
        std::transform(m_rows.cbegin(), m_rows.cend(), units.begin(),
                       [](const Row &row) { return row.unit.get(); });
        for (size_t i = 0; i < m_rows.size(); ++i) {
            const qsizetype parent = m_parents.at(qsizetype(i));
            auto *list = parent < 0 ? m_result.list() : units[size_t(parent)]->getChildren();
            list->append(m_rows[i].unit.release());
        }
        for (SelectionTreeUnit *root : std::as_const(*m_result.list())) {
            preOrder(root, [](SelectionTreeUnit *unit) {
                for (SelectionTreeUnit *child : std::as_const(*unit->getChildren()))
                    child->setLevel(unit->getLevel() + 1);
            });
        }
    }

private:
    void report(qint64 line, const QString &problem)
    {
        m_result.errors.append({m_path, CsvTable::place(line), problem});
    }

    const QString &m_path;
    SourceAreaUnits &m_result;
    std::vector<Row> m_rows;
    QHash<QString, qsizetype> m_byCode;
    QList<qsizetype> m_parents; // Of each row; -1 for none.
};
} // namespace

SourceAreaUnits AreaUnitFile::read(const QString &path, const SourceOptions &options)
{
    SourceAreaUnits result;
    CsvColumns columns({u"code"_s, u"parent"_s, u"name"_s, u"area1"_s, u"area2"_s, u"area"_s});
    Units units(path, result);
    bool header = options.header;
    CsvTable table(path, options);
    const auto damage = table.read([&](const CsvRow &row) {
        if (std::exchange(header, false)) {
            columns.setHeader(row.cells);
            return columns.has(Code) ? QString() : tr("No column is called \"code\".");
        }
        units.add(columns, row);
        return QString();
    });
    result.cancelled = table.cancelled();
    if (damage)
        result.errors.append(*damage);
    if (damage || result.cancelled)
        return result;

    units.findParents();
    units.reportRings();
    if (result.ok())
        units.build();
    return result;
}
