#pragma once

#include <QString>

/// \a text as it may stand in HTML, between tags and in quoted attributes. Characters that HTML does not
/// allow at all become the replacement character.
[[nodiscard]] inline QString htmlText(const QString &text)
{
    QString result;
    result.reserve(text.size() + text.size() / 8);
    for (const QChar c : text) {
        switch (c.unicode()) {
        case u'&':
            result += QLatin1StringView("&amp;");
            break;
        case u'<':
            result += QLatin1StringView("&lt;");
            break;
        case u'>':
            result += QLatin1StringView("&gt;");
            break;
        case u'"':
            result += QLatin1StringView("&quot;");
            break;
        case u'\'':
            result += QLatin1StringView("&#39;");
            break;
        case u'\t':
        case u'\n':
            result += c;
            break;
        case u'\r':
            break;
        default:
            result += c.category() == QChar::Other_Control ? QChar(QChar::ReplacementCharacter) : c;
        }
    }
    return result;
}
