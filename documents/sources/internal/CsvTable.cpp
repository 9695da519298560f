#include "documents/sources/internal/CsvTable.h"

#include "documents/internal/InputFile.h"
#include "documents/sources/internal/CsvDialect.h"

#include <QFile>
#include <QStringDecoder>

#include <algorithm>
#include <utility>

#include <csv.h>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr qint64 ChunkSize = 1 << 16;

/// The lines of a text that comes in pieces. A line ends with LF, CR LF or CR.
class Lines
{
public:
    void append(const QString &text)
    {
        m_text.remove(0, m_start);
        m_seen -= std::exchange(m_start, 0);
        m_text += text;
    }

    /// The next line with its end; null when there is none that is whole. With \a atEnd no text follows, and
    /// what is left is a line.
    QStringView next(bool atEnd)
    {
        const auto *const begin = m_text.cbegin();
        const auto *end =
            std::find_if(begin + m_seen, m_text.cend(), [](QChar c) { return c == u'\n' || c == u'\r'; });
        m_seen = end - begin;
        // The LF behind a CR may be still to come.
        const bool isWhole = end != m_text.cend() && (*end == u'\n' || end + 1 != m_text.cend());
        if (!isWhole && (!atEnd || m_start == m_text.size()))
            return {};
        if (isWhole && *end == u'\r' && end[1] == u'\n')
            ++end;
        m_seen = std::min<qsizetype>(end - begin + 1, m_text.size());
        const qsizetype start = std::exchange(m_start, m_seen);
        return QStringView(m_text).sliced(start, m_seen - start);
    }

private:
    QString m_text;
    qsizetype m_start = 0; // Of the next line.
    qsizetype m_seen = 0; // Before this it does not end.
};

/// The parser, fed line by line, so that every row and every error has its line.
class RowParser
{
public:
    RowParser(char delimiter, const CsvTable::RowHandler &handle)
        : m_handle(handle), m_delimiter(QLatin1Char(delimiter))
    {
        csv_init(&m_parser, CSV_STRICT | CSV_STRICT_FINI);
        csv_set_delim(&m_parser, static_cast<unsigned char>(delimiter));
        // It makes room for a long cell in steps of this size, and may copy the cell at each.
        csv_set_blk_size(&m_parser, std::size_t(1) << 20);
    }
    ~RowParser() { csv_free(&m_parser); }
    Q_DISABLE_COPY_MOVE(RowParser)

    /// Returns what is wrong; row() is where.
    QString feed(QStringView line)
    {
        ++m_line;
        if (m_betweenRows && !isPassedOver(line)) {
            m_betweenRows = false;
            m_row.line = m_line;
        }
        if (line.contains(QChar::Null))
            return at(m_line, CsvTable::tr("A zero byte: this is no text file, or of another encoding."));
        const QByteArray bytes = line.toUtf8();
        const size_t done =
            csv_parse(&m_parser, bytes.constData(), size_t(bytes.size()), onCell, onRow, this);
        if (m_problem.isEmpty() && done != size_t(bytes.size()))
            return at(m_line, parseProblem());
        return m_problem;
    }

    /// Passes over a line that belongs to no row.
    void skipLine() { ++m_line; }

    QString finish()
    {
        if (csv_fini(&m_parser, onCell, onRow, this) != 0 && m_problem.isEmpty())
            return at(m_row.line, CsvTable::tr("The quotation marks that this row opens are never closed."));
        if (m_problem.isEmpty() && m_rows == 0)
            return at(1, CsvTable::tr("The file holds no rows."));
        return m_problem;
    }

    [[nodiscard]] qint64 problemLine() const { return m_problemLine; }
    [[nodiscard]] qint64 line() const { return m_line; }
    [[nodiscard]] qint64 rows() const { return m_rows; }

private:
    /// Whether the parser sees no row in \a line.
    [[nodiscard]] bool isPassedOver(QStringView line) const
    {
        return std::all_of(line.cbegin(), line.cend(), [this](QChar c) {
            return c == u'\n' || c == u'\r' || ((c == u' ' || c == u'\t') && c != m_delimiter);
        });
    }

