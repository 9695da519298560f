#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class DictionaryFile;
class QJsonDocument;
class TDcEntity;

namespace Cli
{
using Entities = std::vector<std::unique_ptr<TDcEntity>>;

/// A dictionary document as it stands in a file.
struct DictionaryDocument {
    QJsonValue content; ///< An object or a list.
    /// The key that holds the entities; empty when the document is an entity itself or a list of them.
    QString rootKey;
    /// What of the text no program keeps that parses it: keys that are there twice, digits beyond a number's.
    QStringList unkept;

    /// The root entities: a list, or one object.
    [[nodiscard]] QJsonValue entities() const { return rootKey.isEmpty() ? content : content[rootKey]; }
};

[[nodiscard]] QJsonValue valueOf(const QJsonDocument &document);

/// \a content as an object that holds its entities, whichever way it holds them. An entity itself then stands
/// in a list.
[[nodiscard]] QJsonObject framed(const QJsonValue &content);

/// Reads the dictionary document at \a path, see Input::readAll(). Throws Failure when it cannot be read, is
/// not JSON (the message tells line and column) or is no dictionary.
[[nodiscard]] DictionaryDocument readDocument(const QString &path);

/// The document's entities, read through the layer, which drops some of what the document says.
[[nodiscard]] Entities readEntities(const DictionaryDocument &document);

/// The document that holds \a entities where \a original holds its own, written through the layer.
[[nodiscard]] QJsonValue writeEntities(const Entities &entities, const DictionaryDocument &original);

/// Opens the dictionary document at \a path so that nothing in it gets lost, and reads the whole tree. Throws
/// Failure, also when the document has more than one root.
[[nodiscard]] std::unique_ptr<DictionaryFile> openDictionary(const QString &path);

/// The same for a document with any number of roots.
[[nodiscard]] Entities openEntities(const QString &path);
} // namespace Cli
