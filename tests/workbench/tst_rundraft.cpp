#include "documents/DictionaryCopy.h"
#include "documents/DictionaryEquality.h"
#include "model/Config.h"
#include "tests/support/MessageBoxAnswer.h"
#include "tests/support/Trees.h"
#include "workbench/operations/EntityEdits.h"
#include "workbench/operations/Places.h"
#include "workbench/run/RunDraft.h"
#include "workbench/run/RunWords.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestRunDraft : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void startsWithTheSelectableEntitiesAndAllVariables();
    void leavesTheDictionaryAlone();
    void cascadesAsTheLayerDoes_data();
    void cascadesAsTheLayerDoes();
    void writesTheChosenVariablesInTheirOrder();
    void readsBackWhatItSaved();
    void savesAnUntouchedFileUnchanged();
    void keepsOrderAndRepetitionOfNames();
    void clearsTheListWhenAllAreTaken();
    void takesNotAllOnceOneIsMissing();
    void keepsWhatTheDictionaryDoesNotHave();
    void bringsAnEntityBackToItsPlace();
    void tellsEntitiesOfOneNameByTheirOrder();
    void checksEveryLevel();
    void saysWhatIsMissing();
    void summarises();
    void keepsAPasswordPrivate();
    void knowsWhetherAnythingChanged();

private:
    [[nodiscard]] QString write(const QByteArray &text);
    [[nodiscard]] std::unique_ptr<RunDraft> opened(const QByteArray &text);
    [[nodiscard]] static TDcEntity *entity(const RunDraft &draft, const QString &name);
    [[nodiscard]] static QStringList names(const QList<TDcEntity *> &entities);
    [[nodiscard]] static QString text(RunDraft &draft);
    static void check(RunDraft &draft, const QString &path, bool checked);

    std::unique_ptr<TDcEntity> m_root;
    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestRunDraft::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_root = makeEntities(u"CENSUS\n"
                          "    HOUSEHOLD\n"
                          "        PERSON\n"
                          "        DEATH\n");
    TDcEntity *person = findEntity(m_root.get(), u"PERSON");
    for (const QString &name : {u"ID"_s, u"SEX"_s, u"AGE"_s, u"WAGE"_s})
        person->addVariables(makeVariable(name));
    person->setRefCode(u"ID"_s);
    findEntity(m_root.get(), u"HOUSEHOLD")->addVariables(makeVariable(u"SIZE"_s));
}

QString TestRunDraft::write(const QByteArray &text)
{
    QFile file(m_folder->filePath(u"run.lsd.json"_s));
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() ? file.fileName() : QString();
}

std::unique_ptr<RunDraft> TestRunDraft::opened(const QByteArray &text)
{
    auto file = std::make_unique<RunConfigurationFile>();
    return file->open(write(text)) ? std::make_unique<RunDraft>(*m_root, std::move(file)) : nullptr;
}

TDcEntity *TestRunDraft::entity(const RunDraft &draft, const QString &name)
{
    return findEntity(draft.root(), name);
}

QStringList TestRunDraft::names(const QList<TDcEntity *> &entities)
{
    QStringList names;
    for (const TDcEntity *entity : entities)
        names.append(entity->getName());
    return names;
}

/// The entities of the configuration, one line each: name, "*" for all variables, names of variables.
QString TestRunDraft::text(RunDraft &draft)
{
    QStringList lines;
    for (const ConfigEntities *entry : std::as_const(*draft.config().getEntities())) {
        lines.append(entry->getName() + (entry->getAllVariables() ? u"*"_s : QString()) + u":"_s
                     + entry->getVariables()->join(u','));
    }
    return lines.join(u' ');
}

void TestRunDraft::check(RunDraft &draft, const QString &path, bool checked)
{
    TDcEntity *owner = entity(draft, path.section(u'/', 0, 0));
    draft.checkVariables(owner, {Places::findVariable(owner, path.section(u'/', 1))}, checked);
}

void TestRunDraft::startsWithTheSelectableEntitiesAndAllVariables()
{
    findEntity(m_root.get(), u"PERSON")->setSelectable(true);
    findEntity(m_root.get(), u"DEATH")->setSelectable(true);
    m_root->setLabel(u"Census 2020"_s);
    RunDraft draft(*m_root, u"/data/census.mvdb"_s);
    QCOMPARE(names(draft.chosen()), QStringList({u"PERSON"_s, u"DEATH"_s}));
    QCOMPARE(text(draft), u"PERSON*: DEATH*:"_s);
    QCOMPARE(RunDraft::checkedVariables(entity(draft, u"PERSON"_s)).size(), 4);
    QCOMPARE(draft.dataBase().getName(), u"census"_s);
    QCOMPARE(draft.dataBase().getLabel(), u"Census 2020"_s);
    QCOMPARE(draft.dataBase().getFolder(), u"/data"_s);
    QCOMPARE(draft.dataBase().getSourceFile(), u"/data/census.mvdb"_s);

    const RunDraft homeless(*m_root);
    QCOMPARE(homeless.dataBase().getName(), u"CENSUS"_s);
    QCOMPARE(homeless.dataBase().getFolder(), QString());
}

