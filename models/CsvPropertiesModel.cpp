#include "models/CsvPropertiesModel.h"

#include "models/internal/FieldPayload.h"

#include <QIcon>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr int noTag = -1; // Fields of a text file have no number of their own.
}

CsvPropertiesModel::CsvPropertiesModel(QObject *parent, QList<TDcSourceField *> *fields)
    : TextListDrag(parent)
{
    fill(fields ? *fields : QList<TDcSourceField *>());
}

QVariant CsvPropertiesModel::getItemData(TDcSourceField *field, int column) const
{
    return field && column == 0 ? field->name : QVariant();
}

int CsvPropertiesModel::columnCount(const QModelIndex &) const
{
    return 1;
}

QVariant CsvPropertiesModel::data(const QModelIndex &index, int role) const
{
    TDcSourceField *field = itemAt(index);
    if (!field)
        return {};
    if (role == Qt::DisplayRole)
        return getItemData(field, index.column());
    if (role == Qt::DecorationRole && index.column() == 0)
        return QIcon(u":/icons/res/icons/48px-Project-preferences.png"_s);
    return {};
}

QMimeData *CsvPropertiesModel::mimeData(const QModelIndexList &indexes) const
{
    return FieldPayload::write(itemsAt(indexes), [](const TDcSourceField &field) {
        return QJsonObject{{FieldPayload::nameKey, field.name}, {FieldPayload::tagKey, noTag}};
    });
}
