#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QVariant>

class TDcVariable;

/// A property of a variable as forms, the clipboard and edits of many variables handle it.
struct VariableProperty {
    enum class Kind { Text, LongText, TypeWord, Number, Flag };

    const char *name; ///< In English; title() translates it.
    Kind kind;
    int column; ///< Of VariableDiccionaryModel, whose rules hold then; -1 for what the model does not show.
    QVariant (*get)(const TDcVariable &variable);
    /// Stores without any check. What lies in the layout makes one where there is none.
    void (*set)(TDcVariable &variable, const QVariant &value);
    const char *stepName = nullptr; ///< See step().

    /// The name in the interface's language.
    [[nodiscard]] QString title() const;
    /// Completes "Undo" for an edit of it; empty where the one thing that changes says enough.
    [[nodiscard]] QString step(const TDcVariable &variable) const;
    /// Whether several variables may have the same value: names and aliases tell them apart.
    [[nodiscard]] bool isShared() const { return column < 0 || column > 1; }
};

namespace VariableProperties
{
/// All but ranges and value labels: those in the table's columns first, in their order.
[[nodiscard]] const QList<VariableProperty> &all();
/// The property called \a name in English.
[[nodiscard]] const VariableProperty &named(QLatin1StringView name);
/// The types that the layer knows.
[[nodiscard]] QStringList typeWords();
} // namespace VariableProperties
