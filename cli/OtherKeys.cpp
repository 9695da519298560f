#include "cli/OtherKeys.h"

#include "cli/DocumentReader.h"
#include "cli/ObjectKind.h"
#include "documents/DocumentFile.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using Cli::ObjectKind;

namespace
{
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

/// Whether \a value is more than one value; the objects hold none of such under a key that is for one.
bool isCompound(const QJsonValue &value)
{
    return value.isArray() || value.isObject();
}

/// Whether the layer writes \a value where the objects hold nothing.
bool standsForNothing(const QString &key, const QJsonValue &value)
{
    return (key == "type"_L1 && value == "integer"_L1) || (key == "size"_L1 && value == 1);
}

/// Whether two values of a known key say the same, given that the objects hold the same: 7 and "7" do, as a
/// label, and so do "" and no key at all.
bool sayTheSame(const QString &key, const QJsonValue &before, const QJsonValue &after)
{
    const auto nothing = [&key](const QJsonValue &value) {
        return Cli::saysNothing(key, value) || standsForNothing(key, value);
    };
    if (before == after || (nothing(before) && nothing(after)))
        return true;
    if (isCompound(before) || isCompound(after))
        return false;
    const QVariant left = before.toVariant();
    const QVariant right = after.toVariant();
    if (before.isDouble() != after.isDouble()) { // Codes are written as the type has them: 1 for "01".
        bool isNumber = false;
        bool isOther = false;
        const double number = left.toDouble(&isNumber);
        const double other = right.toDouble(&isOther);
        if (isNumber && isOther)
            return number == other;
    }
    return before.isBool() || after.isBool() ? left.toBool() == right.toBool()
                                             : left.toString() == right.toString();
}

/// \a object with its keys as they are written. Beside the written spelling the other one is left: there it
/// counts for nothing.
QJsonObject spelt(QJsonObject object, const ObjectKind &kind)
{
    if (!kind.partOf(u"root"_s))
        return object;
    for (const QString &key : {u"root"_s, u"weigthVar"_s}) {
        const QString written = Cli::writtenSpelling(key);
        if (kind.knows(key) && object.contains(key) && !object.contains(written))
            object.insert(written, object.take(key));
    }
    return object;
}

class Comparison
{
public:
    void objects(const QJsonObject &asBefore, const QJsonObject &asAfter, const ObjectKind &kind,
                 const QString &place)
    {
        if (asBefore == asAfter) // Most are, and this is the quickest way to know.
            return;
        const QJsonObject before = spelt(asBefore, kind);
        const QJsonObject after = spelt(asAfter, kind);
        const auto holdsObjects = [&kind](const QString &key) {
            return key != "root"_L1 && kind.partOf(key); // It is left beside "entities" alone.
        };
        for (auto entry = before.begin(); entry != before.end(); ++entry) {
            if (!holdsObjects(entry.key()))
                values(entry.key(), *entry, after.value(entry.key()), kind, place);
        }
        for (auto entry = after.begin(); entry != after.end(); ++entry) {
            if (!holdsObjects(entry.key()) && !before.contains(entry.key()))
                values(entry.key(), QJsonValue::Undefined, *entry, kind, place);
        }
        for (const auto &[key, part] : kind.parts) {
            if (part && holdsObjects(key))
                parts(key, before.value(key), after.value(key), *part, place);
        }
    }

    Cli::OtherDifferences found;

private:
    void values(const QString &key, const QJsonValue &before, const QJsonValue &after, const ObjectKind &kind,
                const QString &place)
    {
        if (kind.knows(key))
            known(key, before, after, place);
        else if (before != after)
            found.keys.append({place, key, before, after});
    }

    void known(const QString &key, const QJsonValue &before, const QJsonValue &after, const QString &place)
    {
        if (!sayTheSame(key, before, after))
            found.values.append({place, key, before, after});
    }

    void parts(const QString &key, const QJsonValue &before, const QJsonValue &after, const ObjectKind &kind,
               const QString &place)
    {
        const bool isLayout = &kind == &Cli::layoutKind;
        const auto fits = [isLayout](const QJsonValue &value) {
            return value.isNull() || value.isUndefined() || value.isObject()
                || (value.isArray() && !isLayout);
        };
        if (!fits(before) || !fits(after))
            known(key, before, after, place);
        else if (isLayout)
            objects(before.toObject(), after.toObject(), kind, place);
        else
            lists(key, elements(before), elements(after), kind, place);
    }

    /// An object that stands alone is a list of one.
    static QJsonArray elements(const QJsonValue &value)
    {
        return value.isObject() && !value.toObject().isEmpty() ? QJsonArray{value} : value.toArray();
    }

    void lists(const QString &key, const QJsonArray &before, const QJsonArray &after, const ObjectKind &kind,
               const QString &place)
    {
        const qsizetype count = std::min(before.size(), after.size());
        for (qsizetype i = 0; i < count; ++i) {
            if (!before.at(i).isObject() || !after.at(i).isObject()) {
                known(u"%1[%2]"_s.arg(key).arg(i), before.at(i), after.at(i), place);
                continue;
            }
            const QJsonObject object = after.at(i).toObject();
            const QString title = titleOf(object, i);
            const auto separator = place.isEmpty() ? ""_L1 : title.startsWith(u'[') ? " "_L1 : "/"_L1;
            objects(before.at(i).toObject(), object, kind, place + separator + title);
        }
    }
};
} // namespace

Cli::OtherDifferences Cli::otherDifferences(const QByteArray &before, const QByteArray &after)
{
    Comparison comparison;
    const auto document = [](const QByteArray &text) { return framed(valueOf(DocumentFile::parsed(text))); };
    comparison.objects(document(before), document(after), frameKind, {});
    return comparison.found;
}
