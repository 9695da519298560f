#include "workbench/ClipboardCommands.h"

#include "workbench/Actions.h"
#include "workbench/Progress.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTableView>
#include <QTextEdit>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr qsizetype mostLines = 12; // A message shows so many of what was refused, and offers all of it.

/// Where a person edits text now; null when nowhere. A spin box keeps its line to itself.
QWidget *focusedText()
{
    QWidget *focus = QApplication::focusWidget();
    if (!focus)
        return nullptr;
    if (qobject_cast<QLineEdit *>(focus) || qobject_cast<QPlainTextEdit *>(focus)
        || qobject_cast<QTextEdit *>(focus))
        return focus;
    const bool holdsLine = qobject_cast<QAbstractSpinBox *>(focus) || qobject_cast<QComboBox *>(focus);
    return holdsLine ? focus->findChild<QLineEdit *>() : nullptr;
}
} // namespace

ClipboardCommands::ClipboardCommands(const Workspace &workspace, QTableView *variables,
                                     QTableView *valueLabels, QTableView *ranges, QObject *parent)
    : QObject(parent),
      m_workspace(workspace), m_tables{{workspace, ClipboardTable::Kind::Variables, variables},
                                       {workspace, ClipboardTable::Kind::ValueLabels, valueLabels},
                                       {workspace, ClipboardTable::Kind::Ranges, ranges}}
{
    const Actions &actions = *workspace.actions;
    connect(actions[ActionId::EditCopy], &QAction::triggered, this, &ClipboardCommands::copy);
    connect(actions[ActionId::EditPaste], &QAction::triggered, this, &ClipboardCommands::paste);
    for (const ClipboardTable &table : std::as_const(m_tables)) {
        table.view()->addAction(actions[ActionId::EditCopy]);
        table.view()->addAction(actions[ActionId::EditPaste]);
    }
    connect(qApp, &QApplication::focusChanged, this, &ClipboardCommands::updateActions);
    updateActions();
}

ClipboardTable *ClipboardCommands::focused()
{
    const auto found = std::find_if(m_tables.begin(), m_tables.end(), [](const ClipboardTable &table) {
        return table.view() && table.view()->hasFocus();
    });
    return found == m_tables.end() ? nullptr : &*found;
}

void ClipboardCommands::updateActions()
{
    // The menu bar has the keyboard only until something is chosen, for what had it before.
    if (qobject_cast<QMenuBar *>(QApplication::focusWidget()))
        return;
    const bool any = focused() || focusedText();
    (*m_workspace.actions)[ActionId::EditCopy]->setEnabled(any);
    (*m_workspace.actions)[ActionId::EditPaste]->setEnabled(any);
}

void ClipboardCommands::copy()
{
    if (ClipboardTable *table = focused()) {
        if (const QString text = table->copy(); !text.isEmpty())
            QApplication::clipboard()->setText(text);
    } else if (QWidget *text = focusedText()) {
        QMetaObject::invokeMethod(text, "copy");
    }
}

void ClipboardCommands::paste()
{
    if (ClipboardTable *table = focused())
        pasteInto(*table, QApplication::clipboard()->text());
    else if (QWidget *text = focusedText())
        QMetaObject::invokeMethod(text, "paste");
}

void ClipboardCommands::pasteInto(ClipboardTable &table, const QString &text)
{
    Paste paste;
    {
        Progress progress(tr("Pasting…"), m_workspace.window);
        paste =
            table.paste(text, [&progress](int done, int all) { return progress.show(double(done) / all); });
    }
    report(paste);
}

void ClipboardCommands::report(const Paste &paste)
{
    const QStringList lines = paste.report();
    if (paste.error.isEmpty() && lines.isEmpty())
        return;
    auto *box = new QMessageBox(m_workspace.window);
    box->setObjectName(u"pasteReport"_s);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setIcon(QMessageBox::Warning);
    box->setWindowTitle(tr("Paste"));
    box->setTextFormat(Qt::PlainText);
    if (!paste.error.isEmpty()) {
        box->setText(tr("Nothing was pasted."));
        box->setInformativeText(paste.error);
    } else {
        box->setText(
            paste.rows().isEmpty()
                ? tr("Nothing was pasted.")
                : tr("Pasted rows: %L1. Not everything could be taken over:").arg(paste.rows().size()));
        QStringList shown = lines.first(std::min(lines.size(), mostLines));
        if (lines.size() > mostLines) {
            shown.append(tr("There are %L1 more; the details list them all.").arg(lines.size() - mostLines));
            box->setDetailedText(lines.join(u'\n'));
        }
        box->setInformativeText(shown.join(u'\n'));
    }
    box->open();
}
