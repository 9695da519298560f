#pragma once

#include "business/business_quillon_export.h"
#include "model/Range.h"
#include "model/TDcVariable.h"
#include "models/base/EditableTableModel.h"

/// The valid ranges of a variable as a table of minimum and maximum.
///
/// Edits go straight into the ranges; that a minimum stays below its maximum is not checked.
class BUSINESS_QUILLON_EXPORT VarRangeModel : public EditableTableModel<Range>
{
public:
    /// Shows the ranges that \a variable has now; none for a variable without metadata. The variable and its
    /// ranges are not owned and must outlive the model.
    VarRangeModel(QObject *parent, TDcVariable *variable);

    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

    /// A whole number for an integer variable, whose fractions are cut off and whose bounds beyond int are
    /// shown as the nearest int; a double for every other variable.
    [[nodiscard]] QVariant getItemData(Range *range, int column) const override;

protected:
    void store(Range &range, int column, const QVariant &value) override;

private:
    TDcVariable *m_variable; // Not owned.
};
