#pragma once

#include <QString>

/// Resource paths of the 48-pixel icons that a front end supplies, named as the images.
namespace IconPaths
{
using namespace Qt::Literals::StringLiterals;

/// The resource path of the 48-pixel image called \a name.
inline QString icon48(QLatin1StringView name)
{
    return u":/icons/res/icons/48px-%1.png"_s.arg(name);
}

// clazy:excludeall=non-pod-global-static
inline const QString about = icon48("About"_L1);
inline const QString checklist = icon48("Checklist"_L1);
inline const QString codeName = icon48("Code-Name"_L1);
inline const QString contract = icon48("Contract"_L1);
inline const QString databaseConvert = icon48("Database-convert"_L1);
inline const QString deleteItem = icon48("Delete"_L1);
inline const QString dictDatabase = icon48("Dict-Database"_L1);
inline const QString documentOpen = icon48("Document-open"_L1);
inline const QString dsdConnect = icon48("DsdConnect"_L1);
inline const QString dsdRemove = icon48("DsdRemove"_L1);
inline const QString dsdShow = icon48("DsdShow"_L1);
inline const QString entityName = icon48("Entity-Name"_L1);
inline const QString entityCode = icon48("Entity-code"_L1);
inline const QString entityLabel = icon48("Entity-label"_L1);
inline const QString entityWeight = icon48("Entity-weight"_L1);
inline const QString expand = icon48("Expand"_L1);
inline const QString eyeOff = icon48("Eye-off"_L1);
inline const QString eye = icon48("Eye"_L1);
inline const QString fileExisting = icon48("File-existing"_L1);
inline const QString fileGraphstyle = icon48("File-graphstyle"_L1);
inline const QString fileMaps = icon48("File-maps"_L1);
inline const QString fileNew = icon48("File-new"_L1);
inline const QString filePrograms = icon48("File-programs"_L1);
inline const QString fileSelections = icon48("File-selections"_L1);
inline const QString fileTablestyle = icon48("File-tablestyle"_L1);
inline const QString filter = icon48("Filter"_L1);
inline const QString fxExpressions = icon48("Fx-Expressions"_L1);
inline const QString goBottom = icon48("Go-bottom"_L1);
inline const QString graySquare = icon48("Gray-Square"_L1);
inline const QString help = icon48("Help"_L1);
inline const QString nodeInformation = icon48("Node-Information"_L1);
inline const QString placeholder = icon48("Placeholder"_L1);
inline const QString printer = icon48("Printer"_L1);
inline const QString projectNew = icon48("Project-new"_L1);
inline const QString projectOpen = icon48("Project-open"_L1);
inline const QString projectPreferences = icon48("Project-preferences"_L1);
inline const QString projectSave = icon48("Project-save"_L1);
inline const QString projectSaveAs = icon48("Project-save_as"_L1);
inline const QString projectShow = icon48("Project-show"_L1);
inline const QString morvachecklist = icon48("Morvachecklist"_L1);
inline const QString selection = icon48("Selection"_L1);
inline const QString settings = icon48("Settings"_L1);
inline const QString summatory = icon48("Summatory"_L1);
inline const QString variableBool = icon48("Variable-bool"_L1);
inline const QString variableDecimal = icon48("Variable-decimal"_L1);
inline const QString variableInteger = icon48("Variable-integer"_L1);
inline const QString variableString = icon48("Variable-string"_L1);
inline const QString yellowSquare = icon48("Yellow-Square"_L1);
inline const QString next = icon48("next"_L1);
inline const QString previous = icon48("previous"_L1);
inline const QString newItem = u":/icons/res/icons/new.png"_s; // The one image without a size in its name.
} // namespace IconPaths
