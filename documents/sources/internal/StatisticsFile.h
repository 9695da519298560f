#pragma once

#include "documents/sources/SourceOptions.h"
#include "documents/sources/SourceResult.h"

#include <QCoreApplication>

#include <readstat.h>

class DataFile;
class StatisticsFields;

/// How one kind of file is parsed.
struct StatisticsParser {
    readstat_error_t (*parse)(readstat_parser_t *parser, const char *path, void *context);
    /// Whether the file has the end that its kind must have: the parsers do not all notice when it lacks.
    bool (*hasEnd)(DataFile &file);
};

/// Fields from the files of the statistics packages.
class StatisticsFile
{
    Q_DECLARE_TR_FUNCTIONS(StatisticsFile)

public:
    [[nodiscard]] static SourceFields read(const QString &path, const SourceOptions &options);

private:
    /// Runs one parser over one file. Returns false if there is no use in going on; \a result says why.
    [[nodiscard]] static bool parse(const QString &path, const SourceOptions &options,
                                    const StatisticsParser &parser, StatisticsFields &fields,
                                    SourceFields &result);
};
