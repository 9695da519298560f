#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

class RunDraft;

/// What the wizard says of a run configuration.
class RunWords
{
    Q_DECLARE_TR_FUNCTIONS(RunWords)

public:
    // What hinders going on; empty when nothing does.
    [[nodiscard]] static QString nameProblem(const RunDraft &draft);
    [[nodiscard]] static QString entitiesProblem(const RunDraft &draft);
    [[nodiscard]] static QString variablesProblem(const RunDraft &draft);

    /// What the file speaks of and the dictionary does not have, one line for each place.
    [[nodiscard]] static QStringList unknown(const RunDraft &draft);
    /// What the run is, as rich text.
    [[nodiscard]] static QString summary(const RunDraft &draft);
};
