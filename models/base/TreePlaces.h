#pragma once

#include <QHash>
#include <QList>
#include <QVarLengthArray>

/// What a walk does after it has shown a node.
enum class Walk { Into, Over, Stop };

/// Calls \a visit(child, parent, row, depth) with every node below \a root: a node before its children,
/// children in list order; those of \a root have depth 1. Nulls are shown too. The walk keeps its own path,
/// so depth is not bounded by the stack.
template <typename Node, typename Visit>
void walkPlaces(Node *root, Visit visit)
{
    struct Step {
        Node *parent;
        int next;
    };
    QVarLengthArray<Step, 32> path;
    if (root)
        path.append({root, 0});
    while (!path.isEmpty()) {
        const Step step = path.last();
        const auto *children = step.parent->getChildren();
        if (step.next >= children->size()) {
            path.removeLast();
            continue;
        }
        ++path.last().next;
        Node *child = children->at(step.next);
        const Walk walk = visit(child, step.parent, step.next, int(path.size()));
        if (walk == Walk::Stop)
            return;
        if (walk == Walk::Into && child)
            path.append({child, 0});
    }
}

/// Where each node of a tree stood when the tree was last walked: its parent and its row.
///
/// The tree may have changed since, so what is remembered is only a hint. Nothing is read through a
/// remembered address (the node may be gone, its address may belong to another one by now): parentOf() walks
/// down the living tree along the remembered rows and answers only if that leads to the node asked for.
template <typename Node>
class TreePlaces
{
public:
    /// The parent of \a node, which is not \a root, in the tree under \a root; null if the way remembered
    /// does not lead to it. Takes time in proportion to the depth of the node.
    [[nodiscard]] Node *parentOf(const Node *node, Node *root) const
    {
        const auto place = m_places.constFind(node);
        if (place == m_places.cend())
            return nullptr;
        QVarLengthArray<int, 32> rows{place->row}; // from the node upwards
        for (int branch = place->branch; branch != 0; branch = m_branches.at(branch).branch)
            rows.append(m_branches.at(branch).row);
        Node *parent = nullptr;
        Node *reached = root;
        for (auto row = rows.crbegin(); row != rows.crend() && reached; ++row) {
            const auto *children = reached->getChildren();
            if (*row >= children->size())
                return nullptr;
            parent = reached;
            reached = children->at(*row);
        }
        return reached == node ? parent : nullptr;
    }

    /// Remembers the tree under \a root as it is now. Of a node that stands there twice the first place
    /// counts, as in a search.
    void fill(Node *root)
    {
        m_places.clear();
        m_branches = {{0, 0}};
        m_searched = 0;
        QList<int> way{0}; // the branches that lead to the node shown, by depth
        walkPlaces(root, [this, root, &way](Node *node, Node *, int row, int depth) {
            if (!node || node == root || m_places.contains(node))
                return Walk::Over;
            const Place place{way.at(depth - 1), row};
            m_places.insert(node, place);
            if (!node->getChildren()->isEmpty()) {
                way.resize(depth);
                way.append(int(m_branches.size()));
                m_branches.append(place);
            }
            return Walk::Into;
        });
    }

    /// To be told how many nodes a search has visited because parentOf() had no answer.
    void noteSearch(qsizetype visited) { m_searched += visited; }

    /// Whether the searches so far have cost more than filling, so that it never costs much more than them.
    [[nodiscard]] bool worthFilling() const { return m_searched >= FillCost * m_places.size(); }

private:
    /// Small, since answers about a large tree take as long as this is fetched from memory.
    struct Place {
        int branch; // of the parent, in m_branches
        int row;
    };

    static constexpr qsizetype FillCost = 20; // Visiting a node in fill() takes as long as in 20 searches.

    QHash<const void *, Place> m_places; // of all nodes but the root
    QList<Place> m_branches; // of those with children, after the root
    qsizetype m_searched = 0;
};
