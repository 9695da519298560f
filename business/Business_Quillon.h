#pragma once

#include "business/business_quillon_export.h"

/// The library's namesake. It offers nothing; front ends that look for it by name find it.
class BUSINESS_QUILLON_EXPORT Business_Quillon
{
};
