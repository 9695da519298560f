#pragma once

#include <QList>
#include <QString>

#include <utility>

class TDcEntity;
class TDcVariable;

/// Sets of value labels that several variables share: the same codes with the same labels in the same order,
/// letter by letter.
namespace LabelSets
{
/// A code and its label.
using Label = std::pair<QString, QString>;

struct Member {
    TDcEntity *entity;
    TDcVariable *variable;
};

struct Set {
    QList<Label> labels; ///< One at least.
    QList<Member> members; ///< Two at least, in the order of the tree.

    /// The set in a few words: "1 Yes, 2 No, …".
    [[nodiscard]] QString text() const;
};

/// A label of a set as it is to be.
struct Edited {
    Label label;
    int origin = -1; ///< Its row in the set before; -1 for one that is new.
};

/// The sets that two or more variables below \a root, or of it, share; those of most variables first, of as
/// many in the order of the tree.
[[nodiscard]] QList<Set> shared(TDcEntity *root);
/// Gives every member of \a set the labels \a edited. Those with an origin stay the same objects. No origin
/// may be given twice.
void change(const Set &set, const QList<Edited> &edited);
} // namespace LabelSets
