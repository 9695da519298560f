#include "cli/DocumentReader.h"

#include "business/ProcessDictionaryBusiness.h"
#include "cli/Failure.h"
#include "cli/Input.h"
#include "cli/Progress.h"
#include "documents/DictionaryFile.h"
#include "documents/DocumentKind.h"
#include "model/TDcEntity.h"

#include <QJsonArray>
#include <QJsonDocument>

using namespace Qt::Literals::StringLiterals;
using Cli::DictionaryDocument;
using Cli::Failure;

namespace
{
/// What is read has no file to go back to: it may have come through a pipe.
bool load(DictionaryFile &file, const QByteArray &text)
{
    return file.restore({.content = text, .path = {}, .digest = {}, .losses = {}});
}

/// The dictionary document that \a text is; without what of it is not kept.
DictionaryDocument documentOf(const QString &name, const QByteArray &text)
{
    const QJsonValue content = Cli::valueOf(DocumentFile::parsed(text));
    const QJsonObject object = content.toObject();
    DictionaryDocument document{content, content.isArray() ? QString() : DocumentKind::rootKey(object), {}};
    const QJsonValue entities = document.entities();
    if (DocumentKind::isRunConfiguration(object) || !(entities.isArray() || entities.isObject())) {
        // One mistake has one wording, whoever finds it.
        DictionaryFile file;
        (void)load(file, text);
        throw Failure(name + u": "_s + file.errorText());
    }
    return document;
}
} // namespace

namespace Cli
{
QJsonValue valueOf(const QJsonDocument &document)
{
    return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
}

QJsonObject framed(const QJsonValue &content)
{
    if (content.isArray())
        return {{"root"_L1, content}};
    const QJsonObject object = content.toObject();
    return DocumentKind::isEntity(object) ? QJsonObject{{"root"_L1, QJsonArray{object}}} : object;
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
    // Framed: an entity in a list keeps its weight variable, one on its own does not.
    const std::unique_ptr<QList<TDcEntity *>> read(
        ProcessDictionaryBusiness().recorrerNodosJsonYCargaEstructuraEntidades(
            framed(document.content).toVariantMap(), 0));
    if (!read)
        throw Failure(u"the entities cannot be read"_s);
    return {read->cbegin(), read->cend()};
}

QJsonValue writeEntities(const Entities &entities, const DictionaryDocument &original)
{
    QJsonArray written;
    for (const auto &entity : entities) {
        QJsonObject object;
        ProcessDictionaryBusiness().getStructuraTreeRootToJson(entity.get(), &object);
        written.append(object);
    }
    // Always a list: an entity on its own would lose its weight variable when it is read the next time.
    if (!original.rootKey.isEmpty())
        return QJsonObject{{original.rootKey, written}};
    return original.content.isArray() ? QJsonValue(written) : written.first();
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
    const QJsonArray roots = documentOf(name, text).entities().toArray();
    for (const auto &root : roots) {
        const QJsonObject alone{{"root"_L1, QJsonArray{root}}};
        if (!load(file, QJsonDocument(alone).toJson(QJsonDocument::Compact)))
            throw Failure(name + u": "_s + file.errorText());
        entities.push_back(file.takeRoot());
    }
    return entities;
}
} // namespace Cli
