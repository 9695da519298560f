#include "workbench/SourceCommands.h"

#include "documents/sources/LookupFile.h"
#include "documents/sources/SourceReader.h"
#include "workbench/Actions.h"
#include "workbench/panels/SourcesPanel.h"
#include "workbench/Progress.h"
#include "workbench/SourceFiles.h"

#include <QAction>

SourceCommands::SourceCommands(const Workspace &workspace, SourcesPanel *panel, QObject *parent)
    : QObject(parent), m_workspace(workspace), m_panel(panel)
{
    const Actions &actions = *workspace.actions;
    connect(actions[ActionId::SourceOpenDataset], &QAction::triggered, this,
            [this] { choose(tr("Open Dataset"), SourceReader::suffixes(), &SourceCommands::openDataset); });
    connect(actions[ActionId::SourceOpenCsv], &QAction::triggered, this,
            [this] { choose(tr("Open CSV File"), SourceFiles::textSuffixes(), &SourceCommands::openCsv); });
    connect(actions[ActionId::SourceOpenLookups], &QAction::triggered, this, [this] {
        choose(tr("Open Lookups"), SourceFiles::textSuffixes(), &SourceCommands::openLookups);
    });
}

void SourceCommands::choose(const QString &title, const QStringList &suffixes,
                            bool (SourceCommands::*open)(const QString &))
{
    const QString path = SourceFiles::choose(m_workspace.window, title, suffixes);
    if (!path.isEmpty())
        (this->*open)(path);
}

bool SourceCommands::openDataset(const QString &path)
{
    Progress progress(tr("Reading the file…"), m_workspace.window);
    SourceFields result = SourceReader::read(path, SourceFiles::options(progress));
    if (!result.ok())
        return report(result.errors);
    m_panel->setDatasetFields(std::move(result.items));
    return true;
}

bool SourceCommands::openCsv(const QString &path)
{
    Progress progress(tr("Reading the file…"), m_workspace.window);
    SourceFields result = SourceReader::read(path, SourceFiles::options(progress));
    if (!result.ok())
        return report(result.errors);
    m_panel->setCsvFields(std::move(result.items));
    return true;
}

bool SourceCommands::openLookups(const QString &path)
{
    Progress progress(tr("Reading the file…"), m_workspace.window);
    SourceLookups result = LookupFile::read(path, SourceFiles::options(progress));
    if (!result.ok())
        return report(result.errors);
    m_panel->setLookups(std::move(result.items));
    return true;
}

bool SourceCommands::report(const QList<SourceProblem> &errors)
{
    SourceFiles::report(m_workspace.window, errors);
    return false;
}
