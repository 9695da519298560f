#pragma once

#include "documents/documents_export.h"
#include "documents/sources/SourceOptions.h"
#include "documents/sources/SourceResult.h"

#include <QCoreApplication>
#include <QStringList>

/// Reads the fields of a data file, for the models that offer them as drag sources.
///
/// What kind of file it is follows from its name: SPSS (.sav, .zsav, .por), Stata (.dta), SAS (.sas7bdat with
/// .sas7bcat, .xpt), text with delimiters (.csv, .tsv, .tab, .txt), data package or table schema (.json).
class DOCUMENTS_EXPORT SourceReader
{
    Q_DECLARE_TR_FUNCTIONS(SourceReader)

public:
    /// The fields of \a path in the file's order, positions counted from 1, each with the name of its record:
    /// the file's base name, or the resource of a data package. Field types are "STRING", "REAL" and
    /// "INTEGER". A whole number beyond 32 bits counts as "REAL", since the layer's integers end there.
    /// Missing codes and categories are separated by tabs; a range of missing codes is written "90..99".
    [[nodiscard]] static SourceFields read(const QString &path, const SourceOptions &options = {});

    /// The file name extensions that read() knows, in lower case and without dot.
    [[nodiscard]] static QStringList suffixes();
};
