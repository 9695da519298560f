#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QLatin1StringView>
#include <QString>
#include <QVariant>

#include <algorithm>
#include <iterator>
#include <string_view>

/// What conversions between objects and JSON documents are described with: one table of fields per kind of
/// JSON object, which both the writer and the reader of that object follow.
namespace Document
{
/// How an object came: as an element of a list, or on its own where a list is usual.
enum class Form { Element, Single };

/// When a field is written. Writing may break off, so what an object holds below it comes after its own keys.
enum class Step { Own, Items, Children };

/// One key of a JSON object. A field without `write` is never written, one without `read` never read.
template <typename Object>
struct Field {
    QLatin1StringView key;
    QJsonValue (*write)(const Object &); ///< An undefined value leaves the key out.
    void (*read)(Object &, const QVariant &, Form);
    Step step = Step::Own;
};

inline constexpr auto neverWritten = nullptr;
inline constexpr auto neverRead = nullptr;

inline QJsonValue leftOut()
{
    return QJsonValue(QJsonValue::Undefined);
}

/// Tables ascend by key, as QJsonObject and QVariantMap do: keys are written in the order in which they are
/// kept, and a table and a map are read side by side in one pass.
template <typename Object, std::size_t Size>
consteval bool ascends(const Field<Object> (&fields)[Size])
{
    return std::is_sorted(std::begin(fields), std::end(fields), [](const auto &left, const auto &right) {
        return std::string_view(left.key.data(), left.key.size())
            < std::string_view(right.key.data(), right.key.size());
    });
}

/// Adds those keys of \a object to \a out that are written at \a step.
template <typename Object, std::size_t Size>
void write(const Field<Object> (&fields)[Size], const Object &object, QJsonObject &out, Step step = Step::Own)
{
    for (const Field<Object> &field : fields) {
        if (!field.write || field.step != step)
            continue;
        if (const QJsonValue value = field.write(object); !value.isUndefined())
            out.insert(field.key, value);
    }
}

template <typename Object, std::size_t Size>
[[nodiscard]] QJsonObject write(const Field<Object> (&fields)[Size], const Object &object)
{
    QJsonObject written;
    write(fields, object, written);
    return written;
}

/// An array of objects, one for each item that is not null; left out when there is none. \a make turns an
/// item into what the fields describe.
template <typename Object, std::size_t Size, typename Item, typename Make>
[[nodiscard]] QJsonValue writeArray(const Field<Object> (&fields)[Size], const QList<Item *> &items,
                                    Make make)
{
    QJsonArray array;
    for (Item *item : items) {
        if (item)
            array.append(write<Object>(fields, make(*item)));
    }
    return array.isEmpty() ? leftOut() : QJsonValue(array);
}

/// Calls `apply(field, value)` for every key of \a map that is read, in ascending order.
template <typename Object, std::size_t Size, typename Apply>
void forEachKnownKey(const Field<Object> (&fields)[Size], const QVariantMap &map, Apply apply)
{
    const auto *field = std::begin(fields);
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
        const auto order = [&] { return field->key.compare(QStringView(entry.key())); };
        while (field != std::end(fields) && order() < 0)
            ++field;
        if (field == std::end(fields))
            return;
        if (field->read && order() == 0)
            apply(*field, entry.value());
    }
}

template <typename Object, std::size_t Size>
void read(const Field<Object> (&fields)[Size], Object &object, const QVariantMap &map,
          Form form = Form::Element)
{
    forEachKnownKey(fields, map, [&object, form](const Field<Object> &field, const QVariant &value) {
        field.read(object, value, form);
    });
}

/// Calls `visit(map)` with \a value as an object, in place when it is one; what is none counts as an empty
/// one.
template <typename Visit>
void withObject(const QVariant &value, Visit visit)
{
    if (value.typeId() == QMetaType::QVariantMap)
        visit(*static_cast<const QVariantMap *>(value.constData()));
    else
        visit(value.toMap());
}

/// Calls `visit(element)` for the elements of \a value as a list, in place when it is one.
template <typename Visit>
void forEachElement(const QVariant &value, Visit visit)
{
    if (value.typeId() == QMetaType::QVariantList) {
        const auto &list = *static_cast<const QVariantList *>(value.constData());
        std::for_each(list.cbegin(), list.cend(), visit);
    } else if (value.typeId() != QMetaType::QVariantMap) { // a map is no list; asking costs time
        const QVariantList list = value.toList();
        std::for_each(list.cbegin(), list.cend(), visit);
    }
}

/// Calls `visit(map, form)` for each object of \a value: the elements of a list, each taken as an object, or
/// an object with at least one key on its own.
template <typename Visit>
void forEachObject(const QVariant &value, Visit visit)
{
    forEachElement(value, [&visit](const QVariant &element) {
        withObject(element, [&visit](const QVariantMap &map) { visit(map, Form::Element); });
    });
    if (value.typeId() == QMetaType::QVariantList)
        return;
    withObject(value, [&visit](const QVariantMap &map) {
        if (!map.isEmpty())
            visit(map, Form::Single);
    });
}

// The accessors below are named by their member pointers. A field's object either has the accessor's class
// or converts to it, as an object does that stands for two of the model's.

template <typename Class, typename Result>
Class classOf(Result (Class::*)() const);
template <typename Class, typename Argument>
Class classOf(void (Class::*)(Argument));

template <auto get, typename Object>
auto get_(const Object &object)
{
    using Class = decltype(classOf(get));
    return (static_cast<const Class &>(object).*get)();
}

template <auto set, typename Object, typename Value>
void set_(Object &object, Value &&value)
{
    using Class = decltype(classOf(set));
    (static_cast<Class &>(object).*set)(std::forward<Value>(value));
}

/// Writes a text unless it is empty.
template <auto get, typename Object>
QJsonValue textUnlessEmpty(const Object &object)
{
    const QString text = get_<get>(object);
    return text.isEmpty() ? leftOut() : QJsonValue(text);
}

/// Writes a number or a flag whatever its value.
template <auto get, typename Object>
QJsonValue always(const Object &object)
{
    return get_<get>(object);
}

/// Writes a flag only when it says \a wanted.
template <auto get, bool wanted, typename Object>
QJsonValue onlyWhen(const Object &object)
{
    return get_<get>(object) == wanted ? QJsonValue(wanted) : leftOut();
}

template <auto set, typename Object>
void text(Object &object, const QVariant &value, Form)
{
    set_<set>(object, value.toString());
}

template <auto set, typename Object>
void number(Object &object, const QVariant &value, Form)
{
    set_<set>(object, value.toInt());
}

template <auto set, typename Object>
void flag(Object &object, const QVariant &value, Form)
{
    set_<set>(object, value.toBool());
}
} // namespace Document
