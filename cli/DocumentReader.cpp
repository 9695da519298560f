#include "cli/DocumentReader.h"

#include "business/ProcessDictionaryBusiness.h"
#include "cli/Failure.h"
#include "cli/Input.h"
#include "cli/Progress.h"
#include "documents/DictionaryFile.h"
#include "model/TDcEntity.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;
using Cli::Failure;

namespace
{
constexpr auto entitiesKey = "entities"_L1;
constexpr auto rootKey = "root"_L1;
constexpr QByteArrayView byteOrderMark("\xEF\xBB\xBF");

/// Where the text that \a error complains about begins. Qt tells where its parser stood: for some errors at
/// that place, for the others behind it, unless the text just ended there.
qsizetype errorOffset(const QByteArray &text, const QJsonParseError &error)
{
    switch (error.error) {
    case QJsonParseError::IllegalNumber:
    case QJsonParseError::IllegalEscapeSequence:
    case QJsonParseError::IllegalUTF8String:
    case QJsonParseError::GarbageAtEnd:
        return error.offset;
    default:
        break;
    }
    // The parser passes over one more blank only when it has used up all that stands before it.
    QJsonParseError withBlank;
    (void)QJsonDocument::fromJson(text + ' ', &withBlank);
    const bool atEnd = withBlank.offset > text.size();
    return atEnd ? text.size() : std::max(0, error.offset - 1);
}

QJsonDocument parse(const QString &name, const QByteArray &text)
{
    if (text.trimmed().isEmpty())
        throw Failure(u"%1: is empty"_s.arg(name));
    QJsonParseError error;
    QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError) {
        const auto [line, column] = Cli::textPosition(text, errorOffset(text, error));
        throw Failure(u"%1:%2:%3: is not JSON: %4"_s.arg(name, QString::number(line), QString::number(column),
                                                         error.errorString()));
    }
    return document;
}

bool holdsObjects(const QJsonValue &value)
{
    return value.isArray() || value.isObject();
}

/// The dictionary document that \a text is; without what of it is not kept.
Cli::DictionaryDocument documentOf(const QString &name, const QByteArray &text)
{
    const QJsonObject content = parse(name, text).object();
    if (content.contains("database"_L1) && content.value("type"_L1) == "config"_L1)
        throw Failure(u"%1: is a run configuration, not a dictionary document"_s.arg(name));
    if (Cli::isEntity(content))
        return {content, {}, {}};
    // The layer looks at "entities" first and at "root" only without it.
    const QString key = content.contains(entitiesKey) ? entitiesKey : rootKey;
    if (!holdsObjects(content.value(key)))
        throw Failure(
            u"%1: is not a dictionary document: neither \"entities\" nor \"root\" nor an entity was found"_s
                .arg(name));
    return {content, key, {}};
}

/// What is read has no file to go back to: it may have come through a pipe.
bool load(DictionaryFile &file, const QByteArray &text)
{
    return file.restore({.content = text, .path = {}, .digest = {}, .losses = {}});
}
} // namespace

namespace Cli
{
bool isEntity(const QJsonObject &object)
{
    constexpr QLatin1StringView marks[] = {"selectable"_L1, "variables"_L1, "virtual"_L1};
    return std::any_of(std::begin(marks), std::end(marks),
                       [&object](auto key) { return object.contains(key); })
        || (object.contains("name"_L1) && (object.contains(entitiesKey) || object.contains(rootKey)));
}

DictionaryDocument readDocument(const QString &path)
{
    const QByteArray text = Input::readAll(path);
    DictionaryDocument document = documentOf(Input::nameOf(path), text);
    document.unkept = DocumentFile::lossesOf(text);
    return document;
}

Entities readEntities(const DictionaryDocument &document)
{
    // An entity in a list keeps its weight variable, one on its own does not.
    const QJsonObject node = document.rootKey.isEmpty()
        ? QJsonObject{{entitiesKey, QJsonArray{document.content}}}
        : document.content;
    const std::unique_ptr<QList<TDcEntity *>> read(
        ProcessDictionaryBusiness().recorrerNodosJsonYCargaEstructuraEntidades(node.toVariantMap(), 0));
    if (!read)
        throw Failure(u"the entities cannot be read"_s);
    return {read->cbegin(), read->cend()};
}

QJsonObject writeEntities(const Entities &entities, const DictionaryDocument &original)
{
    QJsonArray written;
    for (const auto &entity : entities) {
        QJsonObject object;
        ProcessDictionaryBusiness().getStructuraTreeRootToJson(entity.get(), &object);
        written.append(object);
    }
    // Always a list: an entity on its own would lose its weight variable when it is read the next time.
    return original.rootKey.isEmpty() ? written.first().toObject() : QJsonObject{{original.rootKey, written}};
}

std::unique_ptr<DictionaryFile> openDictionary(const QString &path)
{
    const QString name = Input::nameOf(path);
    const Progress progress(u"Opening "_s + name);
    auto file = std::make_unique<DictionaryFile>();
    if (!load(*file, Input::readAll(path)))
        throw Failure(name + u": "_s + file->errorText());
    return file;
}

Entities openEntities(const QString &path)
{
    const QString name = Input::nameOf(path);
    const Progress progress(u"Opening "_s + name);
    const QByteArray text = Input::readAll(path);
    Entities entities;
    DictionaryFile file;
    if (load(file, text)) {
        entities.push_back(file.takeRoot());
        return entities;
    }
    // None, or several: then each is opened as if it stood alone in its list.
    const DictionaryDocument document = documentOf(name, text);
    const QJsonArray roots = document.content.value(document.rootKey).toArray();
    for (const QJsonValue &root : roots) {
        const QJsonObject alone{{document.rootKey, QJsonArray{root}}};
        if (!load(file, QJsonDocument(alone).toJson(QJsonDocument::Compact)))
            throw Failure(name + u": "_s + file.errorText());
        entities.push_back(file.takeRoot());
    }
    return entities;
}

TextPosition textPosition(const QByteArray &text, qsizetype offset)
{
    QByteArrayView before = QByteArrayView(text).first(std::clamp<qsizetype>(offset, 0, text.size()));
    if (before.startsWith(byteOrderMark))
        before = before.sliced(byteOrderMark.size());
    TextPosition position{1, 1};
    char previous = 0;
    for (const char byte : before) {
        const bool continues = (uchar(byte) & 0xC0) == 0x80;
        if (byte == '\r' || (byte == '\n' && previous != '\r'))
            position = {position.line + 1, 1};
        else if (byte != '\n' && !continues)
            ++position.column;
        previous = byte;
    }
    return position;
}
} // namespace Cli
