#include "workbench/operations/NewTags.h"

#include "model/TDcVariable.h"

#include <algorithm>
#include <limits>

NewTags::NewTags(const QList<TDcVariable *> &variables)
{
    for (const TDcVariable *variable : variables) {
        m_taken.insert(variable->getTag());
        m_last = std::max(m_last, variable->getTag());
    }
}

int NewTags::take()
{
    do {
        m_last = m_last < std::numeric_limits<int>::max() ? m_last + 1 : 1;
    } while (m_taken.contains(m_last));
    m_taken.insert(m_last);
    return m_last;
}
