#pragma once

#include <QList>
#include <QSet>
#include <QtGlobal>

#include <algorithm>
#include <memory>
#include <utility>

/// A list of objects together with their ownership: everything that owns dictionary objects does it with
/// this.
///
/// get() is a live list: what is appended to it is owned from then on, what is taken out of it belongs to
/// whoever took it out. All that is left is deleted with the OwnedList. Nulls in the list are harmless.
template <typename T>
class OwnedList
{
public:
    OwnedList() = default;
    ~OwnedList() { qDeleteAll(*get()); }
    Q_DISABLE_COPY_MOVE(OwnedList)

    /// The live list. Never null; valid until reset() puts another one in its place.
    [[nodiscard]] QList<T *> *get() const { return m_given ? m_given.get() : &m_embedded; }

    void append(T *item) { get()->append(item); }
    void append(std::unique_ptr<T> item)
    {
        get()->append(item.get());
        (void)item.release(); // Only now: if there is no room for it, the item is deleted.
    }

    /// Takes \a list over and deletes the list before it, with those of its objects that \a list does not
    /// hold too, so that a changed copy can be handed over. The list already held changes nothing. Null
    /// stands for an empty list.
    void reset(QList<T *> *list)
    {
        if (list == get())
            return;
        const QList<T *> old = std::exchange(*get(), {});
        m_given.reset(list);
        const QSet<T *> kept(get()->cbegin(), get()->cend());
        std::for_each(old.cbegin(), old.cend(), [&kept](T *item) {
            if (!kept.contains(item))
                delete item;
        });
    }

    /// Gives list and objects away to the caller and leaves an empty list behind.
    [[nodiscard]] QList<T *> *release()
    {
        if (m_given)
            return m_given.release();
        return new QList<T *>(std::exchange(m_embedded, {}));
    }

private:
    // Most lists are never replaced: keeping the first one in place saves an allocation for each of them.
    mutable QList<T *> m_embedded;
    std::unique_ptr<QList<T *>> m_given;
};

/// Deletes everything below \a node. A chain of nodes may be deeper than the stack, so the nodes are taken
/// out of their parents first and each is deleted without children.
template <typename Node>
void deleteDescendants(const Node &node)
{
    QList<Node *> nodes = std::exchange(*node.getChildren(), {});
    for (qsizetype i = 0; i < nodes.size(); ++i) {
        if (nodes.at(i))
            nodes += std::exchange(*nodes.at(i)->getChildren(), {});
    }
    qDeleteAll(nodes);
}
