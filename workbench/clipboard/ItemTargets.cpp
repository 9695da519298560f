#include "workbench/clipboard/ItemTargets.h"

#include "common/Constants.h"
#include "model/MetadataVariables.h"
#include "model/TDcVariable.h"
#include "models/VarRangeModel.h"
#include "models/VarValueLabelDiccionaryModel.h"
#include "workbench/operations/ListEdits.h"
#include "workbench/operations/Numbers.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{
// Columns of the layer's models.
constexpr int code = 0;
constexpr int minimum = 0;
constexpr int maximum = 1;
} // namespace

ValueLabelTarget::ValueLabelTarget(TDcVariable *variable, const QList<ValueLabelElement *> &displayed,
                                   const QList<int> &columns)
    : ItemTarget(displayed, columns, {{tr("Code"), u"Code"_s}, {tr("Label"), u"Label"_s}}, {code}),
      m_variable(variable)
{
    for (int row = rowCount() - 1; row >= 0; --row) // The first of a code counts.
        m_rows.insert(displayed.at(row)->getValue().trimmed(), row);
}

int ValueLabelTarget::find(const QStringList &keys)
{
    return m_rows.value(keys.constFirst().trimmed(), -1);
}

void ValueLabelTarget::add(const QStringList &keys)
{
    if (!keys.isEmpty())
        m_rows.insert(keys.constFirst().trimmed(), rowCount());
    ItemTarget::add(keys);
}

std::unique_ptr<QAbstractItemModel> ValueLabelTarget::createModel() const
{
    return std::make_unique<VarValueLabelDiccionaryModel>(nullptr, m_variable);
}

ValueLabelElement *ValueLabelTarget::addItem()
{
    m_variable->addValueLabelElement(new ValueLabelElement);
    return m_variable->getValueLabelElementList()->last();
}

void ValueLabelTarget::removeItems(const QList<ValueLabelElement *> &items)
{
    ListEdits::remove(*m_variable->getValueLabelElementList(), items);
}

QVariant ValueLabelTarget::check(int /*column*/, const QString &text, QString * /*why*/) const
{
    return text;
}

RangeTarget::RangeTarget(TDcVariable *variable, const QList<Range *> &displayed, const QList<int> &columns)
    : ItemTarget(displayed, columns, {{tr("Minimum"), u"Minimum"_s}, {tr("Maximum"), u"Maximum"_s}},
                 {minimum, maximum}),
      m_variable(variable)
{
    for (int row = rowCount() - 1; row >= 0; --row)
        m_rows.insert({displayed.at(row)->getRangeMin(), displayed.at(row)->getRangeMax()}, row);
}

std::optional<RangeTarget::Bounds> RangeTarget::bounds(const QStringList &keys)
{
    const auto low = Numbers::real(keys.value(minimum));
    const auto high = Numbers::real(keys.value(maximum));
    return low && high ? std::optional(Bounds(*low, *high)) : std::nullopt;
}

int RangeTarget::find(const QStringList &keys)
{
    const auto sought = bounds(keys);
    return sought ? m_rows.value(*sought, -1) : -1;
}

void RangeTarget::add(const QStringList &keys)
{
    if (const auto added = bounds(keys))
        m_rows.insert(*added, rowCount());
    ItemTarget::add(keys);
}

std::unique_ptr<QAbstractItemModel> RangeTarget::createModel() const
{
    return std::make_unique<VarRangeModel>(nullptr, m_variable);
}

Range *RangeTarget::addItem()
{
    if (!m_variable->getMetadataVariables())
        m_variable->setMetadataVariables(new MetadataVariables);
    m_variable->getMetadataVariables()->addItemRange(new Range);
    return m_variable->getMetadataVariables()->getRange()->last();
}

void RangeTarget::removeItems(const QList<Range *> &items)
{
    ListEdits::remove(*m_variable->getMetadataVariables()->getRange(), items);
}

QVariant RangeTarget::check(int /*column*/, const QString &text, QString *why) const
{
    if (m_variable->getVarType() == Constants::typeInteger) {
        if (const auto number = Numbers::whole(text))
            return *number;
        *why = tr("This is no whole number.");
        return {};
    }
    if (const auto number = Numbers::real(text))
        return *number;
    *why = tr("This is no number.");
    return {};
}
