#include "workbench/FileCommands.h"

#include "common/Constants.h"
#include "workbench/Actions.h"
#include "workbench/FileDialogs.h"
#include "workbench/journal/JournalFolder.h"
#include "workbench/panels/Widgets.h"
#include "workbench/PlainMessage.h"
#include "workbench/Progress.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>

using namespace Qt::Literals::StringLiterals;

FileCommands::FileCommands(const Workspace &workspace, QObject *parent)
    : QObject(parent), m_workspace(workspace), m_claim(JournalFolder::path())
{
    const Actions &actions = *workspace.actions;
    connect(actions[ActionId::FileNew], &QAction::triggered, this, &FileCommands::create);
    connect(actions[ActionId::FileOpen], &QAction::triggered, this, &FileCommands::chooseAndOpen);
    connect(actions[ActionId::FileSave], &QAction::triggered, this, &FileCommands::save);
    connect(actions[ActionId::FileSaveAs], &QAction::triggered, this, &FileCommands::saveAs);
    connect(actions[ActionId::FileRevert], &QAction::triggered, this, &FileCommands::revert);
    connect(workspace.document, &Document::modifiedChanged, this, &FileCommands::updateActions);
    connect(workspace.document, &Document::pathChanged, this, &FileCommands::updateActions);
    connect(workspace.document, &Document::pathChanged, this, &FileCommands::followPath);
    connect(&m_recent, &RecentFiles::chosen, this, &FileCommands::open);
    workspace.document->setWait(
        [window = workspace.window](const QString &text, bool mayCancel, const std::function<void()> &work) {
            using enum Progress::Cancel;
            return Progress::run(text, window, mayCancel ? Possible : Impossible, work);
        });
    addRecentMenu();
    updateActions();
}

void FileCommands::addRecentMenu()
{
    QMenu *menu = m_workspace.actions->menu(MenuId::File);
    if (menu)
        menu->insertMenu((*m_workspace.actions)[ActionId::FileSave], m_recent.createMenu(menu));
}

void FileCommands::updateActions()
{
    const Document &document = *m_workspace.document;
    (*m_workspace.actions)[ActionId::FileRevert]->setEnabled(document.isModified()
                                                             && !document.path().isEmpty());
}

bool FileCommands::isDictionary(const QString &path)
{
    return path.endsWith(Constants::dictionaryExtension, Qt::CaseInsensitive);
}

bool FileCommands::mayClose()
{
    Widgets::finishEditing(m_workspace.window);
    if (!m_workspace.document->isModified())
        return true;
    PlainMessage box(QMessageBox::Warning, tr("Unsaved changes"),
                     tr("Save the changes to “%1”?").arg(m_workspace.document->title()),
                     tr("Otherwise they are lost."),
                     QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, m_workspace.window);
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
    case QMessageBox::Save:
        return save();
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}

void FileCommands::create()
{
    if (mayClose())
        m_workspace.document->clear();
}

void FileCommands::chooseAndOpen()
{
    const QString path =
        QFileDialog::getOpenFileName(m_workspace.window, tr("Open Dictionary"), FileDialogs::lastFolder(),
                                     Constants::dictionaryFilter + tr("All files (*)"));
    if (!path.isEmpty())
        Q_EMIT chosen(path);
}

FileCommands::Opening FileCommands::tryOpen(const QString &path)
{
    if (!mayClose())
        return Opening::Cancelled;
    const auto access = chooseAccess(path);
    if (!access)
        return Opening::Cancelled;
    if (!m_workspace.document->open(path, *access)) {
        if (m_workspace.document->errorText().isEmpty()) // The person knows.
            return Opening::Cancelled;
        RecentFiles::remove(QFileInfo(path).absoluteFilePath());
        FileDialogs::showCannotOpen(m_workspace.window, path, m_workspace.document->errorText());
        return Opening::Failed;
    }
    RecentFiles::add(path);
    FileDialogs::rememberFolder(path);
    return Opening::Done;
}

