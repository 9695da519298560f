#include "workbench/undo/History.h"

#include "documents/DictionaryCopy.h"
#include "model/PreOrder.h"
#include "model/TDcEntity.h"
#include "workbench/operations/Places.h"

#include <QUndoCommand>
#include <QUndoStack>

#include <algorithm>
#include <utility>

namespace
{
History::Extent extentOf(const QList<DictionaryChange> &changes)
{
    using What = DictionaryChange::What;
    using Kind = DictionaryChange::Kind;
    const bool structure = std::any_of(changes.cbegin(), changes.cend(), [](const DictionaryChange &change) {
        return (change.what == What::Entity || change.what == What::Variable) && change.kind != Kind::Changed
            && change.kind != Kind::Renamed;
    });
    return structure ? History::Extent::Structure : History::Extent::Content;
}

/// Which of \a entity and those below are selectable, in pre-order.
QList<bool> selectable(TDcEntity *entity)
{
    QList<bool> marks;
    preOrder(entity, [&marks](const TDcEntity *node) { marks.append(node->getSelectable()); });
    return marks;
}
} // namespace

/// One step of the person.
class History::Step : public QUndoCommand
{
public:
    Step(History &history, DictionaryDifference difference, Rows rows, Extent extent, const QString &text)
        : QUndoCommand(text), m_history(history), m_difference(std::move(difference)),
          m_rows(std::move(rows)), m_extent(extent)
    {
    }

    void undo() override { m_history.go(m_difference.inverted(), m_rows, m_extent); }

    void redo() override
    {
        // The first time the step is what the person just did.
        if (std::exchange(m_done, true))
            m_history.go(m_difference, m_rows, m_extent);
    }

private:
    History &m_history;
    DictionaryDifference m_difference;
    Rows m_rows;
    Extent m_extent;
    bool m_done = false;
};

History::History(QUndoStack *stack, Announce announce) : m_stack(stack), m_announce(std::move(announce)) { }

History::~History() = default;

void History::start(const TDcEntity &root)
{
    m_stack->clear();
    m_stack->setClean(); // An empty stack may be unclean, and then clearing it leaves it so.
    m_shadow = DictionaryCopy::copy(root);
}

bool History::record(TDcEntity &root, const QString &text, TDcEntity *entity)
{
    using Scope = DictionaryDifference::Scope;
    Rows rows = entity ? Places::rowsOf(&root, entity) : Rows();
    TDcEntity *before = Places::at(m_shadow.get(), rows);
    // Who takes the mark or the reference code away from an entity takes the marks of those below away, too.
    if (entity && selectable(before) != selectable(entity)) {
        rows.clear();
        entity = nullptr;
        before = m_shadow.get();
    }
    const auto difference = entity ? DictionaryDifference::between(*before, *entity, Scope::WithoutChildren)
                                   : DictionaryDifference::between(*before, root);
    if (difference.isEmpty())
        return false;
    const QList<DictionaryChange> changes = difference.changes();
    difference.apply(*before);
    m_stack->push(
        new Step(*this, difference, rows, extentOf(changes), text.isEmpty() ? describe(changes) : text));
    return true;
}

void History::go(const DictionaryDifference &difference, const Rows &rows, Extent extent)
{
    // What views may still show is deleted only when they have heard of it.
    DictionaryDifference::Removed removed;
    m_announce(extent, [&difference, &rows, &removed](TDcEntity &root) {
        difference.apply(*Places::at(&root, rows), &removed);
    });
    difference.apply(*Places::at(m_shadow.get(), rows));
}

QString History::describe(const QList<DictionaryChange> &changes)
{
    if (changes.size() != 1)
        return tr("%L1 changes").arg(changes.size());
    const DictionaryChange &change = changes.first();
    const QString name = change.path.section(u'/', -1);
    switch (change.kind) {
    case DictionaryChange::Kind::Renamed:
        return tr("rename of %1").arg(name);
    case DictionaryChange::Kind::Changed:
        return tr("%1 of %2", "a property and what has it").arg(change.propertyText(), name);
    default:
        return tr("change of %1").arg(name);
    }
}
