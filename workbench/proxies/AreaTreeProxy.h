#pragma once

#include "workbench/proxies/RealRowProxy.h"

class SelectionTreeUnit;

/// Puts the check boxes into effect that the layer's tree of area units only shows: a click selects a unit
/// with all below it, and the units above follow.
class AreaTreeProxy : public RealRowProxy
{
    Q_OBJECT

public:
    /// All that a unit is known by, shown or not: its code, its name and its texts.
    static constexpr int FilterRole = Qt::UserRole + 1;

    using RealRowProxy::RealRowProxy;

    /// The tree whose model the source is. Null for none; not owned.
    void setRoot(SelectionTreeUnit *root) { m_root = root; }

    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// Sets check states; every other change is refused.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

    void selectNone();

Q_SIGNALS:
    void selectionChanged();

private:
    void announceBelow(const QModelIndex &parent);

    SelectionTreeUnit *m_root = nullptr; // Not owned.
};
