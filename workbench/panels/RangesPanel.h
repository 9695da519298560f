#pragma once

#include "workbench/panels/ItemsPanel.h"

/// The ranges of valid values of the current variable, edited with spin boxes.
class RangesPanel : public ItemsPanel
{
    Q_OBJECT

public:
    explicit RangesPanel(const Workspace &workspace, QWidget *parent = nullptr);

protected:
    QAbstractItemModel *createModel(TDcVariable *variable) override;
    [[nodiscard]] QList<void *> items(TDcVariable *variable) const override;
    void add(TDcVariable *variable) override;
    void remove(TDcVariable *variable, const QList<void *> &items) override;
    void move(TDcVariable *variable, const QList<void *> &items, bool up) override;
    [[nodiscard]] bool canMove(TDcVariable *variable, const QList<void *> &items, bool up) const override;
};
