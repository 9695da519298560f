#pragma once

#include "tests/support/Trees.h"
#include "workbench/Actions.h"
#include "workbench/Document.h"
#include "workbench/operations/Places.h"
#include "workbench/Selection.h"
#include "workbench/Workspace.h"

#include <QAction>

/// A document, a selection and actions without a window, for panels.
///
/// The dictionary is CENSUS with HOUSEHOLD below it, and PERSON and DEATH below that. PERSON has the
/// variables SEX, AGE (alias P03) and WAGE.
struct Bench {
    Document document;
    Selection selection{&document};
    Actions actions;

    Bench()
    {
        document.root()->setName(QStringLiteral("CENSUS"));
        TDcEntity *household = add(document.root(), QStringLiteral("HOUSEHOLD"));
        TDcEntity *person = add(household, QStringLiteral("PERSON"));
        add(household, QStringLiteral("DEATH"));
        person->addVariables(makeVariable(QStringLiteral("SEX"), {}, QStringLiteral("Sex")));
        person->addVariables(
            makeVariable(QStringLiteral("AGE"), QStringLiteral("P03"), QStringLiteral("Age")));
        person->addVariables(makeVariable(QStringLiteral("WAGE"), {}, QStringLiteral("Monthly wage")));
        document.commit(QStringLiteral("setting up"));
        document.undoStack()->clear();
    }

    [[nodiscard]] Workspace workspace() { return {&document, &selection, &actions, nullptr}; }
    [[nodiscard]] TDcEntity *entity(const QString &name) { return Places::findEntity(document.root(), name); }
    [[nodiscard]] TDcVariable *variable(const QString &name)
    {
        return Places::findVariable(selection.entity(), name);
    }
    [[nodiscard]] QStringList variables()
    {
        QStringList names;
        for (const TDcVariable *variable : std::as_const(*selection.entity()->getVariables()))
            names.append(variable->getName());
        return names;
    }
    [[nodiscard]] QString undoText() { return document.undoStack()->undoText(); }

private:
    static TDcEntity *add(TDcEntity *parent, const QString &name)
    {
        auto *entity = new TDcEntity;
        entity->setName(name);
        entity->setLevel(parent->getLevel() + 1);
        parent->getChildren()->append(entity);
        return entity;
    }
};
