#pragma once

#include "documents/checks/Finding.h"
#include "documents/documents_export.h"

#include <QCoreApplication>
#include <QList>

/// A rule that dictionaries are checked by.
struct CheckRule {
    QLatin1StringView id;
    Severity severity = Severity::Note;
    QString title; ///< What it looks for, translated.
};

/// Looks for what is wrong in a dictionary: what the layer would refuse, lose or misread, and what a careful
/// person would ask about. Changes nothing.
class DOCUMENTS_EXPORT DictionaryCheck
{
    Q_DECLARE_TR_FUNCTIONS(DictionaryCheck)

public:
    /// Everything wrong below and including \a root: first what concerns the whole dictionary, then entity by
    /// entity in pre-order. Takes time in proportion to the dictionary. A null root has nothing wrong.
    [[nodiscard]] static QList<Finding> check(TDcEntity *root);

    /// "No problems found.", or how many there are of each severity.
    [[nodiscard]] static QString summary(const QList<Finding> &findings);

    /// All rules, in the order in which they are applied.
    [[nodiscard]] static QList<CheckRule> rules();

    /// "Error", "Warning" or "Note", translated.
    [[nodiscard]] static QString severityName(Severity severity);
};
