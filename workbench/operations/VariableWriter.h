#pragma once

#include "models/VariableDiccionaryModel.h"
#include "workbench/operations/CollectedMessages.h"
#include "workbench/operations/VariableProperties.h"

#include <QCoreApplication>
#include <QHash>

class TDcEntity;
class TDcVariable;

/// Writes properties of an entity's variables, through the variable table's model where that has rules for
/// them, and answers in words instead of message boxes. It knows the variables that the entity has when the
/// writer is made. A reference code follows its variable's new name.
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
    VariableDiccionaryModel m_model;
    QHash<const TDcVariable *, int> m_rows;
    CollectedMessages m_messages;
};
