#pragma once

#include <QString>

class TDcVariable;

/// Codes for value labels that a person adds.
namespace NewCodes
{
/// The whole number after the highest code of \a variable; "1" when none of its codes is a whole number.
[[nodiscard]] QString next(const TDcVariable &variable);
} // namespace NewCodes