bool FileCommands::save()
{
    Widgets::finishEditing(m_workspace.window);
    const Document &document = *m_workspace.document;
    // Always at hand, for what is still being typed shows only now whether there is anything to write.
    if (!document.isModified() && QFileInfo::exists(document.path()))
        return true;
    return document.path().isEmpty() || document.isReadOnly() ? saveAs() : saveTo(document.path());
}

bool FileCommands::saveAs()
{
    Widgets::finishEditing(m_workspace.window);
    const QString path = m_workspace.document->path();
    const QString proposal = path.isEmpty()
        ? QDir(FileDialogs::lastFolder()).filePath(tr("dictionary") + Constants::dictionaryExtension)
        : path;
    QFileDialog dialog(m_workspace.window, tr("Save Dictionary As"), {},
                       Constants::dictionaryFilter + tr("All files (*)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(Constants::dictionaryExtension.mid(1));
    dialog.selectFile(proposal);
    return dialog.exec() == QDialog::Accepted && saveTo(dialog.selectedFiles().constFirst());
}

bool FileCommands::saveTo(const QString &path)
{
    Document &document = *m_workspace.document;
    if (!document.isAt(path) && !mayOverwrite(path))
        return false;
    const auto attempt = [&](DocumentFile::SaveOptions options) {
        return document.save(path, options) ? std::nullopt : std::optional(FileDialogs::problemOf(document));
    };
    if (!FileDialogs::save(m_workspace.window, document.title(), attempt))
        return false;
    RecentFiles::add(path);
    FileDialogs::rememberFolder(path);
    return true;
}

void FileCommands::revert()
{
    PlainMessage box(QMessageBox::Warning, tr("Revert"),
                     tr("Go back to “%1” as it was saved?").arg(m_workspace.document->title()),
                     tr("All changes since then are lost, and so is what can be undone."),
                     QMessageBox::Cancel, m_workspace.window);
    const QString path = m_workspace.document->path();
    if (box.isConfirmed(tr("Revert")) && !m_workspace.document->open(path, m_workspace.document->access())
        && !m_workspace.document->errorText().isEmpty())
        FileDialogs::showCannotOpen(m_workspace.window, path, m_workspace.document->errorText());
}

void FileCommands::followPath()
{
    const Document &document = *m_workspace.document;
    m_claim.claim(document.access() == Document::Access::ReadOnly ? QString() : document.path());
}

std::optional<Document::Access> FileCommands::chooseAccess(const QString &path)
{
    using enum Document::Access;
    if (!m_claim.isOpenElsewhere(path))
        return ReadWrite;
    PlainMessage box(QMessageBox::Warning, tr("Open"),
                     tr("“%1” is open in another window.").arg(QFileInfo(path).fileName()),
                     tr("Changes that are made in both windows have to be brought together by hand. "
                        "Open it here to read it only?"),
                     QMessageBox::Cancel, m_workspace.window);
    QPushButton *readOnly = box.addButton(tr("Open Read-Only"), QMessageBox::AcceptRole);
    const QAbstractButton *anyway = box.addButton(tr("Open Anyway"), QMessageBox::DestructiveRole);
    box.setDefaultButton(readOnly);
    box.exec();
    if (box.clickedButton() == readOnly)
        return ReadOnly;
    return box.clickedButton() == anyway ? std::optional(ReadWrite) : std::nullopt;
}

bool FileCommands::mayOverwrite(const QString &path)
{
    if (!m_claim.isOpenElsewhere(path))
        return true;
    return PlainMessage(QMessageBox::Warning, tr("Save"),
                        tr("“%1” is open in another window.").arg(QFileInfo(path).fileName()),
                        tr("Overwrite it nevertheless?"), QMessageBox::Cancel, m_workspace.window)
        .isConfirmed(tr("Overwrite"));
}
