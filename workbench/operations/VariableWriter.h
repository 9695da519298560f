#pragma once

#include "models/VariableDiccionaryModel.h"
#include "workbench/operations/CollectedMessages.h"
#include "workbench/operations/VariableProperties.h"

#include <QCoreApplication>
#include <QHash>
#include <QSet>

class TDcEntity;
class TDcVariable;

/// Writes properties of an entity's variables, through the variable table's model where that has rules for
/// them, and answers in words instead of message boxes. It knows the variables that the entity has when the
/// writer is made. A reference code follows its variable's new name; a variable without a name is none.
///
/// The model gathers all names of the dictionary at each edit. It is not asked where its answer is certain,
/// nor once more about a group, which it refuses whatever the variable; so many edits cost no more than in
/// proportion to their number.
class VariableWriter
{
    Q_DECLARE_TR_FUNCTIONS(VariableWriter)

public:
    /// \a root is the entity at the top. Both must outlive the writer.
    VariableWriter(TDcEntity *root, TDcEntity *entity);

    /// Stores \a value and returns an empty text, or stores nothing and returns why not.
    [[nodiscard]] QString write(TDcVariable *variable, const VariableProperty &property,
                                const QVariant &value);
    /// The same for what a person typed: a number, a flag as 1 or 0, yes or no, or true or false, or any
    /// text. An empty text leaves a number or a flag as it is.
    [[nodiscard]] QString writeText(TDcVariable *variable, const VariableProperty &property,
                                    const QString &text);

    /// A property as text, in a form that writeText() takes.
    [[nodiscard]] static QString text(const TDcVariable &variable, const VariableProperty &property);

private:
    [[nodiscard]] bool isCertain(const TDcVariable &variable, int column, const QString &text) const;
    void remember(const QString &name);

    TDcEntity *m_entity; // Not owned.
    VariableDiccionaryModel m_model;
    QHash<const TDcVariable *, int> m_rows;
    QSet<QString> m_taken; // Names that may clash, as they are compared; those that are gone too.
    QHash<QString, QString> m_refusedGroups; // And what was said.
    CollectedMessages m_messages;
};
