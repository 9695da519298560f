#include "documents/sources/internal/StatisticsFile.h"

#include "documents/sources/internal/DataFile.h"
#include "documents/sources/internal/StatisticsFields.h"

#include <QFileInfo>

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace
{
bool anyEnd(DataFile & /*file*/)
{
    return true;
}

/// Newer Stata files are enclosed in tags; the value labels stand near the end.
bool hasClosingTag(DataFile &file)
{
    return file.start(11) != "<stata_dta>" || file.end(12) == "</stata_dta>";
}

/// SAS transport files are made of records of 80 bytes.
bool hasWholeRecords(DataFile &file)
{
    return file.size() % 80 == 0;
}

struct Kind {
    QLatin1StringView suffix;
    const char16_t *provider;
    Padding padding;
    StatisticsParser parser;
};

constexpr Kind kinds[] = {
    {"sav"_L1, u"SPSS", Padding::Blocks, {readstat_parse_sav, anyEnd}},
    {"zsav"_L1, u"SPSS", Padding::Blocks, {readstat_parse_sav, anyEnd}},
    {"por"_L1, u"SPSS", Padding::Blocks, {readstat_parse_por, anyEnd}},
    {"dta"_L1, u"STATA", Padding::EndMark, {readstat_parse_dta, hasClosingTag}},
    {"sas7bdat"_L1, u"SAS", Padding::None, {readstat_parse_sas7bdat, anyEnd}},
    {"xpt"_L1, u"SAS", Padding::None, {readstat_parse_xport, hasWholeRecords}},
};

constexpr int RowsPerLook = 256;

/// What the parser's calls are handed on to.
struct Session {
    DataFile &file;
    StatisticsFields &fields;
    QString message;
};

StatisticsFields &fieldsOf(void *session)
{
    return static_cast<Session *>(session)->fields;
}

int onVariable(int /*index*/, readstat_variable_t *variable, const char *labelSet, void *session)
{
    fieldsOf(session).addVariable(variable, labelSet);
    return READSTAT_HANDLER_OK;
}

int onLabel(const char *set, readstat_value_t value, const char *label, void *session)
{
    fieldsOf(session).addLabel(set, value, label);
    return READSTAT_HANDLER_OK;
}

int onValue(int row, readstat_variable_t *variable, readstat_value_t value, void *session)
{
    fieldsOf(session).addValue(row, variable, value);
    // Not every parser looks for a cancel often enough by itself.
    const bool look = row % RowsPerLook == 0 && readstat_variable_get_index(variable) == 0;
    return look && !static_cast<Session *>(session)->file.report() ? READSTAT_HANDLER_ABORT
                                                                   : READSTAT_HANDLER_OK;
}

void onError(const char *message, void *session)
{
    static_cast<Session *>(session)->message = QString::fromUtf8(message).trimmed();
}

/// Takes over what the parser says about an error.
QString errorText(readstat_error_t error, const QString &message)
{
    const QString text = QString::fromUtf8(readstat_error_message(error));
    return message.isEmpty() || message == text ? text : u"%1 (%2)"_s.arg(text, message);
}

} // namespace

bool StatisticsFile::parse(const QString &path, const SourceOptions &options, const StatisticsParser &parser,
                           StatisticsFields &fields, SourceFields &result)
{
    DataFile file(path, options);
    if (const QString why = file.open(); !why.isEmpty()) {
        result.errors.append({path, {}, why});
        return false;
    }
    if (!parser.hasEnd(file)) {
        result.errors.append({path, file.place(), tr("The file is damaged: its end is missing.")});
        return false;
    }
    Session session{file, fields, {}};
    const std::unique_ptr<readstat_parser_t, decltype(&readstat_parser_free)> engine(readstat_parser_init(),
                                                                                     readstat_parser_free);
    file.attach(engine.get());
    readstat_set_variable_handler(engine.get(), onVariable);
    readstat_set_value_label_handler(engine.get(), onLabel);
    readstat_set_error_handler(engine.get(), onError);
    if (options.readData)
        readstat_set_value_handler(engine.get(), onValue);
    const QByteArray encoding = options.encoding.toLatin1();
    if (!encoding.isEmpty())
        readstat_set_file_character_encoding(engine.get(), encoding.constData());

    const readstat_error_t error =
        file.report() ? parser.parse(engine.get(), "", &session) : READSTAT_ERROR_USER_ABORT;
    result.cancelled = file.cancelled();
    if (error == READSTAT_OK || result.cancelled)
        return !result.cancelled;
    const QString place =
        fields.row() > 0 ? tr("row %1, %2").arg(fields.row()).arg(file.place()) : file.place();
    result.errors.append(
        {path, place,
         tr("The file is damaged or of another kind: %1").arg(errorText(error, session.message))});
    return false;
}

SourceFields StatisticsFile::read(const QString &path, const SourceOptions &options)
{
    const QFileInfo info(path);
    const auto *kind = std::find_if(
        std::begin(kinds), std::end(kinds),
        [suffix = info.suffix().toLower()](const Kind &known) { return known.suffix == suffix; });
    SourceFields result;
    StatisticsFields fields({QString::fromUtf16(kind->provider), kind->padding});

    QString catalog = options.catalog;
    if (const QString beside = info.path() + u'/' + info.completeBaseName() + u".sas7bcat"_s;
        catalog.isEmpty() && kind->parser.parse == readstat_parse_sas7bdat && QFileInfo::exists(beside))
        catalog = beside;
    if (!catalog.isEmpty() && !parse(catalog, options, {readstat_parse_sas7bcat, anyEnd}, fields, result))
        return result;
    if (parse(path, options, kind->parser, fields, result))
        fields.finish(result, path, info.completeBaseName());
    return result;
}
