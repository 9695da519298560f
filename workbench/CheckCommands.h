#pragma once

#include "workbench/Workspace.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <memory>

class CheckRun;
struct Finding;
class ProblemsPanel;

/// Keeps the problems panel up to date: checks the dictionary when it is opened and after each change, bit by
/// bit between whatever else the person does. Performs Check Now and the steps from problem to problem.
class CheckCommands : public QObject
{
    Q_OBJECT

public:
    /// \a quiet is how long nothing may change before the dictionary is checked again.
    CheckCommands(const Workspace &workspace, ProblemsPanel *panel, QObject *parent = nullptr,
                  std::chrono::milliseconds quiet = std::chrono::milliseconds(400));
    ~CheckCommands() override;
    Q_DISABLE_COPY_MOVE(CheckCommands)

    /// Checks at once, with a dialog to cancel it if it takes long.
    void checkNow();

Q_SIGNALS:
    /// A problem was chosen and its variable selected: its category or range is wanted too. The address is
    /// only to be compared.
    void itemChosen(void *item);
    /// The panel shows what is wrong with the dictionary as it is now.
    void checked();

private:
    void stop();
    void restart();
    void goOn();
    void finish();
    void show(const Finding &finding);

    Workspace m_workspace;
    ProblemsPanel *m_panel; // Not owned.
    QTimer m_quiet;
    QTimer m_turn;
    std::unique_ptr<CheckRun> m_run; // Null while nothing is being checked.
};
