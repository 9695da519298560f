#include "workbench/panels/ProblemsPanel.h"

#include "common/IconPaths.h"
#include "workbench/panels/EmptyText.h"
#include "workbench/panels/Widgets.h"
#include "workbench/Selection.h"

#include <QIcon>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

namespace
{
enum Column { Message, Place, Suggestion };

QIcon icon(Problem::Severity severity)
{
    switch (severity) {
    case Problem::Severity::Error:
        return QIcon(IconPaths::icon48(QLatin1StringView("Error")));
    case Problem::Severity::Warning:
        return QIcon(IconPaths::icon48(QLatin1StringView("Warning")));
    case Problem::Severity::Note:
        return QIcon(IconPaths::nodeInformation);
    }
    Q_UNREACHABLE();
}
} // namespace

ProblemsPanel::ProblemsPanel(const Workspace &workspace, QWidget *parent)
    : QWidget(parent), m_model(new QStandardItemModel(this))
{
    auto *table = new EmptyText<QTableView>(this);
    table->setEmptyText(tr("No problems found."));
    m_view = table;
    m_view->setModel(m_model);
    Widgets::setUpTable(m_view, tr("Problems"));
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view);
    setProblems({});

    connect(m_view, &QAbstractItemView::activated, this,
            [this, selection = workspace.selection](const QModelIndex &index) {
                selection->select(m_model->index(index.row(), Place).data().toString());
            });
}

void ProblemsPanel::setProblems(const QList<Problem> &problems)
{
    m_model->clear();
    m_model->setHorizontalHeaderLabels({tr("Problem"), tr("Place"), tr("Suggestion")});
    for (const Problem &problem : problems) {
        auto *message = new QStandardItem(icon(problem.severity), problem.message);
        message->setToolTip(problem.message);
        m_model->appendRow({message, new QStandardItem(problem.path), new QStandardItem(problem.suggestion)});
    }
    m_view->setColumnWidth(Message, 460);
    m_view->setColumnWidth(Place, 200);
    if (!problems.isEmpty())
        m_view->selectRow(0);
}
