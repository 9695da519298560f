#pragma once

#include "workbench/proxies/RealRowProxy.h"

/// Lets a person switch the selectable mark of the entities in a download tree, which shows it and leaves
/// switching it to its front end.
class EntityChoiceProxy : public RealRowProxy
{
    Q_OBJECT

public:
    using RealRowProxy::RealRowProxy;

    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;
    /// Takes check states alone. Clearing one asks what is to become of selectable entities below.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

    /// Says that marks may have changed, those at \a parent and below it.
    void announceMarks(const QModelIndex &parent = {});

Q_SIGNALS:
    /// Once for each change, after the rows were announced.
    void marksChanged();
};