void TestRunDraft::leavesTheDictionaryAlone()
{
    findEntity(m_root.get(), u"PERSON")->setSelectable(true);
    const auto before = DictionaryCopy::copy(*m_root);
    RunDraft draft(*m_root);
    draft.chooseEntities(true);
    draft.setCheckDelete(entity(draft, u"DEATH"_s), true);
    check(draft, u"PERSON/AGE"_s, false);
    QVERIFY(draft.save(m_folder->filePath(u"a.lsd.json"_s)));
    QVERIFY(DictionaryEquality::equal(*m_root, *before));
}

void TestRunDraft::cascadesAsTheLayerDoes_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("left");
    QTest::addRow("yes") << u"Yes"_s << QString();
    QTest::addRow("no") << u"No"_s << u"CENSUS* HOUSEHOLD* PERSON*"_s;
}

void TestRunDraft::cascadesAsTheLayerDoes()
{
    QFETCH(const QString, answer);
    QFETCH(const QString, left);
    RunDraft draft(*m_root);
    const MessageBoxAnswer box({answer});
    // Ticking an entity ticks nothing else.
    EntityEdits::setSelectable(draft.root(), true);
    QCOMPARE(text(draft), u"CENSUS*:"_s);
    EntityEdits::setSelectable(entity(draft, u"HOUSEHOLD"_s), true);
    EntityEdits::setSelectable(entity(draft, u"PERSON"_s), true);
    QCOMPARE(box.shown().size(), 0);
    EntityEdits::setSelectable(draft.root(), false);
    QCOMPARE(box.shown().size(), 1);
    QCOMPARE(text(draft).remove(u':'), left);
}

void TestRunDraft::writesTheChosenVariablesInTheirOrder()
{
    RunDraft draft(*m_root);
    entity(draft, u"PERSON"_s)->setSelectable(true);
    check(draft, u"PERSON/SEX"_s, false);
    QCOMPARE(text(draft), u"PERSON:ID,AGE,WAGE"_s);
    check(draft, u"PERSON/SEX"_s, true);
    QCOMPARE(text(draft), u"PERSON:ID,SEX,AGE,WAGE"_s); // All of them, but not those of the future.
    draft.takeAllVariables(entity(draft, u"PERSON"_s), true);
    QCOMPARE(text(draft), u"PERSON*:"_s);
}

void TestRunDraft::readsBackWhatItSaved()
{
    const QString path = m_folder->filePath(u"run.lsd.json"_s);
    RunDraft draft(*m_root);
    entity(draft, u"HOUSEHOLD"_s)->setSelectable(true);
    entity(draft, u"PERSON"_s)->setSelectable(true);
    check(draft, u"PERSON/AGE"_s, false);
    ConfigEntities &household = draft.settings(entity(draft, u"HOUSEHOLD"_s));
    household.setRecType(u"H"_s);
    household.setCheckSequence(false);
    household.setCreateSDC(true);
    draft.setCheckDelete(entity(draft, u"HOUSEHOLD"_s), true);
    draft.dataBase().setAuthor(u"Field office"_s);
    draft.dataBase().setProject(u"P1"_s);
    draft.dataBase().setFilter(u"AGE > 5"_s);
    draft.dataBase().setSelectFilter(u"SEX = 1"_s);
    draft.dataBase().setFileFilter(u"*.dat"_s);
    draft.options().setCreateNoRanges(true);
    QVERIFY2(draft.save(path), qPrintable(draft.file().errorText()));

    auto file = std::make_unique<RunConfigurationFile>();
    QVERIFY(file->open(path));
    RunDraft again(*m_root, std::move(file));
    QCOMPARE(names(again.chosen()), names(draft.chosen()));
    QCOMPARE(text(again), u"HOUSEHOLD*: PERSON:ID,SEX,WAGE"_s);
    QCOMPARE(RunDraft::checkedVariables(entity(again, u"PERSON"_s)).size(), 3);
    const ConfigEntities &settings = again.settings(entity(again, u"HOUSEHOLD"_s));
    QCOMPARE(settings.getRecType(), u"H"_s);
    QVERIFY(!settings.getCheckSequence());
    QVERIFY(settings.getCreateSDC());
    QVERIFY(entity(again, u"HOUSEHOLD"_s)->getCheckDelete());
    QCOMPARE(again.dataBase().getAuthor(), u"Field office"_s);
    QCOMPARE(again.dataBase().getProject(), u"P1"_s);
    QCOMPARE(again.dataBase().getFilter(), u"AGE > 5"_s);
    QCOMPARE(again.dataBase().getSelectFilter(), u"SEX = 1"_s);
    QCOMPARE(again.dataBase().getFileFilter(), u"*.dat"_s);
    QVERIFY(again.options().getCreateNoRanges());
    QVERIFY(!again.options().getCreateNotAppMissingInRange());
    QCOMPARE(again.file().content(), draft.file().content());
}

