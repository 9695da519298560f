#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>

class TDcVariable;

/// Copies what one variable says of its values to others.
class ValueCopies
{
    Q_DECLARE_TR_FUNCTIONS(ValueCopies)

public:
    struct What {
        bool valueLabels = true;
        bool ranges = true;
        bool missing = false; ///< The codes of missing and of not applicable values.
        /// Whether labels and ranges that are there already go; otherwise only codes and ranges that are not
        /// there yet are added, at the end.
        bool replace = true;
    };

    /// What there is to copy in \a source; the codes of missing values always are.
    [[nodiscard]] static What contents(const TDcVariable &source);
    /// Changes \a targets; \a source among them is left alone.
    static void apply(const TDcVariable &source, const QList<TDcVariable *> &targets, const What &what);
    /// What apply() would do, in sentences.
    [[nodiscard]] static QString preview(const TDcVariable &source, const QList<TDcVariable *> &targets,
                                         const What &what);
};
