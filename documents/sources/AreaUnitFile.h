#pragma once

#include "documents/documents_export.h"
#include "documents/sources/SourceOptions.h"
#include "documents/sources/SourceResult.h"
#include "model/SelectionTreeUnit.h"

#include <QCoreApplication>

using SourceAreaUnits = SourceResult<SelectionTreeUnit>;

/// Reads a tree of area units from a text file with delimiters.
class DOCUMENTS_EXPORT AreaUnitFile
{
    Q_DECLARE_TR_FUNCTIONS(AreaUnitFile)

public:
    /// The columns are called "code", "parent", "name", "area1" and "area2", in any order and letter case;
    /// "area" counts as "area2". Without a header row they stand in that order. Only the code is needed: the
    /// name is the code where there is none, the first area text the code, the second the name.
    ///
    /// A unit without parent is a root, of level 1; roots and children keep the file's order, and a parent
    /// may stand below its children. A code that is empty or occurs twice, a parent that is not there and
    /// units that lie below themselves are errors; all of them are reported.
    [[nodiscard]] static SourceAreaUnits read(const QString &path, const SourceOptions &options = {});
};
