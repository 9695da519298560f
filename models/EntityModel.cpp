#include "models/EntityModel.h"

using namespace Qt::Literals::StringLiterals;

EntityModel::EntityModel(QObject *parent, TDcEntity *root) : EntityTree(parent, root) { }

QVariant EntityModel::data(const QModelIndex &index, int role) const
{
    return role == Qt::DisplayRole ? getItemData(itemAt(index), index.column()) : QVariant();
}

bool EntityModel::setData(const QModelIndex &index, const QVariant &value, int)
{
    if (TDcEntity *entity = itemAt(index))
        entity->setName(value.toString());
    return index.isValid();
}

QVariant EntityModel::headerData(int, Qt::Orientation, int role) const
{
    return role == Qt::DisplayRole ? u"Entity"_s : QVariant(); // Not translated: there is no context for it.
}
