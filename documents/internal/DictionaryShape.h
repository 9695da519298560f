#pragma once

#include <QVariantMap>

/// What documents are dictionaries, told by the keys of their objects.
namespace DictionaryShape
{
/// Whether \a document, which is to be a run configuration, is a dictionary beyond doubt. Run configurations
/// are read leniently, so whatever may be one is none.
[[nodiscard]] bool isNoRunConfiguration(const QVariantMap &document);
} // namespace DictionaryShape
