#pragma once

#include "workbench/operations/VariableProperties.h"

#include <QCoreApplication>
#include <QList>
#include <QStringList>

class TDcEntity;
class TDcVariable;

/// Edits of one property of many variables.
class CommonEdits
{
    Q_DECLARE_TR_FUNCTIONS(CommonEdits)

public:
    struct Change {
        const VariableProperty *property;
        QString text; ///< As VariableWriter::writeText() takes it.
    };

    /// What all of \a variables have; invalid when they differ, or there are none.
    [[nodiscard]] static QVariant shared(const QList<TDcVariable *> &variables,
                                         const VariableProperty &property);
    /// Makes each of \a changes to each of \a variables, which belong to \a entity below \a root. What is
    /// refused is left as it was; the answer says so, one line for each reason.
    [[nodiscard]] static QStringList apply(TDcEntity *root, TDcEntity *entity,
                                           const QList<TDcVariable *> &variables,
                                           const QList<Change> &changes);
};
