#include "workbench/RecoveryCommands.h"

#include "workbench/Actions.h"
#include "workbench/dialogs/RecoveryDialog.h"
#include "workbench/FileCommands.h"
#include "workbench/journal/Journal.h"
#include "workbench/journal/Recovery.h"
#include "workbench/PlainMessage.h"

#include <QAction>
#include <QMenu>

RecoveryCommands::RecoveryCommands(const Workspace &workspace, FileCommands *files, Journal *journal,
                                   QObject *parent)
    : QObject(parent), m_workspace(workspace), m_files(files), m_journal(journal)
{
    connect((*workspace.actions)[ActionId::FileRecover], &QAction::triggered, this, &RecoveryCommands::offer);
    // Other instances come and go; what they leave is looked for when it may be seen.
    if (QMenu *menu = workspace.actions->menu(MenuId::File))
        connect(menu, &QMenu::aboutToShow, this, &RecoveryCommands::updateActions);
}

void RecoveryCommands::updateActions()
{
    (*m_workspace.actions)[ActionId::FileRecover]->setEnabled(Recovery::any(m_journal->folder()));
}

void RecoveryCommands::offer()
{
    const QList<LeftChanges> changes = Recovery::find(m_journal->folder());
    if (changes.isEmpty())
        return;
    auto *dialog = new RecoveryDialog(changes, m_workspace.window);
    connect(dialog, &RecoveryDialog::recover, this, &RecoveryCommands::recover);
    connect(dialog, &RecoveryDialog::remove, this, &Recovery::remove);
    dialog->open();
}

void RecoveryCommands::recover(const QString &journalPath, const QString &path)
{
    if (!m_files->mayClose())
        return;
    const auto access = m_files->chooseAccess(path);
    if (!access)
        return;
    const QString problem = Recovery::recover(journalPath, m_workspace.document, m_journal, *access);
    if (problem.isEmpty())
        return;
    PlainMessage(QMessageBox::Critical, tr("Quillon Workbench"), tr("The changes cannot be recovered."),
                 problem, QMessageBox::Ok, m_workspace.window)
        .exec();
}
