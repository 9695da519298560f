#include "documents/sources/SourceReader.h"

#include "documents/sources/internal/CsvSource.h"
#include "documents/sources/internal/StatisticsFile.h"
#include "documents/sources/internal/TableSchema.h"

#include <QFileInfo>

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace
{
struct Kind {
    QLatin1StringView suffix;
    SourceFields (*read)(const QString &path, const SourceOptions &options);
};

constexpr Kind kinds[] = {
    {"sav"_L1, StatisticsFile::read}, {"zsav"_L1, StatisticsFile::read},     {"por"_L1, StatisticsFile::read},
    {"dta"_L1, StatisticsFile::read}, {"sas7bdat"_L1, StatisticsFile::read}, {"xpt"_L1, StatisticsFile::read},
    {"csv"_L1, CsvSource::read},      {"tsv"_L1, CsvSource::read},           {"tab"_L1, CsvSource::read},
    {"txt"_L1, CsvSource::read},      {"json"_L1, TableSchema::read},
};
} // namespace

SourceFields SourceReader::read(const QString &path, const SourceOptions &options)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    const auto *kind = std::find_if(std::begin(kinds), std::end(kinds),
                                    [&suffix](const Kind &known) { return known.suffix == suffix; });
    if (kind != std::end(kinds))
        return kind->read(path, options);
    return SourceFields::refused(
        {path, {}, tr("This kind of file is not known. Known are: %1.").arg(suffixes().join(u", "_s))});
}

QStringList SourceReader::suffixes()
{
    QStringList names;
    std::transform(std::begin(kinds), std::end(kinds), std::back_inserter(names),
                   [](const Kind &kind) { return QString(kind.suffix); });
    return names;
}

QString SourceProblem::message() const
{
    const QString name = QFileInfo(file).fileName();
    return (place.isEmpty() ? name : name + u", "_s + place) + u": "_s + text;
}