    QString at(qint64 line, const QString &problem)
    {
        m_problemLine = line;
        return m_problem = problem;
    }

    QString parseProblem()
    {
        if (csv_error(&m_parser) == CSV_EPARSE)
            return CsvTable::tr("A quotation mark stands where none may stand.");
        return QString::fromLatin1(csv_strerror(csv_error(&m_parser)));
    }

    static void onCell(void *text, size_t length, void *self)
    {
        static_cast<RowParser *>(self)->m_row.cells.append(
            QString::fromUtf8(static_cast<const char *>(text), qsizetype(length)));
    }

    static void onRow(int /*terminator*/, void *self) { static_cast<RowParser *>(self)->endRow(); }

    void endRow()
    {
        m_betweenRows = true;
        const qsizetype count = m_row.cells.size();
        if (m_rows++ == 0)
            m_columns = count;
        if (!m_problem.isEmpty())
            return;
        if (count != m_columns)
            at(m_row.line,
               CsvTable::tr("Number of cells: %1, in the first row: %2.").arg(count).arg(m_columns));
        else if (const QString problem = m_handle(m_row); !problem.isEmpty())
            at(m_row.line, problem);
        m_row.cells.clear();
    }

    const CsvTable::RowHandler &m_handle;
    QChar m_delimiter;
    csv_parser m_parser{};
    CsvRow m_row;
    qint64 m_line = 0;
    bool m_betweenRows = true;
    qint64 m_rows = 0;
    qsizetype m_columns = 0;
    QString m_problem;
    qint64 m_problemLine = 0;
};
} // namespace

QString CsvTable::place(qint64 line)
{
    return tr("line %1").arg(line);
}

std::optional<SourceProblem> CsvTable::read(const RowHandler &handle, qint64 mostRows)
{
    QFile file(m_path);
    if (const QString problem = InputFile::open(file); !problem.isEmpty())
        return SourceProblem{m_path, {}, problem};
    CsvDialect dialect;
    if (const QString problem = dialect.detect(file, m_options); !problem.isEmpty())
        return SourceProblem{m_path, {}, problem};

    QStringDecoder decoder(dialect.encoding.constData());
    RowParser parser(dialect.delimiter, handle);
    Lines lines;
    const auto isEnough = [&parser, mostRows] { return mostRows >= 0 && parser.rows() >= mostRows; };
    for (bool atEnd = file.atEnd(); !atEnd && !isEnough();) {
        if (m_options.progress && !m_options.progress(double(file.pos()) / double(file.size()))) {
            m_cancelled = true;
            return std::nullopt;
        }
        lines.append(decoder(file.read(ChunkSize)));
        atEnd = file.atEnd();
        if (atEnd) // Tells a character that is not whole; a line end more is no row.
            lines.append(decoder(dialect.encoding.startsWith("UTF-16") ? QByteArray() : QByteArray("\n")));
        const auto isValid = [](QStringView line) { return !line.contains(QChar::ReplacementCharacter); };
        if (decoder.hasError()) {
            qint64 line = parser.line() + 1;
            for (QStringView next = lines.next(true); !next.isNull() && isValid(next);
                 next = lines.next(true))
                ++line;
            return SourceProblem{
                m_path, place(line),
                tr("The text is not valid in the encoding %1.").arg(QString::fromLatin1(dialect.encoding))};
        }
        for (QStringView line; !isEnough() && !(line = lines.next(atEnd)).isNull();) {
            if (dialect.isNamed && parser.line() == 0)
                parser.skipLine();
            else if (const QString problem = parser.feed(line); !problem.isEmpty())
                return SourceProblem{m_path, place(parser.problemLine()), problem};
        }
    }
    if (isEnough())
        return std::nullopt;
    if (const QString problem = parser.finish(); !problem.isEmpty())
        return SourceProblem{m_path, place(parser.problemLine()), problem};
    return std::nullopt;
}
