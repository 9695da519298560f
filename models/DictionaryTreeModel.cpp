#include "models/DictionaryTreeModel.h"

#include "common/UtilForms.h"
#include "models/internal/NameRules.h"

namespace
{
constexpr int MaxNameLength = 50; // The message names it too.
}

DictionaryTreeModel::DictionaryTreeModel(QObject *parent, TDcEntity *root) : EntityTree(parent, root) { }

QVariant DictionaryTreeModel::data(const QModelIndex &index, int role) const
{
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return {};
    return getItemData(itemAt(index), index.column());
}

bool DictionaryTreeModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    TDcEntity *entity = itemAt(index);
    if (!entity || !acceptName(*entity, value.toString()))
        return false;
    if (role == Qt::EditRole && index.column() == 0)
        entity->setName(value.toString().trimmed());
    Q_EMIT dataChanged(index, index);
    return true;
}

QVariant DictionaryTreeModel::headerData(int, Qt::Orientation, int role) const
{
    return role == Qt::DisplayRole ? tr("Entities") : QVariant();
}

Qt::ItemFlags DictionaryTreeModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = EntityTree::flags(index);
    return index.isValid() ? flags | Qt::ItemIsEditable : flags;
}

bool DictionaryTreeModel::acceptName(const TDcEntity &entity, const QString &name)
{
    if (!m_validator.validateEmpty(name) || !m_validator.validateName(name))
        return false;
    const char *message = objection(entity, name);
    if (message)
        UtilForms::showInfoMessage(tr(message));
    return !message;
}

/// The text of the first rule that \a name breaks; null if it may be the name of \a entity.
const char *DictionaryTreeModel::objection(const TDcEntity &entity, const QString &name)
{
    // An entity may keep its name, in other letter case too. Its own alias is taken like all others.
    const bool unchanged = m_validator.compare({entity.getName()}, name);
    const QList<QString> names =
        unchanged ? QList<QString>() : m_dictionaryUtil.getNamesEntitiesDictionary(m_root, {});
    const char *clash = NameRules::firstClash(m_validator,
                                              {{m_dictionaryUtil.getGroupEntitiesDictionary(m_root, {}),
                                                QT_TR_NOOP("Entity name already exists as a group name")},
                                               {names, QT_TR_NOOP("Entity name already exists")},
                                               {m_dictionaryUtil.getAliasEntitiesDictionary(m_root, {}),
                                                QT_TR_NOOP("Entity name already exists as an alias name")}},
                                              name);
    if (clash)
        return clash;
    if (!m_validator.validateStringC(name))
        return QT_TR_NOOP("Invalid string");
    if (name.trimmed().length() > MaxNameLength)
        return QT_TR_NOOP("Chain with length greater than 50");
    return nullptr;
}
