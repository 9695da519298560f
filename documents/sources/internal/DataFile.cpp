#include "documents/sources/internal/DataFile.h"

#include "documents/internal/InputFile.h"

#include <algorithm>

DataFile::DataFile(const QString &path, const SourceOptions &options) : m_file(path), m_options(options) { }

QString DataFile::open()
{
    QString problem = InputFile::open(m_file);
    m_size = m_file.size();
    return problem;
}

void DataFile::attach(readstat_parser_t *parser)
{
    // The file is open before and closed after; parsers that open it again begin at its start.
    readstat_set_open_handler(parser, [](const char *, void *file) {
        return static_cast<DataFile *>(file)->m_file.seek(0) ? 0 : -1;
    });
    readstat_set_close_handler(parser, [](void *) { return 0; });
    readstat_set_seek_handler(
        parser, [](readstat_off_t offset, readstat_io_flags_t whence, void *file) -> readstat_off_t {
            auto *self = static_cast<DataFile *>(file);
            qint64 base = 0;
            if (whence == READSTAT_SEEK_CUR)
                base = self->m_file.pos();
            else if (whence == READSTAT_SEEK_END)
                base = self->m_size;
            const qint64 target = base + offset;
            // A damaged file may point anywhere; beyond the end there is nothing to read.
            const bool inside = target >= 0 && target <= self->m_size;
            return inside && self->m_file.seek(target) ? target : -1;
        });
    readstat_set_read_handler(parser, [](void *buffer, size_t length, void *file) -> ssize_t {
        auto *self = static_cast<DataFile *>(file);
        return self->m_file.read(static_cast<char *>(buffer), qint64(length));
    });
    readstat_set_update_handler(parser, [](long, readstat_progress_handler, void *, void *file) {
        return static_cast<DataFile *>(file)->report() ? READSTAT_OK : READSTAT_ERROR_USER_ABORT;
    });
    readstat_set_io_ctx(parser, this);
}

bool DataFile::report()
{
    if (!m_options.progress || m_cancelled)
        return !m_cancelled;
    const qint64 size = std::max<qint64>(1, m_size);
    const int percent = int(100 * m_file.pos() / size);
    if (percent != m_percent) {
        m_percent = percent;
        m_cancelled = !m_options.progress(double(m_file.pos()) / double(size));
    }
    return !m_cancelled;
}

QString DataFile::place() const
{
    return tr("byte %1 of %2").arg(m_file.pos()).arg(m_size);
}

QByteArray DataFile::start(qint64 length)
{
    m_file.seek(0);
    return m_file.read(length);
}

QByteArray DataFile::end(qint64 length)
{
    m_file.seek(std::max<qint64>(0, m_size - length));
    return m_file.read(length);
}
