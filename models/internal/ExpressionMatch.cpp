#include "models/internal/ExpressionMatch.h"

#include <QDeadlineTimer>
#include <QRegularExpression>

#include <algorithm>
#include <chrono>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace
{
// Far beyond what any sensible pattern needs. A single text is bounded by the engine's own limit.
constexpr auto patience = 1s;

bool isPlain(const QString &pattern)
{
    constexpr auto special = R"(\^$.[|()?*+{)"_L1;
    return pattern.isValidUtf16()
        && std::none_of(pattern.cbegin(), pattern.cend(),
                        [special](QChar character) { return special.contains(character); });
}
} // namespace

qsizetype ExpressionMatch::indexOf(const QList<QString> &texts, const QString &pattern)
{
    if (isPlain(pattern))
        return texts.indexOf(pattern);
    // What is valid alone need not be so when it is wrapped, and the other way round.
    const QRegularExpression whole(QRegularExpression::anchoredPattern(pattern));
    if (!whole.isValid())
        return -1;
    const QDeadlineTimer deadline(patience);
    for (qsizetype i = 0; i < texts.size() && !deadline.hasExpired(); ++i) {
        if (whole.match(texts.at(i)).hasMatch())
            return i;
    }
    return -1;
}
