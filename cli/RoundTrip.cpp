#include "cli/RoundTrip.h"

#include "cli/Failure.h"
#include "cli/ObjectKind.h"
#include "documents/DocumentKind.h"
#include "model/TDcEntity.h"

#include <QJsonArray>
#include <QJsonDocument>

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
    const Cli::ObjectKind *kind = nullptr; ///< Of the object or objects there; null when they are not known.
    const QJsonObject *object = nullptr; ///< The entity or variable that the step leads to.
};

QString segment(const Step &step)
{
    return step.index < 0 ? step.key : u"%1[%2]"_s.arg(step.key, QString::number(step.index));
}

QString path(const Step *from, const Step *to)
{
    QStringList segments;
    for (; from != to; from = from->before) {
        if (!from->key.isEmpty() || from->index >= 0)
            segments.prepend(segment(*from));
    }
    return segments.join(u'/');
}

/// The key under which \a after holds what \a before holds under \a key.
QString keyAfter(const QString &key, const QJsonObject &before, const QJsonObject &after)
{
    const QString written = Cli::writtenSpelling(key);
    return after.contains(key) || before.contains(written) ? key : written;
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
    void documents(const QJsonValue &before, const QJsonValue &after)
    {
        const QJsonObject object = before.toObject();
        if (before.isArray())
            lists(before.toArray(), after.toArray(), {.kind = &Cli::entityKind});
        else // If the document is an entity itself, its name says where a difference is.
            objects(object, after.toObject(),
                    {.kind = DocumentKind::isEntity(object) ? &Cli::entityKind : &Cli::frameKind,
                     .object = &object});
    }

    QList<Difference> found;

private:
    void objects(const QJsonObject &before, const QJsonObject &after, const Step &at)
    {
        for (auto entry = before.begin(); entry != before.end(); ++entry) {
            const Step step{
                .before = &at, .key = entry.key(), .kind = at.kind ? at.kind->partOf(entry.key()) : nullptr};
            const QJsonValue written = after.value(keyAfter(entry.key(), before, after));
            if (!written.isUndefined())
                values(*entry, written, step);
            else if (!at.kind || !at.kind->knows(entry.key()) || !Cli::saysNothing(entry.key(), *entry))
                add(*entry, written, step);
        }
    }

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
            const Step step{.before = at.before, .key = at.key, .index = i, .kind = at.kind};
            values(before.at(i), after.size() > i ? after.at(i) : QJsonValue(QJsonValue::Undefined), step);
        }
    }

    void descend(const QJsonObject &before, const QJsonObject &after, Step at)
    {
        if (at.kind && at.kind->named)
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

QList<Difference> differences(const QJsonValue &before, const QJsonValue &after)
{
    Comparison comparison;
    comparison.documents(before, after);
    return comparison.found;
}

RoundTrip roundTrip(const DictionaryDocument &document)
{
    const QJsonValue value = writeEntities(readEntities(document), document);
    QByteArray written =
        (value.isArray() ? QJsonDocument(value.toArray()) : QJsonDocument(value.toObject())).toJson();
    // What the next reader will find counts, not what was meant to be written.
    QJsonParseError error;
    const QJsonDocument again = QJsonDocument::fromJson(written, &error);
    if (error.error != QJsonParseError::NoError)
        throw Failure(u"the result could not be read again: %1"_s.arg(error.errorString()));
    return {written, differences(document.content, valueOf(again)), document.unkept};
}
} // namespace Cli
