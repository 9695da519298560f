#include "workbench/panels/ColumnMemory.h"

#include <QHeaderView>
#include <QSettings>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

namespace
{
QString key(const QString &name)
{
    return u"columns/"_s + name;
}
} // namespace

ColumnMemory::ColumnMemory(QTableView *table, const QString &name)
    : m_table(table), m_name(name), m_state(QSettings().value(key(name)).toByteArray())
{
}

ColumnMemory::~ColumnMemory()
{
    take();
    if (!m_state.isEmpty())
        QSettings().setValue(key(m_name), m_state);
}

void ColumnMemory::take()
{
    const QHeaderView *header = m_table->horizontalHeader();
    if (header->count() == 0)
        return;
    m_state = header->saveState();
    m_fromSettings = false;
}

bool ColumnMemory::restore()
{
    QHeaderView *header = m_table->horizontalHeader();
    const int columns = header->count();
    const QByteArray before = header->saveState();
    // Settings may be anybody's: what does not fit, or shows nothing, is not used.
    if (m_state.isEmpty() || !header->restoreState(m_state) || header->count() != columns
        || header->hiddenSectionCount() == columns) {
        header->restoreState(before);
        return false;
    }
    if (m_fromSettings)
        header->setSortIndicator(-1, Qt::AscendingOrder);
    return true;
}
