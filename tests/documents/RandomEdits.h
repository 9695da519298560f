#pragma once

#include "tests/documents/RandomDictionary.h"

#include "model/PreOrder.h"

#include <utility>

/// Edits a dictionary as people do, from a seed: properties, lists, moves, renames.
class RandomEdits
{
public:
    explicit RandomEdits(quint32 seed) : m_random(seed) { }

    void apply(TDcEntity &root, int count)
    {
        for (; count > 0; --count)
            edit(root);
    }

private:
    QList<TDcEntity *> entities(TDcEntity &root)
    {
        QList<TDcEntity *> found;
        preOrder(&root, [&found](TDcEntity *entity) { found.append(entity); });
        return found;
    }

    void edit(TDcEntity &root)
    {
        const QList<TDcEntity *> all = entities(root);
        TDcEntity &entity = *m_random.oneOf(all);
        switch (m_random.upTo(9)) {
        case 0:
            return editEntity(entity);
        case 1:
            return insert(*entity.getChildren(), m_random.entity(1, entity.getLevel() + 1).release());
        case 2:
            delete take(*entity.getChildren());
            return;
        case 3:
            return moveEntity(root, entity);
        case 4:
            return insert(*entity.getVariables(), m_random.variable().release());
        case 5:
            delete take(*entity.getVariables());
            return;
        case 6:
            if (TDcVariable *variable = take(*entity.getVariables()))
                insert(*m_random.oneOf(all)->getVariables(), variable);
            return;
        default:
            if (!entity.getVariables()->isEmpty())
                editVariable(*m_random.oneOf(*entity.getVariables()));
        }
    }

    void editEntity(TDcEntity &entity)
    {
        const auto other = m_random.entity(0, entity.getLevel());
        if (m_random.chance(50))
            entity.setName(other->getName());
        if (m_random.chance(50))
            entity.setLabel(other->getLabel());
        entity.setSelectable(other->getSelectable());
        entity.setWeightVariable(other->getWeightVariable());
    }

    /// Anywhere but below itself.
    void moveEntity(TDcEntity &root, TDcEntity &parent)
    {
        TDcEntity *moved = take(*parent.getChildren());
        if (moved)
            insert(*m_random.oneOf(entities(root))->getChildren(), moved);
    }

    void editVariable(TDcVariable &variable)
    {
        const auto other = m_random.variable();
        switch (m_random.upTo(6)) {
        case 0:
            return variable.setName(other->getName());
        case 1:
            variable.setLabel(other->getLabel());
            return variable.setVarType(other->getVarType());
        case 2:
            variable.setDocumentation(other->getDocumentation());
            variable.setFieldRelativePosition(other->getFieldRelativePosition());
            return variable.setFieldSize(other->getFieldSize());
        case 3:
            return variable.setMetadataVariables(m_random.chance(30) ? nullptr : m_random.layout().release());
        case 4:
            return editList(
                *variable.getValueLabelElementList(), [this] { return m_random.valueLabel().release(); },
                [this](ValueLabelElement &label) { label.setValue(m_random.text()); });
        case 5:
            if (MetadataVariables *layout = variable.getMetadataVariables())
                editList(
                    *layout->getRange(), [this] { return m_random.range().release(); },
                    [this](Range &range) { range.setRangeMax(m_random.number()); });
            return;
        default:
            variable.setTag(other->getTag());
            variable.setSize(other->getSize());
        }
    }

    template <typename Item, typename Make, typename Edit>
    void editList(QList<Item *> &list, Make make, Edit editItem)
    {
        if (m_random.chance(40) || list.isEmpty())
            insert(list, make());
        else if (m_random.chance(40))
            delete take(list);
        else if (m_random.chance(50))
            editItem(*m_random.oneOf(list));
        else
            insert(list, take(list));
    }

    template <typename Item>
    void insert(QList<Item *> &list, Item *item)
    {
        list.insert(m_random.upTo(int(list.size())), item);
    }

    template <typename Item>
    Item *take(QList<Item *> &list)
    {
        return list.isEmpty() ? nullptr : list.takeAt(m_random.upTo(int(list.size()) - 1));
    }

    RandomDictionary m_random;
};
