#pragma once

#include <QHash>
#include <QIdentityProxyModel>

#include <functional>

/// Stands between a tree model of the layer and everything else, and gives each parent its true row.
///
/// The layer's tree models report the level of the asked child as the row of its parent, which views take for
/// another index. Above this proxy, views, persistent indexes and sorting proxies work as usual.
///
/// The tree models do not observe the objects that they show. Whoever adds, removes or moves some of them
/// takes the source model away meanwhile.
class RealRowProxy : public QIdentityProxyModel
{
    Q_OBJECT

public:
    using QIdentityProxyModel::QIdentityProxyModel;

    void setSourceModel(QAbstractItemModel *model) override;
    [[nodiscard]] QModelIndex parent(const QModelIndex &child) const override;

    /// The index that shows \a object; invalid when the tree does not hold it. A search.
    [[nodiscard]] QModelIndex indexOf(const void *object) const;
    /// Calls \a visitor with each node, in pre-order.
    void visit(const std::function<void(const QModelIndex &)> &visitor) const;

private:
    /// The first node in pre-order that is \a wanted; invalid when none is.
    [[nodiscard]] QModelIndex first(const std::function<bool(const QModelIndex &)> &wanted) const;

    mutable QHash<const void *, int> m_rows; // Where objects were seen last; compared, never followed.
};
