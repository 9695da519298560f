#pragma once

#include "business/business_quillon_export.h"
#include "common/DictionaryUtil.h"
#include "common/Validate.h"
#include "models/base/EntityTree.h"

/// The entities of a dictionary as a tree in which they are renamed in place.
///
/// A new name begins with a letter or an underscore, holds only letters, digits and underscores, is no longer
/// than 50 characters, and is neither the name nor the alias of an entity nor the group of a variable
/// anywhere in the dictionary. A refusal is shown to the user, except for a name that is empty or begins
/// wrongly.
class BUSINESS_QUILLON_EXPORT DictionaryTreeModel : public EntityTree
{
    Q_OBJECT

public:
    /// Shows the dictionary under \a root, which stays the caller's and must have level 1.
    DictionaryTreeModel(QObject *parent, TDcEntity *root);

    [[nodiscard]] TDcEntity *getRoot() const { return m_root; }

    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// Renames in the edit role. With another role the value is checked all the same, but the name stays,
    /// and a value that passes is announced as a change.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    [[nodiscard]] bool acceptName(const TDcEntity &entity, const QString &name);
    [[nodiscard]] const char *objection(const TDcEntity &entity, const QString &name);

    Validate m_validator;
    DictionaryUtil m_dictionaryUtil;
};
