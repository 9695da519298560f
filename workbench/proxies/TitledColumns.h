#pragma once

#include <QStringList>
#include <QVariant>

#include <utility>

/// A \a Proxy whose columns have the given titles. Some of the layer's models have theirs in English only, or
/// have none.
template <typename Proxy>
class TitledColumns : public Proxy
{
public:
    /// \a titles are those of all columns, in order.
    explicit TitledColumns(QStringList titles) : m_titles(std::move(titles)) { }

    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override
    {
        const bool titled = orientation == Qt::Horizontal && section >= 0 && section < m_titles.size();
        return titled && role == Qt::DisplayRole ? QVariant(m_titles.at(section))
                                                 : Proxy::headerData(section, orientation, role);
    }

private:
    QStringList m_titles; // By column.
};
