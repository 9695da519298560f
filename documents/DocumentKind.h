#pragma once

#include <QLatin1StringView>
#include <QString>

#include <algorithm>
#include <initializer_list>

/// What a JSON object as a whole document is. \a Object is a QVariantMap or a QJsonObject.
namespace DocumentKind
{
template <typename Object>
[[nodiscard]] bool hasOneOf(const Object &object, std::initializer_list<QLatin1StringView> keys)
{
    return std::any_of(keys.begin(), keys.end(), [&object](auto key) { return object.contains(key); });
}

/// Whether \a object has a key that stands in entities only, or so the top of a document tells.
template <typename Object>
[[nodiscard]] bool hasEntityKeys(const Object &object)
{
    using namespace Qt::Literals::StringLiterals;
    return hasOneOf(object,
                    {"codeVar"_L1, "labelVar"_L1, "selectable"_L1, "variables"_L1, "virtual"_L1,
                     "weightVar"_L1, "weigthVar"_L1});
}

/// Whether \a object is an entity, not one that holds entities under "entities" or "root". Both may have a
/// name; an entity has its children under "entities", and its keys are written nowhere else.
template <typename Object>
[[nodiscard]] bool isEntity(const Object &object)
{
    using namespace Qt::Literals::StringLiterals;
    if (hasEntityKeys(object))
        return true;
    const bool isNamed = hasOneOf(object, {"alias"_L1, "documentation"_L1, "label"_L1, "name"_L1});
    return isNamed && (object.contains("entities"_L1) || !object.contains("root"_L1));
}

/// The key under which a dictionary document holds its root entities: "entities" or, without that, "root".
/// Empty when \a object is an entity itself.
template <typename Object>
[[nodiscard]] QString rootKey(const Object &object)
{
    using namespace Qt::Literals::StringLiterals;
    if (isEntity(object))
        return {};
    return object.contains("entities"_L1) ? u"entities"_s : u"root"_s;
}

/// Whether \a object is a run configuration, which has entities too, but others.
template <typename Object>
[[nodiscard]] bool isRunConfiguration(const Object &object)
{
    using namespace Qt::Literals::StringLiterals;
    return object.contains("database"_L1) && object.value("type"_L1).toString() == "config"_L1;
}
} // namespace DocumentKind
