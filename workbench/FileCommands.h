#pragma once

#include "workbench/Document.h"
#include "workbench/journal/FileClaim.h"
#include "workbench/RecentFiles.h"
#include "workbench/Workspace.h"

#include <QObject>

#include <optional>

/// New, Open, Save, Save As and Revert, with the questions that they ask before work is lost.
class FileCommands : public QObject
{
    Q_OBJECT

public:
    explicit FileCommands(const Workspace &workspace, QObject *parent = nullptr);

    /// Whether the open dictionary may go: nothing is unsaved, or the person saved it or said so.
    [[nodiscard]] bool mayClose();
    /// How to open the file at \a path: another instance may have it open. Nothing when the person cancels.
    [[nodiscard]] std::optional<Document::Access> chooseAccess(const QString &path);
    enum class Opening { Done, Failed, Cancelled };
    /// Opens \a path after mayClose(), and shows what is wrong if it cannot be opened.
    Opening tryOpen(const QString &path);
    bool open(const QString &path) { return tryOpen(path) == Opening::Done; }

    /// Whether \a path is called as dictionaries are.
    [[nodiscard]] static bool isDictionary(const QString &path);

Q_SIGNALS:
    /// The person wants the file at \a path opened, whatever it is.
    void chosen(const QString &path);

private:
    void create();
    void chooseAndOpen();
    bool save();
    bool saveAs();
    bool saveTo(const QString &path);
    void followPath();
    [[nodiscard]] bool mayOverwrite(const QString &path);
    void revert();
    void addRecentMenu();
    void updateActions();

    Workspace m_workspace;
    RecentFiles m_recent;
    FileClaim m_claim;
};
