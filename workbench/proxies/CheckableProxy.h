#pragma once

#include <QIdentityProxyModel>

/// Lets a person switch every check box that the source shows in its first column. Some of the layer's models
/// show and take check states without offering it. Numbers are aligned to the right, as they are elsewhere.
class CheckableProxy : public QIdentityProxyModel
{
    Q_OBJECT

public:
    using QIdentityProxyModel::QIdentityProxyModel;

    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;
};
