#include "cli/NearMatches.h"

#include <QHash>

#include <algorithm>
#include <limits>
#include <numeric>
#include <utility>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr int mostMatches = 3;
constexpr int none = std::numeric_limits<int>::max();

/// The number of letters to change, add, leave out or exchange with the next.
int editDistance(const QString &left, const QString &right)
{
    std::vector<int> before;
    std::vector<int> row(right.size() + 1);
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype i = 0; i < left.size(); ++i) {
        std::vector<int> next(row.size(), int(i) + 1);
        for (qsizetype j = 0; j < right.size(); ++j) {
            const int change = row[j] + (left.at(i) != right.at(j));
            next[j + 1] = std::min({change, next[j] + 1, row[j + 1] + 1});
            const bool exchanged =
                i > 0 && j > 0 && left.at(i) == right.at(j - 1) && left.at(i - 1) == right.at(j);
            if (exchanged)
                next[j + 1] = std::min(next[j + 1], before[j - 1] + 1);
        }
        before = std::exchange(row, std::move(next));
    }
    return row.back();
}

int distance(const QString &wanted, const QString &name)
{
    const QString left = wanted.toCaseFolded();
    const QString right = name.toCaseFolded();
    const int edits = editDistance(left, right);
    if (edits <= std::max<qsizetype>(1, std::min(left.size(), right.size()) / 3))
        return edits;
    const bool beginsAlike =
        !left.isEmpty() && !right.isEmpty() && (right.startsWith(left) || left.startsWith(right));
    return beginsAlike ? edits : none;
}
} // namespace

QStringList Cli::nearMatches(const QString &wanted, const QStringList &names)
{
    QHash<QString, int> distances;
    for (const QString &name : names)
        distances.insert(name, distance(wanted, name));
    QStringList matches = distances.keys();
    matches.removeIf([&](const QString &name) { return name.isEmpty() || distances.value(name) == none; });
    std::sort(matches.begin(), matches.end(), [&](const QString &left, const QString &right) {
        return std::pair(distances.value(left), left) < std::pair(distances.value(right), right);
    });
    return matches.first(std::min<qsizetype>(matches.size(), mostMatches));
}

QString Cli::didYouMean(const QString &wanted, const QStringList &names)
{
    const QStringList near = nearMatches(wanted, names);
    return near.isEmpty() ? QString() : u"; did you mean \"%1\"?"_s.arg(near.join(u"\" or \""_s));
}
