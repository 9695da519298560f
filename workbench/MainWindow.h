#pragma once

#include "workbench/Actions.h"
#include "workbench/Document.h"
#include "workbench/RecentFiles.h"
#include "workbench/Selection.h"

#include <QMainWindow>

class FileCommands;
class Inspector;
class RunCommands;
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

    /// Opens the dictionary or the run configuration at \a path.
    void open(const QString &path);

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
    void addUndo();
    void addAbout();
    void updateTitle();
    void restoreLayout();
    void saveLayout() const;

    // In this order: each needs those before it.
    Document m_document;
    Selection m_selection;
    Actions m_actions;
    FileCommands *m_files;
    RunCommands *m_runs;
    QByteArray m_plainState;
};
