#pragma once

#include <QLatin1StringView>
#include <QString>

class Range;
class TDcEntity;
class TDcVariable;
class ValueLabelElement;

/// How bad a finding is.
enum class Severity {
    Note, ///< Worth knowing.
    Warning, ///< Probably not meant.
    Error, ///< Data would be lost or misread, or the layer would refuse it.
};

/// One thing that a rule found wrong in a dictionary, with the objects themselves so that a front end can go
/// there. The objects are not owned and are those of the dictionary that was checked.
struct Finding {
    QLatin1StringView rule; ///< The rule's id, the same in every language.
    Severity severity = Severity::Note;
    TDcEntity *entity = nullptr; ///< Null only if the dictionary as a whole is meant.
    TDcVariable *variable = nullptr; ///< Null if the entity as a whole is meant.
    ValueLabelElement *valueLabel = nullptr; ///< Null if no category is meant.
    Range *range = nullptr; ///< Null if no range is meant.
    QString place; ///< Entity names from the root and the variable name, joined with "/".
    QString message;
    QString suggestion;
};
