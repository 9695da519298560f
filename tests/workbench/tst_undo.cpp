#include "documents/DictionaryCopy.h"
#include "documents/DictionaryEquality.h"
#include "model/MetadataVariables.h"
#include "model/PreOrder.h"
#include "model/ValueLabelElement.h"
#include "tests/workbench/Bench.h"
#include "workbench/operations/EntityEdits.h"
#include "workbench/operations/ListEdits.h"
#include "workbench/operations/VariableEdits.h"
#include "workbench/panels/EntityForm.h"
#include "workbench/panels/EntityTreePanel.h"
#include "workbench/panels/Inspector.h"
#include "workbench/panels/VariableTablePanel.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace
{
/// Does what a person might do, at random, with all panels looking on.
class Person
{
public:
    Person(Bench &bench, quint32 seed) : m_bench(bench), m_random(seed) { }

    void act()
    {
        wander();
        TDcEntity *root = m_bench.document.root();
        TDcEntity *entity = m_bench.selection.entity();
        TDcVariable *variable = m_bench.selection.variable();
        switch (below(12)) {
        case 0:
            m_bench.document.edit(u"add"_s, [&] { EntityEdits::add(entity, word()); });
            break;
        case 1:
            if (entity->getChildren()->isEmpty())
                trigger(ActionId::EntityDuplicate);
            break;
        case 2:
            // Trees stay small enough to be compared often.
            if (Places::rowsOf(root, entity).size() > 1)
                trigger(ActionId::EntityRemove);
            break;
        case 3:
            trigger(below(2) ? ActionId::EntityMoveUp : ActionId::EntityMoveDown);
            break;
        case 4:
            entity->setName(word());
            entity->setSelectable(below(2));
            m_bench.document.commit({}, entity);
            break;
        case 5:
            m_bench.document.edit(u"add"_s, [&] { VariableEdits::add(entity, word()); });
            break;
        case 6:
            trigger(ActionId::VariableDuplicate);
            break;
        case 7:
            trigger(ActionId::VariableRemove);
            break;
        case 8:
            trigger(below(2) ? ActionId::VariableMoveUp : ActionId::VariableMoveDown);
            break;
        default:
            if (variable)
                change(*variable);
            m_bench.document.commit({}, entity);
        }
    }

private:
    int below(int bound) { return int(m_random.bounded(bound)); }
    QString word() { return u"W%1"_s.arg(m_random.bounded(100000)); }

    void trigger(ActionId id)
    {
        if (m_bench.actions[id]->isEnabled())
            m_bench.actions[id]->trigger();
    }

    void wander()
    {
        QList<TDcEntity *> entities;
        preOrder(m_bench.document.root(), [&entities](TDcEntity *entity) { entities.append(entity); });
        TDcEntity *entity = entities.at(below(int(entities.size())));
        const QList<TDcVariable *> &variables = *entity->getVariables();
        TDcVariable *variable = variables.isEmpty() ? nullptr : variables.at(below(int(variables.size())));
        m_bench.selection.select(entity, variable);
    }

    void change(TDcVariable &variable)
    {
        switch (below(6)) {
        case 0:
            variable.setName(word());
            break;
        case 1:
            variable.setLabel(word());
            variable.setTag(below(10));
            break;
        case 2:
            variable.addValueLabelElement(new ValueLabelElement);
            variable.getValueLabelElementList()->last()->setValue(word());
            break;
        case 3:
            if (!variable.getValueLabelElementList()->isEmpty())
                delete variable.getValueLabelElementList()->takeFirst();
            break;
        case 4:
            if (!variable.getMetadataVariables())
                variable.setMetadataVariables(new MetadataVariables);
            variable.getMetadataVariables()->addItemRange(new Range);
            variable.getMetadataVariables()->getRange()->last()->setRangeMax(below(100) / 4.0);
            break;
        default:
            variable.setMetadataVariables(nullptr);
        }
    }

    Bench &m_bench;
    QRandomGenerator m_random;
};
} // namespace

class TestUndo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomActions_data();
    void randomActions();
};

void TestUndo::randomActions_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 8; ++seed)
        QTest::addRow("%u", seed) << seed;
}

void TestUndo::randomActions()
{
    QFETCH(const quint32, seed);
    Bench bench;
    const EntityTreePanel tree(bench.workspace());
    const EntityForm form(bench.workspace());
    const VariableTablePanel table(bench.workspace());
    const Inspector inspector(bench.workspace());
    Person person(bench, seed);

    const auto start = DictionaryCopy::copy(*bench.document.root());
    for (int i = 0; i < 60; ++i)
        person.act();
    const auto end = DictionaryCopy::copy(*bench.document.root());
    QVERIFY(!DictionaryEquality::equal(*start, *end));

    QUndoStack *stack = bench.document.undoStack();
    QVERIFY(stack->count() > 20);
    while (stack->canUndo())
        stack->undo();
    QVERIFY(DictionaryEquality::equal(*bench.document.root(), *start));
    while (stack->canRedo())
        stack->redo();
    QVERIFY(DictionaryEquality::equal(*bench.document.root(), *end));

    // There and back from any place in between.
    for (int i = 0; i < 8; ++i)
        stack->setIndex(int(QRandomGenerator(seed + quint32(i)).bounded(stack->count() + 1)));
    stack->setIndex(0);
    QVERIFY(DictionaryEquality::equal(*bench.document.root(), *start));
}

QTEST_MAIN(TestUndo)
#include "tst_undo.moc"
