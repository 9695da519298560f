#include "workbench/CheckCommands.h"

#include "documents/checks/CheckRun.h"
#include "model/TDcEntity.h"
#include "workbench/Actions.h"
#include "workbench/Document.h"
#include "workbench/operations/Places.h"
#include "workbench/panels/ProblemsPanel.h"
#include "workbench/Progress.h"
#include "workbench/Selection.h"

#include <QAction>

using namespace std::chrono_literals;

namespace
{
// Short enough that nobody who types notices.
constexpr auto turn = 8ms;
// Long enough that showing the progress takes next to nothing.
constexpr auto longTurn = 50ms;
} // namespace

CheckCommands::CheckCommands(const Workspace &workspace, ProblemsPanel *panel, QObject *parent,
                             std::chrono::milliseconds quiet)
    : QObject(parent), m_workspace(workspace), m_panel(panel)
{
    m_quiet.setSingleShot(true);
    m_quiet.setInterval(quiet);
    m_turn.setInterval(0);
    connect(&m_quiet, &QTimer::timeout, this, [this] {
        m_run = std::make_unique<CheckRun>(m_workspace.document->root());
        m_turn.start();
    });
    connect(&m_turn, &QTimer::timeout, this, &CheckCommands::goOn);
    connect(workspace.document, &Document::structureAboutToChange, this, &CheckCommands::stop);
    connect(workspace.document, &Document::structureChanged, this, &CheckCommands::restart);
    connect(workspace.document, &Document::contentChanged, this, &CheckCommands::restart);
    const Actions &actions = *workspace.actions;
    connect(actions[ActionId::ToolsCheck], &QAction::triggered, this, &CheckCommands::checkNow);
    connect(actions[ActionId::ToolsNextProblem], &QAction::triggered, panel, [panel] { panel->step(true); });
    connect(actions[ActionId::ToolsPreviousProblem], &QAction::triggered, panel,
            [panel] { panel->step(false); });
    connect(panel, &ProblemsPanel::chosen, this, &CheckCommands::show);
    const auto updateActions = [&actions](qsizetype count) {
        actions[ActionId::ToolsNextProblem]->setEnabled(count > 0);
        actions[ActionId::ToolsPreviousProblem]->setEnabled(count > 0);
    };
    connect(panel, &ProblemsPanel::countChanged, this, updateActions);
    updateActions(0);
    restart();
}

CheckCommands::~CheckCommands() = default;

void CheckCommands::stop()
{
    m_quiet.stop();
    m_turn.stop();
    m_run.reset();
}

void CheckCommands::restart()
{
    stop();
    m_panel->setChecking(true);
    m_quiet.start();
}

void CheckCommands::goOn()
{
    if (m_run->advance(QDeadlineTimer(turn)))
        finish();
}

void CheckCommands::finish()
{
    const QList<Finding> findings = m_run->findings();
    stop();
    m_panel->setChecking(false);
    m_panel->setFindings(findings);
    Q_EMIT checked();
}

void CheckCommands::checkNow()
{
    stop();
    m_run = std::make_unique<CheckRun>(m_workspace.document->root());
    Progress progress(tr("Looking for problems…"), m_workspace.window);
    while (m_run && !m_run->advance(QDeadlineTimer(longTurn))) {
        if (!progress.show(m_run->part()))
            return restart();
    }
    if (m_run)
        finish();
}

void CheckCommands::show(const Finding &finding)
{
    // Until the next check is through, the panel may name objects that are gone.
    TDcEntity *root = m_workspace.document->root();
    TDcEntity *entity = finding.entity ? finding.entity : root;
    if (!Places::holds(root, entity))
        return;
    if (!entity->getVariables()->contains(finding.variable)) {
        m_workspace.selection->setEntity(entity);
        return;
    }
    m_workspace.selection->select(entity, finding.variable);
    if (finding.valueLabel)
        Q_EMIT itemChosen(finding.valueLabel);
    if (finding.range)
        Q_EMIT itemChosen(finding.range);
}
