#include "models/dictionaryTreeModelDownload.h"

#include <QIcon>

using namespace Qt::Literals::StringLiterals;

dictionaryTreeModelDownload::dictionaryTreeModelDownload(QObject *parent, TDcEntity *root)
    : EntityTree(parent, root)
{
}

QVariant dictionaryTreeModelDownload::data(const QModelIndex &index, int role) const
{
    TDcEntity *entity = itemAt(index);
    if (!entity || index.column() != 0)
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return getItemData(entity, index.column());
    case Qt::DecorationRole:
        return entity->getCheckDelete() ? QIcon(u":/icons/res/icons/48px-numberplaceholder.png"_s)
                                        : QVariant();
    case Qt::CheckStateRole:
        return int(entity->getSelectable() ? Qt::Checked : Qt::Unchecked);
    default:
        return {};
    }
}

bool dictionaryTreeModelDownload::setData(const QModelIndex &index, const QVariant &value, int role)
{
    TDcEntity *entity = itemAt(index);
    if (!entity)
        return false;
    if (role == Qt::EditRole && index.column() == 0)
        entity->setName(value.toString().trimmed());
    Q_EMIT dataChanged(index, index);
    return true;
}

QVariant dictionaryTreeModelDownload::headerData(int, Qt::Orientation, int role) const
{
    return role == Qt::DisplayRole ? tr("Entity") : QVariant();
}
