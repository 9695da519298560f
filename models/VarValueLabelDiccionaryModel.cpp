#include "models/VarValueLabelDiccionaryModel.h"

#include "model/TDcVariable.h"
#include "models/internal/Columns.h"

#include <iterator>

namespace
{
constexpr Column<ValueLabelElement> columns[] = {
    {"Code", valueOf<&ValueLabelElement::getValue>, storeText<&ValueLabelElement::setValue>},
    {"Label", valueOf<&ValueLabelElement::getLabel>, storeText<&ValueLabelElement::setLabel>},
};
} // namespace

VarValueLabelDiccionaryModel::VarValueLabelDiccionaryModel(QObject *parent, TDcVariable *variable)
    : EditableTableModel(parent, *variable->getValueLabelElementList())
{
}

int VarValueLabelDiccionaryModel::columnCount(const QModelIndex &) const
{
    return int(std::size(columns));
}

QVariant VarValueLabelDiccionaryModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return plainHeader(columns, section, orientation, role);
}

QVariant VarValueLabelDiccionaryModel::getItemData(ValueLabelElement *element, int column) const
{
    return cellValue(columns, element, column);
}

void VarValueLabelDiccionaryModel::store(ValueLabelElement &element, int column, const QVariant &value)
{
    storeCell(columns, element, column, value);
}
