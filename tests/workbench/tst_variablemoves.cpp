#include "documents/DictionaryCopy.h"
#include "documents/DictionaryEquality.h"
#include "model/MetadataVariables.h"
#include "model/ValueLabelElement.h"
#include "tests/workbench/Bench.h"
#include "workbench/operations/VariableMoves.h"

#include <QTest>

#include <limits>

using namespace Qt::Literals::StringLiterals;

class TestVariableMoves : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void takesEverythingAlong();
    void keepsTheOrder();
    void findsFreeNames_data();
    void findsFreeNames();
    void givesTwoOfANameTwoNames();
    void keepsTagsThatAreFree();
    void givesNoTagTwiceAtTheHighestInteger();
    void takesRolesAway();
    void leavesRolesToATwin();
    void changesNothingYet();
    void isUndoneInOneStep();

private:
    [[nodiscard]] TDcEntity *person() { return m_bench->entity(u"PERSON"_s); }
    [[nodiscard]] TDcEntity *death() { return m_bench->entity(u"DEATH"_s); }
    [[nodiscard]] TDcVariable *find(const QString &name) { return Places::findVariable(person(), name); }
    [[nodiscard]] VariableMoves moves(const QStringList &names)
    {
        QList<TDcVariable *> variables;
        for (const QString &name : names)
            variables.append(find(name));
        return {m_bench->document.root(), person(), variables, death()};
    }
    /// The variables of \a entity with alias.
    [[nodiscard]] static QStringList lines(const TDcEntity *entity)
    {
        QStringList lines;
        for (const TDcVariable *variable : std::as_const(*entity->getVariables()))
            lines.append(variable->getName() + u'|' + variable->getAlias());
        return lines;
    }

    /// Of the variables that are there after a move.
    [[nodiscard]] QList<int> tags()
    {
        QList<int> tags;
        for (const TDcVariable *variable : std::as_const(*death()->getVariables()))
            tags.append(variable->getTag());
        return tags;
    }

    std::unique_ptr<Bench> m_bench;
};

void TestVariableMoves::init()
{
    m_bench = std::make_unique<Bench>();
}

void TestVariableMoves::takesEverythingAlong()
{
    TDcVariable *age = find(u"AGE"_s);
    auto *label = new ValueLabelElement;
    label->setValue(u"99"_s);
    age->addValueLabelElement(label);
    auto *layout = new MetadataVariables;
    layout->setRecord(u"PER"_s);
    age->setMetadataVariables(layout);
    age->setLevel(3);
    const auto before = DictionaryCopy::copy(*age);
    moves({u"AGE"_s}).apply();
    QCOMPARE(lines(person()), QStringList({u"SEX|"_s, u"WAGE|"_s}));
    QCOMPARE(*death()->getVariables(), QList<TDcVariable *>{age});
    QVERIFY(DictionaryEquality::equal(*age, *before));
}

void TestVariableMoves::keepsTheOrder()
{
    death()->addVariables(makeVariable(u"CAUSE"_s));
    person()->getVariables()->at(0)->setLevel(person()->getLevel());
    death()->setLevel(7);
    moves({u"SEX"_s, u"WAGE"_s}).apply();
    QCOMPARE(lines(death()), QStringList({u"CAUSE|"_s, u"SEX|"_s, u"WAGE|"_s}));
    QCOMPARE(death()->getVariables()->at(1)->getLevel(), 7);
    QCOMPARE(death()->getVariables()->at(2)->getLevel(), 0); // As files leave it.
}

void TestVariableMoves::findsFreeNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("alias");
    QTest::addColumn<QString>("moved");
    QTest::addColumn<QStringList>("consequences");
    const QString renamed = u"AGE will be called AGE_2, since the name is taken there."_s;
    const QString lost = u"AGE will lose its alias P03, which is taken there."_s;
    QTest::addRow("free") << u"CAUSE"_s << u"P1"_s << u"AGE|P03"_s << QStringList();
    QTest::addRow("name taken, in another case")
        << u"age"_s << QString() << u"AGE_2|P03"_s << QStringList{renamed};
    QTest::addRow("name taken by an alias")
        << u"CAUSE"_s << u"AGE"_s << u"AGE_2|P03"_s << QStringList{renamed};
    QTest::addRow("alias taken") << u"CAUSE"_s << u"p03"_s << u"AGE|"_s << QStringList{lost};
    QTest::addRow("alias taken by a name") << u"P03"_s << QString() << u"AGE|"_s << QStringList{lost};
    QTest::addRow("both taken") << u"AGE"_s << u"P03"_s << u"AGE_2|"_s << QStringList{renamed, lost};
}

