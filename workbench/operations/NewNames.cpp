#include "workbench/operations/NewNames.h"

#include "common/DictionaryUtil.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{
/// \a name as it is compared.
QString folded(const QString &name)
{
    return name.trimmed().toCaseFolded();
}
} // namespace

NewNames::NewNames(const QList<QString> &taken)
{
    for (const QString &name : taken)
        m_taken.insert(folded(name));
    m_taken.remove({});
}

NewNames NewNames::forEntities(TDcEntity *root)
{
    DictionaryUtil names;
    QList<QString> taken = names.getNamesEntitiesDictionary(root, {});
    taken = names.getGroupEntitiesDictionary(root, taken);
    return NewNames(names.getAliasEntitiesDictionary(root, taken));
}

NewNames NewNames::forVariables(TDcEntity *root, TDcEntity *entity)
{
    DictionaryUtil names;
    QList<QString> taken = names.getNamesEntitiesDictionary(root, {});
    taken = names.getNamesVariablesByEntities(entity, taken);
    return NewNames(names.getAliasVariableByEntity(entity, taken));
}

bool NewNames::isFree(const QString &name) const
{
    return !m_taken.contains(folded(name));
}

QString NewNames::take(const QString &base)
{
    if (folded(base).isEmpty())
        return base;
    // What was once taken stays so, and need not be tried again.
    int &number = m_last[folded(base)];
    const QString stem = base.trimmed(); // There may be blanks around a name, but not within it.
    QString name = number == 0 ? base : u"%1_%2"_s.arg(stem, QString::number(number));
    while (!isFree(name)) {
        number = std::max(number + 1, 2);
        name = u"%1_%2"_s.arg(stem, QString::number(number));
    }
    m_taken.insert(folded(name));
    return name;
}

QString NewNames::entity(TDcEntity *root, const QString &base)
{
    return forEntities(root).take(base);
}

QString NewNames::variable(TDcEntity *root, TDcEntity *entity, const QString &base)
{
    return forVariables(root, entity).take(base);
}
