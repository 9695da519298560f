#include "tests/support/Trees.h"
#include "workbench/operations/EntityEdits.h"
#include "workbench/operations/NewNames.h"
#include "workbench/operations/VariableEdits.h"

#include <QTest>

#include <algorithm>
#include <ctime>
#include <limits>

using namespace Qt::Literals::StringLiterals;

class TestNewNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void givesEachNameOnce();
    void looksAtNeitherCaseNorBlanksAround();
    void numbersANameWithoutTheBlanksAround();
    void leavesEmptyNamesEmpty();
    void knowsWhatIsTakenForEntities();
    void knowsWhatIsTakenForVariables();
    void namesEachEntityOfACopyAnew();
    void duplicatesManyInTheTimeThatTheyTake();
};

namespace
{
/// The processor time for a copy of each of \a count variables; the shortest of some.
std::clock_t timeToDuplicate(int count)
{
    auto shortest = std::numeric_limits<std::clock_t>::max();
    for (int round = 0; round < 3; ++round) {
        const auto root = makeEntities(u"CENSUS"_s);
        for (int i = 0; i < count; ++i)
            root->addVariables(makeVariable(u"V%1"_s.arg(i)));
        const QList<TDcVariable *> variables = *root->getVariables();
        const std::clock_t start = std::clock();
        VariableEdits::duplicate(root.get(), root.get(), variables);
        shortest = std::min(shortest, std::clock() - start);
    }
    return shortest;
}
} // namespace

void TestNewNames::givesEachNameOnce()
{
    NewNames names({u"AGE"_s, u"AGE_3"_s});
    QCOMPARE(names.take(u"SEX"_s), u"SEX"_s);
    QCOMPARE(names.take(u"SEX"_s), u"SEX_2"_s);
    QCOMPARE(names.take(u"AGE"_s), u"AGE_2"_s);
    QCOMPARE(names.take(u"AGE"_s), u"AGE_4"_s);
    QCOMPARE(names.take(u"AGE_2"_s), u"AGE_2_2"_s);
    QCOMPARE(names.take(u"AGE"_s), u"AGE_5"_s);
    QCOMPARE(names.take(u"AGE_6"_s), u"AGE_6"_s);
    QCOMPARE(names.take(u"AGE"_s), u"AGE_7"_s);
}

void TestNewNames::numbersANameWithoutTheBlanksAround()
{
    NewNames names({u"AGE"_s});
    QCOMPARE(names.take(u" AGE "_s), u"AGE_2"_s);
    QCOMPARE(names.take(u"SEX "_s), u"SEX "_s); // As a file may have it.
    QCOMPARE(names.take(u"SEX "_s), u"SEX_2"_s);
}

void TestNewNames::looksAtNeitherCaseNorBlanksAround()
{
    NewNames names({u" age"_s});
    QCOMPARE(names.take(u"Age "_s), u"Age_2"_s);
    QCOMPARE(names.take(u"AGE"_s), u"AGE_3"_s);
    QCOMPARE(names.take(u"age"_s), u"age_4"_s);
}

void TestNewNames::leavesEmptyNamesEmpty()
{
    NewNames names({QString()});
    QCOMPARE(names.take({}), QString());
    QCOMPARE(names.take({}), QString());
    QCOMPARE(names.take(u" "_s), u" "_s);
}

void TestNewNames::knowsWhatIsTakenForEntities()
{
    const auto root = makeEntities(u"CENSUS\n    PERSON"_s);
    findEntity(root.get(), u"PERSON")->setAlias(u"P"_s);
    root->addVariables(makeVariable(u"AGE"_s, u"A"_s, {}, u"GROUP"_s));
    for (const QString &taken : {u"CENSUS"_s, u"PERSON"_s, u"P"_s, u"GROUP"_s})
        QCOMPARE(NewNames::entity(root.get(), taken), taken + u"_2"_s);
    for (const QString &free : {u"AGE"_s, u"A"_s})
        QCOMPARE(NewNames::entity(root.get(), free), free);
}

void TestNewNames::knowsWhatIsTakenForVariables()
{
    const auto root = makeEntities(u"CENSUS\n    PERSON"_s);
    TDcEntity *person = findEntity(root.get(), u"PERSON");
    person->addVariables(makeVariable(u"AGE"_s, u"A"_s, {}, u"GROUP"_s));
    root->addVariables(makeVariable(u"ELSEWHERE"_s));
    for (const QString &taken : {u"CENSUS"_s, u"PERSON"_s, u"AGE"_s, u"A"_s})
        QCOMPARE(NewNames::variable(root.get(), person, taken), taken + u"_2"_s);
    for (const QString &free : {u"GROUP"_s, u"ELSEWHERE"_s})
        QCOMPARE(NewNames::variable(root.get(), person, free), free);
}

void TestNewNames::namesEachEntityOfACopyAnew()
{
    const auto root = makeEntities(u"CENSUS\n    PERSON\n        PERSON\n            PERSON_2"_s);
    const TDcEntity *copy = EntityEdits::duplicate(root.get(), root->getChildren()->constFirst());
    QCOMPARE(copy->getName(), u"PERSON_3"_s);
    const TDcEntity *below = copy->getChildren()->constFirst();
    QCOMPARE(below->getName(), u"PERSON_4"_s);
    QCOMPARE(below->getChildren()->constFirst()->getName(), u"PERSON_2_2"_s);
}

void TestNewNames::duplicatesManyInTheTimeThatTheyTake()
{
    // Eight times as many take eight times as long, and not the square of that.
    QVERIFY(timeToDuplicate(4000) < 24 * timeToDuplicate(500));
}

QTEST_GUILESS_MAIN(TestNewNames)
#include "tst_newnames.moc"