void TestRunDraft::savesAnUntouchedFileUnchanged()
{
    const QByteArray text = R"({"type": "config", "extra": [1, null], "database": {"name": "x", "more": 1},
        "options": {}, "entities": [
            {"name": "PERSON", "allVariables": true, "variables": ["AGE"], "weight": 2.5},
            {"name": "FARM", "allVariables": false, "variables": ["LAND"]},
            {"name": "DEATH", "selectable": false, "variables": ["GONE"]}, 5]})";
    const auto draft = opened(text);
    QVERIFY(draft);
    QVERIFY(!draft->isModified());
    QVERIFY(draft->save(draft->file().path()));
    QFile file(draft->file().path());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QJsonDocument::fromJson(file.readAll()), QJsonDocument::fromJson(text));
}

void TestRunDraft::keepsOrderAndRepetitionOfNames()
{
    const auto draft =
        opened(R"({"entities": [{"name": "PERSON", "variables": ["SEX", "GONE", "ID", "SEX"]}]})");
    QVERIFY(draft);
    check(*draft, u"PERSON/WAGE"_s, true);
    check(*draft, u"PERSON/AGE"_s, true);
    QCOMPARE(text(*draft), u"PERSON:SEX,GONE,ID,SEX,AGE,WAGE"_s);
    check(*draft, u"PERSON/SEX"_s, false);
    QCOMPARE(text(*draft), u"PERSON:GONE,ID,AGE,WAGE"_s);
    check(*draft, u"PERSON/SEX"_s, true);
    QCOMPARE(text(*draft), u"PERSON:SEX,GONE,ID,SEX,AGE,WAGE"_s);
}

void TestRunDraft::clearsTheListWhenAllAreTaken()
{
    const auto draft = opened(R"({"entities": [{"name": "PERSON", "variables": ["SEX", "GONE"]}]})");
    QVERIFY(draft);
    draft->takeAllVariables(entity(*draft, u"PERSON"_s), true);
    QCOMPARE(text(*draft), u"PERSON*:GONE"_s);
    draft->takeAllVariables(entity(*draft, u"PERSON"_s), false);
    QCOMPARE(text(*draft), u"PERSON:SEX,GONE,ID,AGE,WAGE"_s);
}

void TestRunDraft::takesNotAllOnceOneIsMissing()
{
    RunDraft draft(*m_root);
    TDcEntity *person = entity(draft, u"PERSON"_s);
    person->setSelectable(true);
    Places::findVariable(person, u"AGE"_s)->setChecked(0);
    QVERIFY(draft.settings(person).getAllVariables());
    draft.followChecks(person);
    QVERIFY(!draft.settings(person).getAllVariables());
}

void TestRunDraft::keepsWhatTheDictionaryDoesNotHave()
{
    const auto draft = opened(R"({"entities": [{"name": "FARM", "variables": ["LAND"]},
        {"name": "PERSON", "variables": ["GONE", "SEX", "LOST", "GONE"]}, {}]})");
    QVERIFY(draft);
    QCOMPARE(draft->unknownEntities(), QStringList({u"FARM"_s, QString()}));
    QCOMPARE(draft->unknownVariables(entity(*draft, u"PERSON"_s)), QStringList({u"GONE"_s, u"LOST"_s}));
    QCOMPARE(RunWords::unknown(*draft),
             QStringList({u"Entities that the dictionary does not have: FARM, one without a name"_s,
                          u"Variables that PERSON does not have: GONE, LOST"_s}));
    draft->chooseEntities(false);
    QCOMPARE(text(*draft), u"FARM:LAND :"_s);
    draft->chooseEntities(true);
    QCOMPARE(text(*draft), u"FARM:LAND PERSON:GONE,SEX,LOST,GONE : CENSUS*: HOUSEHOLD*: DEATH*:"_s);
}

void TestRunDraft::bringsAnEntityBackToItsPlace()
{
    const auto draft =
        opened(R"({"entities": [{"name": "PERSON", "recType": "P", "own": 1}, {"name": "CENSUS"}]})");
    QVERIFY(draft);
    const QByteArray before = draft->file().content();
    entity(*draft, u"PERSON"_s)->setSelectable(false);
    QCOMPARE(text(*draft), u"CENSUS:"_s);
    QVERIFY(draft->isModified());
    entity(*draft, u"PERSON"_s)->setSelectable(true);
    QVERIFY(!draft->isModified());
    QCOMPARE(draft->file().content(), before);
}

