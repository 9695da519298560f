#include "tests/support/Trees.h"
#include "workbench/operations/VariableEdits.h"

#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

class TestVariableEdits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

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
