#pragma once

#include "workbench/clipboard/Paste.h"
#include "workbench/Workspace.h"

#include <QCoreApplication>
#include <QPointer>
#include <QString>
#include <QTableView>

#include <memory>

class PasteTarget;

/// A table of the window, to copy from and to paste into.
class ClipboardTable
{
    Q_DECLARE_TR_FUNCTIONS(ClipboardTable)

public:
    /// What the rows of a table are.
    enum class Kind { Variables, ValueLabels, Ranges };

    /// \a view, not owned, shows what is current in \a workspace.
    ClipboardTable(const Workspace &workspace, Kind kind, QTableView *view)
        : m_workspace(workspace), m_kind(kind), m_view(view), m_alive(view)
    {
    }

    /// Null once the view is gone.
    [[nodiscard]] QTableView *view() const { return m_alive ? m_view : nullptr; }

    /// The selected rows with a header; empty when none are selected.
    [[nodiscard]] QString copy() const;
    /// Pastes \a text from the current cell on, as one step, and selects the variables that it went to.
    Paste paste(const QString &text, const Paste::Progress &progress = {});

private:
    [[nodiscard]] std::unique_ptr<PasteTarget> target() const;
    [[nodiscard]] QStringList cells(int row, const QList<int> &columns) const;

    Workspace m_workspace;
    Kind m_kind;
    QTableView *m_view; // Not owned.
    QPointer<QObject> m_alive; // The view, which is asked for while it goes and is no table any more then.
};
