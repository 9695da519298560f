#include "workbench/run/StepModels.h"

#include "model/TDcEntity.h"
#include "models/VariableModel.h"
#include "models/VariableModelDownStep4.h"
#include "models/VariableModelSplitStep3.h"
#include "models/VariablesProxyModel.h"
#include "models/VariablesProxyModelDownStep4.h"
#include "workbench/proxies/TitledColumns.h"
#include "workbench/run/RunDraft.h"

#include <memory>

using Step = VariablesPage::Step;

CheckListModel *StepModels::make(Step step, TDcEntity *entity, QList<TDcVariable *> variables,
                                 QObject *parent)
{
    switch (step) {
    case Step::Choose:
        return new VariableModel(parent, entity, &variables);
    case Step::Split:
        return new VariableModelSplitStep3(parent, entity, &variables);
    case Step::Down:
        break;
    }
    return new VariableModelDownStep4(parent, entity, &variables);
}

QList<TDcVariable *> StepModels::offered(Step step, TDcEntity *entity)
{
    const std::unique_ptr<CheckListModel> model(
        make(step, entity, step == Step::Down ? RunDraft::checkedVariables(entity) : *entity->getVariables(),
             nullptr));
    QList<TDcVariable *> variables;
    for (int row = 0; row < model->rowCount(); ++row)
        variables.append(static_cast<TDcVariable *>(model->index(row, 0).internalPointer()));
    return variables;
}

QSortFilterProxyModel *StepModels::makeProxy(Step step, QObject *parent)
{
    const QStringList titles{VariablesPage::tr("Name"), VariablesPage::tr("Label"),
                             VariablesPage::tr("Alias"), VariablesPage::tr("Group"),
                             VariablesPage::tr("Tag")};
    QSortFilterProxyModel *proxy = nullptr;
    if (step == Step::Down)
        proxy = new TitledColumns<VariablesProxyModelDownStep4>(titles);
    else
        proxy = new TitledColumns<VariablesProxyModel>(titles);
    proxy->setParent(parent);
    return proxy;
}
