#pragma once

#include "documents/internal/Origin.h"

#include <QLatin1StringView>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <optional>
#include <string_view>

/// What a file keeps beside what the layer's reader and writer do: one table of keys for each kind of JSON
/// object.
namespace Keys
{
using namespace Qt::Literals::StringLiterals;

/// One key. A value that is not valid stands for a missing key throughout.
template <typename Object>
struct Key {
    QLatin1StringView name;
    /// Whether the file would be written with just this value. Null for keys that hold objects or need the
    /// whole object to be understood.
    bool (*usual)(const Object &, const QVariant &) = nullptr;
    /// Whether reading this value gives what the object holds.
    bool (*holds)(const Object &, const QVariant &) = nullptr;
    /// What has to be written instead of what the layer writes, undefined for no key; nothing where the layer
    /// loses nothing.
    std::optional<QJsonValue> (*instead)(const Object &) = nullptr;
};

template <typename Object, std::size_t Size>
consteval bool ascends(const Key<Object> (&keys)[Size])
{
    return std::is_sorted(std::begin(keys), std::end(keys), [](const auto &left, const auto &right) {
        return std::string_view(left.name.data(), left.name.size())
            < std::string_view(right.name.data(), right.name.size());
    });
}

// What a value is like.

[[nodiscard]] inline bool isText(const QVariant &value)
{
    return value.typeId() == QMetaType::QString;
}

[[nodiscard]] inline bool isFilledText(const QVariant &value)
{
    return isText(value) && !static_cast<const QString *>(value.constData())->isEmpty();
}

[[nodiscard]] inline bool isFlag(const QVariant &value)
{
    return value.typeId() == QMetaType::Bool;
}

[[nodiscard]] inline bool isInteger(const QVariant &value)
{
    if (value.typeId() != QMetaType::LongLong)
        return false;
    const qlonglong number = *static_cast<const qlonglong *>(value.constData());
    return number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max();
}

/// A number that a double holds exactly.
[[nodiscard]] inline bool isNumber(const QVariant &value)
{
    constexpr qlonglong limit = 1LL << std::numeric_limits<double>::digits;
    if (value.typeId() == QMetaType::Double)
        return true;
    return value.typeId() == QMetaType::LongLong && std::abs(value.toLongLong()) <= limit;
}

// Kinds of keys, by the getter of the property that holds the value.

template <typename Class, typename Value>
Class classOf(Value (Class::*)() const);

template <auto get, typename Object>
auto valueOf(const Object &object)
{
    using Class = decltype(classOf(get));
    return (static_cast<const Class &>(object).*get)();
}

template <auto get, typename Object>
bool holdsText(const Object &object, const QVariant &value)
{
    return value.toString() == valueOf<get>(object);
}

template <auto get, bool missing, typename Object>
bool holdsFlag(const Object &object, const QVariant &value)
{
    return (value.isValid() ? value.toBool() : missing) == valueOf<get>(object);
}

template <auto get, typename Object>
bool holdsInteger(const Object &object, const QVariant &value)
{
    return value.toInt() == valueOf<get>(object);
}

/// A text that is left out when it is empty.
template <auto get, typename Object = decltype(classOf(get))>
constexpr Key<Object> text(QLatin1StringView name)
{
    return {.name = name,
            .usual = [](const Object &,
                        const QVariant &value) { return !value.isValid() || isFilledText(value); },
            .holds = holdsText<get, Object>,
            .instead = nullptr};
}

/// A text that the layer reads and does not write.
template <auto get, typename Object = decltype(classOf(get))>
constexpr Key<Object> textNotWritten(QLatin1StringView name)
{
    Key<Object> key = text<get, Object>(name);
    key.instead = [](const Object &object) -> std::optional<QJsonValue> {
        const QString value = valueOf<get>(object);
        return value.isEmpty() ? std::nullopt : std::optional(QJsonValue(value));
    };
    return key;
}

/// A flag that is always written. Without the key it is \a missing.
template <auto get, typename Object = decltype(classOf(get))>
constexpr Key<Object> flag(QLatin1StringView name)
{
    return {.name = name,
            .usual = [](const Object &, const QVariant &value) { return isFlag(value); },
            .holds = holdsFlag<get, false, Object>,
            .instead = nullptr};
}

/// A flag that is only written when it is not what it is without the key.
template <auto get, bool missing = false, typename Object = decltype(classOf(get))>
constexpr Key<Object> flagUnless(QLatin1StringView name)
{
    return {.name = name,
            .usual =
                [](const Object &, const QVariant &value) {
                    return !value.isValid() || (isFlag(value) && value.toBool() != missing);
                },
            .holds = holdsFlag<get, missing, Object>,
            .instead = nullptr};
}

/// The same, for a flag that the layer reads and does not write.
template <auto get, typename Object = decltype(classOf(get))>
constexpr Key<Object> flagNotWritten(QLatin1StringView name)
{
    Key<Object> key = flagUnless<get, false, Object>(name);
    key.instead = [](const Object &object) {
        return valueOf<get>(object) ? std::optional(QJsonValue(true)) : std::nullopt;
    };
    return key;
}

/// A whole number that is always written.
template <auto get, typename Object = decltype(classOf(get))>
constexpr Key<Object> integer(QLatin1StringView name)
{
    return {.name = name,
            .usual = [](const Object &, const QVariant &value) { return isInteger(value); },
            .holds = holdsInteger<get, Object>,
            .instead = nullptr};
}

/// A whole number that is left out when it is 0.
[[nodiscard]] inline bool isMissingOrNotZero(const QVariant &value)
{
    return !value.isValid() || (isInteger(value) && value.toInt() != 0);
}

// What is done with the tables.

/// Goes through the keys of a table and those of a map together, in ascending order. \a visit gets the key of
/// the table or null, the name and the value; an invalid one where the map lacks the key.
template <typename Object, std::size_t Size, typename Visit>
void forEachKey(const Key<Object> (&keys)[Size], const QVariantMap &map, Visit visit)
{
    const auto *key = std::begin(keys);
    const auto visitMissing = [&] { visit(key, QString(), QVariant()), ++key; };
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
        int order = 1;
        while (key != std::end(keys) && (order = key->name.compare(QStringView(entry.key()))) < 0)
            visitMissing();
        if (key != std::end(keys) && order == 0)
            visit(key++, entry.key(), entry.value());
        else
            visit(static_cast<const Key<Object> *>(nullptr), entry.key(), entry.value());
    }
    while (key != std::end(keys))
        visitMissing();
}

