#include "documents/sources/LookupFile.h"

#include "documents/sources/internal/CsvColumns.h"
#include "documents/sources/internal/CsvTable.h"

#include <QHash>

using namespace Qt::Literals::StringLiterals;

SourceLookups LookupFile::read(const QString &path, const SourceOptions &options)
{
    enum Column { Id, Label };
    SourceLookups result;
    CsvColumns columns({u"id"_s, u"label"_s});
    QHash<QString, qint64> lines;
    bool header = options.header;
    CsvTable table(path, options);
    const auto problem = table.read([&](const CsvRow &row) {
        if (std::exchange(header, false)) {
            columns.setHeader(row.cells);
            return columns.has(Id) ? QString() : tr("No column is called \"id\".");
        }
        auto lookup = std::make_unique<TDcLookup>();
        lookup->setId(columns.cell(row.cells, Id));
        lookup->setLabel(columns.cell(row.cells, Label));
        if (lookup->getId().isEmpty())
            return tr("The id is empty.");
        if (const qint64 before = lines.value(lookup->getId()); before > 0)
            return tr("The id \"%1\" stands in line %2 too.").arg(lookup->getId(), QString::number(before));
        lines.insert(lookup->getId(), row.line);
        result.items->append(std::move(lookup));
        return QString();
    });
    result.cancelled = table.cancelled();
    if (problem)
        result.errors.append(*problem);
    if (!result.ok())
        result.items->reset(nullptr);
    return result;
}
