#pragma once

#include "model/TDcEntity.h"
#include "model/TDcVariable.h"

#include <QString>
#include <QStringView>

#include <memory>

/// A variable with just these texts.
[[nodiscard]] inline TDcVariable *makeVariable(const QString &name, const QString &alias = {},
                                               const QString &label = {}, const QString &group = {})
{
    auto *variable = new TDcVariable;
    variable->setName(name);
    variable->setAlias(alias);
    variable->setLabel(label);
    variable->setGroup(group);
    return variable;
}

/// A tree of `Node` from indented text: one name a line, four blanks for each step down, levels from 1.
/// `make` is called with each trimmed line and returns a new node.
template <typename Node, typename Make>
[[nodiscard]] std::unique_ptr<Node> makeTree(QStringView text, Make make)
{
    std::unique_ptr<Node> root;
    QList<Node *> path;
    const auto lines = text.split(u'\n');
    for (QStringView line : lines) {
        if (line.trimmed().isEmpty())
            continue;
        const auto blanks = line.indexOf(line.trimmed().front());
        const qsizetype depth = root ? blanks / 4 : 0;
        Node *node = make(line.trimmed().toString());
        node->setLevel(int(depth) + 1);
        if (root)
            path.at(depth - 1)->getChildren()->append(node);
        else
            root.reset(node);
        path.resize(depth);
        path.append(node);
    }
    return root;
}

/// A tree of entities from indented text, see makeTree(). A line is a name, or a name and an alias:
/// "PERSON/per".
[[nodiscard]] inline std::unique_ptr<TDcEntity> makeEntities(QStringView text)
{
    return makeTree<TDcEntity>(text, [](const QString &line) {
        auto *entity = new TDcEntity;
        entity->setName(line.section(u'/', 0, 0));
        entity->setAlias(line.section(u'/', 1, 1));
        return entity;
    });
}

/// The first entity of the tree under \a root called \a name; null when there is none.
[[nodiscard]] inline TDcEntity *findEntity(TDcEntity *root, QStringView name)
{
    if (root->getName() == name)
        return root;
    for (TDcEntity *child : std::as_const(*root->getChildren())) {
        if (TDcEntity *found = findEntity(child, name))
            return found;
    }
    return nullptr;
}
