#pragma once

#include "documents/checks/Finding.h"
#include "documents/documents_export.h"

#include <QDeadlineTimer>
#include <QList>

#include <memory>

class TDcEntity;

/// A check that is done bit by bit, for a front end that must not keep anybody waiting. Finds what
/// DictionaryCheck::check() finds.
///
/// Between the bits values may be edited in place; entities and variables must not come, go or move.
class DOCUMENTS_EXPORT CheckRun
{
public:
    /// A null \a root has nothing wrong.
    explicit CheckRun(TDcEntity *root);
    ~CheckRun();
    Q_DISABLE_COPY_MOVE(CheckRun)

    /// Goes on until it is finished or \a deadline is over, but applies one rule or looks at one variable at
    /// least. True when it is finished.
    bool advance(QDeadlineTimer deadline = QDeadlineTimer(QDeadlineTimer::Forever));
    /// The part that is done, from 0 to 1.
    [[nodiscard]] double part() const;
    /// What was found so far, in the order of DictionaryCheck::check().
    [[nodiscard]] QList<Finding> findings() const;

private:
    struct State;
    std::unique_ptr<State> m_state;
};
