#include "models/LookupPropertiesModel.h"

#include "models/internal/FieldPayload.h"

#include <QIcon>

using namespace Qt::Literals::StringLiterals;

LookupPropertiesModel::LookupPropertiesModel(QObject *parent, QList<TDcLookup *> *lookups)
    : TextListDrag(parent)
{
    fill(lookups ? *lookups : QList<TDcLookup *>());
}

QVariant LookupPropertiesModel::getItemData(TDcLookup *lookup, int column) const
{
    return lookup && column == 0 ? QString(lookup->getId() + u'-' + lookup->getLabel()) : QVariant();
}

int LookupPropertiesModel::columnCount(const QModelIndex &) const
{
    return 1;
}

QVariant LookupPropertiesModel::data(const QModelIndex &index, int role) const
{
    TDcLookup *lookup = itemAt(index);
    if (!lookup)
        return {};
    if (role == Qt::DisplayRole)
        return getItemData(lookup, index.column());
    if (role == Qt::DecorationRole && index.column() == 0)
        return QIcon(u":/icons/res/icons/48px-Project-preferences.png"_s);
    return {};
}

QMimeData *LookupPropertiesModel::mimeData(const QModelIndexList &indexes) const
{
    return FieldPayload::write(itemsAt(indexes), [](const TDcLookup &lookup) {
        return QJsonObject{{FieldPayload::nameKey, lookup.getId()},
                           {FieldPayload::labelKey, lookup.getLabel()},
                           {FieldPayload::tagKey, u"*"_s},
                           {FieldPayload::typeKey, FieldPayload::lookupType}};
    });
}
