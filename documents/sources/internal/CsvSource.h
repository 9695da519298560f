#pragma once

#include "documents/sources/SourceOptions.h"
#include "documents/sources/SourceResult.h"

#include <QCoreApplication>

/// Fields from text files with delimiters: their types are guessed from the cells.
///
/// A column of whole numbers is "INTEGER", of numbers "REAL", everything else "STRING": also numbers with
/// leading zeros, which are codes, and those of more than 15 digits, which no number could hold. Decimal
/// commas count where all numbers of the column have one. Empty cells say nothing.
class CsvSource
{
    Q_DECLARE_TR_FUNCTIONS(CsvSource)

public:
    [[nodiscard]] static SourceFields read(const QString &path, const SourceOptions &options);
};
