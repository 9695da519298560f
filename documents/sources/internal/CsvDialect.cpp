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

/// How often \a delimiter stands outside quotation marks, for each of the first rows of \a sample.
QList<int> countPerRow(const QString &sample, char delimiter)
{
    QList<int> counts;
    int count = 0;
    bool quoted = false;
    bool blank = true;
    for (const QChar c : sample) {
        if (c == u'"')
            quoted = !quoted;
        if (c == u'\n' && !quoted) {
            if (!blank)
                counts.append(count);
            if (counts.size() == SampleRows)
                break;
            count = 0;
            blank = true;
            continue;
        }
        blank = blank && c.isSpace();
        count += !quoted && c == QLatin1Char(delimiter) ? 1 : 0;
    }
    return counts;
}
} // namespace

char CsvDialect::likeliestDelimiter(const QString &sample)
{
    // The one that divides most rows like the first; among equals the one that divides it most.
    std::pair<qsizetype, int> best{0, 0};
    char likeliest = candidates.front();
    for (const char candidate : candidates) {
        const QList<int> counts = countPerRow(sample, candidate);
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
    encoding = decoder.hasError() ? "windows-1252" : "UTF-8";
    if (!decoder.hasError()) {
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
    if (options.delimiter.isNull()) {
        delimiter = likeliestDelimiter(decoder(sample));
    } else {
        delimiter = options.delimiter.toLatin1();
        if (options.delimiter.unicode() > 127 || delimiter == '"' || delimiter == '\n' || delimiter == '\r')
            return tr("The character \"%1\" cannot separate cells.").arg(options.delimiter);
    }
    file.seek(0);
    return {};
}
