#pragma once

#include "business/business_quillon_export.h"
#include "model/TDcSourceField.h"
#include "models/base/DragListModel.h"

/// The fields of a text file, to be dragged onto a variable table.
class BUSINESS_QUILLON_EXPORT CsvPropertiesModel : public TextListDrag<DragListModel<TDcSourceField>>
{
public:
    /// The list is only read here, null stands for an empty one; the fields are not owned and must outlive
    /// the model.
    CsvPropertiesModel(QObject *parent, QList<TDcSourceField *> *fields);

    /// The name of \a field; invalid for any column but the first.
    [[nodiscard]] QVariant getItemData(TDcSourceField *field, int column) const;

    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QMimeData *mimeData(const QModelIndexList &indexes) const override;
};
