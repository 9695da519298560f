#pragma once

#include "model/Range.h"
#include "model/ValueLabelElement.h"
#include "workbench/clipboard/ItemTarget.h"

#include <QCoreApplication>
#include <QHash>

#include <optional>
#include <utility>

class TDcVariable;

/// The value labels of a variable, to paste rows into. A label is found by its code.
class ValueLabelTarget : public ItemTarget<ValueLabelElement>
{
    Q_DECLARE_TR_FUNCTIONS(ValueLabelTarget)

public:
    /// \a displayed are the labels, and \a columns those of the layer's model, as the table shows them.
    ValueLabelTarget(TDcVariable *variable, const QList<ValueLabelElement *> &displayed,
                     const QList<int> &columns);

    [[nodiscard]] int find(const QStringList &keys) override;
    void add(const QStringList &keys) override;

protected:
    [[nodiscard]] std::unique_ptr<QAbstractItemModel> createModel() const override;
    [[nodiscard]] ValueLabelElement *addItem() override;
    void removeItems(const QList<ValueLabelElement *> &items) override;
    [[nodiscard]] QVariant check(int column, const QString &text, QString *why) const override;

private:
    TDcVariable *m_variable; // Not owned.
    QHash<QString, int> m_rows; // By code.
};

/// The ranges of a variable, to paste rows into. A range is found by its bounds, so that none gets there
/// twice.
class RangeTarget : public ItemTarget<Range>
{
    Q_DECLARE_TR_FUNCTIONS(RangeTarget)

public:
    /// As ValueLabelTarget.
    RangeTarget(TDcVariable *variable, const QList<Range *> &displayed, const QList<int> &columns);

    [[nodiscard]] int find(const QStringList &keys) override;
    void add(const QStringList &keys) override;

protected:
    [[nodiscard]] std::unique_ptr<QAbstractItemModel> createModel() const override;
    [[nodiscard]] Range *addItem() override;
    void removeItems(const QList<Range *> &items) override;
    [[nodiscard]] QVariant check(int column, const QString &text, QString *why) const override;

private:
    using Bounds = std::pair<double, double>;
    [[nodiscard]] static std::optional<Bounds> bounds(const QStringList &keys);

    TDcVariable *m_variable; // Not owned.
    QHash<Bounds, int> m_rows;
};
