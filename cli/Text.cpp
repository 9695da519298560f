#include "cli/Text.h"

#include <QLocale>

#include <algorithm>
#include <iterator>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr char32_t joiners[] = {0x200C, 0x200D}; // They shape letters and emoji and steer nothing.

/// Control characters, lone surrogates and formatting characters such as those that turn the direction of
/// writing.
bool steersTerminal(char32_t c)
{
    switch (QChar::category(c)) {
    case QChar::Other_Format:
        return std::find(std::begin(joiners), std::end(joiners), c) == std::end(joiners);
    case QChar::Other_Control:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

struct Block {
    char32_t first;
    char32_t last;
};

/// What terminals show two columns wide, in ascending order.
constexpr Block wideBlocks[] = {
    {0x1100, 0x115F},   {0x231A, 0x231B},   {0x2329, 0x232A},   {0x23E9, 0x23EC},   {0x25FD, 0x25FE},
    {0x2614, 0x2615},   {0x2648, 0x2653},   {0x26AA, 0x26AB},   {0x26BD, 0x26BE},   {0x2705, 0x2705},
    {0x274C, 0x274C},   {0x2753, 0x2755},   {0x2795, 0x2797},   {0x2B1B, 0x2B1C},   {0x2B50, 0x2B50},
    {0x2E80, 0x303E},   {0x3041, 0x33FF},   {0x3400, 0x4DBF},   {0x4E00, 0xA4CF},   {0xA960, 0xA97C},
    {0xAC00, 0xD7A3},   {0xF900, 0xFAFF},   {0xFE10, 0xFE19},   {0xFE30, 0xFE6F},   {0xFF00, 0xFF60},
    {0xFFE0, 0xFFE6},   {0x17000, 0x18CFF}, {0x1B000, 0x1B2FF}, {0x1F18E, 0x1F18E}, {0x1F191, 0x1F19A},
    {0x1F200, 0x1F320}, {0x1F32D, 0x1F64F}, {0x1F680, 0x1F6FC}, {0x1F7E0, 0x1F7EB}, {0x1F90C, 0x1F9FF},
    {0x1FA70, 0x1FAFF}, {0x20000, 0x3FFFD},
};

int columnsOf(char32_t c)
{
    switch (QChar::category(c)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_Enclosing:
    case QChar::Other_Format:
        return 0;
    default:
        break;
    }
    const auto *block =
        std::lower_bound(std::begin(wideBlocks), std::end(wideBlocks), c,
                         [](const Block &candidate, char32_t wanted) { return candidate.last < wanted; });
    return block != std::end(wideBlocks) && block->first <= c ? 2 : 1;
}

/// The UTF-16 units of \a c.
QString unitsOf(char32_t c)
{
    return QString::fromUcs4(&c, 1);
}

QString hex(uint value, int digits)
{
    return u"%1"_s.arg(value, digits, 16, QChar(u'0'));
}

QString escaped(char32_t c)
{
    return c < 0x100 ? u"\\x"_s + hex(c, 2) : u"\\u"_s + hex(c, 4);
}

/// The length of the longest beginning of \a text that fits into \a columns; at least one character.
qsizetype fitting(QStringView text, int columns)
{
    int taken = 0;
    qsizetype length = 0;
    for (const char32_t c : text.toUcs4()) {
        taken += columnsOf(c);
        if (taken > columns && length > 0)
            break;
        length += QChar::requiresSurrogates(c) ? 2 : 1;
    }
    return length;
}
} // namespace

namespace Cli::Text
{
QString printable(const QString &text)
{
    QString shown;
    shown.reserve(text.size());
    for (const char32_t c : text.toUcs4()) {
        const bool blank = c == U'\t' || c == U'\n' || c == U'\r';
        shown += blank ? u" "_s : steersTerminal(c) ? escaped(c) : unitsOf(c);
    }
    return shown;
}

QByteArray printableJson(const QByteArray &json)
{
    const QString text = QString::fromUtf8(json);
    QString shown;
    shown.reserve(text.size());
    for (const char32_t c : text.toUcs4()) {
        const QString units = unitsOf(c);
        if (c == U'\n' || !steersTerminal(c)) {
            shown += units;
            continue;
        }
        for (const QChar unit : units)
            shown += u"\\u"_s + hex(unit.unicode(), 4);
    }
    return shown.toUtf8();
}

int width(QStringView text)
{
    const QList<uint> characters = text.toUcs4();
    return std::accumulate(characters.cbegin(), characters.cend(), 0,
                           [](int columns, char32_t c) { return columns + columnsOf(c); });
}

QStringList wrapped(const QString &text, int columns)
{
    QStringList lines;
    QStringView rest = QStringView(text).trimmed();
    while (width(rest) > columns) {
        const qsizetype most = fitting(rest, columns);
        const qsizetype blank = rest.first(std::min(most + 1, rest.size())).lastIndexOf(u' ');
        const qsizetype cut = blank > 0 ? blank : most;
        lines.append(rest.first(cut).trimmed().toString());
        rest = rest.sliced(cut).trimmed();
    }
    if (!rest.isEmpty() || lines.isEmpty())
        lines.append(rest.toString());
    return lines;
}

QString elided(const QString &text, int columns)
{
    return width(text) <= columns ? text : text.first(columns > 1 ? fitting(text, columns - 1) : 0) + u'…';
}

QString number(double value)
{
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

QString counted(qsizetype count, const QString &one, const QString &many)
{
    return QString::number(count) + u' ' + (count == 1 ? one : many);
}
} // namespace Cli::Text
