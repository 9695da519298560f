#include "workbench/panels/ProblemsPanel.h"

#include "documents/checks/DictionaryCheck.h"
#include "workbench/panels/FindingsModel.h"
#include "workbench/panels/Widgets.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace
{
/// Rows of a least severity.
class SeverityProxy : public QSortFilterProxyModel
{
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void setLeast(Severity least)
    {
        m_least = least;
        invalidateFilter();
    }

protected:
    [[nodiscard]] bool filterAcceptsRow(int row, const QModelIndex &) const override
    {
        return static_cast<const FindingsModel *>(sourceModel())->at(row).severity >= m_least;
    }

private:
    Severity m_least = Severity::Note;
};

/// Cuts places short at their beginning: the variable stands at the end.
class PlaceDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->textElideMode = Qt::ElideLeft;
    }
};
} // namespace

ProblemsPanel::ProblemsPanel(QWidget *parent)
    : QWidget(parent), m_model(new FindingsModel(this)), m_proxy(new SeverityProxy(this)),
      m_summary(new QLabel(this)), m_severities(new QComboBox(this)), m_view(new EmptyText<QTableView>(this))
{
    m_severities->addItem(tr("Everything"), int(Severity::Note));
    m_severities->addItem(tr("Warnings and errors"), int(Severity::Warning));
    m_severities->addItem(tr("Errors only"), int(Severity::Error));
    m_severities->setAccessibleName(tr("Problems to show"));
    m_severities->view()->setAccessibleName(tr("Problems to show"));
    auto *caption = new QLabel(tr("&Display:"), this);
    caption->setBuddy(m_severities);

    Widgets::setUpTable(m_view, tr("Problems"));
    m_proxy->setSortRole(FindingsModel::SortRole);
    m_proxy->setSortCaseSensitivity(Qt::CaseInsensitive);
    m_proxy->setSourceModel(m_model);
    m_view->setModel(m_proxy);
    m_view->setItemDelegateForColumn(FindingsModel::PlaceColumn, new PlaceDelegate(m_view));
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_columns = std::make_unique<ColumnMemory>(m_view, u"problems"_s);
    if (!m_columns->restore()) {
        m_view->setColumnWidth(FindingsModel::SeverityColumn, 110);
        m_view->setColumnWidth(FindingsModel::ProblemColumn, 420);
        m_view->setColumnWidth(FindingsModel::PlaceColumn, 220);
    }

    auto *bar = new QHBoxLayout;
    bar->addWidget(m_summary, 1);
    bar->addWidget(caption);
    bar->addWidget(m_severities);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addLayout(bar);
    layout->addWidget(m_view);

    connect(m_view, &QAbstractItemView::activated, this, &ProblemsPanel::choose);
    connect(m_severities, &QComboBox::currentIndexChanged, this, &ProblemsPanel::filter);
    updateEmptyText();
}

void ProblemsPanel::setFindings(const QList<Finding> &findings)
{
    const QModelIndex current = m_view->currentIndex();
    const int row = current.row();
    const auto before =
        current.isValid() ? std::optional(m_model->at(m_proxy->mapToSource(current).row())) : std::nullopt;
    m_model->setFindings(findings);
    if (m_proxy->rowCount() > 0 && !m_view->currentIndex().isValid()) {
        const QModelIndex same =
            m_proxy->mapFromSource(m_model->index(before ? m_model->rowOf(*before) : -1, 0));
        // What was mended is gone; the next problem stands in its row.
        m_view->selectRow(same.isValid() ? same.row() : qBound(0, row, m_proxy->rowCount() - 1));
    }
    m_summary->setText(findings.isEmpty() ? QString() : DictionaryCheck::summary(findings));
    updateEmptyText();
    Q_EMIT countChanged(findings.size());
}

void ProblemsPanel::setChecking(bool checking)
{
    m_checking = checking;
    updateEmptyText();
}

void ProblemsPanel::filter()
{
    static_cast<SeverityProxy *>(m_proxy)->setLeast(Severity(m_severities->currentData().toInt()));
    if (m_proxy->rowCount() > 0 && !m_view->currentIndex().isValid())
        m_view->selectRow(0);
    updateEmptyText();
}

void ProblemsPanel::updateEmptyText()
{
    m_view->setEmptyText(m_checking                    ? tr("Looking for problems…")
                             : m_model->rowCount() > 0 ? tr("No problems of this severity.")
                                                       : DictionaryCheck::summary({}));
}

void ProblemsPanel::choose(const QModelIndex &index)
{
    Q_EMIT chosen(m_model->at(m_proxy->mapToSource(index).row()));
}

void ProblemsPanel::step(bool forward)
{
    const int count = m_proxy->rowCount();
    if (count == 0)
        return;
    const int row = m_view->currentIndex().row();
    const int next = forward ? row + 1 : (row > 0 ? row : count) - 1;
    m_view->selectRow(next % count);
    choose(m_view->currentIndex());
}
