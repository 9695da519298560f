#pragma once

#include "business/business_quillon_export.h"
#include "model/TDcVariable.h"
#include "model/ValueLabelElement.h"
#include "models/base/EditableTableModel.h"

/// The categories of a variable as a table of code and label. Edits go straight into the categories; no code
/// is refused, not even an empty or a repeated one.
class BUSINESS_QUILLON_EXPORT VarValueLabelDiccionaryModel : public EditableTableModel<ValueLabelElement>
{
    Q_OBJECT

public:
    /// Shows the categories that \a variable has now; they are not owned and must outlive the model.
    VarValueLabelDiccionaryModel(QObject *parent, TDcVariable *variable);

    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant getItemData(ValueLabelElement *element, int column) const override;

Q_SIGNALS:
    /// Kept for those who connect to it. It is never emitted: edits are announced by dataChanged().
    void editedItem(ValueLabelElement *element);

protected:
    void store(ValueLabelElement &element, int column, const QVariant &value) override;
};
