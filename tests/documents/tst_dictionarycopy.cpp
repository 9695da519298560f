#include "documents/DictionaryCopy.h"
#include "documents/DictionaryEquality.h"
#include "tests/documents/RandomDictionary.h"

#include "model/MetadataVariables.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "model/ValueLabelElement.h"

#include <QTest>

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace
{
/// One edit of a dictionary that holds one of everything.
struct Edit {
    const char *name;
    void (*apply)(TDcEntity &, TDcVariable &, MetadataVariables &, Range &, ValueLabelElement &);
};

#define EDIT(what)                                                                                           \
    Edit                                                                                                     \
    {                                                                                                        \
#what,                                                                                               \
            []([[maybe_unused]] TDcEntity & entity, [[maybe_unused]] TDcVariable & variable,                 \
               [[maybe_unused]] MetadataVariables & layout, [[maybe_unused]] Range & range,                  \
               [[maybe_unused]] ValueLabelElement & element) { what; }                                       \
    }

// Every setter of the model, so that a property missing in the tables is noticed.
const Edit edits[] = {
    EDIT(entity.setName(u"x"_s)),
    EDIT(entity.setLabel(u"x"_s)),
    EDIT(entity.setAlias(u"x"_s)),
    EDIT(entity.setRefCode(u"x"_s)),
    EDIT(entity.setRefLabel(u"x"_s)),
    EDIT(entity.setWeightVariable(u"x"_s)),
    EDIT(entity.setDocumentationEntity(u"x"_s)),
    EDIT(entity.setLevel(77)),
    EDIT(entity.setIsvirtual(!entity.getIsvirtual())),
    EDIT(entity.setSelectable(!entity.getSelectable())),
    EDIT(entity.setCheckDelete(!entity.getCheckDelete())),
    EDIT(entity.getChildren()->append(new TDcEntity)),
    EDIT(entity.getChildren()->append(nullptr)),
    EDIT(entity.addVariables(new TDcVariable)),
    EDIT(variable.setName(u"x"_s)),
    EDIT(variable.setLabel(u"x"_s)),
    EDIT(variable.setAlias(u"x"_s)),
    EDIT(variable.setGroup(u"x"_s)),
    EDIT(variable.setVarType(u"x"_s)),
    EDIT(variable.setDocumentation(u"x"_s)),
    EDIT(variable.setFileName(u"x"_s)),
    EDIT(variable.setSize(77)),
    EDIT(variable.setDecimals(77)),
    EDIT(variable.setFieldSize(77)),
    EDIT(variable.setFieldRelativePosition(77)),
    EDIT(variable.setMissing(77)),
    EDIT(variable.setNotappl(77)),
    EDIT(variable.setTag(77)),
    EDIT(variable.setChecked(77)),
    EDIT(variable.setLevel(77)),
    EDIT(variable.setLocal(!variable.getLocal())),
    EDIT(variable.setMetadataVariables(nullptr)),
    EDIT(variable.addValueLabelElement(new ValueLabelElement)),
    EDIT(layout.setRecord(u"x"_s)),
    EDIT(layout.setField(u"x"_s)),
    EDIT(layout.setStart(77)),
    EDIT(layout.setLength(77)),
    EDIT(layout.setLookup(!layout.getLookup())),
    EDIT(layout.addItemRange(new Range)),
    EDIT(range.setRangeMin(0.125)),
    EDIT(range.setRangeMax(std::numeric_limits<double>::quiet_NaN())),
    EDIT(element.setValue(u"x"_s)),
    EDIT(element.setLabel(u"x"_s)),
};

std::unique_ptr<TDcEntity> oneOfEverything()
{
    auto root = std::make_unique<TDcEntity>();
    auto *entity = new TDcEntity;
    root->getChildren()->append(entity);
    auto *variable = new TDcVariable;
    entity->addVariables(variable);
    variable->setMetadataVariables(new MetadataVariables);
    variable->getMetadataVariables()->addItemRange(new Range);
    variable->addValueLabelElement(new ValueLabelElement);
    return root;
}

void edit(TDcEntity &root, const Edit &edit)
{
    TDcEntity &entity = *root.getChildren()->constFirst();
    TDcVariable &variable = *entity.getVariables()->constFirst();
    MetadataVariables &layout = *variable.getMetadataVariables();
    edit.apply(entity, variable, layout, *layout.getRange()->constFirst(),
               *variable.getValueLabelElementList()->constFirst());
}
} // namespace

class tst_DictionaryCopy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPropertyCounts_data()
    {
        QTest::addColumn<int>("number");
        for (int i = 0; i < int(std::size(edits)); ++i)
            QTest::addRow("%s", edits[i].name) << i;
    }

    void everyPropertyCounts()
    {
        QFETCH(int, number);
        const auto original = oneOfEverything();
        const auto edited = DictionaryCopy::copy(*original);
        QVERIFY(DictionaryEquality::equal(*original, *edited));
        edit(*edited, edits[number]);
        QVERIFY(!DictionaryEquality::equal(*original, *edited));
        const auto copy = DictionaryCopy::copy(*edited);
        QVERIFY(DictionaryEquality::equal(*edited, *copy));
        QVERIFY(!DictionaryEquality::equal(*original, *copy));
    }

    void randomDictionariesEqualTheirCopies()
    {
        for (quint32 seed = 0; seed < 300; ++seed) {
            const auto dictionary = RandomDictionary(seed).entity();
            const auto copy = DictionaryCopy::copy(*dictionary);
            QVERIFY2(DictionaryEquality::equal(*dictionary, *copy), qPrintable(QString::number(seed)));
        }
    }

    void copiesShareNothing()
    {
        auto original = oneOfEverything();
        const auto copy = DictionaryCopy::copy(*original);
        original.reset();
        QCOMPARE(copy->getChildren()->constFirst()->getVariables()->size(), 1);
    }

    void nullsInListsAreKept()
    {
        TDcEntity entity;
        entity.getVariables()->append(nullptr);
        const auto copy = DictionaryCopy::copy(entity);
        QCOMPARE(copy->getVariables()->size(), 1);
        QVERIFY(DictionaryEquality::equal(entity, *copy));
    }

    void childrenCanBeLeftOut()
    {
        const auto original = oneOfEverything();
        const auto copy = DictionaryCopy::copyWithoutChildren(*original->getChildren()->constFirst());
        QVERIFY(DictionaryEquality::equal(*copy, *original->getChildren()->constFirst()));
        QVERIFY(DictionaryCopy::copyWithoutChildren(*original)->getChildren()->isEmpty());
    }

    void aChainDeeperThanTheStackIsCopied()
    {
        TDcEntity root;
        TDcEntity *last = &root;
        for (int i = 0; i < 200'000; ++i) {
            last->getChildren()->append(new TDcEntity);
            last = last->getChildren()->constFirst();
        }
        QVERIFY(DictionaryEquality::equal(root, *DictionaryCopy::copy(root)));
    }
};

QTEST_GUILESS_MAIN(tst_DictionaryCopy)
#include "tst_dictionarycopy.moc"