/// Notes in \a kept what \a object, just read from \a map, would not give back.
template <typename Object, std::size_t Size>
void remember(const Key<Object> (&keys)[Size], const Object &object, const QVariantMap &map, Kept &kept)
{
    forEachKey(keys, map, [&](const Key<Object> *key, const QString &name, const QVariant &value) {
        if (!key)
            kept.values.insert(name, value);
        else if (key->usual && !key->usual(object, value))
            kept.values.insert(key->name, value);
    });
}

/// Whether the layer writes \a object without losing any of it.
template <typename Object, std::size_t Size>
[[nodiscard]] bool needsNothingInstead(const Key<Object> (&keys)[Size], const Object &object)
{
    return std::none_of(std::begin(keys), std::end(keys), [&object](const Key<Object> &key) {
        return key.instead && key.instead(object).has_value();
    });
}

/// Takes away the key when \a value is undefined.
inline void put(QJsonObject &json, QLatin1StringView name, const QJsonValue &value)
{
    if (value.isUndefined())
        json.remove(name);
    else
        json.insert(name, value);
}

inline void put(QJsonObject &json, const QString &name, const QVariant &value)
{
    if (value.isValid())
        json.insert(name, QJsonValue::fromVariant(value));
    else
        json.remove(name);
}

/// Turns \a json, which the layer wrote for \a object, into what the file shall hold.
template <typename Object, std::size_t Size>
void restore(const Key<Object> (&keys)[Size], const Object &object, const Kept &kept, QJsonObject &json)
{
    for (const Key<Object> &key : keys) {
        if (const auto value = key.instead ? key.instead(object) : std::nullopt)
            put(json, key.name, *value);
    }
    for (auto entry = kept.values.cbegin(); entry != kept.values.cend(); ++entry) {
        const auto *key = std::find_if(std::begin(keys), std::end(keys), [&entry](const Key<Object> &each) {
            return each.name == entry.key();
        });
        if (key == std::end(keys) || (key->holds && key->holds(object, *entry)))
            put(json, entry.key(), *entry);
    }
}
} // namespace Keys
