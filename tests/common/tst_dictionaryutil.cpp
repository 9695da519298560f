#include "common/DictionaryUtil.h"
#include "tests/support/Trees.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr auto households = uR"(
DWELLING/dw
    HOUSEHOLD/hh
        PERSON/pe
        EVENT
    ROOM/ro
)";

QStringList namesOf(const QList<TDcEntity *> &entities)
{
    QStringList names;
    std::transform(entities.cbegin(), entities.cend(), std::back_inserter(names),
                   [](const TDcEntity *entity) { return entity->getName(); });
    return names;
}
} // namespace

class tst_DictionaryUtil : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TDcEntity> m_root;
    DictionaryUtil m_util;

    [[nodiscard]] TDcEntity *entity(QStringView name) const { return findEntity(m_root.get(), name); }

private Q_SLOTS:
    void init()
    {
        m_root = makeEntities(households);
        entity(u"PERSON")->addVariables(makeVariable(u"AGE"_s, u"age"_s, {}, u"Demography"_s));
        entity(u"PERSON")->addVariables(makeVariable(u"SEX"_s, {}, {}, u"Demography"_s));
        entity(u"PERSON")->addVariables(makeVariable({}, u"x"_s));
        entity(u"PERSON")->addVariables(nullptr);
        entity(u"PERSON")->addVariables(makeVariable(u"AGE"_s, u"age"_s, {}, u"demography"_s));
        m_root->addVariables(makeVariable(u"WALLS"_s, {}, {}, u"Building"_s));
        entity(u"ROOM")->addVariables(makeVariable(u"AREA"_s, {}, {}, u"Building"_s));
    }

    void namesAreThoseOfTheWholeTreeInPreOrder()
    {
        QCOMPARE(m_util.getNamesEntitiesDictionary(m_root.get(), {}),
                 QStringList({u"DWELLING"_s, u"HOUSEHOLD"_s, u"PERSON"_s, u"EVENT"_s, u"ROOM"_s}));
    }

    void namesBeginAtTheGivenEntity()
    {
        QCOMPARE(m_util.getNamesEntitiesDictionary(entity(u"HOUSEHOLD"), {}),
                 QStringList({u"HOUSEHOLD"_s, u"PERSON"_s, u"EVENT"_s}));
    }

    void aliasesLeaveEmptyOnesOut()
    {
        QCOMPARE(m_util.getAliasEntitiesDictionary(m_root.get(), {}),
                 QStringList({u"dw"_s, u"hh"_s, u"pe"_s, u"ro"_s}));
    }

    void groupsAreThoseOfAllVariablesEachOnce()
    {
        QCOMPARE(m_util.getGroupEntitiesDictionary(m_root.get(), {}),
                 QStringList({u"Building"_s, u"Demography"_s, u"demography"_s}));
    }

    void variableNamesAreTheEntitysOwnWithRepeatedOnes()
    {
        QCOMPARE(m_util.getNamesVariablesByEntities(entity(u"PERSON"), {}),
                 QStringList({u"AGE"_s, u"SEX"_s, u"AGE"_s}));
        QCOMPARE(m_util.getNamesVariablesByEntities(m_root.get(), {}), QStringList({u"WALLS"_s}));
    }

    void variableAliasesAreTheEntitysOwnWithRepeatedOnes()
    {
        QCOMPARE(m_util.getAliasVariableByEntity(entity(u"PERSON"), {}),
                 QStringList({u"age"_s, u"x"_s, u"age"_s}));
        QVERIFY(m_util.getAliasVariableByEntity(m_root.get(), {}).isEmpty());
    }

    void resultsFollowTheListGiven()
    {
        const QStringList given{u"given"_s};
        QCOMPARE(m_util.getNamesEntitiesDictionary(entity(u"ROOM"), given),
                 QStringList({u"given"_s, u"ROOM"_s}));
        QCOMPARE(m_util.getAliasEntitiesDictionary(entity(u"ROOM"), given),
                 QStringList({u"given"_s, u"ro"_s}));
        QCOMPARE(m_util.getGroupEntitiesDictionary(entity(u"ROOM"), {u"Building"_s}),
                 QStringList({u"Building"_s})); // Each once, the given ones too.
        QCOMPARE(m_util.getNamesVariablesByEntities(entity(u"ROOM"), given),
                 QStringList({u"given"_s, u"AREA"_s}));
        QCOMPARE(m_util.getAliasVariableByEntity(entity(u"EVENT"), given), given);
    }

    void childEntitiesCheckedAreTheSelectableOnesBelow()
    {
        for (const QStringView name : {u"DWELLING", u"HOUSEHOLD", u"EVENT", u"ROOM"})
            entity(name)->setSelectable(true);
        QList<TDcEntity *> found;
        QCOMPARE(m_util.getChildEntitiesChecked(m_root.get(), &found), &found);
        QCOMPARE(namesOf(found), QStringList({u"HOUSEHOLD"_s, u"EVENT"_s, u"ROOM"_s}));
    }

    void childEntitiesCheckedOfALeafAreNone()
    {
        entity(u"ROOM")->setSelectable(true);
        QList<TDcEntity *> found;
        QVERIFY(m_util.getChildEntitiesChecked(entity(u"ROOM"), &found)->isEmpty());
    }

    void noEntityGivesBackTheList()
    {
        const QStringList given{u"given"_s};
        QCOMPARE(m_util.getNamesEntitiesDictionary(nullptr, given), given);
        QCOMPARE(m_util.getAliasEntitiesDictionary(nullptr, given), given);
        QCOMPARE(m_util.getGroupEntitiesDictionary(nullptr, given), given);
        QCOMPARE(m_util.getNamesVariablesByEntities(nullptr, given), given);
        QCOMPARE(m_util.getAliasVariableByEntity(nullptr, given), given);
        QList<TDcEntity *> found;
        QVERIFY(m_util.getChildEntitiesChecked(nullptr, &found)->isEmpty());
    }

    void nullEntitiesInTheTreeArePassedOver()
    {
        entity(u"ROOM")->getChildren()->append(nullptr);
        QCOMPARE(m_util.getNamesEntitiesDictionary(entity(u"ROOM"), {}), QStringList({u"ROOM"_s}));
    }

    void deepTreesAreWalkedToTheirEnd()
    {
        TDcEntity *last = m_root.get();
        for (int i = 0; i < 100'000; ++i) {
            last->getChildren()->append(new TDcEntity);
            last = last->getChildren()->constLast();
        }
        last->setName(u"LEAF"_s);
        QVERIFY(m_util.getNamesEntitiesDictionary(m_root.get(), {}).contains(u"LEAF"_s));
    }
};

QTEST_APPLESS_MAIN(tst_DictionaryUtil)

#include "tst_dictionaryutil.moc"
