#pragma once

#include "documents/documents_export.h"

#include <memory>

class MetadataVariables;
class Range;
class TDcEntity;
class TDcVariable;
class ValueLabelElement;

/// Deep copies of the objects of a dictionary, made on the objects themselves: nothing that a document could
/// not hold gets lost. A copy shares nothing with the original; whoever asks for it owns it.
namespace DictionaryCopy
{
/// Copies \a entity and everything below it, however deep the tree is.
[[nodiscard]] DOCUMENTS_EXPORT std::unique_ptr<TDcEntity> copy(const TDcEntity &entity);
[[nodiscard]] DOCUMENTS_EXPORT std::unique_ptr<TDcVariable> copy(const TDcVariable &variable);
[[nodiscard]] DOCUMENTS_EXPORT std::unique_ptr<MetadataVariables> copy(const MetadataVariables &layout);
[[nodiscard]] DOCUMENTS_EXPORT std::unique_ptr<Range> copy(const Range &range);
[[nodiscard]] DOCUMENTS_EXPORT std::unique_ptr<ValueLabelElement> copy(const ValueLabelElement &element);

/// Copies \a entity with its variables but without its children.
[[nodiscard]] DOCUMENTS_EXPORT std::unique_ptr<TDcEntity> copyWithoutChildren(const TDcEntity &entity);
} // namespace DictionaryCopy
