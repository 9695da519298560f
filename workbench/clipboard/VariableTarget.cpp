#include "workbench/clipboard/VariableTarget.h"

#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "workbench/operations/ListEdits.h"
#include "workbench/operations/NewNames.h"
#include "workbench/operations/VariableEdits.h"

#include <QSet>

#include <algorithm>
#include <utility>

VariableTarget::VariableTarget(TDcEntity *root, TDcEntity *entity, const QList<TDcVariable *> &displayed,
                               const QList<int> &columns)
    : m_root(root), m_entity(entity), m_newTags(*entity->getVariables()), m_properties(properties(columns)),
      m_displayedColumns(int(columns.size()))
{
    for (TDcVariable *variable : displayed)
        append(variable);
    // Those that a filter hides have their names too. The first of a name counts.
    const QList<TDcVariable *> &all = *entity->getVariables();
    for (qsizetype i = all.size() - 1; i >= 0; --i)
        remember(all.at(i)->getName(), all.at(i));
}

QList<VariableProperty> VariableTarget::properties(const QList<int> &columns)
{
    const QList<VariableProperty> &all = VariableProperties::all();
    QList<VariableProperty> properties;
    std::transform(columns.cbegin(), columns.cend(), std::back_inserter(properties),
                   [&all](int column) { return all.at(column); });
    std::copy_if(all.cbegin(), all.cend(), std::back_inserter(properties),
                 [&columns](const VariableProperty &property) { return !columns.contains(property.column); });
    return properties;
}

void VariableTarget::remember(const QString &name, TDcVariable *variable)
{
    if (name.trimmed().isEmpty())
        return;
    m_byName.insert(name.trimmed(), variable);
    m_byFoldedName.insert(name.trimmed().toCaseFolded(), variable);
}

int VariableTarget::append(TDcVariable *variable)
{
    m_variables.append(variable);
    m_rows.insert(variable, rowCount() - 1);
    return rowCount() - 1;
}

QList<PasteTarget::Column> VariableTarget::columns() const
{
    QList<Column> columns;
    std::transform(m_properties.cbegin(), m_properties.cend(), std::back_inserter(columns),
                   [](const VariableProperty &property) {
                       return Column{property.title(), QString::fromLatin1(property.name)};
                   });
    return columns;
}

QList<int> VariableTarget::keyColumns() const
{
    const auto name = std::find_if(m_properties.cbegin(), m_properties.cend(),
                                   [](const VariableProperty &property) { return property.column == 0; });
    return {int(name - m_properties.cbegin())};
}

int VariableTarget::find(const QStringList &keys)
{
    const QString name = keys.constFirst().trimmed();
    TDcVariable *variable = m_byName.value(name, m_byFoldedName.value(name.toCaseFolded()));
    if (!variable)
        return -1;
    const auto row = m_rows.constFind(variable);
    return row == m_rows.cend() ? append(variable) : *row;
}

void VariableTarget::add(const QStringList &keys)
{
    // The name is stored later, as any other cell is; until then it is in nobody's way.
    TDcVariable *variable = VariableEdits::add(m_entity, {}, m_newTags.take());
    append(variable);
    m_added.append(variable);
    if (!keys.isEmpty())
        remember(keys.constFirst(), variable);
}

QString VariableTarget::store(int row, int column, const QString &text)
{
    if (!m_writer)
        m_writer = std::make_unique<VariableWriter>(m_root, m_entity);
    TDcVariable *variable = m_variables.at(row);
    const VariableProperty &property = m_properties.at(column);
    // What was found without regard to case keeps its name.
    const bool found =
        property.column == 0 && m_byFoldedName.value(text.trimmed().toCaseFolded()) == variable;
    if (found && !variable->getName().isEmpty())
        return {};
    return m_writer->writeText(variable, property, text);
}

void VariableTarget::discard(int row)
{
    m_discarded.append(std::exchange(m_variables[row], nullptr));
}

void VariableTarget::finish()
{
    m_writer.reset();
    const QSet<TDcVariable *> discarded(m_discarded.cbegin(), m_discarded.cend());
    m_added.removeIf([&discarded](TDcVariable *variable) { return discarded.contains(variable); });
    ListEdits::remove(*m_entity->getVariables(), std::exchange(m_discarded, {}));
    auto names = NewNames::forVariables(m_root, m_entity);
    for (TDcVariable *variable : std::as_const(m_added)) {
        if (variable->getName().isEmpty())
            variable->setName(names.take(QCoreApplication::translate("VariableTablePanel", "VARIABLE")));
    }
}
