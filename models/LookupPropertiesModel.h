#pragma once

#include "business/business_quillon_export.h"
#include "model/TDcLookup.h"
#include "models/base/DragListModel.h"

/// Lookup tables, to be dragged onto a variable table.
class BUSINESS_QUILLON_EXPORT LookupPropertiesModel : public TextListDrag<DragListModel<TDcLookup>>
{
public:
    /// The list is only read here, null stands for an empty one; the lookups are not owned and must outlive
    /// the model.
    LookupPropertiesModel(QObject *parent, QList<TDcLookup *> *lookups);

    /// Id and label of \a lookup; invalid for any column but the first.
    [[nodiscard]] QVariant getItemData(TDcLookup *lookup, int column) const;

    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QMimeData *mimeData(const QModelIndexList &indexes) const override;
};
