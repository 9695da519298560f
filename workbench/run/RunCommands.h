#pragma once

#include "workbench/Workspace.h"

#include <QObject>

#include <memory>

class RunDraft;

/// Opens the run wizard, on a new run configuration or on one in a file.
class RunCommands : public QObject
{
    Q_OBJECT

public:
    explicit RunCommands(const Workspace &workspace, QObject *parent = nullptr);

    /// Shows the run configuration at \a path in the wizard, or what is wrong with it.
    bool open(const QString &path);

    /// Whether \a path is called as run configurations are.
    [[nodiscard]] static bool isRunConfiguration(const QString &path);

private:
    void create();
    void chooseAndOpen();
    void show(std::unique_ptr<RunDraft> draft);

    Workspace m_workspace;
};
