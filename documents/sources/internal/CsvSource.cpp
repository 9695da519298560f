#include "documents/sources/internal/CsvSource.h"

#include "common/Constants.h"
#include "documents/sources/internal/CsvTable.h"
#include "documents/sources/internal/FieldText.h"

#include <QFileInfo>
#include <QHash>

#include <algorithm>
#include <cmath>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr qint64 GuessedFrom = 1000; ///< Rows that decide on the types when the data are not read.
constexpr int MostDigits = 15;

/// How a number is written.
struct Number {
    double value = 0;
    int decimals = 0;
    QChar point; ///< Null for a whole number.
    bool exponent = false;
};

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

/// The number that \a cell is, if a column of numbers may hold it.
std::optional<Number> parseNumber(QStringView cell)
{
    Number number;
    const QStringView unsignedPart = cell.startsWith(u'-') || cell.startsWith(u'+') ? cell.mid(1) : cell;
    const auto *const whole = std::find_if_not(unsignedPart.cbegin(), unsignedPart.cend(), isDigit);
    auto digits = whole - unsignedPart.cbegin();
    if (digits > 1 && unsignedPart.front() == u'0')
        return std::nullopt;
    const auto *rest = whole;
    if (rest != unsignedPart.cend() && (*rest == u'.' || *rest == u',')) {
        number.point = *rest;
        const auto *const fraction = std::find_if_not(rest + 1, unsignedPart.cend(), isDigit);
        number.decimals = int(fraction - rest - 1);
        digits += number.decimals;
        rest = fraction;
    }
    number.exponent = rest != unsignedPart.cend();
    if (digits == 0 || digits > MostDigits)
        return std::nullopt;
    bool ok = false;
    number.value = cell.toString().replace(u',', u'.').toDouble(&ok); // also tries the exponent
    return ok && std::isfinite(number.value) ? std::optional(number) : std::nullopt;
}

/// What the cells of one column have in common.
struct Column {
    QString name;
    ObservedNumbers numbers;
    QChar point;
    bool numeric = true;
    bool exponents = false;
    qsizetype width = 0;

    void add(const QString &cell)
    {
        if (cell.isEmpty())
            return;
        width = std::max(width, cell.size());
        if (!numeric)
            return;
        const auto number = parseNumber(cell);
        numeric = number && (number->point.isNull() || point.isNull() || point == number->point);
        if (!numeric)
            return;
        if (!number->point.isNull())
            point = number->point;
        exponents = exponents || number->exponent;
        numbers.add(number->value, number->decimals);
    }

    [[nodiscard]] QString typeWord() const
    {
        if (!numeric || numbers.isEmpty())
            return Constants::typeString;
        const bool whole = point.isNull() && !exponents && numbers.fitsInteger();
        return whole ? Constants::typeInteger : Constants::typeReal;
    }
};
} // namespace

SourceFields CsvSource::read(const QString &path, const SourceOptions &options)
{
    SourceFields result;
    std::vector<Column> columns;
    CsvTable table(path, options);
    const auto problem = table.read(
        [&](const CsvRow &row) {
            const bool first = columns.empty();
            if (first)
                columns.resize(size_t(row.cells.size()));
            for (size_t i = 0; i < columns.size(); ++i) {
                const QString &cell = row.cells.at(qsizetype(i));
                if (!first || !options.header)
                    columns[i].add(cell);
                else
                    columns[i].name = cell;
            }
            return QString();
        },
        options.readData ? -1 : GuessedFrom);
    result.cancelled = table.cancelled();
    if (problem)
        result.errors.append(*problem);
    if (!result.ok())
        return result;

    QHash<QString, int> positions;
    int position = 0;
    for (const Column &column : columns) {
        auto field = std::make_unique<TDcSourceField>();
        field->relativePosition = ++position;
        field->name = column.name.isEmpty() ? u"V%1"_s.arg(position) : column.name;
        field->record = QFileInfo(path).completeBaseName();
        field->setDataProviderType(u"CSV"_s);
        field->setFieldType(column.typeWord());
        field->size = int(column.width);
        if (field->getFieldType() != Constants::typeString) {
            field->decimals = column.numbers.decimals();
            if (options.readData)
                column.numbers.writeRange(*field);
        }
        const QString place = tr("column %1").arg(position);
        if (options.header && column.name.isEmpty())
            result.notes.append(
                {path, place, tr("The column has no name and is called %1.").arg(field->name)});
        if (const int before = positions.value(field->name); before > 0)
            result.notes.append(
                {path, place, tr("Column %1 is called %2 too.").arg(before).arg(field->name)});
        else
            positions.insert(field->name, position);
        result.items->append(std::move(field));
    }
    return result;
}
