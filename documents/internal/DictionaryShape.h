#pragma once

#include <QVariantMap>

/// What documents are dictionaries, told by the keys of their objects.
namespace DictionaryShape
{
/// Whether \a map is an entity, not an object that holds one under "entities" or "root". Both may have a
/// name; an entity has its children under "entities", and its keys are written nowhere else.
[[nodiscard]] bool isEntity(const QVariantMap &map);

/// Whether \a document, which is to be a run configuration, is a dictionary beyond doubt. Run configurations
/// are read leniently, so whatever may be one is none.
[[nodiscard]] bool isNoRunConfiguration(const QVariantMap &document);
} // namespace DictionaryShape
