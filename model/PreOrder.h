#pragma once

#include <QList>

#include <algorithm>
#include <iterator>

/// Calls \a visit with every node of the tree under \a root: a node before its children, children in list
/// order. Nulls are passed over. The walk keeps its own list, so depth is not bounded by the stack.
template <typename Node, typename Visit>
void preOrder(Node *root, Visit visit)
{
    QList<Node *> pending{root};
    while (!pending.isEmpty()) {
        Node *node = pending.takeLast();
        if (!node)
            continue;
        visit(node);
        const auto *children = node->getChildren();
        std::copy(children->crbegin(), children->crend(), std::back_inserter(pending));
    }
}
