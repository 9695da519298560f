#include "models/SelectionBuilderTreeModel.h"

#include "common/Constants.h"

#include <QDebug>
#include <QIcon>

using namespace Qt::Literals::StringLiterals;

namespace
{
/// The name of the one unit that has an icon.
constexpr auto markedName = "QOVA"_L1;

QVariant icon(const SelectionTreeUnit &unit)
{
    return unit.getName() == markedName ? QIcon(u":/icons/res/icons/48px-About.png"_s) : QVariant();
}

int checkState(const SelectionTreeUnit &unit)
{
    const Qt::CheckState state = unit.getUnitState();
    return state == Qt::PartiallyChecked || state == Qt::Checked ? state : Qt::Unchecked;
}
} // namespace

SelectionBuilderTreeModel::SelectionBuilderTreeModel(QObject *parent, SelectionTreeUnit *root, bool showCode,
                                                     bool showNamePrefix)
    : TreeModel(parent, root), m_showCode(showCode), m_showNamePrefix(showNamePrefix)
{
}

QVariant SelectionBuilderTreeModel::getItemData(SelectionTreeUnit *unit, int column) const
{
    if (!unit || column != 0)
        return {};
    const auto area = unit->getArea();
    QString text;
    if (m_showNamePrefix && unit->getLevel() != TopLevel)
        text = unit->getName() + " | "_L1;
    text += m_showCode ? unit->getCode() : QString::fromStdString(area.first);
    return text + Constants::blank + QString::fromStdString(area.second);
}

QModelIndex SelectionBuilderTreeModel::parent(const QModelIndex &index) const
{
    SelectionTreeUnit *unit = itemAt(index);
    if (!unit || unit->getLevel() == TopLevel)
        return {};
    unit->setIndex(TreeModel::parent(index));
    return unit->getIndex();
}

int SelectionBuilderTreeModel::rowCount(const QModelIndex &parent) const
{
    if (parent.isValid() && !itemAt(parent))
        qDebug("Row Count 3");
    return TreeModel::rowCount(parent);
}

QVariant SelectionBuilderTreeModel::data(const QModelIndex &index, int role) const
{
    SelectionTreeUnit *unit = itemAt(index);
    if (!unit)
        return {};
    const bool shown = index.column() == 0;
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return getItemData(unit, index.column());
    case Qt::DecorationRole:
        return shown ? icon(*unit) : QVariant();
    case Qt::CheckStateRole:
        return shown ? checkState(*unit) : QVariant();
    case Qt::UserRole:
        qDebug("U SER  ROLE "); // There is nothing to tell under this role.
        return {};
    default:
        return {};
    }
}

Qt::ItemFlags SelectionBuilderTreeModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    return index.column() == 0 ? flags | Qt::ItemIsUserCheckable : flags;
}
