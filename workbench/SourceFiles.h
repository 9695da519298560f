#pragma once

#include "documents/sources/SourceOptions.h"
#include "documents/sources/SourceResult.h"

#include "workbench/Progress.h"

#include <QStringList>

class QWidget;

/// What a person is asked and told when a source is opened. \a window is the parent of the dialogs.
namespace SourceFiles
{
/// The ends of the names of text files with delimiters.
[[nodiscard]] QStringList textSuffixes();
/// Asks for a file that ends in one of \a suffixes; empty when the person gives up.
[[nodiscard]] QString choose(QWidget *window, const QString &title, const QStringList &suffixes);
/// What is said while a source is read.
[[nodiscard]] QString progressText();
/// Options that show \a progress and let the person cancel it.
[[nodiscard]] SourceOptions options(Progress &progress);
/// What \a reader makes of the file at \a path. Shows progress, which is gone before anything is said of the
/// result.
template <typename Reader>
[[nodiscard]] auto read(const QString &path, Reader reader, QWidget *window)
{
    Progress progress(progressText(), window);
    return reader(path, options(progress));
}
/// Says what is wrong with a source. Without \a errors it was cancelled, which the person knows.
void report(QWidget *window, const QList<SourceProblem> &errors);
/// Says what was read, but not as the file has it, and returns at once.
void showNotes(QWidget *window, const QList<SourceProblem> &notes);
} // namespace SourceFiles
