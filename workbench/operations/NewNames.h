#pragma once

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>

class TDcEntity;

/// Names for what a person adds, such that the layer's naming rules accept them.
///
/// What is taken is gathered once, however many names are asked for: whoever adds many things asks the same
/// object for all of them.
class NewNames
{
public:
    explicit NewNames(const QList<QString> &taken);
    /// For entities: no entity's name or alias and no group of the dictionary.
    [[nodiscard]] static NewNames forEntities(TDcEntity *root);
    /// For variables: no entity's name, and no name or alias of a variable of \a entity.
    [[nodiscard]] static NewNames forVariables(TDcEntity *root, TDcEntity *entity);

    [[nodiscard]] bool isFree(const QString &name) const;
    /// \a base, or \a base followed by "_2", "_3" ..., whatever is not taken yet, letter case and surrounding
    /// blanks aside. From then on it is taken. Any number of things may have an empty name.
    [[nodiscard]] QString take(const QString &base);

    /// A free name for one entity.
    [[nodiscard]] static QString entity(TDcEntity *root, const QString &base);
    /// A free name for one variable of \a entity.
    [[nodiscard]] static QString variable(TDcEntity *root, TDcEntity *entity, const QString &base);

private:
    QSet<QString> m_taken; // As they are compared.
    QHash<QString, int> m_last; // The number that was given last, by what it follows.
};
