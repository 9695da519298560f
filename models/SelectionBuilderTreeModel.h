#pragma once

#include "business/business_quillon_export.h"
#include "model/SelectionTreeUnit.h"
#include "models/base/TreeModel.h"

/// Area units as a tree with check boxes of three states.
///
/// The units' states are only shown: a click on a box changes nothing, the front end sets the states itself.
class BUSINESS_QUILLON_EXPORT SelectionBuilderTreeModel : public TreeModel<SelectionTreeUnit>
{
    Q_OBJECT

public:
    /// Shows the units under \a root, which stays the caller's and must have level 1. With \a showCode a unit
    /// shows its code in place of the first text of its area, with \a showNamePrefix all but the root show
    /// their name before it.
    SelectionBuilderTreeModel(QObject *parent, SelectionTreeUnit *root, bool showCode, bool showNamePrefix);

    /// The top of the tree: the root alone. The units are shared.
    [[nodiscard]] QList<SelectionTreeUnit *> getData() const { return m_topLevel; }
    /// What the cell of \a unit in \a column shows.
    [[nodiscard]] QVariant getItemData(SelectionTreeUnit *unit, int column) const;

    using TreeModel::parent;
    /// Leaves the answer in the unit too, see SelectionTreeUnit::getIndex().
    [[nodiscard]] QModelIndex parent(const QModelIndex &index) const override;
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    bool m_showCode;
    bool m_showNamePrefix;
};
