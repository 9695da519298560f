#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>

class TDcEntity;
class TDcVariable;

/// Moves variables from one entity to another, with all that they have.
///
/// A name that is taken there gives way to a free one, as that of a copy does; an alias that is taken is left
/// out. A tag that is taken becomes the one after the highest.
class VariableMoves
{
    Q_DECLARE_TR_FUNCTIONS(VariableMoves)

public:
    /// Works out what is to become of \a variables of \a from in \a to, another entity below \a root, and
    /// changes nothing yet. All must outlive this.
    VariableMoves(TDcEntity *root, TDcEntity *from, const QList<TDcVariable *> &variables, TDcEntity *to);

    /// What changes beside the place, a sentence each for the person.
    [[nodiscard]] QStringList consequences() const;
    /// Moves the variables to the end. Roles in the old entity that no variable is left for are nobody's
    /// then.
    void apply() const;

private:
    struct Arrival {
        TDcVariable *variable;
        QString name;
        QString alias;
        int tag;
    };

    TDcEntity *m_from; // Not owned.
    TDcEntity *m_to; // Not owned.
    QList<TDcVariable *> m_variables; // Not owned.
    QList<Arrival> m_arrivals;
};
