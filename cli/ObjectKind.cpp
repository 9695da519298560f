#include "cli/ObjectKind.h"

#include <QJsonArray>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Cli
{
namespace
{
constexpr ObjectKind rangeKind{.values = {"max"_L1, "min"_L1}};
constexpr ObjectKind valueLabelKind{.values = {"label"_L1, "value"_L1}};
constexpr ObjectKind variableKind{
    .named = true,
    .values = {"alias"_L1, "documentation"_L1, "fileName"_L1, "group"_L1, "label"_L1, "local"_L1,
               "missing"_L1, "name"_L1, "notapp"_L1, "size"_L1, "tag"_L1, "type"_L1},
    .parts = {{{"metadata"_L1, &layoutKind}, {"valueLabels"_L1, &valueLabelKind}}}};
} // namespace

constinit const ObjectKind layoutKind{
    .values = {"decimals"_L1, "field"_L1, "length"_L1, "lookup"_L1, "record"_L1, "start"_L1},
    .parts = {{{"range"_L1, &rangeKind}}}};

constinit const ObjectKind entityKind{
    .named = true,
    .values = {"alias"_L1, "codeVar"_L1, "documentation"_L1, "label"_L1, "labelVar"_L1, "name"_L1,
               "selectable"_L1, "virtual"_L1, "weightVar"_L1, "weigthVar"_L1},
    .parts = {{{"entities"_L1, &entityKind}, {"root"_L1, &entityKind}, {"variables"_L1, &variableKind}}}};

constinit const ObjectKind frameKind{.parts = {{{"entities"_L1, &entityKind}, {"root"_L1, &entityKind}}}};

const ObjectKind *ObjectKind::partOf(const QString &key) const
{
    const auto *part = std::find_if(parts.begin(), parts.end(),
                                    [&key](const Part &each) { return each.kind && each.key == key; });
    return part == parts.end() ? nullptr : part->kind;
}

bool ObjectKind::knows(const QString &key) const
{
    return partOf(key) || std::any_of(values.begin(), values.end(), [&key](QLatin1StringView known) {
               return !known.isEmpty() && known == key;
           });
}

QString writtenSpelling(const QString &key)
{
    if (key == "root"_L1)
        return u"entities"_s;
    return key == "weigthVar"_L1 ? u"weightVar"_s : key;
}

bool saysNothing(const QString &key, const QJsonValue &value)
{
    if (key == "start"_L1 && value == 1)
        return true; // The first position is where a variable without a start stands.
    switch (value.type()) {
    case QJsonValue::Bool:
        return !value.toBool();
    case QJsonValue::Double:
        return value.toDouble() == 0;
    case QJsonValue::String:
        return value.toString().isEmpty();
    case QJsonValue::Array:
        return value.toArray().isEmpty();
    case QJsonValue::Object:
        return value.toObject().isEmpty();
    default:
        return true; // Null or not there.
    }
}
} // namespace Cli
