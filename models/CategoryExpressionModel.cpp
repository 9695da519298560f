#include "models/CategoryExpressionModel.h"

CategoryExpressionModel::CategoryExpressionModel(QObject *parent, QList<ValueLabelElement *> *items,
                                                 eEntityShowMode mode)
    : ExpressionListModel(parent, items, mode)
{
}

QVariant CategoryExpressionModel::getItemData(ValueLabelElement *item, int) const
{
    if (!item)
        return {};
    switch (m_mode) {
    case ShowName:
    case ShowLabel:
    case ShowNameAndLabel:
        return QString(item->getValue() + u'-' + item->getLabel());
    }
    return {};
}
