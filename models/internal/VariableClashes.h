#pragma once

#include <QHash>
#include <QList>
#include <QString>

class TDcVariable;

/// What a list looked like. Slots and nested event loops may change a live list under the hands of those who
/// announce; a different state says that something remembered about the list no longer holds.
struct ListState {
    explicit ListState(const QList<TDcVariable *> &list)
        : size(list.size()), last(list.isEmpty() ? nullptr : list.constLast())
    {
    }
    bool operator==(const ListState &) const = default;

    qsizetype size;
    const TDcVariable *last; // Only compared, never followed.
};

/// Which variables of an entity new ones clash with, found without a walk for each new one.
///
/// Remembers no more than what the new variables can ask for. None of the variables is owned.
class VariableClashes
{
public:
    VariableClashes(const QList<TDcVariable *> &existing, const QList<TDcVariable *> &added);

    /// Whether this still describes \a existing, as far as its size and its end tell: slots that change a new
    /// variable find it there.
    [[nodiscard]] bool describes(const QList<TDcVariable *> &existing) const;

    /// The first existing variable that has name, alias, label and group of \a variable; null if none has.
    [[nodiscard]] TDcVariable *twinOf(const TDcVariable &variable) const;
    /// \a name if it is free, otherwise with the first free suffix of _A to _Z; _Z when none is.
    [[nodiscard]] QString freeName(const QString &name) const;

    /// To be called when \a variable has joined the end of the existing ones.
    void append(TDcVariable *variable);

private:
    struct Texts {
        Texts() = default;
        explicit Texts(const TDcVariable &variable);
        bool operator==(const Texts &) const = default;
        friend size_t qHash(const Texts &texts, size_t seed)
        {
            return qHashMulti(seed, texts.name, texts.alias, texts.label, texts.group);
        }
        QString name, alias, label, group;
    };
    struct Uses {
        bool taken = false; // By a variable of just this name.
        quint32 letters = 0; // Suffixes in use; bit 0 is A.
    };

    [[nodiscard]] static Texts lastTexts(const QList<TDcVariable *> &variables);
    void remember(TDcVariable *variable);

    QList<QString> m_names; // Keeps the keys of m_uses alive.
    QHash<QStringView, Uses> m_uses; // By the names that are asked for.
    QList<qsizetype> m_lengths; // Of those names, ascending, each once.
    QHash<Texts, TDcVariable *> m_twins;
    ListState m_state;
    Texts m_lastTexts;
};
