#include "documents/sources/internal/CsvDialect.h"

#include <QFile>
#include <QStringConverter>
#include <QStringDecoder>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr qint64 SampleSize = 1 << 16;
constexpr qsizetype SampleRows = 100;
constexpr std::array<char, 4> candidates{',', ';', '\t', '|'};

bool canSeparate(QChar c)
{
    return c.unicode() < 128 && c != u'"' && c != u'\n' && c != u'\r';
}

/// How often \a delimiter stands outside quotation marks, for each of the first rows of \a sample. A last row
/// without an end counts when the sample \a isWhole or has no other.
QList<int> countPerRow(QStringView sample, char delimiter, bool isWhole)
{
    QList<int> counts;
    int count = 0;
    bool quoted = false;
    bool blank = true;
    for (const QChar c : sample) {
        if (c == u'"')
            quoted = !quoted;
        if ((c == u'\n' || c == u'\r') && !quoted) {
            if (!blank)
                counts.append(count);
            if (counts.size() == SampleRows)
                return counts;
            count = 0;
            blank = true;
            continue;
        }
        blank = blank && c.isSpace();
        count += !quoted && c == QLatin1Char(delimiter) ? 1 : 0;
    }
    if (!blank && (isWhole || counts.isEmpty()))
        counts.append(count);
    return counts;
}

/// The delimiter that divides most rows like the first; among equals the one that divides it most.
char likeliestDelimiter(QStringView sample, bool isWhole)
{
    std::pair<qsizetype, int> best{0, 0};
    char likeliest = candidates.front();
    for (const char candidate : candidates) {
        const QList<int> counts = countPerRow(sample, candidate, isWhole);
        if (counts.isEmpty() || counts.first() == 0)
            continue;
        const std::pair<qsizetype, int> score{counts.count(counts.first()), counts.first()};
        if (score > best) {
            best = score;
            likeliest = candidate;
        }
    }
    return likeliest;
}

/// Whether at least half of what is beyond ASCII in \a file is whole characters of UTF-8.
bool isMostlyUtf8(QFile &file)
{
    QStringDecoder decoder(QStringConverter::Utf8);
    qsizetype characters = 0;
    qsizetype strayBytes = 0;
    file.seek(0);
    while (!file.atEnd()) {
        const QString text = decoder(file.read(SampleSize));
        strayBytes += text.count(QChar::ReplacementCharacter);
        characters += std::count_if(text.cbegin(), text.cend(), [](QChar c) {
            return c.unicode() > 127 && c != QChar::ReplacementCharacter;
        });
    }
    return characters > 0 && characters >= strayBytes;
}
} // namespace

void CsvDialect::detectDelimiter(const QString &sample, bool isWhole)
{
    // Some spreadsheet programs say it in a line of its own.
    constexpr auto name = "sep="_L1;
    const qsizetype behind = name.size() + 1;
    isNamed = sample.startsWith(name, Qt::CaseInsensitive) && sample.size() > behind
        && (sample.at(behind) == u'\n' || sample.at(behind) == u'\r') && canSeparate(sample.at(behind - 1));
    delimiter = isNamed ? sample.at(behind - 1).toLatin1() : likeliestDelimiter(sample, isWhole);
}

QString CsvDialect::detectEncoding(QFile &file, const QByteArray &sample)
{
    if (const auto marked = QStringConverter::encodingForData(sample)) {
        encoding = QStringConverter::nameForEncoding(*marked);
        return {};
    }
    const auto zeros = [&sample](qsizetype first) {
        qsizetype count = 0;
        for (qsizetype i = first; i < sample.size(); i += 2)
            count += sample.at(i) == 0 ? 1 : 0;
        return count;
    };
    if (const qsizetype third = sample.size() / 6; third > 0) {
        if (zeros(1) > third && zeros(0) == 0)
            encoding = "UTF-16LE";
        else if (zeros(0) > third && zeros(1) == 0)
            encoding = "UTF-16BE";
        if (!encoding.isEmpty())
            return {};
    }
    // Text that is not meant as UTF-8 practically never happens to be valid, so all of it is tried.
    QStringDecoder decoder(QStringConverter::Utf8);
    file.seek(0);
    while (!file.atEnd() && !decoder.hasError())
        (void)QString(decoder(file.read(SampleSize)));
    const bool isUtf8 = !decoder.hasError();
    encoding = isUtf8 || isMostlyUtf8(file) ? "UTF-8" : "windows-1252";
    if (isUtf8) {
        (void)QString(decoder("\n"));
        if (decoder.hasError())
            return tr("The file is damaged: it ends inside a character.");
    }
    return {};
}

QString CsvDialect::detect(QFile &file, const SourceOptions &options)
{
    file.seek(0);
    const QByteArray sample = file.read(SampleSize);
    encoding = options.encoding.toLatin1();
    if (encoding.isEmpty()) {
        if (QString problem = detectEncoding(file, sample); !problem.isEmpty())
            return problem;
    }
    QStringDecoder decoder(encoding.constData());
    if (!decoder.isValid())
        return tr("The encoding \"%1\" is not known.").arg(QString::fromLatin1(encoding));
    detectDelimiter(decoder(sample), sample.size() == file.size());
    if (!options.delimiter.isNull()) {
        if (!canSeparate(options.delimiter))
            return tr("The character \"%1\" cannot separate cells.").arg(options.delimiter);
        delimiter = options.delimiter.toLatin1();
    }
    file.seek(0);
    return {};
}
