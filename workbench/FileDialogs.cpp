#include "workbench/FileDialogs.h"

#include "workbench/PlainMessage.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

using namespace Qt::Literals::StringLiterals;

namespace
{
struct Texts {
    Q_DECLARE_TR_FUNCTIONS(FileDialogs)
};

void showError(QWidget *window, const QString &text, const QString &why)
{
    PlainMessage(QMessageBox::Critical, Texts::tr("Quillon Workbench"), text, why, QMessageBox::Ok, window)
        .exec();
}

/// What the person agrees to; nothing when saving cannot or shall not go on.
DocumentFile::SaveOptions confirm(QWidget *window, const QString &title, const FileDialogs::Problem &problem)
{
    const bool losing = problem.error == DocumentFile::Error::LosesContent;
    if (!losing && problem.error != DocumentFile::Error::ChangedByOthers) {
        showError(window, Texts::tr("“%1” cannot be saved.").arg(title), problem.text);
        return {};
    }
    PlainMessage box(QMessageBox::Warning, Texts::tr("Save"), problem.text, {}, QMessageBox::Cancel, window);
    if (losing)
        box.setDetailedText(problem.losses.join(u'\n'));
    if (!box.isConfirmed(losing ? Texts::tr("Save Anyway") : Texts::tr("Overwrite"), QMessageBox::AcceptRole))
        return {};
    return losing ? DocumentFile::AcceptLosses : DocumentFile::OverwriteOthersChanges;
}
} // namespace

QString FileDialogs::lastFolder()
{
    return QSettings().value(u"lastFolder"_s, QDir::homePath()).toString();
}

void FileDialogs::rememberFolder(const QString &path)
{
    QSettings().setValue(u"lastFolder"_s, QFileInfo(path).absolutePath());
}

bool FileDialogs::save(QWidget *window, const QString &title,
                       const std::function<std::optional<Problem>(DocumentFile::SaveOptions)> &attempt)
{
    DocumentFile::SaveOptions options;
    while (const std::optional<Problem> problem = attempt(options)) {
        const DocumentFile::SaveOptions more = confirm(window, title, *problem);
        if ((options | more) == options)
            return false;
        options |= more;
    }
    return true;
}

void FileDialogs::showCannotOpen(QWidget *window, const QString &path, const QString &why)
{
    showError(window, Texts::tr("“%1” cannot be opened.").arg(QDir::toNativeSeparators(path)), why);
}
