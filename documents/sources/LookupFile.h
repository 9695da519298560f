#pragma once

#include "documents/documents_export.h"
#include "documents/sources/SourceOptions.h"
#include "documents/sources/SourceResult.h"
#include "model/TDcLookup.h"

#include <QCoreApplication>

using SourceLookups = SourceResult<TDcLookup>;

/// Reads lookups from a text file with delimiters.
class DOCUMENTS_EXPORT LookupFile
{
    Q_DECLARE_TR_FUNCTIONS(LookupFile)

public:
    /// The columns are called "id" and "label", in any order and letter case, and others are passed over;
    /// without a header row they are the first two. An empty id and one that occurs twice are errors.
    [[nodiscard]] static SourceLookups read(const QString &path, const SourceOptions &options = {});
};
