#include "workbench/panels/FindingsModel.h"

#include "common/IconPaths.h"
#include "documents/checks/DictionaryCheck.h"

#include <QIcon>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{
QIcon icon(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return QIcon(IconPaths::icon48("Error"_L1));
    case Severity::Warning:
        return QIcon(IconPaths::icon48("Warning"_L1));
    case Severity::Note:
        break;
    }
    return QIcon(IconPaths::nodeInformation);
}

QString text(const Finding &finding, int column)
{
    switch (column) {
    case FindingsModel::SeverityColumn:
        return DictionaryCheck::severityName(finding.severity);
    case FindingsModel::ProblemColumn:
        return finding.message;
    case FindingsModel::PlaceColumn:
        return finding.place;
    default:
        return finding.suggestion;
    }
}

bool sameTexts(const Finding &left, const Finding &right)
{
    return left.rule == right.rule && left.place == right.place && left.message == right.message
        && left.suggestion == right.suggestion;
}

bool same(const Finding &left, const Finding &right)
{
    return sameTexts(left, right) && left.entity == right.entity && left.variable == right.variable
        && left.valueLabel == right.valueLabel && left.range == right.range;
}
} // namespace

void FindingsModel::setFindings(const QList<Finding> &findings)
{
    // Most edits leave the problems as they were; then nobody is disturbed.
    if (std::equal(findings.cbegin(), findings.cend(), m_findings.cbegin(), m_findings.cend(), same))
        return;
    beginResetModel();
    m_findings = findings;
    endResetModel();
}

int FindingsModel::rowOf(const Finding &finding) const
{
    const auto row = [this](auto matches) {
        const auto found = std::find_if(m_findings.cbegin(), m_findings.cend(), matches);
        return found == m_findings.cend() ? -1 : int(found - m_findings.cbegin());
    };
    const int exact = row([&finding](const Finding &other) { return sameTexts(finding, other); });
    return exact >= 0 ? exact : row([&finding](const Finding &other) {
        return finding.rule == other.rule && finding.place == other.place;
    });
}

int FindingsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_findings.size());
}

int FindingsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QVariant FindingsModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Finding &finding = m_findings.at(index.row());
    if (role == SortRole && index.column() == SeverityColumn)
        return -int(finding.severity);
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole || role == SortRole)
        return text(finding, index.column());
    if (role == Qt::DecorationRole && index.column() == SeverityColumn)
        return icon(finding.severity);
    return {};
}

QVariant FindingsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case SeverityColumn:
        return tr("Severity");
    case ProblemColumn:
        return tr("Problem");
    case PlaceColumn:
        return tr("Place");
    default:
        return tr("Suggestion");
    }
}
