#pragma once

#include "model/MetadataVariables.h"
#include "model/TDcVariable.h"

#include <QList>
#include <QString>

/// How the values of a variable are to be understood, for all who tell of them.
namespace Values
{
/// As many digits as are safe: every number of so many is told from its neighbours.
[[nodiscard]] inline QString number(double value)
{
    return QString::number(value, 'g', 15);
}

/// The ranges of \a variable, without nulls. A lookup's values come from its table: what is left of a range
/// has no meaning.
[[nodiscard]] inline QList<Range *> ranges(const TDcVariable &variable)
{
    const MetadataVariables *metadata = variable.getMetadataVariables();
    QList<Range *> found;
    if (metadata && !metadata->getLookup())
        found = *metadata->getRange();
    found.removeAll(nullptr);
    return found;
}

/// Whether \a variable has a missing and a not-applicable code. Both are always there, so two zeros say that
/// none has been chosen.
[[nodiscard]] inline bool codesAreChosen(const TDcVariable &variable)
{
    return variable.getMissing() != 0 || variable.getNotappl() != 0;
}

/// Where the values of \a variable begin in their record, counted from 1: what the document said or, without
/// that, the position, which is 1 as well when nobody said anything.
[[nodiscard]] inline int start(const TDcVariable &variable)
{
    const MetadataVariables *metadata = variable.getMetadataVariables();
    const int kept = metadata ? metadata->getStart() : 0;
    return kept > 0 ? kept : variable.getFieldRelativePosition();
}
} // namespace Values
