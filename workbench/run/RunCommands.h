#pragma once

#include "workbench/Workspace.h"

#include <QObject>

#include <memory>

class FileCommands;
class RunConfigurationFile;
class RunDraft;

/// Opens the run wizard, on a new run configuration or on one in a file.
class RunCommands : public QObject
{
    Q_OBJECT

public:
    /// \a files, not owned, opens the dictionaries that run configurations were made for.
    RunCommands(const Workspace &workspace, FileCommands *files, QObject *parent = nullptr);

    /// Shows the run configuration at \a path in the wizard, or what is wrong with it. Its dictionary is
    /// opened first if none is open; if another one is, the person is asked.
    bool open(const QString &path);
    /// The same without asking or telling anybody: returns why it cannot be opened, empty when it was. Its
    /// dictionary is opened if it can be.
    [[nodiscard]] QString openUnasked(const QString &path);

    /// Whether \a path is called as run configurations are.
    [[nodiscard]] static bool isRunConfiguration(const QString &path);

private:
    void create();
    void chooseAndOpen();
    [[nodiscard]] bool mayShow(const RunConfigurationFile &run);
    [[nodiscard]] bool mayOpenInstead(const RunConfigurationFile &run, const QString &dictionary);
    void show(std::unique_ptr<RunConfigurationFile> run);
    void show(std::unique_ptr<RunDraft> draft);

    Workspace m_workspace;
    FileCommands *m_files; // Not owned.
};
