#include "workbench/panels/ValueLabelsPanel.h"

#include "model/TDcVariable.h"
#include "model/ValueLabelElement.h"
#include "models/VarValueLabelDiccionaryModel.h"
#include "models/VarValueLabelDiccionaryProxyModel.h"
#include "workbench/operations/ListEdits.h"
#include "workbench/operations/NewCodes.h"
#include "workbench/proxies/TitledColumns.h"

using namespace Qt::Literals::StringLiterals;

ValueLabelsPanel::ValueLabelsPanel(const Workspace &workspace, QWidget *parent)
    : ItemsPanel(workspace, u"valueLabels"_s,
                 {tr("Value labels"), tr("No value labels."), tr("adding a value label to %1"),
                  tr("removing value labels of %1"), tr("moving value labels of %1")},
                 new TitledColumns<VarValueLabelDiccionaryProxyModel>({tr("Code"), tr("Label")}),
                 {ActionId::LabelAdd, ActionId::LabelRemove, ActionId::LabelMoveUp, ActionId::LabelMoveDown},
                 parent)
{
    start();
}

QAbstractItemModel *ValueLabelsPanel::createModel(TDcVariable *variable)
{
    return new VarValueLabelDiccionaryModel(this, variable);
}

QList<void *> ValueLabelsPanel::items(TDcVariable *variable) const
{
    return ListEdits::untyped(*variable->getValueLabelElementList());
}

void ValueLabelsPanel::add(TDcVariable *variable)
{
    auto *element = new ValueLabelElement;
    element->setValue(NewCodes::next(*variable));
    variable->addValueLabelElement(element);
}

void ValueLabelsPanel::remove(TDcVariable *variable, const QList<void *> &items)
{
    ListEdits::remove(*variable->getValueLabelElementList(), ListEdits::typed<ValueLabelElement>(items));
}

void ValueLabelsPanel::move(TDcVariable *variable, const QList<void *> &items, bool up)
{
    ListEdits::move(*variable->getValueLabelElementList(), ListEdits::typed<ValueLabelElement>(items), up);
}

bool ValueLabelsPanel::canMove(TDcVariable *variable, const QList<void *> &items, bool up) const
{
    return ListEdits::canMove(*variable->getValueLabelElementList(),
                              ListEdits::typed<ValueLabelElement>(items), up);
}
