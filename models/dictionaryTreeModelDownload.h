#pragma once

#include "business/business_quillon_export.h"
#include "models/base/EntityTree.h"

/// The entities of a dictionary as the tree of the download screen: a check mark tells the selectable ones,
/// an icon those marked for deletion.
///
/// The check mark is only shown: the model never changes it. Whoever does, asks BusinessEntity first.
class BUSINESS_QUILLON_EXPORT dictionaryTreeModelDownload : public EntityTree
{
    Q_OBJECT

public:
    /// Shows the dictionary under \a root, which stays the caller's and must have level 1.
    dictionaryTreeModelDownload(QObject *parent, TDcEntity *root);

    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// Renames in the edit role, without any check of the name. Every role is announced as a change.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;
};
