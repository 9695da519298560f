#pragma once

#include "documents/checks/Finding.h"
#include "workbench/panels/ColumnMemory.h"
#include "workbench/panels/EmptyText.h"

#include <QList>
#include <QTableView>
#include <QWidget>

#include <memory>

class FindingsModel;
class QComboBox;
class QLabel;
class QSortFilterProxyModel;

/// What the checks found: a table to sort and to filter by severity. Whoever shows the places of the
/// dictionary listens to chosen().
class ProblemsPanel : public QWidget
{
    Q_OBJECT

public:
    explicit ProblemsPanel(QWidget *parent = nullptr);

    [[nodiscard]] QTableView *view() const { return m_view; }
    /// Chooses the least severity that is shown.
    [[nodiscard]] QComboBox *severities() const { return m_severities; }
    /// Shows \a findings; the current row stays on the same problem where it can.
    void setFindings(const QList<Finding> &findings);
    /// Says so where the table would be empty.
    void setChecking(bool checking);
    /// Goes to the next shown problem, or to the one before, and chooses it; goes around at the ends.
    void step(bool forward);

Q_SIGNALS:
    /// The person wants to see the place of \a finding, whose objects may be gone by now.
    void chosen(const Finding &finding);
    /// There are \a count problems, shown or not.
    void countChanged(qsizetype count);

private:
    void filter();
    void choose(const QModelIndex &index);
    void updateEmptyText();

    FindingsModel *m_model;
    QSortFilterProxyModel *m_proxy;
    QLabel *m_summary;
    QComboBox *m_severities;
    EmptyText<QTableView> *m_view;
    bool m_checking = false;
    std::unique_ptr<ColumnMemory> m_columns;
};
