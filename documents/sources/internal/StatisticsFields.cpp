#include "documents/sources/internal/StatisticsFields.h"

#include "common/Constants.h"

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace
{
QString taggedCode(char tag)
{
    return u'.' + QString(QLatin1Char(tag));
}

bool isString(readstat_type_t type)
{
    return readstat_type_class(type) == READSTAT_TYPE_CLASS_STRING;
}

QString valueText(const readstat_value_t &value)
{
    if (isString(readstat_value_type(value)))
        return QString::fromUtf8(readstat_string_value(value)).trimmed();
    if (readstat_value_is_tagged_missing(value))
        return taggedCode(readstat_value_tag(value));
    const double number = readstat_double_value(value);
    return std::isfinite(number) ? FieldText::number(number) : QString();
}

/// One missing code, or a range of them. Bounds that are open have no text.
QString missingText(const readstat_value_t &low, const readstat_value_t &high)
{
    const auto bound = [](const readstat_value_t &value) {
        // Open ends come as infinite or as the largest finite number.
        const bool open =
            !isString(readstat_value_type(value)) && std::abs(readstat_double_value(value)) > 1e300;
        return open ? QString() : valueText(value);
    };
    const QString lowText = bound(low);
    const QString highText = bound(high);
    return lowText == highText ? lowText : lowText + u".."_s + highText;
}

/// Characters that a number of this type may take.
int typeWidth(readstat_type_t type)
{
    switch (type) {
    case READSTAT_TYPE_INT8:
        return 4;
    case READSTAT_TYPE_INT16:
        return 6;
    case READSTAT_TYPE_INT32:
        return 11;
    default:
        return 12;
    }
}
} // namespace

void StatisticsFields::addLabel(const char *set, const readstat_value_t &value, const char *label)
{
    Labels &labels = m_labels[QString::fromUtf8(set).toUpper()];
    const QString code = valueText(value);
    if (!FieldText::appendCategory(labels.categories, code, QString::fromUtf8(label)))
        labels.unusable.append(code);
    if (readstat_value_is_tagged_missing(value))
        labels.missing.append(code);
}

void StatisticsFields::addVariable(readstat_variable_t *variable, const char *labelSet)
{
    Field field;
    field.name = QString::fromUtf8(readstat_variable_get_name(variable));
    field.label = QString::fromUtf8(readstat_variable_get_label(variable));
    field.labelSet = QString::fromUtf8(labelSet).toUpper();
    field.type = readstat_variable_get_type(variable);
    field.format = NumberFormat::parse(QString::fromUtf8(readstat_variable_get_format(variable)));
    field.storageWidth = int(std::min<size_t>(readstat_variable_get_storage_width(variable), 1U << 30U));
    const int count = readstat_variable_get_missing_ranges_count(variable);
    for (int i = 0; i < count; ++i) {
        field.missing.append(missingText(readstat_variable_get_missing_range_lo(variable, i),
                                         readstat_variable_get_missing_range_hi(variable, i)));
    }
    m_fields.push_back(std::move(field));
}

void StatisticsFields::addValue(int row, readstat_variable_t *variable, const readstat_value_t &value)
{
    m_row = row + 1;
    const int index = readstat_variable_get_index(variable);
    if (index < 0 || size_t(index) >= m_fields.size())
        return;
    Field &field = m_fields[size_t(index)];
    if (isString(field.type)) {
        if (field.type == READSTAT_TYPE_STRING_REF)
            field.observedLength = std::max(field.observedLength, valueText(value).size());
        return;
    }
    if (readstat_value_is_tagged_missing(value)) {
        const int letter = readstat_value_tag(value) - 'a';
        if (letter >= 0 && letter < 26)
            field.tags |= 1U << unsigned(letter);
    } else if (!readstat_value_is_system_missing(value)
               && !readstat_value_is_defined_missing(value, variable)) {
        if (field.type == READSTAT_TYPE_FLOAT)
            field.numbers.add(readstat_float_value(value));
        else
            field.numbers.add(readstat_double_value(value));
    }
}

const StatisticsFields::Labels *StatisticsFields::labelsOf(const Field &field) const
{
    if (field.labelSet.isEmpty())
        return nullptr;
    auto found = m_labels.constFind(field.labelSet);
    if (found == m_labels.cend()) {
        // In a format the width stands behind the name of the set: "SEXF8." shows the set "SEXF".
        QString name = field.labelSet;
        while (!name.isEmpty() && (name.back().isDigit() || name.back() == u'.'))
            name.chop(1);
        found = m_labels.constFind(name);
    }
    return found == m_labels.cend() ? nullptr : &*found;
}

int StatisticsFields::stringSize(const Field &field) const
{
    if (field.type == READSTAT_TYPE_STRING_REF)
        return int(field.observedLength);
    switch (m_provider.padding) {
    case Padding::Blocks:
        return field.format.width > 0 ? field.format.width : field.storageWidth;
    case Padding::EndMark:
        return std::max(0, field.storageWidth - 1);
    case Padding::None:
        break;
    }
    return field.storageWidth;
}

void StatisticsFields::writeNumber(const Field &field, TDcSourceField &item) const
{
    const bool wholeType = field.type != READSTAT_TYPE_FLOAT && field.type != READSTAT_TYPE_DOUBLE;
    const int declared = field.format.decimals;
    item.decimals = std::max({0, declared, field.numbers.decimals()});
    const bool knownWhole = wholeType || declared == 0 || !field.numbers.isEmpty();
    const bool integer = knownWhole && item.decimals == 0 && field.numbers.fitsInteger();
    item.setFieldType(integer ? Constants::typeInteger : Constants::typeReal);
    item.size = std::max(field.format.width, field.numbers.width(item.decimals));
    if (item.size == 0)
        item.size = typeWidth(field.type);
    field.numbers.writeRange(item);
}

void StatisticsFields::finish(SourceFields &result, const QString &file, const QString &record) const
{
    int position = 0;
    for (const Field &field : m_fields) {
        auto item = std::make_unique<TDcSourceField>();
        item->setDataProviderType(m_provider.name);
        item->name = field.name;
        item->label = field.label;
        item->relativePosition = ++position;
        item->record = record;
        CodeList missing = field.missing;
        if (isString(field.type)) {
            item->setFieldType(Constants::typeString);
            item->size = stringSize(field);
        } else {
            writeNumber(field, *item);
        }
        if (const Labels *labels = labelsOf(field)) {
            item->categories = labels->categories;
            missing.append(labels->missing);
            if (!labels->unusable.isEmpty()) {
                result.notes.append({file, tr("variable %1").arg(field.name),
                                     tr("These codes are empty or hold blanks and are left out of the "
                                        "categories: \"%1\".")
                                         .arg(labels->unusable.join(u"\", \""_s))});
            }
        }
        for (char letter = 'a'; letter <= 'z'; ++letter) {
            if (field.tags & (1U << unsigned(letter - 'a')))
                missing.append(taggedCode(letter));
        }
        item->missing = missing.text();
        result.items->append(std::move(item));
    }
}
