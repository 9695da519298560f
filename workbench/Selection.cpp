#include "workbench/Selection.h"

#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "workbench/Document.h"
#include "workbench/operations/Places.h"

#include <QSet>

#include <algorithm>

Selection::Selection(Document *document, QObject *parent)
    : QObject(parent), m_document(document), m_entity(document->root())
{
    connect(document, &Document::structureAboutToChange, this, &Selection::remember);
    connect(document, &Document::structureChanged, this, &Selection::restore);
}

void Selection::setEntity(TDcEntity *entity)
{
    if (entity == m_entity)
        return;
    TDcVariable *first =
        entity && !entity->getVariables()->isEmpty() ? entity->getVariables()->first() : nullptr;
    m_chosen = false;
    change(entity, first);
}

void Selection::setVariables(const QList<TDcVariable *> &variables, TDcVariable *current)
{
    m_chosen = true;
    change(variables, current);
}

void Selection::select(TDcEntity *entity, TDcVariable *variable)
{
    m_chosen = true;
    change(entity, variable);
}

void Selection::change(const QList<TDcVariable *> &variables, TDcVariable *current)
{
    // Not with QList's own comparison: of two empty lists it compares the memory at null.
    if (std::equal(variables.cbegin(), variables.cend(), m_variables.cbegin(), m_variables.cend())
        && current == m_current)
        return;
    m_variables = variables;
    m_current = current;
    Q_EMIT variablesChanged();
}

void Selection::change(TDcEntity *entity, TDcVariable *variable)
{
    const bool another = entity != m_entity;
    if (another) {
        m_entity = entity;
        m_variables.clear();
        m_current = nullptr;
        Q_EMIT entityChanged(entity);
    }
    const QList<TDcVariable *> variables = variable ? QList{variable} : QList<TDcVariable *>();
    if (another && !variable)
        Q_EMIT variablesChanged();
    change(variables, variable);
}

bool Selection::select(const QString &path)
{
    const qsizetype slash = path.indexOf(u'/');
    TDcEntity *entity = Places::findEntity(m_document->root(), path.left(slash));
    if (!entity)
        return false;
    if (slash < 0) {
        setEntity(entity);
        return true;
    }
    TDcVariable *variable = Places::findVariable(entity, path.mid(slash + 1));
    if (variable)
        select(entity, variable);
    return variable;
}

void Selection::remember()
{
    m_before = {};
    for (TDcEntity *node = m_entity; node; node = Places::parentOf(m_document->root(), node)) {
        m_before.path.prepend(node);
        m_before.names.prepend(node->getName());
    }
    m_before.variables = m_variables;
    for (const TDcVariable *variable : std::as_const(m_variables))
        m_before.variableNames.append(variable->getName());
    if (const TDcVariable *current = variable()) {
        m_before.current = m_current;
        m_before.currentName = current->getName();
        m_before.row = m_entity->getVariables()->indexOf(m_current);
    }
    m_variables.clear();
    m_current = nullptr;
    m_entity = nullptr;
    Q_EMIT entityChanged(nullptr);
    Q_EMIT variablesChanged();
}

TDcEntity *Selection::findEntity() const
{
    TDcEntity *root = m_document->root();
    if (!m_before.path.isEmpty() && m_before.path.first() == root) {
        // The deepest of the path that is still there; the root is.
        return *std::find_if(m_before.path.crbegin(), m_before.path.crend(),
                             [root](const TDcEntity *entity) { return Places::holds(root, entity); });
    }
    TDcEntity *entity = root;
    for (qsizetype depth = 1; depth < m_before.names.size(); ++depth) {
        const QList<TDcEntity *> &children = *entity->getChildren();
        const auto next = std::find_if(children.cbegin(), children.cend(), [&](const TDcEntity *child) {
            return child->getName() == m_before.names.at(depth);
        });
        if (next == children.cend())
            break;
        entity = *next;
    }
    return entity;
}

QList<TDcVariable *> Selection::findVariables() const
{
    const QSet<TDcVariable *> addresses(m_before.variables.cbegin(), m_before.variables.cend());
    const QSet<QString> names(m_before.variableNames.cbegin(), m_before.variableNames.cend());
    const QList<TDcVariable *> &all = *m_entity->getVariables();
    QList<TDcVariable *> found;
    std::copy_if(all.cbegin(), all.cend(), std::back_inserter(found),
                 [&addresses](TDcVariable *variable) { return addresses.contains(variable); });
    if (found.isEmpty()) {
        std::copy_if(all.cbegin(), all.cend(), std::back_inserter(found),
                     [&names](const TDcVariable *variable) { return names.contains(variable->getName()); });
    }
    if (found.isEmpty() && !all.isEmpty())
        found.append(all.at(qBound(qsizetype(0), m_before.row, all.size() - 1)));
    return found;
}

void Selection::restore()
{
    m_entity = findEntity();
    Q_EMIT entityChanged(m_entity);
    const QList<TDcVariable *> variables = findVariables();
    const auto current =
        std::find_if(variables.cbegin(), variables.cend(), [this](const TDcVariable *variable) {
            return variable == m_before.current || variable->getName() == m_before.currentName;
        });
    m_variables = variables;
    m_current = current == variables.cend() ? variables.value(0) : *current;
    m_chosen = false;
    Q_EMIT variablesChanged();
}
