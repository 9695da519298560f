#include "workbench/MainWindow.h"

#include "workbench/CheckCommands.h"
#include "workbench/ClipboardCommands.h"
#include "workbench/dialogs/AreaSelectionDialog.h"
#include "workbench/dialogs/CopyValuesDialog.h"
#include "workbench/dialogs/EditTogetherDialog.h"
#include "workbench/dialogs/ExpressionDialog.h"
#include "workbench/dialogs/LabelSetsDialog.h"
#include "workbench/dialogs/MoveDialog.h"
#include "workbench/FileCommands.h"
#include "workbench/journal/JournalFolder.h"
#include "workbench/panels/EntityForm.h"
#include "workbench/panels/EntityTreePanel.h"
#include "workbench/panels/FindPanel.h"
#include "workbench/panels/Inspector.h"
#include "workbench/panels/ProblemsPanel.h"
#include "workbench/panels/RangesPanel.h"
#include "workbench/panels/SourcesPanel.h"
#include "workbench/panels/ValueLabelsPanel.h"
#include "workbench/panels/VariableTablePanel.h"
#include "workbench/panels/Widgets.h"
#include "workbench/Panes.h"
#include "workbench/RecoveryCommands.h"
#include "workbench/run/RunCommands.h"
#include "workbench/SessionEnd.h"
#include "workbench/SourceCommands.h"
#include "workbench/Workspace.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QSettings>
#include <QStatusBar>
#include <QTableView>
#include <QUrl>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr QSize plainSize(1280, 800);
}

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent), m_journal(&m_document, JournalFolder::path(), {}), m_selection(&m_document)
{
    setAcceptDrops(true);
    setDockOptions(AnimatedDocks | AllowNestedDocks | AllowTabbedDocks);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    setTabPosition(Qt::AllDockWidgetAreas, QTabWidget::North);
    resize(plainSize);

    m_actions.place(this);
    finishEditingFirst();
    m_files = new FileCommands({&m_document, &m_selection, &m_actions, this}, this);
    m_runs = new RunCommands({&m_document, &m_selection, &m_actions, this}, m_files, this);
    connect(m_files, &FileCommands::chosen, this, &MainWindow::open);
    m_recovery =
        new RecoveryCommands({&m_document, &m_selection, &m_actions, this}, m_files, &m_journal, this);
    m_sessionEnd = new SessionEnd(m_files, &m_journal, this);
    m_panes = new Panes(this, m_actions);
    addPanels();
    ExpressionDialog::addTo({&m_document, &m_selection, &m_actions, this});
    AreaSelectionDialog::addTo({&m_document, &m_selection, &m_actions, this});
    EditTogetherDialog::addTo({&m_document, &m_selection, &m_actions, this});
    CopyValuesDialog::addTo({&m_document, &m_selection, &m_actions, this});
    LabelSetsDialog::addTo({&m_document, &m_selection, &m_actions, this});
    MoveDialog::addTo({&m_document, &m_selection, &m_actions, this});
    addUndo();
    addAbout();
    connect(m_actions[ActionId::FileQuit], &QAction::triggered, this, &QWidget::close);
    connect(&m_document, &Document::pathChanged, this, &MainWindow::updateTitle);
    connect(&m_document, &Document::modifiedChanged, this, &MainWindow::updateTitle);
    updateTitle();
    connect(&m_journal, &Journal::failed, statusBar(), [this](const QString &why) {
        statusBar()->showMessage(tr("Unsaved changes cannot be kept safe: %1").arg(why));
    });
    restoreLayout();
}

MainWindow::~MainWindow()
{
    // The panels look at document and selection, which are members and so would go first.
    const QList<QWidget *> panels = findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    qDeleteAll(panels);
}

void MainWindow::addPanels()
{
    const Workspace workspace{&m_document, &m_selection, &m_actions, this};
    auto *table = new VariableTablePanel(workspace, this);
    setCentralWidget(table);
    m_panes->add(table);
    m_actions.menu(MenuId::View)->addSeparator();
    QDockWidget *tree =
        addDock(tr("Entities"), u"entities"_s, new EntityTreePanel(workspace, this), Qt::LeftDockWidgetArea);
    QDockWidget *entity =
        addDock(tr("Entity"), u"entity"_s, new EntityForm(workspace, this), Qt::LeftDockWidgetArea);
    auto *inspectorPanel = new Inspector(workspace, this);
    QDockWidget *inspector = addDock(tr("Variable"), u"variable"_s, inspectorPanel, Qt::RightDockWidgetArea);
    auto *sourcesPanel = new SourcesPanel(workspace, this);
    new SourceCommands(workspace, sourcesPanel, this);
    connect(sourcesPanel, &SourcesPanel::chosen, table, &VariableTablePanel::importFields);
    QDockWidget *sources = addDock(tr("Sources"), u"sources"_s, sourcesPanel, Qt::BottomDockWidgetArea);
    QDockWidget *problems = addProblems(workspace, inspectorPanel);
    tabifyDockWidget(sources, problems);
    tabifyDockWidget(problems, addFind(workspace, inspectorPanel));
    sources->raise();
    new ClipboardCommands(workspace, table->view(), inspectorPanel->valueLabels()->view(),
                          inspectorPanel->ranges()->view(), table);
    resizeDocks({tree, inspector}, {250, 340}, Qt::Horizontal);
    resizeDocks({tree, entity}, {260, 340}, Qt::Vertical);
    resizeDocks({sources}, {210}, Qt::Vertical);
    table->view()->setFocus();
}

