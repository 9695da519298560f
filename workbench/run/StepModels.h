#pragma once

#include "workbench/run/VariablesPage.h"

/// What the steps that choose variables show.
namespace StepModels
{
/// The variables of \a entity that \a step offers, each with its check; \a parent owns the model.
[[nodiscard]] CheckListModel *make(VariablesPage::Step step, TDcEntity *entity, QObject *parent);
/// The variables in that model.
[[nodiscard]] QList<TDcVariable *> offered(VariablesPage::Step step, TDcEntity *entity);
/// What filters and sorts such a model, with titles in the person's language; \a parent owns it.
[[nodiscard]] QSortFilterProxyModel *makeProxy(VariablesPage::Step step, QObject *parent);
} // namespace StepModels
