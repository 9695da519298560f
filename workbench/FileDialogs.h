#pragma once

#include "documents/DocumentFile.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

class QWidget;

/// What a person is asked and told when any file of the workbench is opened or saved.
namespace FileDialogs
{
/// The folder that file dialogs start in.
[[nodiscard]] QString lastFolder();
/// Lets them start in the folder of \a path from now on.
void rememberFolder(const QString &path);

/// Why a file was not saved.
struct Problem {
    DocumentFile::Error error = DocumentFile::Error::None;
    QString text; ///< In words for the person.
    QStringList losses; ///< What saving cannot keep, one line for each place.
};

/// The problem that \a file, a Document or a DocumentFile, had last.
template <typename File>
[[nodiscard]] Problem problemOf(const File &file)
{
    return {file.error(), file.errorText(), file.losses()};
}

/// Calls \a attempt, which gives nothing when it saved, until it succeeds or the person gives up: asks
/// whether to save in spite of what hinders it, or says that it cannot be done. \a title is what the file is
/// called. True when it was saved.
bool save(QWidget *window, const QString &title,
          const std::function<std::optional<Problem>(DocumentFile::SaveOptions)> &attempt);

/// Says that the file at \a path cannot be opened, and \a why.
void showCannotOpen(QWidget *window, const QString &path, const QString &why);
} // namespace FileDialogs
