#include "documents/sources/internal/TableSchema.h"

#include "common/Constants.h"
#include "documents/internal/InputFile.h"
#include "documents/sources/internal/FieldText.h"
#include "documents/TextPosition.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{
QString typeWord(const QString &type)
{
    if (type == "integer"_L1 || type == "year"_L1)
        return Constants::typeInteger;
    return type == "number"_L1 ? Constants::typeReal : Constants::typeString;
}

QString text(const QJsonValue &value)
{
    return value.isDouble() ? FieldText::number(value.toDouble()) : value.toVariant().toString();
}

/// A code stands alone or as "value" beside its "label".
QString codeOf(const QJsonValue &entry)
{
    return text(entry.isObject() ? entry[u"value"_s] : entry);
}

/// Which values stand for missing ones.
struct MissingValues {
    QString codes;
    QList<QJsonValue> labelled; ///< These are categories as well.

    explicit MissingValues(const QJsonArray &entries)
    {
        CodeList list;
        for (const auto &entry : entries) {
            list.append(codeOf(entry));
            if (!entry[u"label"_s].toString().isEmpty())
                labelled.append(entry);
        }
        codes = list.text();
    }
};

/// Reads one file with its schemas; the first thing that is wrong ends it.
class Reader
{
    Q_DECLARE_TR_FUNCTIONS(TableSchema)

public:
    explicit Reader(QString path) : m_path(std::move(path)) { }

    SourceFields read()
    {
        const QJsonObject root = load(m_path);
        if (root.contains("resources"_L1))
            readPackage(root);
        else if (m_result.ok())
            readSchema(root, QFileInfo(m_path).completeBaseName(), tr("schema"));
        if (!m_result.ok())
            m_result.items->reset(nullptr);
        return std::move(m_result);
    }

private:
    void fail(const QString &place, const QString &problem)
    {
        if (m_result.ok())
            m_result.errors.append({m_path, place, problem});
    }

    QJsonObject load(const QString &path)
    {
        const QString place = path == m_path ? QString() : QFileInfo(path).fileName();
        QString problem;
        const QByteArray bytes = InputFile::read(path, &problem);
        if (!problem.isEmpty()) {
            fail(place, problem);
            return {};
        }
        QJsonParseError error{};
        const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
        if (document.isNull()) {
            const QString position = TextPosition::of(bytes, error).toString();
            fail(place.isEmpty() ? position : place + u", "_s + position,
                 tr("This is no valid JSON: %1.").arg(error.errorString()));
        } else if (!document.isObject()) {
            fail(place, tr("The file holds no JSON object."));
        }
        return document.object();
    }

    void readPackage(const QJsonObject &package)
    {
        const QJsonValue resources = package[u"resources"_s];
        if (!resources.isArray() || resources.toArray().isEmpty())
            return fail(u"resources"_s, tr("A data package must list its resources."));
        int number = 0;
        const QJsonArray list = resources.toArray();
        for (const auto &resource : list) {
            ++number;
            const QString name = resource[u"name"_s].toString();
            const QString place =
                name.isEmpty() ? tr("resource %1").arg(number) : tr("resource %1").arg(name);
            if (!resource.isObject() || name.isEmpty())
                return fail(place, tr("A resource must be an object with a name."));
            const QJsonValue schema = resource[u"schema"_s];
            if (schema.isUndefined())
                m_result.notes.append({m_path, place, tr("The resource has no schema and is left out.")});
            else
                readSchema(schema.isString() ? loadSchema(schema.toString(), place) : schema, name, place);
        }
    }

    /// A schema may stand in a file of its own, but only beside the package or below it.
    QJsonObject loadSchema(const QString &path, const QString &place)
    {
        const QString clean = QDir::cleanPath(path);
        if (QDir::isAbsolutePath(clean) || clean == ".."_L1 || clean.startsWith("../"_L1)
            || clean.contains("://"_L1) || path.contains("://"_L1)) {
            fail(place, tr("The schema \"%1\" does not lie beside the package.").arg(path));
            return {};
        }
        return load(QFileInfo(m_path).path() + u'/' + clean);
    }

    void readSchema(const QJsonValue &schema, const QString &record, const QString &place)
    {
        if (!m_result.ok())
            return;
        const QJsonValue fields = schema[u"fields"_s];
        if (!fields.isArray())
            return fail(place, tr("A table schema must list its fields."));
        const MissingValues missing(schema[u"missingValues"_s].toArray());
        int position = 0;
        const QJsonArray list = fields.toArray();
        for (const auto &field : list) {
            const QString name = field[u"name"_s].toString();
            if (name.isEmpty())
                return fail(tr("%1, field %2").arg(place, QString::number(position + 1)),
                            tr("A field must have a name."));
            readField(field, missing, record, ++position, tr("%1, field %2").arg(place, name));
        }
    }

    void readField(const QJsonValue &json, const MissingValues &missingInSchema, const QString &record,
                   int position, const QString &place)
    {
        auto field = std::make_unique<TDcSourceField>();
        field->setDataProviderType(u"TABLESCHEMA"_s);
        field->setFieldType(typeWord(json[u"type"_s].toString()));
        field->name = json[u"name"_s].toString();
        const QString title = json[u"title"_s].toString();
        field->label = title.isEmpty() ? json[u"description"_s].toString() : title;
        field->record = record;
        field->relativePosition = position;
        const QJsonValue constraints = json[u"constraints"_s];
        field->rangeMin = text(constraints[u"minimum"_s]);
        field->rangeMax = text(constraints[u"maximum"_s]);
        field->size = constraints[u"maxLength"_s].toInt();

        const auto addCategory = [&](const QJsonValue &entry) {
            if (!FieldText::appendCategory(field->categories, codeOf(entry), entry[u"label"_s].toString()))
                m_result.notes.append({m_path, place,
                                       tr("The code \"%1\" is empty or holds blanks and is left out of the "
                                          "categories.")
                                           .arg(codeOf(entry))});
        };
        const QJsonArray categories = json[u"categories"_s].toArray();
        std::for_each(categories.begin(), categories.end(), addCategory);
        // What the field says itself stands instead of what the schema says for all.
        const QJsonValue ownMissing = json[u"missingValues"_s];
        const MissingValues missing =
            ownMissing.isArray() ? MissingValues(ownMissing.toArray()) : missingInSchema;
        field->missing = missing.codes;
        std::for_each(missing.labelled.begin(), missing.labelled.end(), addCategory);
        m_result.items->append(std::move(field));
    }

    QString m_path;
    SourceFields m_result;
};
} // namespace

SourceFields TableSchema::read(const QString &path, const SourceOptions &options)
{
    Q_UNUSED(options) // There are no data here, and the encoding is fixed.
    return Reader(path).read();
}
