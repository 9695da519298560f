#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class DictionaryFile;
class TDcEntity;

namespace Cli
{
using Entities = std::vector<std::unique_ptr<TDcEntity>>;

/// A dictionary document as it stands in a file.
struct DictionaryDocument {
    QJsonObject content;
    /// The key that holds the entities, "entities" or "root"; empty when the document is an entity itself.
    QString rootKey;
    /// What of the text no program keeps that parses it: keys that are there twice, digits beyond a number's.
    QStringList unkept;
};

/// Whether \a object is an entity, not one that holds entities: it has keys that nothing but an entity has,
/// or a name above further entities.
[[nodiscard]] bool isEntity(const QJsonObject &object);

/// Reads the dictionary document at \a path, see Input::readAll(). Throws Failure when it cannot be read, is
/// not JSON (the message tells line and column) or is no dictionary.
[[nodiscard]] DictionaryDocument readDocument(const QString &path);

/// The document's entities, read through the layer, which drops some of what the document says.
[[nodiscard]] Entities readEntities(const DictionaryDocument &document);

/// The document that holds \a entities where \a original holds its own, written through the layer.
[[nodiscard]] QJsonObject writeEntities(const Entities &entities, const DictionaryDocument &original);

/// Opens the dictionary document at \a path so that nothing in it gets lost, and reads the whole tree. Throws
/// Failure, also when the document has more than one root.
[[nodiscard]] std::unique_ptr<DictionaryFile> openDictionary(const QString &path);

/// The same for a document with any number of roots.
[[nodiscard]] Entities openEntities(const QString &path);

/// A place in a text file; both count from 1. A column is a character, however many bytes it takes.
struct TextPosition {
    int line;
    int column;
};

/// Where the byte at \a offset stands in \a text, which is UTF-8 with or without a byte order mark.
[[nodiscard]] TextPosition textPosition(const QByteArray &text, qsizetype offset);
} // namespace Cli
