#pragma once

#include "model/ValueLabelElement.h"
#include "tests/support/Trees.h"
#include "workbench/MainWindow.h"

/// Gives the dictionary two variables with the same value labels and selects them.
inline void addLabelledVariables(MainWindow &window)
{
    TDcEntity *root = window.document()->root();
    window.document()->edit(QStringLiteral("adding"), [root] {
        for (const QString &name : {QStringLiteral("SMOKES"), QStringLiteral("DRINKS")}) {
            TDcVariable *variable = makeVariable(name);
            auto *label = new ValueLabelElement;
            label->setValue(QStringLiteral("1"));
            label->setLabel(QStringLiteral("Yes"));
            variable->addValueLabelElement(label);
            root->addVariables(variable);
        }
    });
    window.selection()->setVariables(*root->getVariables(), root->getVariables()->first());
}
