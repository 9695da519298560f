#pragma once

#include "workbench/Actions.h"
#include "workbench/Document.h"
#include "workbench/journal/Journal.h"
#include "workbench/Selection.h"

#include <QMainWindow>

class FileCommands;
class Inspector;
class Panes;
class RecoveryCommands;
class RunCommands;
class SessionEnd;
struct Workspace;

/// Makes the parts and wires them together; what they do stands in the parts.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;
    Q_DISABLE_COPY_MOVE(MainWindow)

    [[nodiscard]] Document *document() { return &m_document; }
    [[nodiscard]] Selection *selection() { return &m_selection; }
    [[nodiscard]] Actions *actions() { return &m_actions; }
    [[nodiscard]] FileCommands *files() { return m_files; }
    [[nodiscard]] Journal *journal() { return &m_journal; }
    [[nodiscard]] RecoveryCommands *recovery() { return m_recovery; }
    [[nodiscard]] SessionEnd *sessionEnd() { return m_sessionEnd; }

    /// Opens the dictionary or the run configuration at \a path.
    void open(const QString &path);
    /// The same without asking or telling anybody: returns why it cannot be opened, empty when it was.
    [[nodiscard]] QString openUnasked(const QString &path);

    /// Puts docks and size as they are before anybody moves them.
    void setPlainLayout();

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void addPanels();
    QDockWidget *addFind(const Workspace &workspace, Inspector *inspector);
    QDockWidget *addDock(const QString &title, const QString &objectName, QWidget *panel,
                         Qt::DockWidgetArea area);
    QDockWidget *addProblems(const Workspace &workspace, Inspector *inspector);
    void finishEditingFirst();
    void addUndo();
    void addAbout();
    void updateTitle();
    void restoreLayout();
    void saveLayout() const;

    // In this order: each needs those before it.
    Document m_document;
    Journal m_journal;
    Selection m_selection;
    Actions m_actions;
    FileCommands *m_files;
    RunCommands *m_runs;
    RecoveryCommands *m_recovery;
    SessionEnd *m_sessionEnd;
    Panes *m_panes;
    QByteArray m_plainState;
};
