#include "documents/checks/DictionaryCheck.h"

#include "documents/checks/CheckRun.h"
#include "documents/checks/internal/Rules.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{
template <typename Subject>
void appendRules(std::span<const Checks::Rule<Subject>> from, QList<CheckRule> &rules)
{
    std::transform(from.begin(), from.end(), std::back_inserter(rules), [](const auto &rule) {
        return CheckRule{rule.id, rule.severity, DictionaryCheck::tr(rule.title)};
    });
}
} // namespace

QList<Finding> DictionaryCheck::check(TDcEntity *root)
{
    CheckRun run(root);
    run.advance();
    return run.findings();
}

QString DictionaryCheck::summary(const QList<Finding> &findings)
{
    if (findings.isEmpty())
        return tr("No problems found.");
    const auto count = [&findings](Severity severity) {
        return std::count_if(findings.cbegin(), findings.cend(),
                             [severity](const Finding &finding) { return finding.severity == severity; });
    };
    return tr("Errors: %L1, warnings: %L2, notes: %L3.")
        .arg(count(Severity::Error))
        .arg(count(Severity::Warning))
        .arg(count(Severity::Note));
}

QList<CheckRule> DictionaryCheck::rules()
{
    QList<CheckRule> rules;
    appendRules(Checks::dictionaryRules(), rules);
    appendRules(Checks::entityRules(), rules);
    appendRules(Checks::entityNameRules(), rules);
    appendRules(Checks::variableRules(), rules);
    appendRules(Checks::valueRules(), rules);
    appendRules(Checks::categoryRules(), rules);
    return rules;
}

QString DictionaryCheck::severityName(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return tr("Error");
    case Severity::Warning:
        return tr("Warning");
    case Severity::Note:
        break;
    }
    return tr("Note");
}

QString Checks::EntityNode::path() const
{
    QStringList names;
    for (const EntityNode *node = this; node; node = node->parent)
        names.prepend(node->entity->getName());
    return names.join(u'/');
}

void Checks::Report::add(const Dictionary &dictionary, const QString &message, const QString &suggestion)
{
    const EntityNode &root = dictionary.entities.front();
    m_findings.append(
        {m_rule, m_severity, nullptr, nullptr, nullptr, nullptr, root.path(), message, suggestion});
}

void Checks::Report::add(const EntityNode &node, const QString &message, const QString &suggestion)
{
    m_findings.append(
        {m_rule, m_severity, node.entity, nullptr, nullptr, nullptr, node.path(), message, suggestion});
}

void Checks::Report::add(const Entity &entity, TDcVariable &variable, const QString &message,
                         const QString &suggestion, ValueLabelElement *valueLabel, Range *range)
{
    m_findings.append({m_rule, m_severity, &entity.entity(), &variable, valueLabel, range,
                       entity.node.path() + u'/' + variable.getName(), message, suggestion});
}
