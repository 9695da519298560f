#pragma once

#include "documents/checks/Finding.h"

#include <QAbstractTableModel>
#include <QList>

/// What the checks found, as a table. The objects of the findings are never looked at, so they may be gone.
class FindingsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { SeverityColumn, ProblemColumn, PlaceColumn, SuggestionColumn, ColumnCount };
    /// What rows are ordered by: texts, and severities from the worst.
    static constexpr int SortRole = Qt::UserRole;

    using QAbstractTableModel::QAbstractTableModel;

    void setFindings(const QList<Finding> &findings);
    [[nodiscard]] const Finding &at(int row) const { return m_findings.at(row); }
    /// The row of \a finding or, if it is not there any more, of one by the same rule about the same place;
    /// -1 if there is none.
    [[nodiscard]] int rowOf(const Finding &finding) const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QList<Finding> m_findings;
};
