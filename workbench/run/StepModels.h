#pragma once

#include "workbench/run/VariablesPage.h"

/// What the steps that choose variables show.
namespace StepModels
{
/// Those of \a variables, all of \a entity, that \a step may show, each with its check; \a parent owns the
/// model.
[[nodiscard]] CheckListModel *make(VariablesPage::Step step, TDcEntity *entity,
                                   QList<TDcVariable *> variables, QObject *parent);
/// The variables of \a entity that \a step offers now. The last one offers what is checked, and goes on
/// offering it when the check is taken away.
[[nodiscard]] QList<TDcVariable *> offered(VariablesPage::Step step, TDcEntity *entity);
/// What filters and sorts such a model, with titles in the person's language; \a parent owns it.
[[nodiscard]] QSortFilterProxyModel *makeProxy(VariablesPage::Step step, QObject *parent);
} // namespace StepModels
