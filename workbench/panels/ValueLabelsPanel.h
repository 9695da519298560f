#pragma once

#include "workbench/panels/ItemsPanel.h"

/// The value labels (codes and what they stand for) of the current variable.
class ValueLabelsPanel : public ItemsPanel
{
    Q_OBJECT

public:
    explicit ValueLabelsPanel(const Workspace &workspace, QWidget *parent = nullptr);

protected:
    QAbstractItemModel *createModel(TDcVariable *variable) override;
    [[nodiscard]] QList<void *> items(TDcVariable *variable) const override;
    void add(TDcVariable *variable) override;
    void remove(TDcVariable *variable, const QList<void *> &items) override;
    void move(TDcVariable *variable, const QList<void *> &items, bool up) override;
    [[nodiscard]] bool canMove(TDcVariable *variable, const QList<void *> &items, bool up) const override;
};