void TestRunDraft::tellsEntitiesOfOneNameByTheirOrder()
{
    m_root = makeEntities(u"CENSUS\n    A\n    A\n");
    const auto draft = opened(R"({"entities": [{"name": "A", "recType": "1"}, {"name": "A", "recType": "2"},
        {"name": "A", "recType": "3"}]})");
    QVERIFY(draft);
    const QList<TDcEntity *> chosen = draft->chosen();
    QCOMPARE(chosen.size(), 2);
    QCOMPARE(draft->settings(chosen.first()).getRecType(), u"1"_s);
    QCOMPARE(draft->settings(chosen.last()).getRecType(), u"2"_s);
    QCOMPARE(draft->unknownEntities(), QStringList({u"A"_s}));
}

void TestRunDraft::checksEveryLevel()
{
    findEntity(m_root.get(), u"PERSON")->getVariables()->first()->setLevel(3);
    const RunDraft draft(*m_root);
    for (const TDcVariable *variable : std::as_const(*entity(draft, u"PERSON"_s)->getVariables()))
        QCOMPARE(variable->getLevel(), 1);
}

void TestRunDraft::saysWhatIsMissing()
{
    RunDraft draft(*m_root);
    QCOMPARE(RunWords::nameProblem(draft), QString());
    draft.dataBase().setName(u"  "_s);
    QCOMPARE(RunWords::nameProblem(draft), u"Give the run a name."_s);

    QCOMPARE(RunWords::entitiesProblem(draft), u"Tick at least one entity that takes part."_s);
    draft.chooseEntities(true);
    QCOMPARE(RunWords::entitiesProblem(draft), QString());

    QCOMPARE(RunWords::variablesProblem(draft), QString());
    TDcEntity *person = entity(draft, u"PERSON"_s);
    draft.checkVariables(person, *person->getVariables(), false);
    QCOMPARE(RunWords::variablesProblem(draft),
             u"Tick at least one variable of PERSON, or go back and leave it out."_s);
    person->setSelectable(false);
    QCOMPARE(RunWords::variablesProblem(draft), QString());
    // Where there is nothing to tick, nothing is asked for.
    draft.takeAllVariables(entity(draft, u"DEATH"_s), false);
    QCOMPARE(RunWords::variablesProblem(draft), QString());
}

void TestRunDraft::summarises()
{
    RunDraft draft(*m_root);
    draft.dataBase().setName(u"<run>"_s);
    draft.dataBase().setAuthor(u"A & B"_s);
    draft.dataBase().setPassword(u"open sesame"_s);
    entity(draft, u"PERSON"_s)->setSelectable(true);
    draft.settings(entity(draft, u"PERSON"_s)).setRecType(u"P"_s);
    check(draft, u"PERSON/AGE"_s, false);
    const QString summary = RunWords::summary(draft);
    for (const QString &part :
         {u"called <b>&lt;run&gt;</b>"_s, u"Author: A &amp; B"_s, u"<b>PERSON</b> with 3 of 4 variables"_s,
          u"The record type is P."_s, u"Only you will be able to read the file."_s})
        QVERIFY2(summary.contains(part), qPrintable(part + u" in "_s + summary));
    QVERIFY(!summary.contains(u"sesame"_s));
    QVERIFY(!summary.contains(u"HOUSEHOLD"_s));
}

void TestRunDraft::keepsAPasswordPrivate()
{
    const QString path = m_folder->filePath(u"secret.lsd.json"_s);
    RunDraft draft(*m_root);
    QVERIFY(draft.save(path));
    draft.dataBase().setPassword(u"open sesame"_s);
    QVERIFY(draft.save(path));
    QCOMPARE(QFileInfo(path).permissions()
                 & ~(QFile::ReadUser | QFile::WriteUser), // The same as the owner's.
             QFile::Permissions(QFile::ReadOwner | QFile::WriteOwner));
}

void TestRunDraft::knowsWhetherAnythingChanged()
{
    RunDraft draft(*m_root);
    QVERIFY(!draft.isModified());
    draft.proposeAuthor(u"Field office"_s);
    QVERIFY(!draft.isModified());
    draft.dataBase().setLabel(u"x"_s);
    QVERIFY(draft.isModified());
    QVERIFY(draft.save(m_folder->filePath(u"a.lsd.json"_s)));
    QVERIFY(!draft.isModified());
    draft.chooseEntities(true);
    QVERIFY(draft.isModified());
    QVERIFY(!draft.save(m_folder->filePath(u"missing/a.lsd.json"_s)));
    QCOMPARE(draft.file().error(), DocumentFile::Error::CannotWrite);
    QVERIFY(draft.isModified());
}

QTEST_MAIN(TestRunDraft)
#include "tst_rundraft.moc"
