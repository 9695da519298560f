#include "cli/OtherKeys.h"

#include "cli/DocumentReader.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;
using Cli::Difference;

namespace
{
/// A kind of object in a document: the keys that are known and, of these, the ones that hold further objects.
struct Kind {
    struct Part {
        QLatin1StringView key;
        const Kind *kind;
    };
    std::array<QLatin1StringView, 12> values = {};
    std::array<Part, 3> parts = {};
};

constexpr Kind rangeKind{.values = {"max"_L1, "min"_L1}};
constexpr Kind valueLabelKind{.values = {"label"_L1, "value"_L1}};
constexpr Kind layoutKind{
    .values = {"decimals"_L1, "field"_L1, "length"_L1, "lookup"_L1, "record"_L1, "start"_L1},
    .parts = {{{"range"_L1, &rangeKind}}}};
constexpr Kind variableKind{.values = {"alias"_L1, "documentation"_L1, "fileName"_L1, "group"_L1, "label"_L1,
                                       "local"_L1, "missing"_L1, "name"_L1, "notapp"_L1, "size"_L1, "tag"_L1,
                                       "type"_L1},
                            .parts = {{{"metadata"_L1, &layoutKind}, {"valueLabels"_L1, &valueLabelKind}}}};
extern const Kind entityKind;
const Kind entityKind{
    .values = {"alias"_L1, "codeVar"_L1, "documentation"_L1, "label"_L1, "labelVar"_L1, "name"_L1,
               "selectable"_L1, "virtual"_L1, "weightVar"_L1, "weigthVar"_L1},
    .parts = {{{"entities"_L1, &entityKind}, {"root"_L1, &entityKind}, {"variables"_L1, &variableKind}}}};

constexpr Kind frameKind{.parts = {{{"entities"_L1, &entityKind}, {"root"_L1, &entityKind}}}};

/// What a person calls an object in a list: its name, its code, its bounds, or its place.
QString titleOf(const QJsonObject &object, qsizetype index)
{
    const auto text = [&object](QLatin1StringView key) { return object.value(key).toVariant().toString(); };
    if (object.contains("min"_L1) || object.contains("max"_L1))
        return u"[%1 - %2]"_s.arg(text("min"_L1), text("max"_L1));
    if (object.contains("value"_L1))
        return u"[%1]"_s.arg(text("value"_L1));
    const QString name = text("name"_L1);
    return name.isEmpty() ? u"[%1]"_s.arg(index) : name;
}

class Comparison
{
public:
    void objects(const QJsonObject &before, const QJsonObject &after, const Kind &kind, const QString &place)
    {
        for (auto entry = before.begin(); entry != before.end(); ++entry)
            values(entry.key(), *entry, after.value(entry.key()), kind, place);
        for (auto entry = after.begin(); entry != after.end(); ++entry) {
            if (!before.contains(entry.key()))
                values(entry.key(), QJsonValue::Undefined, *entry, kind, place);
        }
        for (const auto &[key, part] : kind.parts) {
            if (part == &layoutKind)
                objects(before.value(key).toObject(), after.value(key).toObject(), *part, place);
            else if (part)
                lists(elements(before, key), elements(after, key), *part, place);
        }
    }

    QList<Difference> found;

private:
    void values(const QString &key, const QJsonValue &before, const QJsonValue &after, const Kind &kind,
                const QString &place)
    {
        const auto isKey = [&key](QLatin1StringView known) { return known == key; };
        const bool known = std::any_of(kind.values.begin(), kind.values.end(), isKey)
            || std::any_of(kind.parts.begin(), kind.parts.end(),
                           [&isKey](const Kind::Part &part) { return part.kind && isKey(part.key); });
        if (!known && before != after)
            found.append({place, key, before, after});
    }

    /// An object that stands alone is a list of one. The children stand under "root" where there is no
    /// "entities".
    static QJsonArray elements(const QJsonObject &object, QLatin1StringView key)
    {
        if (key == "root"_L1)
            return {};
        const bool underRoot = key == "entities"_L1 && !object.contains(key);
        const QJsonValue value = object.value(underRoot ? "root"_L1 : key);
        return value.isObject() ? QJsonArray{value} : value.toArray();
    }

    void lists(const QJsonArray &before, const QJsonArray &after, const Kind &kind, const QString &place)
    {
        const qsizetype count = std::min(before.size(), after.size());
        for (qsizetype i = 0; i < count; ++i) {
            const QJsonObject object = after.at(i).toObject();
            const QString title = titleOf(object, i);
            const auto separator = place.isEmpty() ? ""_L1 : title.startsWith(u'[') ? " "_L1 : "/"_L1;
            objects(before.at(i).toObject(), object, kind, place + separator + title);
        }
    }
};

/// The document as an object that holds its root in a list, whichever way it holds it.
QJsonObject framed(const QJsonDocument &document)
{
    if (document.isArray())
        return {{"root"_L1, document.array()}};
    return Cli::isEntity(document.object()) ? QJsonObject{{"root"_L1, document.object()}} : document.object();
}
} // namespace

QList<Difference> Cli::otherDifferences(const QByteArray &before, const QByteArray &after)
{
    Comparison comparison;
    comparison.objects(framed(QJsonDocument::fromJson(before)), framed(QJsonDocument::fromJson(after)),
                       frameKind, {});
    return comparison.found;
}
