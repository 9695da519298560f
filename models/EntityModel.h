#pragma once

#include "business/business_quillon_export.h"
#include "models/base/EntityTree.h"

/// The entities of a dictionary as a tree of names that a view shows and does not edit.
class BUSINESS_QUILLON_EXPORT EntityModel : public EntityTree
{
public:
    /// Shows the dictionary under \a root, which stays the caller's and must have level 1.
    EntityModel(QObject *parent, TDcEntity *root);

    [[nodiscard]] TDcEntity *root() const { return m_root; }

    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// Renames the entity, whatever the role and the column, and announces nothing. Blanks around the name
    /// stay. True also for an index without an entity, where nothing happens.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;
};
