#include "workbench/run/RunCommands.h"

#include "common/Constants.h"
#include "model/ConfigDb.h"
#include "workbench/Actions.h"
#include "workbench/Document.h"
#include "workbench/FileDialogs.h"
#include "workbench/run/RunDraft.h"
#include "workbench/run/RunWizard.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMainWindow>
#include <QSettings>
#include <QStatusBar>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr auto authorKey = "runAuthor"_L1;
}

RunCommands::RunCommands(const Workspace &workspace, QObject *parent)
    : QObject(parent), m_workspace(workspace)
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
    show(std::make_unique<RunDraft>(*m_workspace.document->root(), std::move(file)));
    return true;
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
