#pragma once

#include "documents/internal/Elements.h"

class QJsonObject;
class TDcEntity;

/// What a file keeps of a dictionary beside what the layer reads and writes of it.
namespace DictionaryDocument
{
/// Puts back what the layer's reader dropped when it read \a entity, and everything below it, from \a map,
/// and attaches to the objects what they cannot hold. \a element is what the entity was read from when that
/// was no object; otherwise it is invalid.
void remember(TDcEntity &entity, const QVariantMap &map, const QVariant &element, Elements::Form form);

/// Turns \a json, which the layer wrote for \a entity and everything below it, into what the file shall hold.
/// \a form is the one in which the entity will stand there.
void restore(const TDcEntity &entity, QJsonObject &json, Elements::Form form);
} // namespace DictionaryDocument
