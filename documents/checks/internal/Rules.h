#pragma once

#include "documents/checks/DictionaryCheck.h"
#include "documents/checks/internal/TypeWord.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"

#include <QHash>
#include <QSet>

#include <deque>
#include <span>

/// The rules, and what they look at. A rule is one function in one of the tables.
namespace Checks
{
struct EntityNode {
    TDcEntity *entity;
    const EntityNode *parent; ///< Null for the root.

    /// Names from the root, joined with "/". Made when it is wanted: deep trees would need too many.
    [[nodiscard]] QString path() const;
};

/// Names are equal for the layer when they are in this form.
[[nodiscard]] inline QString folded(const QString &name)
{
    return name.trimmed().toUpper();
}

/// A dictionary with what rules of every kind need to know of it. Holds no nulls.
struct Dictionary {
    std::deque<EntityNode> entities; ///< In pre-order; nodes stay where they are.
    QHash<QString, const TDcEntity *> entityNames; ///< Folded; the first entity of each name.
};

struct Entity {
    const Dictionary &dictionary;
    const EntityNode &node;
    QList<TDcVariable *> variables; ///< Without nulls.
    QHash<QString, TDcVariable *> names; ///< Folded; the first variable of each name.
    QHash<QString, TDcVariable *> aliases; ///< The same with aliases.

    [[nodiscard]] TDcEntity &entity() const { return *node.entity; }
};

struct Variable {
    const Entity &owner;
    TDcVariable &variable;
    TypeWord type;
};

/// Takes the findings of one rule.
class Report
{
public:
    Report(QList<Finding> &findings, QLatin1StringView rule, Severity severity)
        : m_findings(findings), m_rule(rule), m_severity(severity)
    {
    }

    void add(const Dictionary &dictionary, const QString &message, const QString &suggestion);
    void add(const EntityNode &node, const QString &message, const QString &suggestion);
    void add(const Entity &entity, const QString &message, const QString &suggestion)
    {
        add(entity.node, message, suggestion);
    }
    void add(const Entity &entity, TDcVariable &variable, const QString &message, const QString &suggestion,
             ValueLabelElement *valueLabel = nullptr, Range *range = nullptr);
    void add(const Variable &variable, const QString &message, const QString &suggestion)
    {
        add(variable.owner, variable.variable, message, suggestion);
    }
    void add(const Variable &variable, ValueLabelElement &element, const QString &message,
             const QString &suggestion)
    {
        add(variable.owner, variable.variable, message, suggestion, &element);
    }
    void add(const Variable &variable, Range &range, const QString &message, const QString &suggestion)
    {
        add(variable.owner, variable.variable, message, suggestion, nullptr, &range);
    }

private:
    QList<Finding> &m_findings;
    QLatin1StringView m_rule;
    Severity m_severity;
};

template <typename Subject>
struct Rule {
    QLatin1StringView id;
    Severity severity;
    const char *title;
    void (*check)(const Subject &subject, Report &report);
};

template <typename Subject>
void apply(std::span<const Rule<Subject>> rules, const Subject &subject, QList<Finding> &findings)
{
    for (const Rule<Subject> &rule : rules) {
        Report report(findings, rule.id, rule.severity);
        rule.check(subject, report);
    }
}

[[nodiscard]] std::span<const Rule<Dictionary>> dictionaryRules();
[[nodiscard]] std::span<const Rule<Entity>> entityRules();
[[nodiscard]] std::span<const Rule<Entity>> entityNameRules();
[[nodiscard]] std::span<const Rule<Variable>> variableRules();
[[nodiscard]] std::span<const Rule<Variable>> valueRules();
[[nodiscard]] std::span<const Rule<Variable>> categoryRules();

/// Calls \a clash with every item whose key an earlier item has, and that earlier item. Empty keys never
/// clash.
template <typename List, typename Key, typename Clash>
void forEachRepeated(const List &items, Key key, Clash clash)
{
    QHash<QString, typename List::value_type> first;
    for (const auto &item : items) {
        const QString text = key(item);
        if (text.isEmpty())
            continue;
        if (const auto found = first.constFind(text); found != first.cend())
            clash(item, *found);
        else
            first.insert(text, item);
    }
}
} // namespace Checks
