#include "documents/DictionaryCopy.h"
#include "documents/DictionaryEquality.h"
#include "tests/workbench/Bench.h"
#include "workbench/operations/EntityEdits.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace
{
/// The entities with their levels, indented.
QStringList tree(const TDcEntity *entity, int depth = 0)
{
    QStringList lines{QString(depth * 2, u' ') + entity->getName() + QString::number(entity->getLevel())};
    for (const TDcEntity *child : std::as_const(*entity->getChildren()))
        lines += tree(child, depth + 1);
    return lines;
}
} // namespace

class TestEntityEdits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void offersWhereAnEntityCanBeMoved_data();
    void offersWhereAnEntityCanBeMoved();
    void movesAnEntityWithAllBelowIt();
    void movesNothingIntoItself_data();
    void movesNothingIntoItself();
    void numbersLevelsAnew();
    void isUndoneInOneStep();

private:
    [[nodiscard]] TDcEntity *root() { return m_bench->document.root(); }

    std::unique_ptr<Bench> m_bench;
};

void TestEntityEdits::init()
{
    m_bench = std::make_unique<Bench>();
    EntityEdits::add(root(), u"FARM"_s);
    EntityEdits::add(m_bench->entity(u"PERSON"_s), u"JOB"_s);
    m_bench->document.commit(u"setting up"_s);
    m_bench->document.undoStack()->clear();
}

void TestEntityEdits::offersWhereAnEntityCanBeMoved_data()
{
    QTest::addColumn<QString>("entity");
    QTest::addColumn<QStringList>("targets");
    QTest::addRow("root") << u"CENSUS"_s << QStringList();
    QTest::addRow("below the root") << u"HOUSEHOLD"_s << QStringList{u"FARM"_s};
    QTest::addRow("with one below it") << u"PERSON"_s << QStringList{u"CENSUS"_s, u"DEATH"_s, u"FARM"_s};
    QTest::addRow("leaf") << u"JOB"_s << QStringList{u"CENSUS"_s, u"DEATH"_s, u"FARM"_s, u"HOUSEHOLD"_s};
}

void TestEntityEdits::offersWhereAnEntityCanBeMoved()
{
    QFETCH(const QString, entity);
    QStringList names;
    const QSet<TDcEntity *> targets = EntityEdits::targets(root(), m_bench->entity(entity));
    for (const TDcEntity *target : targets)
        names.append(target->getName());
    names.sort();
    QTEST(names, "targets");
}

void TestEntityEdits::movesAnEntityWithAllBelowIt()
{
    EntityEdits::moveTo(root(), m_bench->entity(u"PERSON"_s), root());
    QCOMPARE(tree(root()),
             QStringList({u"CENSUS1"_s, u"  HOUSEHOLD2"_s, u"    DEATH3"_s, u"  FARM2"_s, u"  PERSON2"_s,
                          u"    JOB3"_s}));
    EntityEdits::moveTo(root(), m_bench->entity(u"PERSON"_s), m_bench->entity(u"DEATH"_s));
    QCOMPARE(tree(root()),
             QStringList({u"CENSUS1"_s, u"  HOUSEHOLD2"_s, u"    DEATH3"_s, u"      PERSON4"_s,
                          u"        JOB5"_s, u"  FARM2"_s}));
}

void TestEntityEdits::movesNothingIntoItself_data()
{
    QTest::addColumn<QString>("entity");
    QTest::addColumn<QString>("target");
    QTest::addRow("itself") << u"HOUSEHOLD"_s << u"HOUSEHOLD"_s;
    QTest::addRow("below itself") << u"HOUSEHOLD"_s << u"JOB"_s;
    QTest::addRow("root") << u"CENSUS"_s << u"FARM"_s;
    QTest::addRow("where it is") << u"PERSON"_s << u"HOUSEHOLD"_s;
}

void TestEntityEdits::movesNothingIntoItself()
{
    QFETCH(const QString, entity);
    QFETCH(const QString, target);
    const auto before = DictionaryCopy::copy(*root());
    EntityEdits::moveTo(root(), m_bench->entity(entity), m_bench->entity(target));
    QVERIFY(DictionaryEquality::equal(*root(), *before));
}

void TestEntityEdits::numbersLevelsAnew()
{
    TDcEntity *person = m_bench->entity(u"PERSON"_s);
    TDcEntity *job = m_bench->entity(u"JOB"_s);
    person->getVariables()->at(0)->setLevel(3);
    person->getVariables()->at(1)->setLevel(0);
    job->setLevel(9); // Whatever it was.
    EntityEdits::moveTo(root(), person, root());
    QCOMPARE(job->getLevel(), 3);
    QCOMPARE(person->getVariables()->at(0)->getLevel(), 2);
    QCOMPARE(person->getVariables()->at(1)->getLevel(), 0); // As files leave it.
}

void TestEntityEdits::isUndoneInOneStep()
{
    const auto before = DictionaryCopy::copy(*root());
    const TDcEntity *person = m_bench->entity(u"PERSON"_s);
    m_bench->document.edit(u"moving"_s, [this] {
        EntityEdits::moveTo(root(), m_bench->entity(u"PERSON"_s), m_bench->entity(u"FARM"_s));
    });
    const auto after = DictionaryCopy::copy(*root());
    QCOMPARE(m_bench->document.undoStack()->count(), 1);
    m_bench->document.undoStack()->undo();
    QVERIFY(DictionaryEquality::equal(*root(), *before));
    QCOMPARE(m_bench->entity(u"PERSON"_s), person); // The same object, whatever the file had beside it.
    m_bench->document.undoStack()->redo();
    QVERIFY(DictionaryEquality::equal(*root(), *after));
}

QTEST_MAIN(TestEntityEdits)
#include "tst_entityedits.moc"
