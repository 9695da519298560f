#pragma once

#include <QString>

#include <memory>

class TDcEntity;

/// Reads and writes dictionary files.
namespace DictionaryStorage
{
/// The dictionary in the file at \a path; null, and \a error says why, if there is none.
[[nodiscard]] std::unique_ptr<TDcEntity> read(const QString &path, QString *error);
/// Writes wholly or not at all. False, and \a error says why, if it fails.
[[nodiscard]] bool write(TDcEntity &root, const QString &path, QString *error);
} // namespace DictionaryStorage
