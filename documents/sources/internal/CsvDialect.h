#pragma once

#include "documents/sources/SourceOptions.h"

#include <QByteArray>
#include <QCoreApplication>

class QFile;

/// How a text file is written: in which encoding, and what separates its cells.
struct CsvDialect {
    Q_DECLARE_TR_FUNCTIONS(CsvDialect)

public:
    QByteArray encoding;
    char delimiter = ',';
    bool isNamed = false; ///< The first line is no row: it names the delimiter, as "sep=;".

    /// Looks at \a file, which is open, and takes what \a options says. Returns what is wrong, empty when
    /// nothing is. A file that is no UTF-8 and has no byte order mark is taken as Windows-1252, where every
    /// byte but a few is a letter, unless at least half of what is beyond ASCII is whole characters of UTF-8:
    /// then it is UTF-8 with damage, and refused rather than garbled.
    [[nodiscard]] QString detect(QFile &file, const SourceOptions &options);

private:
    [[nodiscard]] QString detectEncoding(QFile &file, const QByteArray &sample);
    void detectDelimiter(const QString &sample, bool isWhole);
};
