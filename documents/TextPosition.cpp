#include "documents/TextPosition.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonParseError>

#include <algorithm>

namespace
{
qsizetype offsetOf(const QByteArray &text, const QJsonParseError &error)
{
    // Qt tells where its parser stood: for some errors at the place, for the others behind it, unless the
    // text just ended there.
    switch (error.error) {
    case QJsonParseError::IllegalNumber:
    case QJsonParseError::IllegalEscapeSequence:
    case QJsonParseError::IllegalUTF8String:
    case QJsonParseError::GarbageAtEnd:
        return error.offset;
    default:
        break;
    }
    // The parser passes over one more blank only when it has used up all that stands before it.
    QJsonParseError withBlank;
    (void)QJsonDocument::fromJson(text + ' ', &withBlank);
    const bool atEnd = withBlank.offset > text.size();
    return atEnd ? text.size() : std::max(0, error.offset - 1);
}
} // namespace

TextPosition TextPosition::of(const QByteArray &text, qsizetype offset)
{
    return TextPositions(text).at(offset);
}

TextPosition TextPosition::of(const QByteArray &text, const QJsonParseError &error)
{
    return of(text, offsetOf(text, error));
}

QString TextPosition::toString() const
{
    return QCoreApplication::translate("DocumentFile", "line %1, column %2").arg(line).arg(column);
}

TextPositions::TextPositions(QByteArrayView text)
    : m_text(text),
      m_offset(text.startsWith(TextPosition::byteOrderMark) ? TextPosition::byteOrderMark.size() : 0)
{
}

TextPosition TextPositions::at(qsizetype offset)
{
    for (const qsizetype end = std::min(offset, m_text.size()); m_offset < end; ++m_offset) {
        const char byte = m_text[m_offset];
        const bool continues = (uchar(byte) & 0xC0U) == 0x80U;
        const bool endsCrLf = byte == '\n' && m_offset > 0 && m_text[m_offset - 1] == '\r';
        if (byte == '\r' || (byte == '\n' && !endsCrLf))
            m_position = {.line = m_position.line + 1, .column = 1};
        else if (!continues && !endsCrLf)
            ++m_position.column;
    }
    return m_position;
}
