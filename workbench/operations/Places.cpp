#include "workbench/operations/Places.h"

#include "model/PreOrder.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"

#include <algorithm>
#include <numeric>

namespace
{
/// The first entity in pre-order for which \a matches holds.
template <typename Matches>
TDcEntity *firstEntity(TDcEntity *root, Matches matches)
{
    TDcEntity *found = nullptr;
    preOrder(root, [&found, &matches](TDcEntity *entity) {
        if (!found && matches(entity))
            found = entity;
    });
    return found;
}
} // namespace

bool Places::holds(TDcEntity *root, const TDcEntity *entity)
{
    return firstEntity(root, [entity](const TDcEntity *candidate) { return candidate == entity; });
}

TDcEntity *Places::parentOf(TDcEntity *root, const TDcEntity *entity)
{
    return firstEntity(root, [entity](const TDcEntity *candidate) {
        return std::any_of(candidate->getChildren()->cbegin(), candidate->getChildren()->cend(),
                           [entity](const TDcEntity *child) { return child == entity; });
    });
}

QList<qsizetype> Places::rowsOf(TDcEntity *root, const TDcEntity *entity)
{
    QList<qsizetype> rows;
    for (const TDcEntity *node = entity; node != root;) {
        TDcEntity *parent = parentOf(root, node);
        Q_ASSERT(parent);
        rows.prepend(parent->getChildren()->indexOf(node));
        node = parent;
    }
    return rows;
}

TDcEntity *Places::at(TDcEntity *root, const QList<qsizetype> &rows)
{
    return std::accumulate(rows.cbegin(), rows.cend(), root,
                           [](const TDcEntity *node, qsizetype row) { return node->getChildren()->at(row); });
}

TDcEntity *Places::findEntity(TDcEntity *root, const QString &name)
{
    return firstEntity(root, [&name](const TDcEntity *entity) { return entity->getName() == name; });
}

TDcVariable *Places::findVariable(const TDcEntity *entity, const QString &name)
{
    const QList<TDcVariable *> &variables = *entity->getVariables();
    const auto found =
        std::find_if(variables.cbegin(), variables.cend(),
                     [&name](const TDcVariable *variable) { return variable->getName() == name; });
    return found == variables.cend() ? nullptr : *found;
}
