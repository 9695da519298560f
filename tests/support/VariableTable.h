#pragma once

#include "models/VariableDiccionaryModel.h"
#include "tests/support/Payloads.h"
#include "tests/support/Trees.h"

/// PERSON, an entity with AGE (tag 7) and SEX and with VISIT below it, and the table of its variables.
class VariableTable
{
protected:
    void makeTable()
    {
        m_root = makeEntities(uR"(
COUNTRY
    PERSON
        VISIT
)");
        m_person = findEntity(m_root.get(), u"PERSON");
        m_person->addVariables(makeVariable(QStringLiteral("AGE")));
        m_person->addVariables(makeVariable(QStringLiteral("SEX")));
        variables().first()->setTag(7);
        m_model = std::make_unique<VariableDiccionaryModel>(nullptr, m_person, m_root.get());
    }
    void clearTable()
    {
        m_model.reset();
        m_root.reset();
    }

    [[nodiscard]] QList<TDcVariable *> &variables() const { return *m_person->getVariables(); }
    [[nodiscard]] QStringList names() const
    {
        QStringList names;
        for (const TDcVariable *variable : std::as_const(variables()))
            names += variable->getName();
        return names;
    }
    [[nodiscard]] QList<int> tags() const
    {
        QList<int> tags;
        for (const TDcVariable *variable : std::as_const(variables()))
            tags += variable->getTag();
        return tags;
    }

    /// Drops the fields that \a texts hold below the last row.
    bool drop(const QStringList &texts)
    {
        const auto data = makePayload(texts);
        return m_model->dropMimeData(data.get(), Qt::CopyAction, -1, -1, {});
    }

    std::unique_ptr<TDcEntity> m_root;
    std::unique_ptr<VariableDiccionaryModel> m_model;
    TDcEntity *m_person = nullptr;
};
