#include "documents/DictionaryEquality.h"

#include "documents/internal/Properties.h"

#include <utility>

namespace DictionaryEquality
{
namespace
{
/// Two that are both null are equal.
template <typename Item>
bool equalPointers(const Item *left, const Item *right)
{
    return left && right ? equal(*left, *right) : left == right;
}

template <typename Item>
bool equalItems(const QList<Item *> &left, const QList<Item *> &right)
{
    return std::equal(left.cbegin(), left.cend(), right.cbegin(), right.cend(), equalPointers<Item>);
}
} // namespace

bool equal(const Range &left, const Range &right)
{
    return Properties::same(left, right);
}

bool equal(const ValueLabelElement &left, const ValueLabelElement &right)
{
    return Properties::same(left, right);
}

bool equal(const MetadataVariables &left, const MetadataVariables &right)
{
    return Properties::same(left, right) && equalItems(*left.getRange(), *right.getRange());
}

bool equal(const TDcVariable &left, const TDcVariable &right)
{
    return Properties::same(left, right)
        && equalPointers<MetadataVariables>(left.getMetadataVariables(), right.getMetadataVariables())
        && equalItems(*left.getValueLabelElementList(), *right.getValueLabelElementList());
}

bool equalWithoutChildren(const TDcEntity &left, const TDcEntity &right)
{
    return Properties::same(left, right) && equalItems(*left.getVariables(), *right.getVariables());
}

bool equal(const TDcEntity &left, const TDcEntity &right)
{
    // A list of its own, since a tree may be deeper than the stack.
    QList<std::pair<const TDcEntity *, const TDcEntity *>> pending{{&left, &right}};
    while (!pending.isEmpty()) {
        const auto [one, other] = pending.takeLast();
        if (!one || !other) {
            if (one != other)
                return false;
            continue;
        }
        if (one->getChildren()->size() != other->getChildren()->size() || !equalWithoutChildren(*one, *other))
            return false;
        std::transform(one->getChildren()->cbegin(), one->getChildren()->cend(),
                       other->getChildren()->cbegin(), std::back_inserter(pending),
                       [](const TDcEntity *child, const TDcEntity *peer) {
                           return std::pair{child, peer};
                       });
    }
    return true;
}
} // namespace DictionaryEquality
