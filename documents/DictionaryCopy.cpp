#include "documents/DictionaryCopy.h"

#include "documents/internal/Properties.h"

#include <utility>

namespace DictionaryCopy
{
namespace
{
template <typename Object>
std::unique_ptr<Object> copyProperties(const Object &object)
{
    auto made = std::make_unique<Object>();
    Properties::copy(*made, object);
    return made;
}

/// Appends a copy of each item; nulls stay nulls.
template <typename Item>
void copyItems(QList<Item *> &to, const QList<Item *> &from)
{
    to.reserve(from.size());
    for (const Item *item : from)
        to.append(item ? copy(*item).release() : nullptr);
}
} // namespace

std::unique_ptr<Range> copy(const Range &range)
{
    return copyProperties(range);
}

std::unique_ptr<ValueLabelElement> copy(const ValueLabelElement &element)
{
    return copyProperties(element);
}

std::unique_ptr<MetadataVariables> copy(const MetadataVariables &layout)
{
    auto made = copyProperties(layout);
    copyItems(*made->getRange(), *layout.getRange());
    return made;
}

std::unique_ptr<TDcVariable> copy(const TDcVariable &variable)
{
    auto made = copyProperties(variable);
    if (const MetadataVariables *layout = variable.getMetadataVariables())
        made->setMetadataVariables(copy(*layout).release());
    copyItems(*made->getValueLabelElementList(), *variable.getValueLabelElementList());
    return made;
}

std::unique_ptr<TDcEntity> copyWithoutChildren(const TDcEntity &entity)
{
    auto made = copyProperties(entity);
    copyItems(*made->getVariables(), *entity.getVariables());
    return made;
}

std::unique_ptr<TDcEntity> copy(const TDcEntity &entity)
{
    auto root = copyWithoutChildren(entity);
    // A list of its own, since a tree may be deeper than the stack.
    QList<std::pair<const TDcEntity *, TDcEntity *>> pending{{&entity, root.get()}};
    while (!pending.isEmpty()) {
        const auto [from, to] = pending.takeLast();
        for (const TDcEntity *child : std::as_const(*from->getChildren())) {
            to->getChildren()->append(child ? copyWithoutChildren(*child).release() : nullptr);
            if (child)
                pending.append({child, to->getChildren()->constLast()});
        }
    }
    return root;
}
} // namespace DictionaryCopy
