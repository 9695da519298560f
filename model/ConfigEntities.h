#pragma once

#include "model/DocumentOrigin.h"
#include "model/model_quillon_export.h"

#include <memory>
#include <QList>
#include <QString>
#include <utility>

/// How one entity takes part in a run.
class MODEL_QUILLON_EXPORT ConfigEntities : public FromDocument
{
public:
    ConfigEntities() = default;
    ~ConfigEntities() = default;
    Q_DISABLE_COPY_MOVE(ConfigEntities)

    [[nodiscard]] QString getName() const { return m_name; }
    void setName(const QString &name) { m_name = name; }

    [[nodiscard]] QString getRecType() const { return m_recType; }
    void setRecType(const QString &recType) { m_recType = recType; }

    [[nodiscard]] bool getAllVariables() const { return m_allVariables; }
    void setAllVariables(bool allVariables) { m_allVariables = allVariables; }

    [[nodiscard]] bool getCheckSequence() const { return m_checkSequence; }
    void setCheckSequence(bool checkSequence) { m_checkSequence = checkSequence; }

    [[nodiscard]] bool getCreateSDC() const { return m_createSDC; }
    void setCreateSDC(bool createSDC) { m_createSDC = createSDC; }

    [[nodiscard]] bool getCheckDelete() const { return m_checkDelete; }
    void setCheckDelete(bool checkDelete) { m_checkDelete = checkDelete; }

    [[nodiscard]] bool getCheckSelectable() const { return m_checkSelectable; }
    void setCheckSelectable(bool checkSelectable) { m_checkSelectable = checkSelectable; }

    /// The live list of the names of the variables that take part. Never null.
    [[nodiscard]] QList<QString> *getVariables() const { return m_variables.get(); }
    /// Takes \a variables over and deletes the list before, unless it is the same. Null stands for an empty
    /// list.
    void setVariables(QList<QString> *variables);
    void addVariables(QString name) { m_variables->append(std::move(name)); }

private:
    QString m_name;
    QString m_recType;
    bool m_allVariables = false;
    bool m_checkSequence = true;
    bool m_createSDC = false;
    bool m_checkDelete = false;
    bool m_checkSelectable = false;
    std::unique_ptr<QList<QString>> m_variables = std::make_unique<QList<QString>>();
};
