#include "documents/internal/JsonText.h"

#include "documents/TextPosition.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr QByteArrayView mark = TextPosition::byteOrderMark;
constexpr int deepest = 1024; ///< Objects and arrays within one another that Qt's parser takes.

/// Qt takes the character of a byte order mark at the beginning of any text inside for a mark and drops it.
/// Written as an escape it stays.
QByteArray withEscapedMarks(const QByteArray &bytes)
{
    constexpr QByteArrayView raw("\"\xEF\xBB\xBF");
    // A single byte is found much faster, and hardly any document has this one.
    return bytes.contains(raw[1]) && bytes.contains(raw)
        ? QByteArray(bytes).replace(raw, QByteArrayView("\"\\ufeff"))
        : bytes;
}

/// Where the text ends that begins with the quotation mark at \a begin.
qsizetype endOfText(QByteArrayView text, qsizetype begin)
{
    const auto isEscaped = [text](qsizetype at) {
        qsizetype first = at;
        while (text[first - 1] == '\\')
            --first;
        return (at - first) % 2 != 0;
    };
    qsizetype end = text.indexOf('"', begin + 1);
    while (end >= 0 && isEscaped(end))
        end = text.indexOf('"', end + 1);
    return end < 0 ? text.size() : end;
}
} // namespace

QJsonDocument JsonText::parse(const QByteArray &bytes, QJsonParseError *error)
{
    return QJsonDocument::fromJson(withEscapedMarks(bytes), error);
}

JsonText::Content JsonText::read(const QByteArray &bytes)
{
    Content content;
    content.style = {.byteOrderMark = bytes.startsWith(mark), .indented = bytes.trimmed().contains('\n')};
    if ((content.style.byteOrderMark ? bytes.sliced(mark.size()) : bytes).trimmed().isEmpty()) {
        content.problem = QCoreApplication::translate("DocumentFile", "The file is empty.");
        return content;
    }
    QJsonParseError error;
    const QJsonDocument document = parse(bytes, &error);
    if (error.error != QJsonParseError::NoError) {
        (void)QJsonDocument::fromJson(bytes, &error); // Places count in the text as it stands.
        content.problem = u"%1: %2"_s.arg(TextPosition::of(bytes, error).toString(), error.errorString());
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

bool JsonText::isTooDeep(QByteArrayView text)
{
    int depth = 0;
    for (qsizetype i = 0; i < text.size() && depth <= deepest; ++i) {
        switch (text[i]) {
        case '"':
            i = endOfText(text, i);
            break;
        case '{':
        case '[':
            ++depth;
            break;
        case '}':
        case ']':
            --depth;
            break;
        default:
            break;
        }
    }
    return depth > deepest;
}
