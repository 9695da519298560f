#include "documents/internal/JsonLosses.h"

#include "documents/TextPosition.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QList>
#include <QSet>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace
{
/// A number without its way of writing: digits without zeros around them, and a power of ten.
struct Decimal {
    QByteArray digits;
    qint64 exponent = 0;
    bool negative = false;
    bool operator==(const Decimal &) const = default;
};

Decimal decimalOf(QByteArrayView token)
{
    Decimal decimal;
    decimal.negative = token.startsWith('-');
    bool fraction = false;
    for (qsizetype i = 0; i < token.size(); ++i) {
        const char c = token[i];
        if (c == 'e' || c == 'E') {
            decimal.exponent += token.sliced(i + 1).toLongLong();
            break;
        }
        fraction = fraction || c == '.';
        if (c < '0' || c > '9')
            continue;
        decimal.exponent -= fraction ? 1 : 0;
        if (c != '0' || !decimal.digits.isEmpty())
            decimal.digits.append(c);
    }
    while (decimal.digits.endsWith('0')) {
        decimal.digits.chop(1);
        ++decimal.exponent;
    }
    return decimal.digits.isEmpty() ? Decimal() : decimal;
}

bool isKept(QByteArrayView token)
{
    constexpr int safeDigits = 15; // Every number of so many digits is told from its neighbours.
    const bool scientific =
        std::any_of(token.begin(), token.end(), [](char c) { return c == 'e' || c == 'E'; });
    if (token.size() <= safeDigits && !scientific)
        return true;
    const QJsonDocument read = QJsonDocument::fromJson('[' + token.toByteArray() + ']');
    const QByteArray written = read.toJson(QJsonDocument::Compact);
    return decimalOf(token) == decimalOf(QByteArrayView(written).sliced(1).chopped(1));
}

/// Walks through a well-formed text once.
class Scanner
{
public:
    explicit Scanner(const QByteArray &text) : m_text(text), m_positions(text) { }

    QStringList losses()
    {
        while (m_at < m_text.size())
            step(m_text.at(m_at));
        return m_losses;
    }

private:
    struct Level {
        bool isObject;
        qsizetype firstKey; // Of the object, in m_keys.
        qsizetype index = 0; // Of the present element of an array.
        QSet<QByteArray> seen = {}; // Only kept once the keys do not ascend.
    };

    void step(char c)
    {
        if (c == '"')
            text();
        else if (c == '{' || c == '[')
            open(c == '{');
        else if (c == '}' || c == ']')
            close();
        else if (c == ',')
            next();
        else if (c == '-' || (c >= '0' && c <= '9'))
            number();
        else
            ++m_at;
    }

    void open(bool isObject)
    {
        m_levels.append({.isObject = isObject, .firstKey = m_keys.size()});
        m_expectsKey = isObject;
        ++m_at;
    }

    void close()
    {
        m_keys.resize(m_levels.constLast().firstKey);
        m_levels.removeLast();
        m_expectsKey = false;
        ++m_at;
    }

    void next()
    {
        Level &level = m_levels.last();
        ++level.index;
        m_expectsKey = level.isObject;
        ++m_at;
    }

    void text()
    {
        const qsizetype begin = m_at + 1;
        for (++m_at; m_text.at(m_at) != '"'; ++m_at)
            m_at += m_text.at(m_at) == '\\' ? 1 : 0;
        if (std::exchange(m_expectsKey, false))
            key(begin, m_text.sliced(begin, m_at - begin));
        ++m_at;
    }

    void key(qsizetype begin, QByteArrayView raw)
    {
        const QByteArray key =
            raw.contains('\\') ? unescaped(raw) : QByteArray::fromRawData(raw.data(), raw.size());
        if (isRepeated(key))
            lose(begin - 1,
                 QCoreApplication::translate("DocumentFile",
                                             "is there more than once; only the last is kept"));
    }

    /// Most objects have their keys in ascending order: then one comparison tells.
    bool isRepeated(const QByteArray &key)
    {
        Level &level = m_levels.last();
        const bool ascends =
            level.seen.isEmpty() && (m_keys.size() == level.firstKey || m_keys.constLast() < key);
        if (!ascends && level.seen.isEmpty())
            level.seen = QSet<QByteArray>(m_keys.cbegin() + level.firstKey, m_keys.cend());
        const bool repeated = !ascends && level.seen.contains(key);
        m_keys.append(key);
        if (!ascends)
            level.seen.insert(key);
        return repeated;
    }

    static QByteArray unescaped(QByteArrayView raw)
    {
        const QByteArray array = "[\"" + raw.toByteArray() + "\"]";
        return QJsonDocument::fromJson(array).array().at(0).toString().toUtf8();
    }

    void number()
    {
        const qsizetype begin = m_at;
        const auto belongs = [](char c) {
            return (c >= '0' && c <= '9') || c == '-' || c == '+' || c == '.' || c == 'e' || c == 'E';
        };
        while (m_at < m_text.size() && belongs(m_text.at(m_at)))
            ++m_at;
        const QByteArrayView token = m_text.sliced(begin, m_at - begin);
        if (!isKept(token))
            lose(begin,
                 QCoreApplication::translate("DocumentFile", "%1 has more digits than can be kept")
                     .arg(QString::fromLatin1(token)));
    }

    /// Where the walk is: "root.variables[3].label".
    [[nodiscard]] QString path() const
    {
        QString path;
        for (qsizetype i = 0; i < m_levels.size(); ++i) {
            const Level &level = m_levels.at(i);
            const qsizetype nextLevel = i + 1 < m_levels.size() ? m_levels.at(i + 1).firstKey : m_keys.size();
            if (!level.isObject)
                path += u"[%1]"_s.arg(level.index);
            else if (nextLevel > level.firstKey)
                path += (path.isEmpty() ? u""_s : u"."_s) + QString::fromUtf8(m_keys.at(nextLevel - 1));
        }
        return path;
    }

    void lose(qsizetype offset, const QString &what)
    {
        m_losses.append(u"%1: %2 %3"_s.arg(m_positions.at(offset).toString(), path(), what));
    }

    QByteArrayView m_text;
    TextPositions m_positions; // Of what is lost, one after the other.
    qsizetype m_at = 0;
    bool m_expectsKey = false;
    QList<Level> m_levels;
    QList<QByteArray> m_keys; // Of all open objects, outermost first.
    QStringList m_losses;
};
} // namespace

QStringList JsonLosses::of(const QByteArray &text)
{
    return Scanner(text).losses();
}
