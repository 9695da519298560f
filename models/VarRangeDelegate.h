#pragma once

#include "business/business_quillon_export.h"
#include "model/TDcVariable.h"

#include <QStyledItemDelegate>

/// Edits range bounds: with a whole-number spin box for an integer variable, else with a decimal one.
class BUSINESS_QUILLON_EXPORT VarRangeDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// \a variable is not owned and must outlive the delegate.
    VarRangeDelegate(TDcVariable *variable, QObject *parent);

    /// The decimal spin box offers the variable's decimals, or 2 where it has none.
    [[nodiscard]] QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;

private:
    TDcVariable *m_variable; // Not owned.
};
