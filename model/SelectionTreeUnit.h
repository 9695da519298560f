#pragma once

#include "model/model_quillon_export.h"
#include "model/OwnedList.h"

#include <QModelIndex>
#include <QString>
#include <string>
#include <utility>

/// One area unit in the tree from which a person selects the areas of a run.
///
/// Owns its children.
class MODEL_QUILLON_EXPORT SelectionTreeUnit
{
public:
    SelectionTreeUnit() = default;
    ~SelectionTreeUnit();
    Q_DISABLE_COPY_MOVE(SelectionTreeUnit)

    [[nodiscard]] QString getCode() const { return m_code; }
    void setCode(const QString &code) { m_code = code; }

    [[nodiscard]] QString getName() const { return m_name; }
    void setName(const QString &name) { m_name = name; }

    /// Depth in the tree. The root must have level 1: the tree model knows it by that.
    [[nodiscard]] int getLevel() const { return m_level; }
    void setLevel(int level) { m_level = level; }

    [[nodiscard]] Qt::CheckState getUnitState() const { return m_unitState; }
    void setUnitState(Qt::CheckState unitState) { m_unitState = unitState; }

    /// The index of the unit's parent as the tree model last found it.
    [[nodiscard]] QModelIndex getIndex() const { return m_index; }
    void setIndex(const QModelIndex &index) { m_index = index; }

    /// Two texts in UTF-8, shown as they are.
    [[nodiscard]] std::pair<std::string, std::string> getArea() const { return m_area; }
    void setArea(const std::pair<std::string, std::string> &area) { m_area = area; }

    /// The live list of units below this one, in display order. Never null.
    [[nodiscard]] QList<SelectionTreeUnit *> *getChildren() const { return m_children.get(); }
    /// Takes \a children over; see OwnedList::reset().
    void setChildren(QList<SelectionTreeUnit *> *children) { m_children.reset(children); }

private:
    QString m_code;
    QString m_name;
    int m_level = 1;
    Qt::CheckState m_unitState = Qt::Unchecked;
    QModelIndex m_index;
    std::pair<std::string, std::string> m_area;
    OwnedList<SelectionTreeUnit> m_children;
};
