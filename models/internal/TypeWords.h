#pragma once

#include "common/Constants.h"
#include "model/TDcVariable.h"

/// Whether the values of \a variable are whole numbers: its type word says so exactly, in capitals. Every
/// other type is edited as decimal.
[[nodiscard]] inline bool isInteger(const TDcVariable &variable)
{
    return variable.getVarType() == Constants::typeInteger;
}
