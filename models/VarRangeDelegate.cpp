#include "models/VarRangeDelegate.h"

#include "models/internal/TypeWords.h"

#include <QDoubleSpinBox>
#include <QSpinBox>

#include <limits>

VarRangeDelegate::VarRangeDelegate(TDcVariable *variable, QObject *parent)
    : QStyledItemDelegate(parent), m_variable(variable)
{
}

QWidget *VarRangeDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                        const QModelIndex &) const
{
    if (isInteger(*m_variable)) {
        auto *editor = new QSpinBox(parent);
        editor->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
        return editor;
    }
    auto *editor = new QDoubleSpinBox(parent);
    editor->setDecimals(m_variable->getDecimals() >= 1 ? m_variable->getDecimals() : 2);
    editor->setRange(-1e12, 1e12);
    return editor;
}

void VarRangeDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    const QVariant value = index.data(Qt::EditRole);
    if (auto *whole = qobject_cast<QSpinBox *>(editor))
        whole->setValue(value.toInt());
    else if (auto *decimal = qobject_cast<QDoubleSpinBox *>(editor))
        decimal->setValue(value.toDouble());
}

void VarRangeDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                    const QModelIndex &index) const
{
    if (const auto *whole = qobject_cast<QSpinBox *>(editor))
        model->setData(index, whole->value(), Qt::EditRole);
    else if (const auto *decimal = qobject_cast<QDoubleSpinBox *>(editor))
        model->setData(index, decimal->value(), Qt::EditRole);
}
