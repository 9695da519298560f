#include "models/DatasetPropertiesFieldsModel.h"

#include "common/Constants.h"
#include "models/internal/Columns.h"
#include "models/internal/FieldPayload.h"

#include <QDebug>
#include <QIcon>

using namespace Qt::Literals::StringLiterals;

namespace
{
enum ColumnNumber { FieldColumn = 0, TagColumn = 2 };

template <auto member>
QVariant memberOf(const TDcSourceField &field)
{
    return field.*member;
}

constexpr Column<TDcSourceField> columns[] = {
    {"Field", memberOf<&TDcSourceField::name>},
    {"Label", memberOf<&TDcSourceField::label>},
    {"Tag", memberOf<&TDcSourceField::tag>}, // Shown with leading zeros.
};

constexpr auto everyRecord = "*"_L1;

QIcon icon(const QString &fieldType)
{
    if (fieldType == Constants::typeString)
        return QIcon(u":/icons/res/icons/48px-string.png"_s);
    if (fieldType == Constants::typeReal)
        return QIcon(u":/icons/res/icons/48px-realnumber.png"_s);
    if (fieldType == Constants::typeInteger)
        return QIcon(u":/icons/res/icons/48px-integernumber.png"_s);
    return QIcon(u":/icons/res/icons/48px-numberplaceholder.png"_s);
}
} // namespace

DatasetPropertiesFieldsModel::DatasetPropertiesFieldsModel(QObject *parent, QList<TDcSourceField *> *fields,
                                                           QString record)
    : TextListDrag(parent)
{
    const QList<TDcSourceField *> all = fields ? *fields : QList<TDcSourceField *>();
    QList<TDcSourceField *> kept;
    int tag = 0;
    for (TDcSourceField *field : all) {
        ++tag;
        if (field)
            field->tag = tag;
        if (record == everyRecord || (field && field->record == record))
            kept.append(field);
    }
    fill(kept);
    m_tagWidth = int(QString::number(all.size()).size());
}

QVariant DatasetPropertiesFieldsModel::getItemData(TDcSourceField *field, int column) const
{
    QVariant value = cellValue(columns, field, column);
    if (column != TagColumn || !value.isValid())
        return value;
    return u"%1"_s.arg(value.toInt(), m_tagWidth, 10, '0'_L1);
}

QJsonArray DatasetPropertiesFieldsModel::laodDataCategories(TDcSourceField *field) const
{
    QJsonArray categories;
    if (!field)
        return categories;
    const auto entries = QStringView(field->categories).split(u'\t', Qt::SkipEmptyParts);
    for (QStringView entry : entries) {
        const qsizetype end = entry.indexOf(u' ');
        const QString code = entry.left(end).trimmed().toString();
        const QString label = end < 0 ? QString() : entry.mid(end).trimmed().toString();
        qDebug() << code << label;
        categories.append(
            QJsonObject{{FieldPayload::categoryCodeKey, code}, {FieldPayload::categoryLabelKey, label}});
    }
    return categories;
}

int DatasetPropertiesFieldsModel::columnCount(const QModelIndex &) const
{
    return int(std::size(columns));
}

QVariant DatasetPropertiesFieldsModel::data(const QModelIndex &index, int role) const
{
    TDcSourceField *field = itemAt(index);
    if (!field)
        return {};
    if (role == Qt::DisplayRole)
        return getItemData(field, index.column());
    if (role == Qt::DecorationRole && index.column() == FieldColumn)
        return icon(field->getFieldType());
    return {};
}

QVariant DatasetPropertiesFieldsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return plainHeader(columns, section, orientation, role);
}

QMimeData *DatasetPropertiesFieldsModel::mimeData(const QModelIndexList &indexes) const
{
    return FieldPayload::write(itemsAt(indexes), [this](TDcSourceField &field) {
        return QJsonObject{{FieldPayload::nameKey, field.name},
                           {FieldPayload::labelKey, field.label},
                           {FieldPayload::tagKey, field.tag},
                           {FieldPayload::categoriesKey, laodDataCategories(&field)},
                           {FieldPayload::fieldTypeKey, field.getFieldType()},
                           {FieldPayload::rangeMinKey, field.rangeMin},
                           {FieldPayload::rangeMaxKey, field.rangeMax},
                           {"fieldRelativePosition"_L1, field.relativePosition}, // Never read.
                           {FieldPayload::decimalsKey, field.decimals},
                           {FieldPayload::sizeKey, field.size},
                           {"fieldMissing"_L1, field.missing}, // Never read.
                           {"fieldNotApp"_L1, field.notApp}, // Never read.
                           {"dataProviderType"_L1, field.getDataProviderType()}}; // Never read.
    });
}
