#include "documents/internal/JsonText.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr QByteArrayView mark("\xEF\xBB\xBF");

/// Qt takes the character of a byte order mark at the beginning of any text inside for a mark and drops it.
/// Written as an escape it stays.
QByteArray withEscapedMarks(const QByteArray &bytes)
{
    constexpr QByteArrayView raw("\"\xEF\xBB\xBF");
    return bytes.contains(raw) ? QByteArray(bytes).replace(raw, QByteArrayView("\"\\ufeff")) : bytes;
}
} // namespace

QString JsonText::place(const QByteArray &bytes, qsizetype offset)
{
    const QByteArrayView before = QByteArrayView(bytes).first(std::clamp<qsizetype>(offset, 0, bytes.size()));
    const qsizetype lineStart = before.lastIndexOf('\n') + 1;
    QByteArrayView line = before.sliced(lineStart);
    if (lineStart == 0 && line.startsWith(mark))
        line = line.sliced(mark.size());
    return QCoreApplication::translate("DocumentFile", "line %1, column %2")
        .arg(before.count('\n') + 1)
        .arg(QString::fromUtf8(line).size() + 1);
}

JsonText::Content JsonText::read(const QByteArray &bytes)
{
    Content content;
    content.style = {.byteOrderMark = bytes.startsWith(mark), .indented = bytes.trimmed().contains('\n')};
    QJsonParseError error;
    QJsonDocument document = QJsonDocument::fromJson(withEscapedMarks(bytes), &error);
    if (error.error != QJsonParseError::NoError) {
        document = QJsonDocument::fromJson(bytes, &error); // Places count in the text as it stands.
        content.problem = u"%1: %2"_s.arg(place(bytes, error.offset), error.errorString());
        return content;
    }
    content.value = document.isArray() ? QVariant(document.array().toVariantList())
                                       : QVariant(document.object().toVariantMap());
    return content;
}

QByteArray JsonText::write(const QJsonValue &value, Style style)
{
    const QJsonDocument document =
        value.isArray() ? QJsonDocument(value.toArray()) : QJsonDocument(value.toObject());
    const QByteArray text =
        withEscapedMarks(document.toJson(style.indented ? QJsonDocument::Indented : QJsonDocument::Compact));
    return style.byteOrderMark ? QByteArray(mark.toByteArray() + text) : text;
}
