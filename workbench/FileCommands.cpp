#include "workbench/FileCommands.h"

#include "common/Constants.h"
#include "workbench/Actions.h"
#include "workbench/Document.h"
#include "workbench/FileDialogs.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

FileCommands::FileCommands(const Workspace &workspace, QObject *parent)
    : QObject(parent), m_workspace(workspace)
{
    const Actions &actions = *workspace.actions;
    connect(actions[ActionId::FileNew], &QAction::triggered, this, &FileCommands::create);
    connect(actions[ActionId::FileOpen], &QAction::triggered, this, &FileCommands::chooseAndOpen);
    connect(actions[ActionId::FileSave], &QAction::triggered, this, &FileCommands::save);
    connect(actions[ActionId::FileSaveAs], &QAction::triggered, this, &FileCommands::saveAs);
    connect(actions[ActionId::FileRevert], &QAction::triggered, this, &FileCommands::revert);
    connect(workspace.document, &Document::modifiedChanged, this, &FileCommands::updateActions);
    connect(workspace.document, &Document::pathChanged, this, &FileCommands::updateActions);
    connect(&m_recent, &RecentFiles::chosen, this, &FileCommands::open);
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
    const Actions &actions = *m_workspace.actions;
    actions[ActionId::FileSave]->setEnabled(document.isModified() || document.path().isEmpty());
    actions[ActionId::FileRevert]->setEnabled(document.isModified() && !document.path().isEmpty());
}

bool FileCommands::isDictionary(const QString &path)
{
    return path.endsWith(Constants::dictionaryExtension, Qt::CaseInsensitive);
}

bool FileCommands::mayClose()
{
    if (!m_workspace.document->isModified())
        return true;
    QMessageBox box(QMessageBox::Warning, tr("Unsaved changes"),
                    tr("Save the changes to “%1”?").arg(m_workspace.document->title()),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, m_workspace.window);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(tr("Otherwise they are lost."));
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
        open(path);
}

bool FileCommands::open(const QString &path)
{
    if (!mayClose())
        return false;
    if (!m_workspace.document->open(path)) {
        RecentFiles::remove(QFileInfo(path).absoluteFilePath());
        FileDialogs::showCannotOpen(m_workspace.window, path, m_workspace.document->errorText());
        return false;
    }
    RecentFiles::add(path);
    FileDialogs::rememberFolder(path);
    return true;
}

bool FileCommands::save()
{
    const QString path = m_workspace.document->path();
    return path.isEmpty() ? saveAs() : saveTo(path);
}

bool FileCommands::saveAs()
{
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
    QMessageBox box(QMessageBox::Warning, tr("Revert"),
                    tr("Go back to “%1” as it was saved?").arg(m_workspace.document->title()),
                    QMessageBox::Cancel, m_workspace.window);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(tr("All changes since then are lost, and so is what can be undone."));
    const QAbstractButton *yes = box.addButton(tr("Revert"), QMessageBox::DestructiveRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    const QString path = m_workspace.document->path();
    if (box.clickedButton() == yes && !m_workspace.document->open(path))
        FileDialogs::showCannotOpen(m_workspace.window, path, m_workspace.document->errorText());
}
