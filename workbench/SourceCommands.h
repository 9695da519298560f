#pragma once

#include "workbench/Workspace.h"

#include <QObject>

class SourcesPanel;
class SourceTab;

/// Opens data files, CSV files and lookups for the sources panel.
class SourceCommands : public QObject
{
    Q_OBJECT

public:
    SourceCommands(const Workspace &workspace, SourcesPanel *panel, QObject *parent = nullptr);

    // Each reads \a path and shows what it holds, or what is wrong with it. False when that failed or the
    // person cancelled it.
    bool openDataset(const QString &path);
    bool openCsv(const QString &path);
    bool openLookups(const QString &path);

private:
    /// Asks for a file that ends in one of \a suffixes and hands it to \a open.
    void choose(const QString &title, const QStringList &suffixes,
                bool (SourceCommands::*open)(const QString &));
    /// Has \a reader read the file and the panel \a show it in \a tab.
    template <typename Reader, typename Show>
    bool read(const QString &path, Reader reader, Show show, SourceTab *tab);

    Workspace m_workspace;
    SourcesPanel *m_panel; // Not owned.
};
