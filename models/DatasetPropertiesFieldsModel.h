#pragma once

#include "business/business_quillon_export.h"
#include "model/TDcSourceField.h"
#include "models/base/DragListModel.h"

#include <QJsonArray>

/// The fields of one record of a dataset, to be dragged onto a variable table.
class BUSINESS_QUILLON_EXPORT DatasetPropertiesFieldsModel
    : public TextListDrag<DragListModel<TDcSourceField>>
{
public:
    /// Numbers all \a fields from 1 through their tags, then shows those of \a record; "*" stands for every
    /// record. The list is only read here, null stands for an empty one; the fields are not owned and must
    /// outlive the model.
    DatasetPropertiesFieldsModel(QObject *parent, QList<TDcSourceField *> *fields, QString record);

    /// The text of a cell; invalid for an unknown column.
    [[nodiscard]] QVariant getItemData(TDcSourceField *field, int column) const;
    /// The categories of \a field as they are dragged: objects of a code and a label, both texts.
    QJsonArray laodDataCategories(TDcSourceField *field) const;

    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;
    [[nodiscard]] QMimeData *mimeData(const QModelIndexList &indexes) const override;

private:
    int m_tagWidth = 1; // In digits.
};
