#pragma once

#include <QCoreApplication>
#include <QFlags>
#include <QList>
#include <QString>

class TDcEntity;
class TDcVariable;
class ValueLabelElement;

/// Finds text in a whole dictionary.
class Find
{
    Q_DECLARE_TR_FUNCTIONS(Find)

public:
    /// Where to look, of entities and variables alike.
    enum Part {
        Names = 1,
        Aliases = 2,
        Labels = 4,
        Groups = 8,
        Codes = 16, ///< Of value labels.
        ValueLabels = 32,
        Everything = 63,
    };
    Q_DECLARE_FLAGS(Parts, Part)

    struct Query {
        QString text;
        Parts parts = Everything;
        bool matchCase = false;
        bool wholeWords = false; ///< No letter, digit or underscore beside what is found.
    };

    struct Hit {
        Part part;
        TDcEntity *entity;
        TDcVariable *variable; ///< Null for a property of the entity.
        ValueLabelElement *valueLabel; ///< Null but for codes and value labels.
        QString text; ///< All of the property.

        /// "PERSON" or "PERSON/SEX"; for a value label "PERSON/SEX, 1".
        [[nodiscard]] QString place() const;
    };

    /// At most \a most hits, in the order of the tree; blank text finds nothing.
    Find(TDcEntity *root, const Query &query, qsizetype most);

    QList<Hit> hits;
    bool isComplete = true; ///< There are no more than these.

    /// What \a part is called.
    [[nodiscard]] static QString title(Part part);
};

Q_DECLARE_OPERATORS_FOR_FLAGS(Find::Parts)
