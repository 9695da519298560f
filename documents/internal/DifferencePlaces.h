#pragma once

#include "documents/internal/DifferenceData.h"

#include <QHash>

#include <utility>

namespace Difference
{
/// The entities of a tree, each before its children, and where they are.
struct TreePlaces {
    struct Spot {
        EntityPlace place;
        const TDcEntity *parent;
        int index;
    };
    QList<const TDcEntity *> entities;
    QHash<const TDcEntity *, Spot> spots;

    TreePlaces(const TDcEntity &root, bool withChildren)
    {
        QList<std::pair<const TDcEntity *, Spot>> pending{
            {&root,
             {.place = {.path = {}, .item = -1, .names = root.getName()}, .parent = nullptr, .index = 0}}};
        while (!pending.isEmpty()) {
            const auto [entity, spot] = pending.takeLast();
            entities.append(entity);
            spots.insert(entity, spot);
            const QList<TDcEntity *> &children = *entity->getChildren();
            for (qsizetype i = withChildren ? children.size() : 0; i-- > 0;) {
                const TDcEntity *child = children.at(i);
                if (!child)
                    continue;
                EntityPlace place{
                    .path = spot.place.path, .item = -1, .names = spot.place.names + u'/' + child->getName()};
                place.path.append(int(i));
                pending.append({child, {.place = place, .parent = entity, .index = int(i)}});
            }
        }
    }
};
} // namespace Difference
