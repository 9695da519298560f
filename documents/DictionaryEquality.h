#pragma once

#include "documents/documents_export.h"

class MetadataVariables;
class Range;
class TDcEntity;
class TDcVariable;
class ValueLabelElement;

/// Deep equality of the objects of a dictionary: every property, every object below, in the same order. Where
/// an object was read from does not count.
namespace DictionaryEquality
{
[[nodiscard]] DOCUMENTS_EXPORT bool equal(const TDcEntity &left, const TDcEntity &right);
[[nodiscard]] DOCUMENTS_EXPORT bool equal(const TDcVariable &left, const TDcVariable &right);
[[nodiscard]] DOCUMENTS_EXPORT bool equal(const MetadataVariables &left, const MetadataVariables &right);
[[nodiscard]] DOCUMENTS_EXPORT bool equal(const Range &left, const Range &right);
[[nodiscard]] DOCUMENTS_EXPORT bool equal(const ValueLabelElement &left, const ValueLabelElement &right);

/// Equal but for the children.
[[nodiscard]] DOCUMENTS_EXPORT bool equalWithoutChildren(const TDcEntity &left, const TDcEntity &right);
} // namespace DictionaryEquality
