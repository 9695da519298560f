#pragma once

#include "model/MetadataVariables.h"
#include "model/TDcVariable.h"

/// The physical layout of variables that may have none.
namespace Layouts
{
/// The layout of \a variable, made when there is none yet.
[[nodiscard]] inline MetadataVariables &of(TDcVariable &variable)
{
    if (!variable.getMetadataVariables())
        variable.setMetadataVariables(new MetadataVariables);
    return *variable.getMetadataVariables();
}

/// The ranges of \a variable; none without a layout.
[[nodiscard]] inline QList<Range *> ranges(const TDcVariable &variable)
{
    const MetadataVariables *layout = variable.getMetadataVariables();
    return layout ? *layout->getRange() : QList<Range *>();
}
} // namespace Layouts
