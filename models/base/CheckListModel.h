#pragma once

#include "business/business_quillon_export.h"
#include "model/TDcEntity.h"
#include "models/base/RowListModel.h"

/// The variables that a wizard offers, each with a check box that is kept in the variable itself.
class BUSINESS_QUILLON_EXPORT CheckListModel : public RowListModel<TDcVariable>
{
public:
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// Toggles a check box; \a value is not read. Every other change is refused.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;
    /// No cell can be checked by the user unless a derived class adds it.
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// What the cell of \a variable in \a column shows; invalid without a variable and beyond the columns.
    [[nodiscard]] QVariant getItemData(TDcVariable *variable, int column) const;

protected:
    /// Shows \a variables in the first \a shownColumns of name, label, alias, group and tag.
    CheckListModel(QObject *parent, const QList<TDcVariable *> &variables, int shownColumns);

    /// The entries of \a variables that have no role in \a entity: not its reference code, reference label or
    /// weight.
    [[nodiscard]] static QList<TDcVariable *> withoutRoles(const TDcEntity *entity,
                                                           const QList<TDcVariable *> *variables);

    /// Whether \a variable has a check box at all.
    [[nodiscard]] virtual bool isCheckable(const TDcVariable &variable) const;

private:
    const int m_columns;
};
