#include "workbench/operations/NewNames.h"

#include "common/DictionaryUtil.h"

#include <QSet>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

QString NewNames::free(const QString &base, const QList<QString> &taken)
{
    QSet<QString> folded;
    std::for_each(taken.cbegin(), taken.cend(),
                  [&folded](const QString &name) { folded.insert(name.trimmed().toCaseFolded()); });
    QString name = base;
    for (int number = 2; folded.contains(name.toCaseFolded()); ++number)
        name = u"%1_%2"_s.arg(base, QString::number(number));
    return name;
}

QString NewNames::entity(TDcEntity *root, const QString &base)
{
    DictionaryUtil names;
    QList<QString> taken = names.getNamesEntitiesDictionary(root, {});
    taken = names.getGroupEntitiesDictionary(root, taken);
    taken = names.getAliasEntitiesDictionary(root, taken);
    return free(base, taken);
}

QString NewNames::variable(TDcEntity *root, TDcEntity *entity, const QString &base)
{
    DictionaryUtil names;
    QList<QString> taken = names.getNamesEntitiesDictionary(root, {});
    taken = names.getNamesVariablesByEntities(entity, taken);
    taken = names.getAliasVariableByEntity(entity, taken);
    return free(base, taken);
}
