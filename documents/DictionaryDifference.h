#pragma once

#include "documents/documents_export.h"

#include <QList>
#include <QSharedDataPointer>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <vector>

class TDcEntity;
class TDcVariable;

/// One thing that differs between two dictionaries, for a person or a report.
struct DOCUMENTS_EXPORT DictionaryChange {
    enum class Kind { Added, Removed, Moved, Renamed, Changed };
    enum class What { Entity, Variable, Layout, Range, ValueLabel };

    Kind kind;
    What what;
    QString path; ///< Names from the root down, as in "HOUSEHOLD/PERSON/AGE"; before the change unless added.
    QString property; ///< Only of Changed: for instance "label".
    QVariant before; ///< Of Changed and Renamed the value, of Moved the path or position; invalid for Added.
    QVariant after; ///< Likewise; invalid for Removed.

    /// The property, translated.
    [[nodiscard]] QString propertyText() const;
    /// One line: "Variable PERSON/AGE: label changed from "Age" to "Age in years"".
    [[nodiscard]] QString text() const;
};

/// What turns one dictionary into another: entities and variables that were added, removed, moved or renamed,
/// and every property, range and value label that changed. Made on the objects themselves and independent of
/// them afterwards. A value: copies are cheap.
///
/// An object that goes by another name is told by what stayed of it, one that is somewhere else by its name.
class DOCUMENTS_EXPORT DictionaryDifference
{
public:
    enum class Scope { WholeTree, WithoutChildren };

    /// Objects that were taken out of a dictionary, which live as long as this does.
    using Removed = std::vector<std::shared_ptr<void>>;

    DictionaryDifference();
    DictionaryDifference(const DictionaryDifference &other);
    DictionaryDifference(DictionaryDifference &&other) noexcept;
    DictionaryDifference &operator=(const DictionaryDifference &other);
    DictionaryDifference &operator=(DictionaryDifference &&other) noexcept;
    ~DictionaryDifference();

    /// The difference between two trees, or between two entities and their variables alone.
    [[nodiscard]] static DictionaryDifference between(const TDcEntity &before, const TDcEntity &after,
                                                      Scope scope = Scope::WholeTree);
    /// The difference between two variables, which count as the same one whatever they have in common.
    [[nodiscard]] static DictionaryDifference between(const TDcVariable &before, const TDcVariable &after);

    [[nodiscard]] bool isEmpty() const;

    /// Changes \a root, which must equal what the difference was made from, in place: objects that stay, or
    /// move, stay the same objects, and their live lists too. False, and nothing is changed, when \a root is
    /// not like that where the difference changes it, or when this is a difference between variables.
    ///
    /// What it removes is deleted, or put into \a removed, so that views can let go of it first.
    bool apply(TDcEntity &root, Removed *removed = nullptr) const;
    /// The same for a difference between variables.
    bool apply(TDcVariable &variable, Removed *removed = nullptr) const;

    /// The difference that takes this one back.
    [[nodiscard]] DictionaryDifference inverted() const;

    /// Everything that differs, entities in the order of the tree. What belongs to an entity that was added
    /// or removed as a whole is not listed.
    [[nodiscard]] QList<DictionaryChange> changes() const;

    /// The texts of changes(), for a person; one line that says so when nothing differs.
    [[nodiscard]] QStringList text() const;

    struct Data; ///< The library's own.

private:
    QSharedDataPointer<Data> m_data;
};
