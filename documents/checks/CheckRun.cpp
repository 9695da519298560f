#include "documents/checks/CheckRun.h"

#include "documents/checks/internal/Rules.h"

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

namespace
{
/// Gathers the entities without recursion: a chain of them may be deeper than the stack.
Checks::Dictionary gather(TDcEntity *root)
{
    Checks::Dictionary dictionary;
    std::vector<Checks::EntityNode> pending;
    if (root)
        pending.push_back({root, nullptr});
    while (!pending.empty()) {
        const Checks::EntityNode node = pending.back();
        pending.pop_back();
        const QString name = Checks::folded(node.entity->getName());
        if (!name.isEmpty() && !dictionary.entityNames.contains(name))
            dictionary.entityNames.insert(name, node.entity);
        dictionary.entities.push_back(node);
        const auto &children = *node.entity->getChildren();
        std::for_each(children.crbegin(), children.crend(), [&](TDcEntity *child) {
            if (child)
                pending.push_back({child, &dictionary.entities.back()});
        });
    }
    return dictionary;
}

Checks::Entity lookAt(const Checks::Dictionary &dictionary, const Checks::EntityNode &node)
{
    Checks::Entity entity{dictionary, node, {}, {}, {}};
    const auto insertFirst = [](QHash<QString, TDcVariable *> &hash, const QString &text,
                                TDcVariable *variable) {
        const QString key = Checks::folded(text);
        if (!key.isEmpty() && !hash.contains(key))
            hash.insert(key, variable);
    };
    for (TDcVariable *variable : std::as_const(*node.entity->getVariables())) {
        if (!variable)
            continue;
        entity.variables.append(variable);
        insertFirst(entity.names, variable->getName(), variable);
        insertFirst(entity.aliases, variable->getAlias(), variable);
    }
    return entity;
}
} // namespace

struct CheckRun::State {
    explicit State(TDcEntity *root) : dictionary(gather(root))
    {
        for (const Checks::EntityNode &node : dictionary.entities)
            all += 1 + node.entity->getVariables()->size();
    }

    /// Does what comes next: a rule about the whole or about an entity, or a variable. False when there is
    /// nothing left.
    bool step();
    /// Puts the rules about a large \a subject off, one by one: each may take its time.
    template <typename Subject>
    void schedule(std::span<const Checks::Rule<Subject>> rules, const Subject &subject)
    {
        for (const Checks::Rule<Subject> &rule : rules)
            pending.emplace_back(
                [this, &rule, &subject] { Checks::apply(std::span(&rule, 1), subject, findings); });
    }

    Checks::Dictionary dictionary;
    QList<Finding> findings;
    bool begun = false;
    std::deque<std::function<void()>> pending;
    size_t nextEntity = 0;
    std::unique_ptr<Checks::Entity> entity; ///< The one at hand; null between entities.
    qsizetype nextVariable = 0;
    qsizetype done = 0; ///< Entities and variables.
    qsizetype all = 0;
};

bool CheckRun::State::step()
{
    if (!std::exchange(begun, true))
        schedule(Checks::dictionaryRules(), dictionary);
    if (!pending.empty()) {
        pending.front()();
        pending.pop_front();
        return true;
    }
    if (entity && nextVariable < entity->variables.size()) {
        TDcVariable &item = *entity->variables.at(nextVariable++);
        const Checks::Variable variable{*entity, item, TypeWord(item.getVarType())};
        Checks::apply(Checks::variableRules(), variable, findings);
        Checks::apply(Checks::valueRules(), variable, findings);
        Checks::apply(Checks::categoryRules(), variable, findings);
        ++done;
        return true;
    }
    entity.reset();
    if (nextEntity >= dictionary.entities.size())
        return false;
    entity = std::make_unique<Checks::Entity>(lookAt(dictionary, dictionary.entities[nextEntity++]));
    nextVariable = 0;
    schedule(Checks::entityRules(), *entity);
    schedule(Checks::entityNameRules(), *entity);
    ++done;
    return true;
}

CheckRun::CheckRun(TDcEntity *root) : m_state(std::make_unique<State>(root)) { }

CheckRun::~CheckRun() = default;

bool CheckRun::advance(QDeadlineTimer deadline)
{
    while (m_state->step()) {
        if (deadline.hasExpired())
            return false;
    }
    return true;
}

double CheckRun::part() const
{
    return m_state->all > 0 ? std::min(1.0, double(m_state->done) / double(m_state->all)) : 1;
}

QList<Finding> CheckRun::findings() const
{
    return m_state->findings;
}
