#include "documents/DictionaryCopy.h"
#include "documents/DictionaryDifference.h"
#include "documents/DictionaryEquality.h"
#include "tests/documents/RandomEdits.h"
#include "tests/support/Trees.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using DictionaryCopy::copy;
using DictionaryEquality::equal;

namespace
{
/// Whether the difference turns one into the other and back.
bool turns(const TDcEntity &before, const TDcEntity &after)
{
    const auto difference = DictionaryDifference::between(before, after);
    const auto changed = copy(before);
    return difference.isEmpty() == equal(before, after)
        && difference.changes().isEmpty() == difference.isEmpty() && difference.apply(*changed)
        && equal(*changed, after) && difference.inverted().apply(*changed) && equal(*changed, before);
}

/// HOUSEHOLD with AGE and SEX in PERSON, and an empty ROOM.
std::unique_ptr<TDcEntity> household()
{
    auto root = makeEntities(u"HOUSEHOLD\n    PERSON\n    ROOM");
    TDcEntity *person = findEntity(root.get(), u"PERSON");
    person->setLabel(u"Persons"_s);
    person->addVariables(makeVariable(u"AGE"_s, u"age"_s, u"Age in years"_s));
    person->addVariables(makeVariable(u"SEX"_s, u"sex"_s, u"Sex"_s));
    person->addVariables(makeVariable(u"WORK"_s));
    TDcVariable *sex = person->getVariables()->at(1);
    for (const QString &code : {u"1"_s, u"2"_s, u"3"_s}) {
        auto *label = new ValueLabelElement;
        label->setValue(code);
        label->setLabel(u"Label "_s + code);
        sex->addValueLabelElement(label);
    }
    sex->setMetadataVariables(new MetadataVariables);
    auto *range = new Range;
    range->setRangeMax(3);
    sex->getMetadataVariables()->addItemRange(range);
    return root;
}

struct Edit {
    const char *name;
    void (*apply)(TDcEntity &root, TDcEntity &person);
    QStringList text;
};

TDcVariable &sexOf(TDcEntity &person)
{
    return *person.getVariables()->at(1);
}

const QList<Edit> &edits()
{
    static const QList<Edit> list{
        {"variable added",
         [](TDcEntity &, TDcEntity &person) { person.getVariables()->insert(1, makeVariable(u"NEW"_s)); },
         {u"Variable HOUSEHOLD/PERSON/NEW added"_s}},
        {"variable removed",
         [](TDcEntity &, TDcEntity &person) { delete person.getVariables()->takeAt(1); },
         {u"Variable HOUSEHOLD/PERSON/SEX removed"_s}},
        {"variable moved",
         [](TDcEntity &, TDcEntity &person) { person.getVariables()->move(2, 0); },
         {u"Variable HOUSEHOLD/PERSON/WORK moved from position 3 to 1"_s}},
        {"variable moved to another entity",
         [](TDcEntity &root, TDcEntity &person) {
             findEntity(&root, u"ROOM")->addVariables(person.getVariables()->takeFirst());
         },
         {u"Variable HOUSEHOLD/PERSON/AGE moved to HOUSEHOLD/ROOM/AGE"_s}},
        {"variable renamed",
         [](TDcEntity &, TDcEntity &person) { person.getVariables()->first()->setName(u"YEARS"_s); },
         {u"Variable HOUSEHOLD/PERSON/AGE renamed to \"YEARS\""_s}},
        {"variable renamed and moved",
         [](TDcEntity &, TDcEntity &person) {
             person.getVariables()->first()->setName(u"YEARS"_s);
             person.getVariables()->move(0, 2);
         },
         {u"Variable HOUSEHOLD/PERSON/AGE moved from position 1 to 3"_s,
          u"Variable HOUSEHOLD/PERSON/AGE renamed to \"YEARS\""_s}},
        {"property",
         [](TDcEntity &, TDcEntity &person) { person.getVariables()->first()->setLabel(u"Age"_s); },
         {u"Variable HOUSEHOLD/PERSON/AGE: label changed from \"Age in years\" to \"Age\""_s}},
        {"number and flag",
         [](TDcEntity &, TDcEntity &person) {
             person.getVariables()->first()->setTag(7);
             person.getVariables()->first()->setLocal(true);
         },
         {u"Variable HOUSEHOLD/PERSON/AGE: tag changed from 0 to 7"_s,
          u"Variable HOUSEHOLD/PERSON/AGE: local changed from no to yes"_s}},
        {"layout given",
         [](TDcEntity &, TDcEntity &person) {
             person.getVariables()->first()->setMetadataVariables(new MetadataVariables);
         },
         {u"Layout HOUSEHOLD/PERSON/AGE added"_s}},
        {"layout taken away",
         [](TDcEntity &, TDcEntity &person) { sexOf(person).setMetadataVariables(nullptr); },
         {u"Layout HOUSEHOLD/PERSON/SEX removed"_s}},
        {"layout changed",
         [](TDcEntity &, TDcEntity &person) { sexOf(person).getMetadataVariables()->setRecord(u"R1"_s); },
         {u"Layout HOUSEHOLD/PERSON/SEX: record changed from \"\" to \"R1\""_s}},
        {"range changed",
         [](TDcEntity &, TDcEntity &person) {
             sexOf(person).getMetadataVariables()->getRange()->first()->setRangeMax(2.5);
         },
         {u"Range HOUSEHOLD/PERSON/SEX [0 - 3]: maximum changed from 3 to 2.5"_s}},
        {"range added",
         [](TDcEntity &, TDcEntity &person) {
             sexOf(person).getMetadataVariables()->addItemRange(new Range);
         },
         {u"Range HOUSEHOLD/PERSON/SEX [0 - 0] added"_s}},
        {"value label added",
         [](TDcEntity &, TDcEntity &person) {
             auto *label = new ValueLabelElement;
             label->setValue(u"9"_s);
             sexOf(person).addValueLabelElement(label);
         },
         {u"Value label HOUSEHOLD/PERSON/SEX [9] added"_s}},
        {"value label removed",
         [](TDcEntity &, TDcEntity &person) { delete sexOf(person).getValueLabelElementList()->takeFirst(); },
         {u"Value label HOUSEHOLD/PERSON/SEX [1] removed"_s}},
        {"value label moved",
         [](TDcEntity &, TDcEntity &person) { sexOf(person).getValueLabelElementList()->move(0, 2); },
         {u"Value label HOUSEHOLD/PERSON/SEX [1] moved from position 1 to 3"_s}},
        {"code changed",
         [](TDcEntity &, TDcEntity &person) {
             sexOf(person).getValueLabelElementList()->first()->setValue(u"7"_s);
         },
         {u"Value label HOUSEHOLD/PERSON/SEX [1]: code changed from \"1\" to \"7\""_s}},
        {"entity added",
         [](TDcEntity &root, TDcEntity &) {
             auto *entity = new TDcEntity;
             entity->setName(u"DWELLING"_s);
             entity->addVariables(makeVariable(u"ROOF"_s));
             root.getChildren()->prepend(entity);
         },
         {u"Entity HOUSEHOLD/DWELLING added"_s}},
        {"entity removed",
         [](TDcEntity &root, TDcEntity &) { delete root.getChildren()->takeFirst(); },
         {u"Entity HOUSEHOLD/PERSON removed"_s}},
        {"entity renamed",
         [](TDcEntity &, TDcEntity &person) { person.setName(u"MEMBER"_s); },
         {u"Entity HOUSEHOLD/PERSON renamed to \"MEMBER\""_s}},
        {"entity moved in its list",
         [](TDcEntity &root, TDcEntity &) { root.getChildren()->move(1, 0); },
         {u"Entity HOUSEHOLD/ROOM moved from position 2 to 1"_s}},
        {"entity moved to another parent",
         [](TDcEntity &root, TDcEntity &person) {
             person.getChildren()->append(root.getChildren()->takeLast());
         },
         {u"Entity HOUSEHOLD/ROOM moved to HOUSEHOLD/PERSON/ROOM"_s}},
        {"parent and child change places",
         [](TDcEntity &root, TDcEntity &person) {
             TDcEntity *room = root.getChildren()->takeLast();
             root.getChildren()->removeOne(&person);
             root.getChildren()->append(room);
             room->getChildren()->append(&person);
         },
         {u"Entity HOUSEHOLD/PERSON moved to HOUSEHOLD/ROOM/PERSON"_s}},
        {"removed entity whose variable stays",
         [](TDcEntity &root, TDcEntity &person) {
             root.addVariables(person.getVariables()->takeFirst());
             root.getChildren()->removeOne(&person);
             delete &person;
         },
         {u"Entity HOUSEHOLD/PERSON removed"_s, u"Variable HOUSEHOLD/PERSON/AGE moved to HOUSEHOLD/AGE"_s}},
        {"root",
         [](TDcEntity &root, TDcEntity &) { root.setName(u"FARM"_s); },
         {u"Entity HOUSEHOLD renamed to \"FARM\""_s}},
    };
    return list;
}
} // namespace

