#include "documents/sources/internal/NumberFormat.h"

#include <QRegularExpression>
#include <QStringList>

using namespace Qt::Literals::StringLiterals;

NumberFormat NumberFormat::parse(const QString &format)
{
    static const QRegularExpression pattern(
        u"^(?<percent>%)?[-+~]?(?<word>\\$?[A-Za-z_]*)(?<width>\\d*)(?:[.,](?<decimals>\\d+))?(?<letter>[a-z]*)\\.?$"_s);
    // Formats of numbers in plain notation. In all others the decimals are a matter of taste or of time.
    static const QStringList plain{u""_s,    u"F"_s,      u"N"_s,   u"Z"_s,       u"COMMA"_s,
                                   u"DOT"_s, u"DOLLAR"_s, u"PCT"_s, u"PERCENT"_s, u"COMMAX"_s,
                                   u"CCA"_s, u"CCB"_s,    u"CCC"_s, u"CCD"_s,     u"CCE"_s};
    const QRegularExpressionMatch match = pattern.match(format);
    NumberFormat result;
    if (!match.hasMatch())
        return result;
    result.width = match.capturedView(u"width"_s).toInt();
    const bool stata = match.hasCaptured(u"percent"_s);
    const bool fixed = stata ? match.capturedView(u"letter"_s).startsWith(u'f')
                             : result.width > 0 && plain.contains(match.captured(u"word"_s).toUpper());
    if (fixed)
        result.decimals = match.capturedView(u"decimals"_s).toInt();
    return result;
}
