#pragma once

#include "business/business_quillon_export.h"
#include "common/DictionaryUtil.h"
#include "common/Validate.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "models/base/DragListModel.h"

#include <memory>

class QIcon;

/// The variables of one entity as an editable table onto which source fields can be dropped.
///
/// Edits and drops change the entity at once. Neither the entity nor its variables are owned.
class BUSINESS_QUILLON_EXPORT VariableDiccionaryModel : public TextListDrag<RowListModel<TDcVariable>>
{
    Q_OBJECT

public:
    /// Shows the variables of \a entity. Names are checked against the dictionary under \a rootEntity.
    /// Neither may be null; both must outlive the model.
    VariableDiccionaryModel(QObject *parent, TDcEntity *entity, TDcEntity *rootEntity);

    /// The value of a cell: texts, and the tag as a number. Invalid for an unknown column.
    [[nodiscard]] QVariant getItemData(TDcVariable *variable, int column) const;

    /// What separates name and alias in the name of a dropped field.
    [[nodiscard]] QString getSplitterCharacter() const { return m_splitterCharacter; }
    void setSplitterCharacter(QString splitterCharacter)
    {
        m_splitterCharacter = std::move(splitterCharacter);
    }

    [[nodiscard]] bool getSplitterEnabled() const { return m_splitterEnabled; }
    void setSplitterEnabled(bool splitterEnabled) { m_splitterEnabled = splitterEnabled; }

    /// Kept for front ends; the model makes no use of it.
    void setZerosTagPlaceholder(int zerosTagPlaceholder) { m_zerosTagPlaceholder = zerosTagPlaceholder; }

    /// A new variable, the caller's, from \a json, one text of a drag payload; \a position is the text's
    /// place in the payload, counted from 0. A text that is no JSON object makes a variable without a name.
    [[nodiscard]] TDcVariable *getVariableFromJsonDrop(QString json, int position);
    /// A new list of new value labels, the caller's, from one category or a list of them. Categories without
    /// a code are left out.
    [[nodiscard]] QList<ValueLabelElement *> *loadCategories(QVariant categories);
    /// Adds \a variables to the entity and asks the user about those that are there already. The list stays
    /// the caller's and as it is, and null stands for an empty one; its variables do not: those that are not
    /// added are destroyed. Each must be new and listed once.
    void updateEntityVariables(QList<TDcVariable *> *variables);
    /// Tells the user which variables of the entity share a name; says nothing if none do.
    void showDuplicatedNamesWarning();

    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// Refuses a taken name, alias or group with a message. Other roles than Qt::EditRole change nothing but
    /// are announced.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;
    /// Always null: variables are not dragged out.
    [[nodiscard]] QMimeData *mimeData(const QModelIndexList &indexes) const override;
    /// Makes variables of dropped source fields, at the end of the entity wherever they are dropped.
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

Q_SIGNALS:
    void signalVariablesModified();
    void signalVariableDropped();

private:
    class HighestTag;
    enum class Overwrite { Yes, Rename, Skip, Cancel };

    [[nodiscard]] QIcon icon(const TDcVariable &variable) const;
    [[nodiscard]] bool accepts(const TDcVariable &variable, int column, const QString &text);
    [[nodiscard]] bool acceptsName(const TDcVariable &variable, const QString &text);
    [[nodiscard]] bool isFree(const char *clash) const;
    [[nodiscard]] QList<QString> otherTexts(QList<QString> texts, const QString &typed) const;
    [[nodiscard]] bool confirmRename(const TDcVariable &variable, const QString &name);

    [[nodiscard]] std::unique_ptr<TDcVariable> readField(const QString &json, int position, HighestTag &tags);
    [[nodiscard]] Overwrite askOverwrite(const TDcVariable &variable, bool offerSkip) const;
    void retire(TDcVariable *variable);

    Validate m_validate;
    DictionaryUtil m_dictionaryUtil;
    TDcEntity *m_entity; // Not owned.
    TDcEntity *m_rootEntity; // Not owned.
    int m_zerosTagPlaceholder = 0;
    bool m_splitterEnabled = true;
    QString m_splitterCharacter;
};
