#pragma once

#include "documents/sources/SourceResult.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

/// Files that a test writes, gone with it.
class SourceFiles
{
public:
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    /// Writes \a content and returns the path.
    QString write(const QString &name, const QByteArray &content) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("Cannot write %s", qPrintable(file.fileName()));
        return file.fileName();
    }

private:
    QTemporaryDir m_folder;
};

/// The messages of \a problems, one a line.
inline QString messages(const QList<SourceProblem> &problems)
{
    QStringList lines;
    for (const SourceProblem &problem : problems)
        lines.append(problem.message());
    return lines.join(u'\n');
}

/// A field in one line: name|type|size.decimals|min..max|missing|label|categories.
inline QString fieldLine(TDcSourceField &field)
{
    const QString categories = QString(field.categories).replace(u'\t', u';');
    const QString missing = QString(field.missing).replace(u'\t', u';');
    return QStringList{field.name,
                       field.getFieldType(),
                       QString::number(field.size) + u'.' + QString::number(field.decimals),
                       field.rangeMin + u':' + field.rangeMax,
                       missing,
                       field.label,
                       categories}
        .join(u'|');
}

inline QStringList fieldLines(const SourceFields &result)
{
    QStringList lines;
    for (TDcSourceField *field : std::as_const(*result.list()))
        lines.append(fieldLine(*field));
    return lines;
}

/// Calls \a read with every beginning of \a content, written as \a name, the longest first: each must give
/// items or an error. A content beyond \a dense bytes is cut at every byte only at its start and end,
/// elsewhere now and then.
template <typename Read>
void everyTruncation(const SourceFiles &files, const QString &name, const QByteArray &content, Read read,
                     qsizetype dense = 4096)
{
    const QString path = files.write(name, content);
    qsizetype accepted = 0;
    for (qsizetype length = content.size() - 1; length >= 0;) {
        QVERIFY(QFile::resize(path, length)); // Cutting is much quicker than writing again.
        const auto result = read(path);
        QVERIFY2(result.list()->isEmpty() != result.errors.isEmpty(), qPrintable(QString::number(length)));
        for (const SourceProblem &problem : result.errors)
            QVERIFY2(!problem.text.isEmpty() && !problem.file.isEmpty(), qPrintable(QString::number(length)));
        accepted += result.ok() ? 1 : 0;
        const bool edge = length <= dense || length > content.size() - dense;
        length -= edge ? 1 : 61;
    }
    // Most of them must be noticed: a reader that takes everything would pass the rest.
    QVERIFY2(accepted < content.size() / 2, qPrintable(QString::number(accepted)));
}