void TestVariableMoves::findsFreeNames()
{
    QFETCH(const QString, name);
    QFETCH(const QString, alias);
    death()->addVariables(makeVariable(name, alias));
    const VariableMoves age = moves({u"AGE"_s});
    QTEST(age.consequences(), "consequences");
    age.apply();
    QTEST(lines(death()).last(), "moved");
}

void TestVariableMoves::givesTwoOfANameTwoNames()
{
    person()->addVariables(makeVariable(u"PERSON"_s, u"SEX_2"_s));
    person()->addVariables(makeVariable(u"SEX"_s, u"DEATH"_s));
    QList<TDcVariable *> all = *person()->getVariables();
    VariableMoves(m_bench->document.root(), person(), all, death()).apply();
    QCOMPARE(lines(death()),
             QStringList({u"SEX|"_s, u"AGE|P03"_s, u"WAGE|"_s, u"PERSON_2|SEX_2"_s, u"SEX_3|DEATH"_s}));
    QVERIFY(person()->getVariables()->isEmpty());
}

void TestVariableMoves::keepsTagsThatAreFree()
{
    death()->addVariables(makeVariable(u"CAUSE"_s));
    death()->getVariables()->last()->setTag(4);
    find(u"SEX"_s)->setTag(4);
    find(u"AGE"_s)->setTag(9);
    moves({u"SEX"_s, u"AGE"_s, u"WAGE"_s}).apply();
    QCOMPARE(tags(), QList<int>({4, 10, 9, 0}));
}

void TestVariableMoves::givesNoTagTwiceAtTheHighestInteger()
{
    constexpr int highest = std::numeric_limits<int>::max();
    death()->addVariables(makeVariable(u"CAUSE"_s));
    death()->getVariables()->last()->setTag(highest);
    find(u"SEX"_s)->setTag(highest);
    find(u"AGE"_s)->setTag(1);
    find(u"WAGE"_s)->setTag(highest);
    moves({u"SEX"_s, u"AGE"_s, u"WAGE"_s}).apply();
    QCOMPARE(tags(), QList<int>({highest, 2, 1, 3}));
}

void TestVariableMoves::takesRolesAway()
{
    person()->setRefCode(u"SEX"_s);
    person()->setRefLabel(u"AGE"_s);
    person()->setWeightVariable(u"AGE"_s);
    person()->setSelectable(true);
    const VariableMoves age = moves({u"AGE"_s});
    QCOMPARE(age.consequences(),
             QStringList({u"PERSON will have no reference label."_s, u"PERSON will have no weight."_s}));
    age.apply();
    QCOMPARE(person()->getRefLabel(), QString());
    QCOMPARE(person()->getWeightVariable(), QString());
    QCOMPARE(person()->getRefCode(), u"SEX"_s);
    QVERIFY(person()->getSelectable());
    const VariableMoves sex = moves({u"SEX"_s});
    QCOMPARE(sex.consequences(),
             QStringList({u"PERSON will have no reference code and not be selectable."_s}));
    sex.apply();
    QCOMPARE(person()->getRefCode(), QString());
    QVERIFY(!person()->getSelectable());
}

void TestVariableMoves::leavesRolesToATwin()
{
    person()->addVariables(makeVariable(u"SEX"_s));
    person()->setRefCode(u"SEX"_s);
    const VariableMoves sex = moves({u"SEX"_s});
    QCOMPARE(sex.consequences(), QStringList());
    sex.apply();
    QCOMPARE(person()->getRefCode(), u"SEX"_s);
}

void TestVariableMoves::changesNothingYet()
{
    death()->addVariables(makeVariable(u"AGE"_s));
    const auto before = DictionaryCopy::copy(*m_bench->document.root());
    QCOMPARE(moves({u"AGE"_s}).consequences().size(), 1);
    QVERIFY(DictionaryEquality::equal(*m_bench->document.root(), *before));
}

void TestVariableMoves::isUndoneInOneStep()
{
    Document &document = m_bench->document;
    death()->addVariables(makeVariable(u"AGE"_s, u"P03"_s));
    person()->setRefCode(u"AGE"_s);
    person()->setSelectable(true);
    document.commit(u"setting up"_s);
    document.undoStack()->clear();
    const auto before = DictionaryCopy::copy(*document.root());
    document.edit(u"moving"_s, [this] { moves({u"AGE"_s, u"WAGE"_s}).apply(); });
    const auto after = DictionaryCopy::copy(*document.root());
    QVERIFY(!DictionaryEquality::equal(*before, *after));
    QCOMPARE(document.undoStack()->count(), 1);
    document.undoStack()->undo();
    QVERIFY(DictionaryEquality::equal(*document.root(), *before));
    document.undoStack()->redo();
    QVERIFY(DictionaryEquality::equal(*document.root(), *after));
}

QTEST_MAIN(TestVariableMoves)
#include "tst_variablemoves.moc"
