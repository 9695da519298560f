#pragma once

#include <QString>

/// Texts shared by the layer and its front ends: separators, file types, file-dialog filters and type words.
namespace Constants
{
using namespace Qt::Literals::StringLiterals;

/// One entry of a file-dialog filter list, with the separator after it, so that entries are joined as they
/// are.
inline QString fileDialogFilter(const QString &fileType, const QString &extension)
{
    return fileType + u"(*%1)"_s.arg(extension) + u";;"_s;
}

// clazy:excludeall=non-pod-global-static
inline const QString yes = u"YES"_s;
inline const QString colon = u":"_s;
inline const QString comma = u","_s;
inline const QString lineEnd = u"\r\n"_s;
inline const QString equalsSign = u"="_s;
inline const QString dataExtension = u".dat"_s;
inline const QString jsonExtension = u".json"_s;
inline const QString configExtension = u".lsd.json"_s;
inline const QString configFileType = u"Morva Config"_s;
inline const QString configFilter = fileDialogFilter(configFileType, configExtension);
inline const QString dictionaryExtension = u".mvdb"_s;
inline const QString dictionaryFileType = u"Morva Dictionary"_s;
inline const QString dictionaryFilter = fileDialogFilter(dictionaryFileType, dictionaryExtension);
inline const QString textExtension = u".txt"_s;
inline const QString hierarchyExtension = u".wip.json"_s;
inline const QString hierarchyFileType = u"Morva Hierarchy"_s;
inline const QString hierarchyFilter = fileDialogFilter(hierarchyFileType, hierarchyExtension);
inline const QString semicolon = u";"_s;
inline const QString typeInteger = u"INTEGER"_s; ///< Type word of whole numbers; compared exactly.
inline const QString blank = u" "_s;
inline const QString typeReal = u"REAL"_s; ///< Type word of decimal numbers; compared exactly.
inline const QString typeString = u"STRING"_s; ///< Type word of text; compared exactly.
inline const QString tab = u"\t"_s;
inline const QString underscore = u"_"_s;
} // namespace Constants
