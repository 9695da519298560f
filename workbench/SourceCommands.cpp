#include "workbench/SourceCommands.h"

#include "documents/sources/LookupFile.h"
#include "documents/sources/SourceReader.h"
#include "workbench/Actions.h"
#include "workbench/panels/SourcesPanel.h"
#include "workbench/panels/SourceTab.h"
#include "workbench/Progress.h"
#include "workbench/SourceFiles.h"

#include <QAction>

#include <utility>

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
    return read(path, SourceReader::read, &SourcesPanel::setDatasetFields, m_panel->dataset());
}

bool SourceCommands::openCsv(const QString &path)
{
    return read(path, SourceReader::read, &SourcesPanel::setCsvFields, m_panel->csv());
}

bool SourceCommands::openLookups(const QString &path)
{
    return read(path, LookupFile::read, &SourcesPanel::setLookups, m_panel->lookups());
}

template <typename Reader, typename Show>
bool SourceCommands::read(const QString &path, Reader reader, Show show, SourceTab *tab)
{
    auto result = SourceFiles::read(path, reader, m_workspace.window);
    if (!result.ok()) {
        SourceFiles::report(m_workspace.window, result.errors);
        return false;
    }
    (m_panel->*show)(std::move(result.items));
    tab->setNotes(result.notes);
    return true;
}
