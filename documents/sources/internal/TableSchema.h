#pragma once

#include "documents/sources/SourceOptions.h"
#include "documents/sources/SourceResult.h"

#include <QCoreApplication>

/// Fields from a data package (each resource with a schema is a record) or from a bare table schema (the
/// file is the record). Numbers are "REAL", whole numbers and years "INTEGER", all else "STRING".
class TableSchema
{
    Q_DECLARE_TR_FUNCTIONS(TableSchema)

public:
    [[nodiscard]] static SourceFields read(const QString &path, const SourceOptions &options);
};
