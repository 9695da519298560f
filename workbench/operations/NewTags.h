#pragma once

#include <QList>
#include <QSet>

class TDcVariable;

/// Tags for variables that a person adds: those after the highest that is taken.
class NewTags
{
public:
    /// The tags of \a variables are taken.
    explicit NewTags(const QList<TDcVariable *> &variables);

    /// A free tag, from 1 on, and taken from then on. After the highest integer there are those that are
    /// free further down.
    [[nodiscard]] int take();

private:
    QSet<int> m_taken;
    int m_last = 0;
};