QDockWidget *MainWindow::addProblems(const Workspace &workspace, Inspector *inspector)
{
    auto *panel = new ProblemsPanel(this);
    QDockWidget *dock = addDock(tr("Problems"), u"problems"_s, panel, Qt::BottomDockWidgetArea);
    connect(panel, &ProblemsPanel::countChanged, dock, [dock](qsizetype count) {
        dock->setWindowTitle(count > 0 ? tr("Problems (%L1)").arg(count) : tr("Problems"));
    });
    auto *checks = new CheckCommands(workspace, panel, panel);
    connect(checks, &CheckCommands::itemChosen, inspector, &Inspector::showItem);
    connect(m_actions[ActionId::ToolsCheck], &QAction::triggered, dock, [dock, panel] {
        dock->show();
        dock->raise();
        panel->view()->setFocus();
    });
    return dock;
}

QDockWidget *MainWindow::addFind(const Workspace &workspace, Inspector *inspector)
{
    auto *panel = new FindPanel(workspace, this);
    QDockWidget *dock = addDock(tr("Find"), u"find"_s, panel, Qt::BottomDockWidgetArea);
    connect(panel, &FindPanel::itemChosen, inspector, &Inspector::showItem);
    connect(m_actions[ActionId::EditFind], &QAction::triggered, dock, [dock, panel] {
        dock->show();
        dock->raise();
        panel->start();
    });
    return dock;
}

QDockWidget *MainWindow::addDock(const QString &title, const QString &objectName, QWidget *panel,
                                 Qt::DockWidgetArea area)
{
    auto *dock = new QDockWidget(title, this);
    dock->setObjectName(objectName);
    dock->setWidget(panel);
    addDockWidget(area, dock);
    m_panes->add(dock);
    m_actions.menu(MenuId::View)->addAction(dock->toggleViewAction());
    return dock;
}

void MainWindow::finishEditingFirst()
{
    // What is typed but not entered yet is entered before anything else happens, or it would be forgotten.
    const QList<QAction *> actions = m_actions.all();
    for (const QAction *action : actions) {
        // These two belong to whoever types.
        if (action != m_actions[ActionId::EditCopy] && action != m_actions[ActionId::EditPaste])
            connect(action, &QAction::triggered, this, [this] { Widgets::finishEditing(this); });
    }
}

void MainWindow::addUndo()
{
    QUndoStack *stack = m_document.undoStack();
    // What is typed but not entered yet is entered first, and so is undone before anything else.
    QAction *undo = m_actions[ActionId::EditUndo];
    QAction *redo = m_actions[ActionId::EditRedo];
    connect(undo, &QAction::triggered, stack, &QUndoStack::undo);
    connect(redo, &QAction::triggered, stack, &QUndoStack::redo);
    connect(stack, &QUndoStack::canUndoChanged, undo, &QAction::setEnabled);
    connect(stack, &QUndoStack::canRedoChanged, redo, &QAction::setEnabled);
    const auto name = [undo, redo, stack] {
        undo->setText(stack->canUndo() ? tr("&Undo %1").arg(stack->undoText()) : tr("&Undo"));
        redo->setText(stack->canRedo() ? tr("&Redo %1").arg(stack->redoText()) : tr("&Redo"));
        undo->setIconText(tr("Undo"));
        redo->setIconText(tr("Redo"));
    };
    connect(stack, &QUndoStack::indexChanged, this, name);
    undo->setEnabled(false);
    redo->setEnabled(false);
    name();
}

void MainWindow::addAbout()
{
    connect(m_actions[ActionId::HelpAbout], &QAction::triggered, this, [this] {
        QMessageBox::about(this, tr("About Quillon Workbench"),
                           tr("<h3>Quillon Workbench %1</h3><p>An editor for data dictionaries.</p>"
                              "<p>Icons: Bootstrap Icons, MIT licence.</p>")
                               .arg(QApplication::applicationVersion()));
    });
}

void MainWindow::updateTitle()
{
    const bool readOnly = m_document.access() == Document::Access::ReadOnly;
    setWindowTitle((readOnly ? tr("%1[*] (read-only) – Quillon Workbench") : tr("%1[*] – Quillon Workbench"))
                       .arg(m_document.title()));
    setWindowFilePath(m_document.path());
    setWindowModified(m_document.isModified());
}

void MainWindow::restoreLayout()
{
    const QSettings settings;
    m_plainState = saveState();
    restoreGeometry(settings.value(u"window/geometry"_s).toByteArray());
    restoreState(settings.value(u"window/state"_s).toByteArray());
}

void MainWindow::setPlainLayout()
{
    restoreState(m_plainState);
    resize(plainSize);
}

void MainWindow::saveLayout() const
{
    QSettings settings;
    settings.setValue(u"window/geometry"_s, saveGeometry());
    settings.setValue(u"window/state"_s, saveState());
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!m_sessionEnd->isEnding() && !m_files->mayClose()) {
        event->ignore();
        return;
    }
    // Whatever is not saved now was given up.
    m_journal.discard();
    saveLayout();
    event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (urls.size() == 1 && urls.first().isLocalFile())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    // Later: opening may ask questions, and the program that the file comes from waits for an answer to this.
    const QString path = event->mimeData()->urls().constFirst().toLocalFile();
    QMetaObject::invokeMethod(
        this, [this, path] { open(path); }, Qt::QueuedConnection);
}

void MainWindow::open(const QString &path)
{
    if (RunCommands::isRunConfiguration(path))
        m_runs->open(path);
    else
        m_files->open(path);
}

QString MainWindow::openUnasked(const QString &path)
{
    if (RunCommands::isRunConfiguration(path))
        return m_runs->openUnasked(path);
    return m_document.open(path) ? QString() : m_document.errorText();
}
