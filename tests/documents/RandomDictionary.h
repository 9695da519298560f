#pragma once

#include "model/MetadataVariables.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "model/ValueLabelElement.h"

#include <QRandomGenerator>
#include <QString>

#include <memory>

/// Small dictionaries from a seed: every property takes unusual values now and then.
class RandomDictionary
{
public:
    explicit RandomDictionary(quint32 seed) : m_random(seed) { }

    [[nodiscard]] int upTo(int limit) { return int(m_random.bounded(limit + 1)); }
    [[nodiscard]] bool chance(int percent) { return int(m_random.bounded(100)) < percent; }

    template <typename Item>
    [[nodiscard]] const Item &oneOf(const QList<Item> &items)
    {
        return items.at(upTo(int(items.size()) - 1));
    }

    [[nodiscard]] QString text()
    {
        static const QList<QString> texts{QString(),
                                          QStringLiteral("AGE"),
                                          QStringLiteral("SEX"),
                                          QStringLiteral("007"),
                                          QStringLiteral("a\"b\\c"),
                                          QStringLiteral("línea 1\nline 2"),
                                          QStringLiteral("日本"),
                                          QStringLiteral("12"),
                                          QStringLiteral(" ")};
        return chance(30) ? QStringLiteral("N%1").arg(upTo(999)) : oneOf(texts);
    }

    [[nodiscard]] int number() { return chance(50) ? 0 : upTo(40) - 10; }

    [[nodiscard]] std::unique_ptr<ValueLabelElement> valueLabel()
    {
        auto element = std::make_unique<ValueLabelElement>();
        element->setValue(chance(60) ? QString::number(number()) : text());
        element->setLabel(text());
        return element;
    }

    [[nodiscard]] std::unique_ptr<Range> range()
    {
        auto range = std::make_unique<Range>();
        range->setRangeMin(number() / 4.0);
        range->setRangeMax(chance(5) ? qQNaN() : number() * 1.5);
        return range;
    }

    [[nodiscard]] std::unique_ptr<MetadataVariables> layout()
    {
        auto layout = std::make_unique<MetadataVariables>();
        layout->setRecord(text());
        layout->setField(text());
        layout->setStart(number());
        layout->setLength(number());
        layout->setLookup(chance(30));
        for (int i = upTo(2); i > 0; --i)
            layout->addItemRange(range().release());
        return layout;
    }

    [[nodiscard]] QString type()
    {
        static const QList<QString> types{QString(),
                                          QStringLiteral("integer"),
                                          QStringLiteral("real"),
                                          QStringLiteral("string"),
                                          QStringLiteral("INTEGER"),
                                          QStringLiteral("BOOL")};
        return oneOf(types);
    }

    [[nodiscard]] std::unique_ptr<TDcVariable> variable()
    {
        auto variable = std::make_unique<TDcVariable>();
        variable->setName(text());
        variable->setLabel(text());
        variable->setAlias(text());
        variable->setGroup(text());
        variable->setVarType(type());
        variable->setDocumentation(text());
        variable->setFileName(text());
        variable->setSize(number());
        variable->setDecimals(number());
        variable->setFieldSize(number());
        variable->setFieldRelativePosition(number());
        variable->setMissing(number());
        variable->setNotappl(number());
        variable->setTag(number());
        variable->setChecked(number());
        variable->setLevel(number());
        variable->setLocal(chance(30));
        if (chance(70))
            variable->setMetadataVariables(layout().release());
        for (int i = upTo(3); i > 0; --i)
            variable->addValueLabelElement(valueLabel().release());
        return variable;
    }

    /// An entity with up to \a depth levels below it.
    [[nodiscard]] std::unique_ptr<TDcEntity> entity(int depth = 3, int level = 1)
    {
        auto entity = std::make_unique<TDcEntity>();
        entity->setName(text());
        entity->setLabel(text());
        entity->setAlias(text());
        entity->setRefCode(text());
        entity->setRefLabel(text());
        entity->setWeightVariable(text());
        entity->setDocumentationEntity(text());
        entity->setLevel(level);
        entity->setIsvirtual(chance(30));
        entity->setSelectable(chance(30));
        entity->setCheckDelete(chance(30));
        for (int i = upTo(4); i > 0; --i)
            entity->addVariables(variable().release());
        for (int i = depth > 0 ? upTo(2) : 0; i > 0; --i)
            entity->getChildren()->append(this->entity(depth - 1, level + 1).release());
        return entity;
    }

private:
    QRandomGenerator m_random;
};
