#include "models/VarRangeModel.h"

#include "model/MetadataVariables.h"
#include "model/TDcVariable.h"
#include "models/internal/Columns.h"
#include "models/internal/TypeWords.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace
{
template <auto setter>
void storeNumber(Range &range, const QVariant &value)
{
    (range.*setter)(value.toDouble());
}

constexpr Column<Range> columns[] = {
    {"Minimum", valueOf<&Range::getRangeMin>, storeNumber<&Range::setRangeMin>},
    {"Maximum", valueOf<&Range::getRangeMax>, storeNumber<&Range::setRangeMax>},
};

QList<Range *> rangesOf(const TDcVariable &variable)
{
    const MetadataVariables *metadata = variable.getMetadataVariables();
    return metadata ? *metadata->getRange() : QList<Range *>();
}

/// Cuts fractions off. The conversion is undefined for what no int holds.
int truncated(double number)
{
    using Limits = std::numeric_limits<int>;
    return std::isnan(number) ? 0 : int(std::clamp(number, double(Limits::min()), double(Limits::max())));
}
} // namespace

VarRangeModel::VarRangeModel(QObject *parent, TDcVariable *variable)
    : EditableTableModel(parent, rangesOf(*variable)), m_variable(variable)
{
}

int VarRangeModel::columnCount(const QModelIndex &) const
{
    return int(std::size(columns));
}

QVariant VarRangeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return plainHeader(columns, section, orientation, role);
}

QVariant VarRangeModel::getItemData(Range *range, int column) const
{
    const QVariant bound = cellValue(columns, range, column);
    return bound.isValid() && isInteger(*m_variable) ? truncated(bound.toDouble()) : bound;
}

void VarRangeModel::store(Range &range, int column, const QVariant &value)
{
    storeCell(columns, range, column, isInteger(*m_variable) ? QVariant(value.toInt()) : value);
}
