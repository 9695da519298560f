#pragma once

#include "documents/sources/SourceOptions.h"
#include "documents/sources/SourceResult.h"

#include <QCoreApplication>
#include <QStringList>

#include <functional>
#include <optional>

/// One row of a text file with delimiters.
struct CsvRow {
    qint64 line = 0; ///< Where the row begins, counted from 1.
    QStringList cells;
};

/// The rows of a text file with delimiters, read strictly: every row must have as many cells as the first,
/// and quotation marks must stand where they belong.
class CsvTable
{
    Q_DECLARE_TR_FUNCTIONS(CsvTable)

public:
    /// Takes a row; returns what is wrong with it, empty when nothing is.
    using RowHandler = std::function<QString(const CsvRow &row)>;

    CsvTable(const QString &path, const SourceOptions &options) : m_path(path), m_options(options) { }

    /// Hands each row to \a handle until that finds something wrong, or has seen \a mostRows of them. Returns
    /// what is wrong with the file. A first row is there unless something is wrong.
    [[nodiscard]] std::optional<SourceProblem> read(const RowHandler &handle, qint64 mostRows = -1);
    [[nodiscard]] bool cancelled() const { return m_cancelled; }

    /// "line 7" in the user's language.
    [[nodiscard]] static QString place(qint64 line);

private:
    QString m_path;
    const SourceOptions &m_options;
    bool m_cancelled = false;
};
