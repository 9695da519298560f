#pragma once

#include "model/DocumentOrigin.h"
#include "model/model_quillon_export.h"
#include "model/OwnedList.h"
#include "model/TDcVariable.h"

#include <QString>

/// One level of records in a data dictionary: a node of the entity tree, with its variables.
///
/// Owns its children and its variables and deletes them when it goes. The lists are live: what is appended
/// to getChildren() or getVariables() belongs to the entity, what is taken out belongs to whoever took it.
class MODEL_QUILLON_EXPORT TDcEntity : public FromDocument
{
public:
    TDcEntity();
    ~TDcEntity();
    Q_DISABLE_COPY_MOVE(TDcEntity)

    [[nodiscard]] QString getName() const { return m_name; }
    void setName(const QString &name) { m_name = name; }

    /// Display text.
    [[nodiscard]] QString getLabel() const { return m_label; }
    void setLabel(const QString &label) { m_label = label; }

    [[nodiscard]] QString getAlias() const { return m_alias; }
    void setAlias(const QString &alias) { m_alias = alias; }

    /// Name of the variable that holds the record's code; empty when there is none.
    [[nodiscard]] QString getRefCode() const { return m_refCode; }
    void setRefCode(const QString &refCode) { m_refCode = refCode; }

    /// Name of the variable that holds the record's label; empty when there is none.
    [[nodiscard]] QString getRefLabel() const { return m_refLabel; }
    void setRefLabel(const QString &refLabel) { m_refLabel = refLabel; }

    /// Name of the variable that holds the record's weight; empty when there is none.
    [[nodiscard]] QString getWeightVariable() const { return m_weightVariable; }
    void setWeightVariable(const QString &weightVariable) { m_weightVariable = weightVariable; }

    [[nodiscard]] QString getDocumentationEntity() const { return m_documentationEntity; }
    void setDocumentationEntity(const QString &documentationEntity)
    {
        m_documentationEntity = documentationEntity;
    }

    /// Depth in the tree. The root must have level 1: the tree models know it by that.
    [[nodiscard]] int getLevel() const { return m_level; }
    void setLevel(int level) { m_level = level; }

    [[nodiscard]] bool getIsvirtual() const { return m_isvirtual; }
    void setIsvirtual(bool isvirtual) { m_isvirtual = isvirtual; }

    [[nodiscard]] bool getSelectable() const { return m_selectable; }
    void setSelectable(bool selectable) { m_selectable = selectable; }

    /// Marked for deletion in the download tree.
    [[nodiscard]] bool getCheckDelete() const { return m_checkDelete; }
    void setCheckDelete(bool checkDelete) { m_checkDelete = checkDelete; }

    /// The live list of child entities in display order. Never null.
    [[nodiscard]] QList<TDcEntity *> *getChildren() const { return m_children.get(); }
    /// Takes \a children over; see OwnedList::reset().
    void setChildren(QList<TDcEntity *> *children);

    /// The live list of variables in display order. Never null.
    [[nodiscard]] QList<TDcVariable *> *getVariables() const { return m_variables.get(); }
    /// Takes \a variables over; see OwnedList::reset().
    void setVariables(QList<TDcVariable *> *variables);
    /// Appends \a variable, which the entity then owns.
    void addVariables(TDcVariable *variable) { m_variables.append(variable); }

    /// Takes the first occurrence of \a variable out of the list but keeps owning it, so that no open
    /// editor or other pointer to it dangles while the entity lives. Does nothing if it is not listed.
    void retireVariable(TDcVariable *variable);

private:
    QString m_name;
    QString m_label;
    QString m_alias;
    QString m_refCode;
    QString m_refLabel;
    QString m_weightVariable;
    QString m_documentationEntity;
    int m_level = 1;
    bool m_isvirtual = false;
    bool m_selectable = false;
    bool m_checkDelete = false;
    OwnedList<TDcEntity> m_children;
    OwnedList<TDcVariable> m_variables;
    OwnedList<TDcVariable> m_retired;
};
