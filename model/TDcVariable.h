#pragma once

#include "model/DocumentOrigin.h"
#include "model/MetadataVariables.h"
#include "model/model_quillon_export.h"
#include "model/OwnedList.h"
#include "model/ValueLabelElement.h"

#include <memory>
#include <QString>

/// One variable of an entity: what it is called, which values it takes and where they lie in a record.
///
/// Owns its metadata and its value labels.
class MODEL_QUILLON_EXPORT TDcVariable : public FromDocument
{
public:
    TDcVariable();
    ~TDcVariable();
    Q_DISABLE_COPY_MOVE(TDcVariable)

    [[nodiscard]] QString getName() const { return m_name; }
    void setName(const QString &name) { m_name = name; }

    [[nodiscard]] QString getLabel() const { return m_label; }
    void setLabel(const QString &label) { m_label = label; }

    [[nodiscard]] QString getAlias() const { return m_alias; }
    void setAlias(const QString &alias) { m_alias = alias; }

    [[nodiscard]] QString getGroup() const { return m_group; }
    void setGroup(const QString &group) { m_group = group; }

    /// The type word, kept as given. The models know "INTEGER", "REAL", "STRING" and "BOOL";
    /// documents use "integer", "real" and "string". Nothing maps one spelling onto the other.
    [[nodiscard]] QString getVarType() const { return m_varType; }
    void setVarType(const QString &varType) { m_varType = varType; }

    [[nodiscard]] QString getDocumentation() const { return m_documentation; }
    void setDocumentation(const QString &documentation) { m_documentation = documentation; }

    [[nodiscard]] QString getFileName() const { return m_fileName; }
    void setFileName(const QString &fileName) { m_fileName = fileName; }

    /// Width of a value in characters.
    [[nodiscard]] int getSize() const { return m_size; }
    void setSize(int size) { m_size = size; }

    /// Number of decimal places; also the precision of the range editors.
    [[nodiscard]] int getDecimals() const { return m_decimals; }
    void setDecimals(int decimals) { m_decimals = decimals; }

    /// Width of the field in the source record.
    [[nodiscard]] int getFieldSize() const { return m_fieldSize; }
    void setFieldSize(int fieldSize) { m_fieldSize = fieldSize; }

    /// Position of the field in the source record, counted from 1.
    [[nodiscard]] int getFieldRelativePosition() const { return m_fieldRelativePosition; }
    void setFieldRelativePosition(int fieldRelativePosition)
    {
        m_fieldRelativePosition = fieldRelativePosition;
    }

    /// Code of a missing value.
    [[nodiscard]] int getMissing() const { return m_missing; }
    void setMissing(int missing) { m_missing = missing; }

    /// Code of a value that does not apply.
    [[nodiscard]] int getNotappl() const { return m_notappl; }
    void setNotappl(int notappl) { m_notappl = notappl; }

    [[nodiscard]] int getTag() const { return m_tag; }
    void setTag(int tag) { m_tag = tag; }

    /// Whether the variable is ticked in a wizard; any value but 0 counts as ticked.
    [[nodiscard]] int getChecked() const { return m_checked; }
    void setChecked(int checked) { m_checked = checked; }

    /// Level of the entity that the variable belongs to.
    [[nodiscard]] int getLevel() const { return m_level; }
    void setLevel(int level) { m_level = level; }

    [[nodiscard]] bool getLocal() const { return m_local; }
    void setLocal(bool local) { m_local = local; }

    /// The physical layout; null for a variable that has none.
    [[nodiscard]] MetadataVariables *getMetadataVariables() const { return m_metadataVariables.get(); }
    /// Takes \a metadata over and deletes the one before, unless it is the same. Null takes the layout away.
    void setMetadataVariables(MetadataVariables *metadata);

    /// The live list of categories in display order. Never null.
    [[nodiscard]] QList<ValueLabelElement *> *getValueLabelElementList() const { return m_valueLabels.get(); }
    /// Takes \a elements over; see OwnedList::reset().
    void setValueLabelElementList(QList<ValueLabelElement *> *elements);
    /// Appends \a element, which the variable then owns.
    void addValueLabelElement(ValueLabelElement *element) { m_valueLabels.append(element); }

private:
    QString m_name;
    QString m_label;
    QString m_alias;
    QString m_group;
    QString m_varType;
    QString m_documentation;
    QString m_fileName;
    int m_size = 0;
    int m_decimals = 0;
    int m_fieldSize = 0;
    int m_fieldRelativePosition = 1;
    int m_missing = 0;
    int m_notappl = 0;
    int m_tag = 0;
    int m_checked = 0;
    int m_level = 0;
    bool m_local = false;
    std::unique_ptr<MetadataVariables> m_metadataVariables;
    OwnedList<ValueLabelElement> m_valueLabels;
};
