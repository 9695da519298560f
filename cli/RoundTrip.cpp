#include "cli/RoundTrip.h"

#include "cli/Failure.h"
#include "model/TDcEntity.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <iterator>
#include <utility>

using namespace Qt::Literals::StringLiterals;
using Cli::Difference;

namespace
{
constexpr qsizetype mostCharacters = 80;

/// A way through a document, kept as links between the frames that walk it; only a difference spells it out.
struct Step {
    const Step *before = nullptr;
    QString key = {};
    qsizetype index = -1; ///< In a list; -1 for what is in none.
    const QJsonObject *object = nullptr; ///< The entity or variable that the step leads to.
};

/// Objects under these keys have names of their own.
bool holdsNamed(const QString &key)
{
    return key == "entities"_L1 || key == "root"_L1 || key == "variables"_L1;
}

QString segment(const Step &step)
{
    return step.index < 0 ? step.key : u"%1[%2]"_s.arg(step.key, QString::number(step.index));
}

QString path(const Step *from, const Step *to)
{
    QStringList segments;
    for (; from != to; from = from->before) {
        if (!from->key.isEmpty())
            segments.prepend(segment(*from));
    }
    return segments.join(u'/');
}

/// The key under which \a after holds what \a before holds under \a key: two keys are read under one spelling
/// and written under another.
QString keyAfter(const QString &key, const QJsonObject &before, const QJsonObject &after)
{
    constexpr std::pair<QLatin1StringView, QLatin1StringView> spellings[] = {
        {"root"_L1, "entities"_L1}, {"weigthVar"_L1, "weightVar"_L1}};
    for (const auto &[read, written] : spellings) {
        if (key == read && !after.contains(read) && !before.contains(written))
            return written;
    }
    return key;
}

/// A known key without a value says what a missing key says.
bool saysNothing(const QString &key, const QJsonValue &value)
{
    constexpr QLatin1StringView leftOutWhenEmpty[] = {
        "alias"_L1, "codeVar"_L1,     "decimals"_L1,  "documentation"_L1, "entities"_L1, "field"_L1,
        "group"_L1, "label"_L1,       "labelVar"_L1,  "length"_L1,        "lookup"_L1,   "name"_L1,
        "range"_L1, "record"_L1,      "root"_L1,      "size"_L1,          "start"_L1,    "tag"_L1,
        "value"_L1, "valueLabels"_L1, "variables"_L1, "weightVar"_L1,     "weigthVar"_L1};
    if (key == "start"_L1 && value == 1)
        return true; // The first position is where a variable without a start stands.
    const bool known = std::find(std::begin(leftOutWhenEmpty), std::end(leftOutWhenEmpty), key)
        != std::end(leftOutWhenEmpty);
    switch (value.type()) {
    case QJsonValue::Null:
        return known;
    case QJsonValue::Bool:
        return known && !value.toBool();
    case QJsonValue::Double:
        return known && value.toDouble() == 0;
    case QJsonValue::String:
        return known && value.toString().isEmpty();
    case QJsonValue::Array:
        return known && value.toArray().isEmpty();
    case QJsonValue::Object:
        return known && value.toObject().isEmpty();
    default:
        return false;
    }
}

/// \a value as JSON, cut where it gets long.
QString shown(const QJsonValue &value)
{
    const QString list = QString::fromUtf8(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact));
    const QString text = list.sliced(1, list.size() - 2);
    return text.size() <= mostCharacters ? text : text.first(mostCharacters) + u'…';
}

class Comparison
{
public:
    void objects(const QJsonObject &before, const QJsonObject &after, const Step &at)
    {
        for (auto entry = before.begin(); entry != before.end(); ++entry) {
            const Step step{.before = &at, .key = entry.key()};
            const QJsonValue written = after.value(keyAfter(entry.key(), before, after));
            if (!written.isUndefined())
                values(*entry, written, step);
            else if (!saysNothing(entry.key(), *entry))
                add(*entry, written, step);
        }
    }

    QList<Difference> found;

private:
    void values(const QJsonValue &before, const QJsonValue &after, const Step &at)
    {
        if (before.isArray() && after.isArray())
            lists(before.toArray(), after.toArray(), at);
        else if (before.isObject() && after.isObject())
            descend(before.toObject(), after.toObject(), at);
        else if (const QJsonArray list = after.toArray(); before.isObject() && list.size() == 1)
            descend(before.toObject(), list.first().toObject(), at);
        else if (before != after)
            add(before, after, at);
    }

    void lists(const QJsonArray &before, const QJsonArray &after, const Step &at)
    {
        for (qsizetype i = 0; i < before.size(); ++i) {
            const Step step{.before = at.before, .key = at.key, .index = i};
            values(before.at(i), after.size() > i ? after.at(i) : QJsonValue(QJsonValue::Undefined), step);
        }
    }

    void descend(const QJsonObject &before, const QJsonObject &after, Step at)
    {
        if (holdsNamed(at.key))
            at.object = &before;
        objects(before, after, at);
    }

    void add(const QJsonValue &before, const QJsonValue &after, const Step &at)
    {
        const Step *named = &at;
        while (named && !named->object)
            named = named->before;
        QString place = path(named, nullptr);
        if (const QString name = named ? named->object->value("name"_L1).toString() : QString();
            !name.isEmpty())
            place += (place.isEmpty() ? u"\"%1\""_s : u" \"%1\""_s).arg(name);
        found.append({place, path(&at, named), before, after});
    }
};
} // namespace

namespace Cli
{
QString Difference::toString() const
{
    const QString where = place.isEmpty() ? key : place + u": "_s + key;
    if (before.isUndefined())
        return u"%1: added (%2)"_s.arg(where, shown(after));
    return after.isUndefined() ? u"%1: dropped (was %2)"_s.arg(where, shown(before))
                               : u"%1: changed from %2 to %3"_s.arg(where, shown(before), shown(after));
}

QList<Difference> differences(const QJsonObject &before, const QJsonObject &after)
{
    Comparison comparison;
    // The document may be an entity itself; its name then says where a difference is.
    comparison.objects(before, after, {.object = &before});
    return comparison.found;
}

RoundTrip roundTrip(const DictionaryDocument &document)
{
    QByteArray written = QJsonDocument(writeEntities(readEntities(document), document)).toJson();
    // What the next reader will find counts, not what was meant to be written.
    QJsonParseError error;
    const QJsonDocument again = QJsonDocument::fromJson(written, &error);
    if (error.error != QJsonParseError::NoError)
        throw Failure(u"the result could not be read again: %1"_s.arg(error.errorString()));
    return {written, differences(document.content, again.object()), document.unkept};
}
} // namespace Cli
