#pragma once

#include "documents/sources/SourceOptions.h"

#include <QCoreApplication>
#include <QFile>

#include <readstat.h>

/// A file as the parser of data files reads it: through Qt, so that every path works, knowing how far it is.
class DataFile
{
    Q_DECLARE_TR_FUNCTIONS(DataFile)

public:
    DataFile(const QString &path, const SourceOptions &options);
    Q_DISABLE_COPY_MOVE(DataFile)

    /// Makes \a parser read this file, which must outlive it.
    void attach(readstat_parser_t *parser);

    [[nodiscard]] QString path() const { return m_file.fileName(); }
    /// Why the file cannot be opened; empty when it can.
    [[nodiscard]] QString open();
    /// How far the reading is, for messages.
    [[nodiscard]] QString place() const;
    /// Whether the progress function asked to stop.
    [[nodiscard]] bool cancelled() const { return m_cancelled; }
    [[nodiscard]] qint64 size() const { return m_size; }
    [[nodiscard]] QByteArray start(qint64 length);
    [[nodiscard]] QByteArray end(qint64 length);
    /// Tells the progress function how far the reading is. Returns false once that asked to stop.
    bool report();

private:
    QFile m_file;
    const SourceOptions &m_options;
    qint64 m_size = 0;
    int m_percent = -1;
    bool m_cancelled = false;
};
