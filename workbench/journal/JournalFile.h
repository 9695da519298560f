#pragma once

#include "documents/DocumentFile.h"

#include <QDateTime>
#include <QString>

#include <optional>

/// Unsaved changes of one dictionary, in a file that nobody but its owner may read.
struct JournalFile {
    DocumentFile::Unsaved document;
    QDateTime written; ///< When the changes were as they are here.

    /// Writes the file at \a path in one step. What went wrong, in words; empty when nothing did.
    [[nodiscard]] QString write(const QString &path) const;

    /// Without the content of the document: that may be large. Nothing for a file of another kind or a
    /// damaged one.
    [[nodiscard]] static std::optional<JournalFile> readHeader(const QString &path);
    /// The whole file.
    [[nodiscard]] static std::optional<JournalFile> read(const QString &path);
};
