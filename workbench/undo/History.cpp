#include "workbench/undo/History.h"

#include "documents/DictionaryCopy.h"
#include "documents/DictionaryEquality.h"
#include "model/TDcEntity.h"

#include <QUndoCommand>
#include <QUndoStack>

/// One step of the person. Neighbouring steps share the snapshot between them.
class History::Step : public QUndoCommand
{
public:
    Step(History &history, Snapshot before, Snapshot after, const QString &text)
        : QUndoCommand(text), m_history(history), m_before(std::move(before)), m_after(std::move(after))
    {
    }

    void undo() override { m_history.go(m_before); }

    void redo() override
    {
        // The first time the step is what the person just did.
        if (std::exchange(m_done, true))
            m_history.go(m_after);
    }

private:
    History &m_history;
    Snapshot m_before;
    Snapshot m_after;
    bool m_done = false;
};

History::History(QUndoStack *stack, Replace replace) : m_stack(stack), m_replace(std::move(replace)) { }

History::~History() = default;

void History::start(const TDcEntity &root)
{
    m_stack->clear();
    m_shadow = DictionaryCopy::copy(root);
}

bool History::record(const TDcEntity &root, const QString &text)
{
    if (DictionaryEquality::equal(*m_shadow, root))
        return false;
    const Snapshot before = std::exchange(m_shadow, DictionaryCopy::copy(root));
    m_stack->push(new Step(*this, before, m_shadow, text));
    return true;
}

void History::go(const Snapshot &snapshot)
{
    m_shadow = snapshot;
    m_replace(DictionaryCopy::copy(*snapshot));
}
