#include "tests/support/Trees.h"
#include "workbench/operations/VariableEdits.h"

#include <QTest>

#include <limits>
#include <memory>

using namespace Qt::Literals::StringLiterals;

class TestVariableEdits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void newVariablesHaveTagsOfTheirOwn_data();
    void newVariablesHaveTagsOfTheirOwn();
    void whatIsRemovedHasNoRole_data();
    void whatIsRemovedHasNoRole();
    void aRoleGoesToTheOtherOfTheSameName();
    void takingTheCodeAwayTakesTheMark_data();
    void takingTheCodeAwayTakesTheMark();

private:
    [[nodiscard]] TDcVariable *at(int row) const { return m_entity->getVariables()->at(row); }
    [[nodiscard]] QString roles() const
    {
        return QStringList{m_entity->getRefCode(), m_entity->getRefLabel(), m_entity->getWeightVariable(),
                           m_entity->getSelectable() ? u"selectable"_s : QString()}
            .join(u'|');
    }

    std::unique_ptr<TDcEntity> m_entity;
};

void TestVariableEdits::init()
{
    m_entity = std::make_unique<TDcEntity>();
    for (const QString &name : {u"CODE"_s, u"TITLE"_s, u"WEIGHT"_s, u"AGE"_s})
        m_entity->addVariables(makeVariable(name));
    m_entity->setRefCode(u"CODE"_s);
    m_entity->setRefLabel(u" TITLE "_s); // Documents may hold blanks.
    m_entity->setWeightVariable(u"WEIGHT"_s);
    m_entity->setSelectable(true);
}

void TestVariableEdits::newVariablesHaveTagsOfTheirOwn_data()
{
    constexpr int highest = std::numeric_limits<int>::max();
    QTest::addColumn<QList<int>>("there");
    QTest::addColumn<QList<int>>("added");
    QTest::addRow("none there") << QList({0, 0}) << QList({1, 2, 3});
    QTest::addRow("after the highest") << QList({7, 3}) << QList({8, 9, 10});
    QTest::addRow("negative ones") << QList({-5, -9}) << QList({1, 2, 3});
    QTest::addRow("none after the highest integer") << QList({2, highest}) << QList({1, 3, 4});
    QTest::addRow("close to it") << QList({1, highest - 1}) << QList({highest, 2, 3});
}

void TestVariableEdits::newVariablesHaveTagsOfTheirOwn()
{
    QFETCH(const QList<int>, there);
    for (int row = 0; row < there.size(); ++row)
        at(row)->setTag(there.at(row));
    const TDcVariable *added = VariableEdits::add(m_entity.get(), u"NEW"_s);
    const QList<TDcVariable *> copies =
        VariableEdits::duplicate(m_entity.get(), m_entity.get(), {at(0), at(1)});
    const QList<int> tags{added->getTag(), copies.at(0)->getTag(), copies.at(1)->getTag()};
    QTEST(tags, "added");
}

void TestVariableEdits::whatIsRemovedHasNoRole_data()
{
    QTest::addColumn<QList<int>>("rows");
    QTest::addColumn<QString>("roles");
    QTest::addRow("none") << QList<int>() << u"CODE| TITLE |WEIGHT|selectable"_s;
    QTest::addRow("one without a role") << QList({3}) << u"CODE| TITLE |WEIGHT|selectable"_s;
    QTest::addRow("the code") << QList({0}) << u"| TITLE |WEIGHT|"_s;
    QTest::addRow("the label") << QList({1}) << u"CODE||WEIGHT|selectable"_s;
    QTest::addRow("the weight") << QList({2}) << u"CODE| TITLE ||selectable"_s;
    QTest::addRow("all") << QList({0, 1, 2, 3}) << u"|||"_s;
}

void TestVariableEdits::whatIsRemovedHasNoRole()
{
    QFETCH(const QList<int>, rows);
    QList<TDcVariable *> variables;
    for (int row : rows)
        variables.append(at(row));
    VariableEdits::remove(*m_entity, variables);
    QCOMPARE(m_entity->getVariables()->size(), 4 - rows.size());
    QTEST(roles(), "roles");
}

void TestVariableEdits::aRoleGoesToTheOtherOfTheSameName()
{
    m_entity->addVariables(makeVariable(u"CODE"_s));
    VariableEdits::remove(*m_entity, {at(0)});
    QCOMPARE(roles(), u"CODE| TITLE |WEIGHT|selectable"_s);
}

void TestVariableEdits::takingTheCodeAwayTakesTheMark_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("selectable");
    QTest::addRow("another") << u"AGE"_s << true;
    QTest::addRow("none") << QString() << false;
    QTest::addRow("blanks") << u"  "_s << false;
}

void TestVariableEdits::takingTheCodeAwayTakesTheMark()
{
    QFETCH(const QString, name);
    VariableEdits::setRole(*m_entity, VariableEdits::Role::RefCode, name);
    QCOMPARE(m_entity->getRefCode(), name);
    QTEST(m_entity->getSelectable(), "selectable");
    // The other roles have nothing to do with it.
    m_entity->setSelectable(true);
    VariableEdits::setRole(*m_entity, VariableEdits::Role::RefLabel, {});
    VariableEdits::setRole(*m_entity, VariableEdits::Role::Weight, {});
    QCOMPARE(roles(), QString(name + u"|||selectable"_s));
}

QTEST_MAIN(TestVariableEdits)
#include "tst_variableedits.moc"
