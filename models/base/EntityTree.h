#pragma once

#include "model/TDcEntity.h"
#include "models/base/TreeModel.h"

/// The entities of a dictionary as a tree of names that can be selected.
class EntityTree : public TreeModel<TDcEntity>
{
public:
    /// What the cell of \a entity in \a column shows.
    [[nodiscard]] QVariant getItemData(TDcEntity *entity, int column) const
    {
        return entity && column == 0 ? entity->getName() : QVariant();
    }

    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        if (!index.isValid())
            return Qt::NoItemFlags;
        return QAbstractItemModel::flags(index) | Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    }

protected:
    using TreeModel::TreeModel;
};
