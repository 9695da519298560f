#pragma once

#include "documents/documents_export.h"

#include <QByteArray>
#include <QString>

struct QJsonParseError;

/// A place in a text that is UTF-8, with or without a byte order mark. Both numbers count from 1. A line ends
/// with LF, CR LF or CR; a column is a character, however many bytes it takes.
struct DOCUMENTS_EXPORT TextPosition {
    static constexpr QByteArrayView byteOrderMark{"\xEF\xBB\xBF"};

    qsizetype line = 1;
    qsizetype column = 1;

    /// Where the byte at \a offset stands in \a text. Beyond the end counts as the end.
    [[nodiscard]] static TextPosition of(const QByteArray &text, qsizetype offset);

    /// Where in \a text begins what \a error complains about. Its own offset is behind that for some errors.
    [[nodiscard]] static TextPosition of(const QByteArray &text, const QJsonParseError &error);

    /// "line 3, column 5" in the user's language.
    [[nodiscard]] QString toString() const;
};

/// Places in one text that are asked for from its start to its end: each costs the way from the one before.
class DOCUMENTS_EXPORT TextPositions
{
public:
    /// The bytes of \a text must outlive this.
    explicit TextPositions(QByteArrayView text);

    /// Where the byte at \a offset stands, which is not before the one that was asked for last.
    [[nodiscard]] TextPosition at(qsizetype offset);

private:
    QByteArrayView m_text;
    qsizetype m_offset = 0;
    TextPosition m_position;
};
