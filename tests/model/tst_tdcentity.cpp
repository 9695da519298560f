#include "tests/support/Accessors.h"
#include "tests/support/Trees.h"

using namespace Qt::Literals::StringLiterals;

class tst_TDcEntity : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void properties()
    {
        TDcEntity entity;
        CHECK_ACCESSORS(entity, Name, QString(), u"PERSON"_s);
        CHECK_ACCESSORS(entity, Label, QString(), u"Person"_s);
        CHECK_ACCESSORS(entity, Alias, QString(), u"per"_s);
        CHECK_ACCESSORS(entity, RefCode, QString(), u"CODE"_s);
        CHECK_ACCESSORS(entity, RefLabel, QString(), u"LABEL"_s);
        CHECK_ACCESSORS(entity, WeightVariable, QString(), u"WEIGHT"_s);
        CHECK_ACCESSORS(entity, DocumentationEntity, QString(), u"Who lives here."_s);
        CHECK_ACCESSORS(entity, Level, 1, 3);
        CHECK_ACCESSORS(entity, Isvirtual, false, true);
        CHECK_ACCESSORS(entity, Selectable, false, true);
        CHECK_ACCESSORS(entity, CheckDelete, false, true);
    }

    void newEntityHasEmptyListsNotAbsentOnes()
    {
        const TDcEntity entity;
        QVERIFY(entity.getChildren());
        QVERIFY(entity.getChildren()->isEmpty());
        QVERIFY(entity.getVariables());
        QVERIFY(entity.getVariables()->isEmpty());
    }

    void addVariablesAppendsToTheLiveList()
    {
        TDcEntity entity;
        const auto *live = entity.getVariables();
        entity.addVariables(makeVariable(u"A"_s));
        entity.addVariables(makeVariable(u"B"_s));
        QCOMPARE(live->size(), 2);
        QCOMPARE(live->at(1)->getName(), u"B"_s);
    }

    void setChildrenReplacesTheListAsAWhole()
    {
        TDcEntity entity;
        entity.getChildren()->append(new TDcEntity);
        auto *children = new QList<TDcEntity *>{new TDcEntity, new TDcEntity};
        entity.setChildren(children);
        QCOMPARE(entity.getChildren(), children); // Owned from here on.
        entity.setChildren(nullptr);
        QVERIFY(entity.getChildren()->isEmpty());
    }

    void setVariablesKeepsThoseOfAChangedCopy()
    {
        TDcEntity entity;
        entity.addVariables(makeVariable(u"A"_s));
        entity.addVariables(makeVariable(u"B"_s));
        entity.setVariables(new QList<TDcVariable *>{entity.getVariables()->constLast()});
        QCOMPARE(entity.getVariables()->size(), 1);
        QCOMPARE(entity.getVariables()->constFirst()->getName(), u"B"_s);
    }

    void retiredVariableLivesAsLongAsTheEntity()
    {
        TDcEntity entity;
        auto *variable = makeVariable(u"A"_s);
        entity.addVariables(variable);
        entity.retireVariable(variable);
        QVERIFY(entity.getVariables()->isEmpty());
        QCOMPARE(variable->getName(), u"A"_s);
    }

    void retiringAStrangerDoesNothing()
    {
        TDcEntity entity;
        entity.addVariables(makeVariable(u"A"_s));
        TDcVariable stranger;
        entity.retireVariable(&stranger);
        QCOMPARE(entity.getVariables()->size(), 1);
    }

    void variableTakenOutBelongsToTheTaker()
    {
        std::unique_ptr<TDcVariable> taken;
        {
            TDcEntity entity;
            entity.addVariables(makeVariable(u"A"_s));
            taken.reset(entity.getVariables()->takeFirst());
        }
        QCOMPARE(taken->getName(), u"A"_s);
    }

    void deepTreeIsDeleted()
    {
        auto root = std::make_unique<TDcEntity>();
        TDcEntity *last = root.get();
        for (int i = 0; i < 100'000; ++i) {
            last->getChildren()->append(new TDcEntity);
            last = last->getChildren()->constLast();
        }
        last->setName(u"leaf"_s);
        QCOMPARE(last->getName(), u"leaf"_s);
        root.reset(); // Neither overflows the stack nor leaks.
    }
};

QTEST_APPLESS_MAIN(tst_TDcEntity)

#include "tst_tdcentity.moc"
