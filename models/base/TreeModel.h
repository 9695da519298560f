#pragma once

#include "models/base/TreePlaces.h"

#include <QAbstractItemModel>
#include <QList>

/// A one-column tree whose rows are nodes that live elsewhere; `Node` has getChildren() and getLevel().
///
/// An index carries the node that its row shows. The invisible root has one row, the root node, which must
/// have level 1: level 1 marks the top of the tree, and a root of another level would be its own parent,
/// which sends views into endless loops. The tree may change behind the model's back, but then views have to
/// be told as usual; each node stands in it once. Derived classes add what a cell shows and what an edit
/// does; they carry the meta-object and the texts.
template <typename Node>
class TreeModel : public QAbstractItemModel
{
public:
    using QAbstractItemModel::parent; // keeps QObject::parent() callable

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override
    {
        const QList<Node *> *rows = rowsBelow(parent);
        if (!rows || row < 0 || row >= rows->size())
            return {};
        return createIndex(row, column, rows->at(row));
    }

    /// The row of the index returned is the level of \a index's node; see recorrerStructuraArbol().
    [[nodiscard]] QModelIndex parent(const QModelIndex &index) const override
    {
        Node *node = itemAt(index);
        if (!node || node->getLevel() == TopLevel)
            return {};
        return parentOf(node);
    }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override
    {
        const QList<Node *> *rows = rowsBelow(parent);
        return rows ? int(rows->size()) : 0;
    }

    [[nodiscard]] int columnCount(const QModelIndex & = {}) const override { return 1; }

    /// Searches \a target in the tree under \a node, depth first, and returns the index of its parent;
    /// \a parentNode is the one to answer if \a node itself is the target. Invalid if it is not found.
    ///
    /// The row of the answer is the level of \a target, not the position of the parent among its siblings:
    /// callers rely on it.
    [[nodiscard]] QModelIndex recorrerStructuraArbol(Node *target, Node *node, Node *parentNode) const
    {
        qsizetype visited = 0;
        return search(target, node, parentNode, visited);
    }

protected:
    TreeModel(QObject *parent, Node *root) : QAbstractItemModel(parent), m_topLevel{root}, m_root(root) { }

    static constexpr int TopLevel = 1;

    /// The node behind \a index; null for an index that is invalid, carries no node or is not of this model.
    [[nodiscard]] Node *itemAt(const QModelIndex &index) const
    {
        return index.model() == this ? static_cast<Node *>(index.internalPointer()) : nullptr;
    }

    const QList<Node *> m_topLevel; // The one node in it is not owned.
    Node *const m_root; // Not owned.

private:
    /// Null for an index without a node.
    [[nodiscard]] const QList<Node *> *rowsBelow(const QModelIndex &parent) const
    {
        if (!parent.isValid())
            return &m_topLevel;
        const Node *node = itemAt(parent);
        return node ? node->getChildren() : nullptr;
    }

    /// Answers what `recorrerStructuraArbol(node, root, root)` does. Views ask this all the time, so it
    /// searches only where the place of the node is not known.
    [[nodiscard]] QModelIndex parentOf(Node *node) const
    {
        // The search takes a find with a negative row for none and goes on.
        const bool known = node != m_root && node->getLevel() >= 0;
        Node *found = known ? m_places.parentOf(node, m_root) : nullptr;
        if (known && !found && m_places.worthFilling()) {
            m_places.fill(m_root);
            found = m_places.parentOf(node, m_root);
        }
        if (found)
            return createIndex(node->getLevel(), 0, found);

        qsizetype visited = 0;
        const QModelIndex answer = search(node, m_root, m_root, visited);
        m_places.noteSearch(visited);
        return answer;
    }

    [[nodiscard]] QModelIndex search(Node *target, Node *node, Node *parentNode, qsizetype &visited) const
    {
        if (!target)
            return {};
        if (target == node)
            return createIndex(target->getLevel(), 0, parentNode);
        QModelIndex answer;
        walkPlaces(node, [this, target, &answer, &visited](Node *child, Node *parent, int, int) {
            ++visited;
            if (child != target) {
                answer = {};
                return Walk::Into;
            }
            answer = createIndex(target->getLevel(), 0, parent);
            return answer.isValid() ? Walk::Stop : Walk::Over;
        });
        return answer; // Of the last branch, even if its row is negative.
    }

    mutable TreePlaces<Node> m_places;
};
