#include "workbench/run/RunCommands.h"

#include "common/Constants.h"
#include "model/ConfigDb.h"
#include "workbench/Actions.h"
#include "workbench/Document.h"
#include "workbench/FileCommands.h"
#include "workbench/FileDialogs.h"
#include "workbench/panels/Widgets.h"
#include "workbench/run/RunDictionary.h"
#include "workbench/run/RunDraft.h"
#include "workbench/run/RunWizard.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QStatusBar>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr auto authorKey = "runAuthor"_L1;
}

RunCommands::RunCommands(const Workspace &workspace, FileCommands *files, QObject *parent)
    : QObject(parent), m_workspace(workspace), m_files(files)
{
    const Actions &actions = *workspace.actions;
    connect(actions[ActionId::ToolsNewRun], &QAction::triggered, this, &RunCommands::create);
    connect(actions[ActionId::ToolsOpenRun], &QAction::triggered, this, &RunCommands::chooseAndOpen);
}

bool RunCommands::isRunConfiguration(const QString &path)
{
    return path.endsWith(Constants::configExtension, Qt::CaseInsensitive);
}

void RunCommands::create()
{
    const Document &document = *m_workspace.document;
    auto draft = std::make_unique<RunDraft>(*document.root(), document.path());
    // Mostly the same person makes the next one.
    draft->proposeAuthor(QSettings().value(authorKey).toString());
    show(std::move(draft));
}

void RunCommands::chooseAndOpen()
{
    const QString path = QFileDialog::getOpenFileName(m_workspace.window, tr("Open Run Configuration"),
                                                      FileDialogs::lastFolder(),
                                                      Constants::configFilter + tr("All files (*)"));
    if (!path.isEmpty())
        open(path);
}

bool RunCommands::open(const QString &path)
{
    auto file = std::make_unique<RunConfigurationFile>();
    if (!file->open(QFileInfo(path).absoluteFilePath())) {
        FileDialogs::showCannotOpen(m_workspace.window, path, file->errorText());
        return false;
    }
    FileDialogs::rememberFolder(path);
    if (!mayShow(*file))
        return false;
    show(std::move(file));
    return true;
}

QString RunCommands::openUnasked(const QString &path)
{
    auto file = std::make_unique<RunConfigurationFile>();
    if (!file->open(QFileInfo(path).absoluteFilePath()))
        return file->errorText();
    const QString dictionary = RunDictionary::pathOf(*file);
    if (QFileInfo::exists(dictionary) && !m_workspace.document->open(dictionary))
        return m_workspace.document->errorText();
    show(std::move(file));
    return {};
}

/// Opens the dictionary of \a run where that is wanted. False when the person wants nothing at all; else the
/// run is shown with the dictionary that is open then.
bool RunCommands::mayShow(const RunConfigurationFile &run)
{
    Widgets::finishEditing(m_workspace.window);
    const QString dictionary = RunDictionary::pathOf(run);
    const Document &document = *m_workspace.document;
    if (dictionary.isEmpty() || document.isAt(dictionary))
        return true;
    if (!QFileInfo::exists(dictionary)) {
        FileDialogs::showCannotOpen(m_workspace.window, dictionary,
                                    tr("The run configuration was made for this dictionary, which is not "
                                       "there. It is shown with the dictionary that is open."));
        return true;
    }
    const bool untouched = document.path().isEmpty() && !document.isModified();
    return untouched ? m_files->tryOpen(dictionary) != FileCommands::Opening::Cancelled
                     : mayOpenInstead(run, dictionary);
}

bool RunCommands::mayOpenInstead(const RunConfigurationFile &run, const QString &dictionary)
{
    QMessageBox box(QMessageBox::Question, tr("Open Run Configuration"),
                    tr("“%1” was made for another dictionary than the one that is open.")
                        .arg(QFileInfo(run.path()).fileName()),
                    QMessageBox::Cancel, m_workspace.window);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(tr("It was made for “%1”. Open that dictionary instead of “%2”?")
                               .arg(QDir::toNativeSeparators(dictionary), m_workspace.document->title()));
    const QAbstractButton *open = box.addButton(tr("&Open It"), QMessageBox::AcceptRole);
    QPushButton *keep = box.addButton(tr("&Keep the Open One"), QMessageBox::RejectRole);
    box.setDefaultButton(keep);
    box.setEscapeButton(QMessageBox::Cancel);
    box.exec();
    if (box.clickedButton() == open)
        return m_files->tryOpen(dictionary) != FileCommands::Opening::Cancelled;
    return box.clickedButton() == keep;
}

void RunCommands::show(std::unique_ptr<RunConfigurationFile> run)
{
    show(std::make_unique<RunDraft>(*m_workspace.document->root(), std::move(run)));
}

void RunCommands::show(std::unique_ptr<RunDraft> draft)
{
    auto *wizard = new RunWizard(std::move(draft), m_workspace.window);
    wizard->setAttribute(Qt::WA_DeleteOnClose);
    connect(wizard, &QDialog::accepted, this, [this, wizard] {
        QSettings().setValue(authorKey, wizard->draft().dataBase().getAuthor());
        if (const auto *window = qobject_cast<QMainWindow *>(m_workspace.window))
            window->statusBar()->showMessage(
                tr("Saved %1").arg(QDir::toNativeSeparators(wizard->draft().file().path())), 10000);
    });
    wizard->open();
}
