#pragma once

#include "workbench/clipboard/ClipboardTable.h"
#include "workbench/Workspace.h"

#include <QList>
#include <QObject>

class QTableView;

/// Copy and Paste: rows in the tables, text wherever text is edited.
class ClipboardCommands : public QObject
{
    Q_OBJECT

public:
    ClipboardCommands(const Workspace &workspace, QTableView *variables, QTableView *valueLabels,
                      QTableView *ranges, QObject *parent = nullptr);

private:
    void copy();
    void paste();
    void pasteInto(ClipboardTable &table, const QString &text);
    void report(const Paste &paste);
    void updateActions();
    [[nodiscard]] ClipboardTable *focused();

    Workspace m_workspace;
    QList<ClipboardTable> m_tables;
};