class tst_DictionaryDifference : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void editsAreToldAndApplied_data()
    {
        QTest::addColumn<int>("number");
        for (int i = 0; i < edits().size(); ++i)
            QTest::addRow("%s", edits().at(i).name) << i;
    }

    void editsAreToldAndApplied()
    {
        QFETCH(int, number);
        const auto before = household();
        const auto after = copy(*before);
        edits().at(number).apply(*after, *findEntity(after.get(), u"PERSON"));
        QVERIFY(!equal(*before, *after));
        const auto difference = DictionaryDifference::between(*before, *after);
        QCOMPARE(difference.text(), edits().at(number).text);
        QVERIFY(turns(*before, *after));
        QVERIFY(turns(*after, *before));
    }

    void whatIsEqualDoesNotDiffer()
    {
        const auto root = household();
        const auto difference = DictionaryDifference::between(*root, *copy(*root));
        QVERIFY(difference.isEmpty());
        QCOMPARE(difference.text(), QStringList{u"No differences."_s});
        QVERIFY(DictionaryDifference::between(*root, *root).isEmpty());
    }

    void randomEditListsAreAppliedAndTakenBack()
    {
        for (quint32 seed = 0; seed < 1000; ++seed) {
            const auto before = RandomDictionary(seed).entity();
            const auto after = copy(*before);
            RandomEdits(seed).apply(*after, int(1 + seed % 12));
            QVERIFY2(turns(*before, *after), qPrintable(QString::number(seed)));
        }
    }

    void strangersAreTurnedIntoEachOther()
    {
        for (quint32 seed = 0; seed < 300; ++seed)
            QVERIFY2(turns(*RandomDictionary(seed).entity(), *RandomDictionary(seed + 5000).entity()),
                     qPrintable(QString::number(seed)));
    }

    void aChainOfDifferencesIsUndoneStepByStep()
    {
        const auto live = RandomDictionary(7).entity();
        const auto first = copy(*live);
        QList<DictionaryDifference> steps;
        for (quint32 seed = 0; seed < 60; ++seed) {
            const auto before = copy(*live);
            RandomEdits(seed).apply(*live, 3);
            steps.append(DictionaryDifference::between(*before, *live));
        }
        const auto last = copy(*live);
        std::for_each(steps.crbegin(), steps.crend(),
                      [&live](const auto &step) { QVERIFY(step.inverted().apply(*live)); });
        QVERIFY(equal(*live, *first));
        std::for_each(steps.cbegin(), steps.cend(),
                      [&live](const auto &step) { QVERIFY(step.apply(*live)); });
        QVERIFY(equal(*live, *last));
    }

    void objectsThatStayOrMoveAreTheSameObjects()
    {
        const auto live = household();
        TDcEntity *person = findEntity(live.get(), u"PERSON");
        TDcEntity *room = findEntity(live.get(), u"ROOM");
        TDcVariable *age = person->getVariables()->first();
        TDcVariable *sex = person->getVariables()->at(1);
        ValueLabelElement *label = sex->getValueLabelElementList()->at(1);
        const auto *list = person->getVariables();

        const auto after = copy(*live);
        TDcEntity *newPerson = findEntity(after.get(), u"PERSON");
        findEntity(after.get(), u"ROOM")->addVariables(newPerson->getVariables()->takeFirst());
        newPerson->getVariables()->first()->setName(u"GENDER"_s);
        newPerson->getVariables()->first()->getValueLabelElementList()->move(1, 0);
        after->getChildren()->move(0, 1);
        newPerson->setName(u"MEMBER"_s);

        QVERIFY(DictionaryDifference::between(*live, *after).apply(*live));
        QVERIFY(equal(*live, *after));
        QCOMPARE(live->getChildren()->at(1), person);
        QCOMPARE(live->getChildren()->at(0), room);
        QCOMPARE(room->getVariables()->constFirst(), age);
        QCOMPARE(person->getVariables()->constFirst(), sex);
        QCOMPARE(sex->getValueLabelElementList()->constFirst(), label);
        QCOMPARE(person->getVariables(), list);
    }

    void whatIsRemovedCanBeKeptForAWhile()
    {
        const auto live = household();
        TDcVariable *age = findEntity(live.get(), u"PERSON")->getVariables()->first();
        const auto after = copy(*live);
        delete findEntity(after.get(), u"PERSON")->getVariables()->takeFirst();
        DictionaryDifference::Removed removed;
        QVERIFY(DictionaryDifference::between(*live, *after).apply(*live, &removed));
        QCOMPARE(removed.size(), std::size_t(1));
        QCOMPARE(removed.front().get(), age);
        QCOMPARE(age->getName(), u"AGE"_s);
    }

    void aTreeThatIsNotTheOneBeforeIsLeftAlone()
    {
        const auto before = household();
        const auto after = copy(*before);
        findEntity(after.get(), u"PERSON")->getVariables()->first()->setLabel(u"Age"_s);
        findEntity(after.get(), u"ROOM")->addVariables(makeVariable(u"SIZE"_s));
        const auto difference = DictionaryDifference::between(*before, *after);

        const auto other = copy(*before);
        findEntity(other.get(), u"PERSON")->getVariables()->first()->setLabel(u"Years"_s);
        const auto same = copy(*other);
        QVERIFY(!difference.apply(*other));
        QVERIFY(equal(*other, *same));

        const auto shorter = copy(*before);
        delete shorter->getChildren()->takeFirst();
        QVERIFY(!difference.apply(*shorter));
        QVERIFY(!difference.apply(*copy(*after)));
        TDcVariable variable;
        QVERIFY(!difference.apply(variable));
    }

    void variablesDifferOnTheirOwn()
    {
        for (quint32 seed = 0; seed < 500; ++seed) {
            const auto before = RandomDictionary(seed).variable();
            const auto after = RandomDictionary(seed + 1000).variable();
            const auto difference = DictionaryDifference::between(*before, *after);
            const auto live = copy(*before);
            QVERIFY(difference.apply(*live));
            QVERIFY2(equal(*live, *after), qPrintable(QString::number(seed)));
            QVERIFY(difference.inverted().apply(*live));
            QVERIFY2(equal(*live, *before), qPrintable(QString::number(seed)));
            TDcEntity entity;
            QCOMPARE(difference.apply(entity), difference.isEmpty());
        }
    }

    void anEntityDiffersWithoutItsChildren()
    {
        const auto live = household();
        const auto after = copy(*live);
        after->addVariables(makeVariable(u"ROOF"_s));
        findEntity(after.get(), u"PERSON")->setLabel(u"not looked at"_s);
        const auto difference =
            DictionaryDifference::between(*live, *after, DictionaryDifference::Scope::WithoutChildren);
        QCOMPARE(difference.text(), QStringList{u"Variable HOUSEHOLD/ROOF added"_s});
        QVERIFY(difference.apply(*live));
        QCOMPARE(live->getVariables()->size(), 1);
        QCOMPARE(live->getChildren()->size(), 2);
        QVERIFY(difference.inverted().apply(*live));
        QVERIFY(equal(*live, *household()));
    }

    void nullsInListsDiffer()
    {
        TDcEntity before;
        before.getVariables()->append({nullptr, makeVariable(u"A"_s), nullptr});
        before.getChildren()->append({nullptr, new TDcEntity});
        TDcEntity after;
        after.getVariables()->append({makeVariable(u"A"_s), nullptr});
        after.getChildren()->append({new TDcEntity, nullptr, nullptr});
        QVERIFY(turns(before, after));
        QVERIFY(turns(after, before));
    }

    void manyVariablesAreComparedInLinearTime()
    {
        // Of the quadratic ways, none comes to an end within the time that a test has.
        constexpr int count = 100'000;
        TDcEntity before;
        TDcEntity after;
        for (int i = 0; i < count; ++i) {
            before.addVariables(makeVariable(u"A%1"_s.arg(i), {}, u"Label %1"_s.arg(i)));
            after.addVariables(makeVariable(u"B%1"_s.arg(count - i), {}, u"Label %1"_s.arg(count - i - 1)));
        }
        QVERIFY(turns(before, after));
    }
};

QTEST_GUILESS_MAIN(tst_DictionaryDifference)
#include "tst_dictionarydifference.moc"
