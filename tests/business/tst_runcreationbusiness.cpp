#include "business/RunCreationBusiness.h"
#include "tests/support/JsonCompare.h"
#include "tests/support/ModelDump.h"
#include "tests/support/Throwing.h"

using namespace ModelDump;
using namespace Qt::Literals::StringLiterals;

namespace
{
QJsonValue exported(Config &config)
{
    return RunCreationBusiness().exportConfigToJson(&config).object();
}

std::unique_ptr<Config> imported(const QVariantMap &document)
{
    return std::unique_ptr<Config>(
        RunCreationBusiness().recorrerNodosEntitiesJsonYCargaEstructuraConfig(document));
}

std::unique_ptr<Config> imported(const QString &document)
{
    return imported(variant(document).toMap());
}

ConfigEntities *addEntity(Config &config)
{
    auto *entity = new ConfigEntities;
    config.getEntities()->append(entity);
    return entity;
}
} // namespace

class tst_RunCreationBusiness : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emptyConfigurationHasAllFourMembers()
    {
        Config config;
        COMPARE_JSON(exported(config),
                     json(u"{'type': 'config', 'database': {}, 'entities': [],"
                          "'options': {'createNotAppMissingInRange': false, 'createNoRanges': false}}"_s));
    }

    void databaseTextsAreWrittenUnlessEmpty()
    {
        Config config;
        ConfigDb &dataBase = *config.getDataBase();
        dataBase.setName(u"N"_s);
        dataBase.setFolder(u"/data"_s);
        dataBase.setSourceFile(u"a.mvdb"_s);
        dataBase.setLabel(u"L"_s);
        dataBase.setAuthor(u"A"_s);
        dataBase.setPassword(u"clear text"_s);
        COMPARE_JSON(exported(config)[u"database"_s],
                     json(u"{'name': 'N', 'folder': '/data', 'sourceFile': 'a.mvdb', 'label': 'L',"
                          "'author': 'A', 'password': 'clear text'}"_s));
    }

    void filtersAndProjectAreNeverWritten()
    {
        Config config;
        ConfigDb &dataBase = *config.getDataBase();
        dataBase.setFilter(u"f"_s);
        dataBase.setSelectFilter(u"f"_s);
        dataBase.setFileFilter(u"f"_s);
        dataBase.setProject(u"p"_s);
        COMPARE_JSON(exported(config)[u"database"_s], json(u"{}"_s));
    }

    void backslashesBecomeSlashesAndStaySo()
    {
        Config config;
        config.getDataBase()->setFolder(u"C:\\data\\runs"_s);
        config.getDataBase()->setSourceFile(u"..\\a.mvdb"_s);
        config.getDataBase()->setName(u"not\\a\\path"_s);
        const QJsonValue document = exported(config);
        QCOMPARE(document[u"database"_s][u"folder"_s], u"C:/data/runs"_s);
        QCOMPARE(document[u"database"_s][u"sourceFile"_s], u"../a.mvdb"_s);
        QCOMPARE(document[u"database"_s][u"name"_s], u"not\\a\\path"_s);
        const auto read = imported(document.toVariant().toMap());
        QCOMPARE(read->getDataBase()->getFolder(), u"C:/data/runs"_s);
        QCOMPARE(read->getDataBase()->getSourceFile(), u"../a.mvdb"_s);
    }

    void pathsAreReadAsGiven()
    {
        const auto config = imported(u"{'database': {'folder': 'C:\\\\data', 'sourceFile': 'b/c\\\\d'}}"_s);
        QCOMPARE(config->getDataBase()->getFolder(), u"C:\\data"_s);
        QCOMPARE(config->getDataBase()->getSourceFile(), u"b/c\\d"_s);
    }

    void optionsAreAlwaysWritten()
    {
        Config config;
        config.getOptions()->setCreateNoRanges(true);
        COMPARE_JSON(exported(config)[u"options"_s],
                     json(u"{'createNotAppMissingInRange': false, 'createNoRanges': true}"_s));
        config.getOptions()->setCreateNotAppMissingInRange(true);
        config.getOptions()->setCreateNoRanges(false);
        COMPARE_JSON(exported(config)[u"options"_s],
                     json(u"{'createNotAppMissingInRange': true, 'createNoRanges': false}"_s));
    }

    void entityWithDefaultsHasOnlyAllVariables()
    {
        Config config;
        addEntity(config);
        COMPARE_JSON(exported(config)[u"entities"_s], json(u"[{'allVariables': false}]"_s));
    }

    void createSdcIsWrittenOnlyAsYesAndCheckSequenceOnlyAsNo()
    {
        Config config;
        ConfigEntities *entity = addEntity(config);
        entity->setCreateSDC(true);
        entity->setCheckSequence(false);
        COMPARE_JSON(exported(config)[u"entities"_s],
                     json(u"[{'allVariables': false, 'createSDC': true, 'checkSequence': false}]"_s));
    }

    void entitiesAndNamesKeepTheirOrder()
    {
        Config config;
        for (const auto &name : {u"B"_s, u"A"_s}) {
            ConfigEntities *entity = addEntity(config);
            entity->setName(name);
            entity->setRecType(u"R"_s);
            entity->setAllVariables(true);
            entity->setCheckDelete(true);
            entity->setCheckSelectable(true);
            for (const auto &variable : {u"Y"_s, u"X"_s, u"Y"_s, QString()})
                entity->addVariables(variable);
        }
        COMPARE_JSON(
            exported(config)[u"entities"_s],
            json(u"[{'name': 'B', 'recType': 'R', 'allVariables': true, 'variables': ['Y', 'X', 'Y', '']},"
                 "{'name': 'A', 'recType': 'R', 'allVariables': true,"
                 "'variables': ['Y', 'X', 'Y', '']}]"_s));
    }

    void documents_data()
    {
        QTest::addColumn<QString>("document");
        QTest::addColumn<QString>("result");
        QTest::addRow("empty document gives the default parts") << u"{}"_s << u"{}"_s;
        QTest::addRow("type is never checked") << u"{'type': 'dictionary'}"_s << u"{}"_s;
        QTest::addRow("keys are case-sensitive")
            << u"{'Database': {'name': 'N'}, 'OPTIONS': {'createNoRanges': true}, 'Entities': [{}]}"_s
            << u"{}"_s;
        QTest::addRow("every database key")
            << u"{'database': {'name': 'N', 'filter': 'F', 'selectFilter': 'S', 'fileFilter': 'I', 'folder': "
               u"'D',"
               "'XXXproject': 'P', 'sourceFile': 'O', 'password': 'W'}}"_s
            << u"{'dataBase': {'name': 'N', 'filter': 'F', 'selectFilter': 'S', 'fileFilter': 'I',"
               "'folder': 'D', 'project': 'P', 'sourceFile': 'O', 'password': 'W'}}"_s;
        QTest::addRow("label and author are not read")
            << u"{'database': {'label': 'L', 'author': 'A'}}"_s << u"{}"_s;
        QTest::addRow("project has a key of its own")
            << u"{'database': {'project': 'p', 'xxxproject': 'p'}}"_s << u"{}"_s;
        QTest::addRow("options")
            << u"{'options': {'createNotAppMissingInRange': true, 'createNoRanges': 1}}"_s
            << u"{'createNotAppMissingInRange': true, 'createNoRanges': true}"_s;
        QTest::addRow("every entity key")
            << u"{'entities': [{'name': 'N', 'recType': 'R', 'delete': true, 'selectable': true, "
               u"'createSDC': true,"
               "'allVariables': true, 'checkSequence': false, 'variables': ['X', 'Y', 'X', 1, null]}]}"_s
            << u"{'entities': [{'name': 'N', 'recType': 'R', 'checkDelete': true, 'checkSelectable': true,"
               "'createSDC': true, 'allVariables': true, 'checkSequence': false,"
               "'variables': ['X', 'Y', 'X', '1', '']}]}"_s;
        QTest::addRow("capital Name is ignored")
            << u"{'entities': [{'Name': 'N'}]}"_s << u"{'entities': [{}]}"_s;
        QTest::addRow("absent flags leave the defaults")
            << u"{'entities': [{'name': 'A'}, {}]}"_s << u"{'entities': [{'name': 'A'}, {}]}"_s;
        QTest::addRow("an element that is no object still counts")
            << u"{'entities': [5, 'x', null, []]}"_s << u"{'entities': [{}, {}, {}, {}]}"_s;
        QTest::addRow("empty entities") << u"{'entities': []}"_s << u"{}"_s;
        QTest::addRow("an object is no list of entities") << u"{'entities': {'name': 'A'}}"_s << u"{}"_s;
        QTest::addRow("a text is a list of its characters")
            << u"{'entities': 'abc'}"_s << u"{'entities': [{}, {}, {}]}"_s;
        QTest::addRow("a number is no list of entities") << u"{'entities': 5}"_s << u"{}"_s;
        QTest::addRow("what is no object gives default parts")
            << u"{'database': 5, 'options': [true]}"_s << u"{}"_s;
        QTest::addRow("wrong types")
            << u"{'database': {'name': [], 'folder': {}}, 'options':"
               "{'createNoRanges': {}}, 'entities': [{'name': {}, 'allVariables': [],"
               "'checkSequence': [], 'variables': 'text', 'recType': 1}]}"_s
            << u"{'entities': [{'recType': '1', 'checkSequence': false}]}"_s;
    }
    void documents()
    {
        QFETCH(QString, document);
        QFETCH(QString, result);
        const auto config = imported(document);
        COMPARE_JSON(dump(*config), json(result));
        QVERIFY(config->getDataBase());
        QVERIFY(config->getOptions());
        QVERIFY(config->getEntities());
    }

    void documentWithoutPartsCanBeWrittenBack()
    {
        COMPARE_JSON(exported(*imported(u"{'entities': []}"_s)),
                     json(u"{'type': 'config', 'database': {}, 'entities': [],"
                          "'options': {'createNotAppMissingInRange': false, 'createNoRanges': false}}"_s));
    }

    void roundTripLosesLabelAndAuthor()
    {
        QFile file(QStringLiteral(QUILLON_SOURCE_DIR "/tests/data/run.lsd.json"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QJsonObject document = QJsonDocument::fromJson(file.readAll()).object();
        QVERIFY(!document.isEmpty());
        const auto config = imported(document.toVariantMap());
        QJsonObject expected = document;
        QJsonObject dataBase = document[u"database"_s].toObject();
        dataBase.remove(u"label"_s);
        dataBase.remove(u"author"_s);
        expected[u"database"_s] = dataBase;
        COMPARE_JSON(exported(*config), expected);
    }

    void namesAreTheTextsOfAList_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QStringList>("names");
        QTest::addRow("list") << variant(u"['B', 'A', 'B', 1, 2.5, true, null, {}]"_s)
                              << QStringList{u"B"_s,   u"A"_s,    u"B"_s,    u"1"_s,
                                             u"2.5"_s, u"true"_s, QString(), QString()};
        QTest::addRow("list of texts") << QVariant(QStringList{u"A"_s}) << QStringList{u"A"_s};
        QTest::addRow("empty list") << variant(u"[]"_s) << QStringList();
        QTest::addRow("object") << variant(u"{'a': 'b'}"_s) << QStringList();
        QTest::addRow("a text is no list") << variant(u"'text'"_s) << QStringList();
        QTest::addRow("nor are bytes") << QVariant("text"_ba) << QStringList();
        QTest::addRow("number") << variant(u"5"_s) << QStringList();
        QTest::addRow("nothing") << QVariant() << QStringList();
    }
    void namesAreTheTextsOfAList()
    {
        QFETCH(QVariant, value);
        QFETCH(QStringList, names);
        const std::unique_ptr<QList<QString>> read(RunCreationBusiness().recorrerVariablesNodosJson(value));
        QVERIFY(read);
        QCOMPARE(*read, names);
    }

    /// There is no failure path: an exception is the caller's, and nothing leaks.
    void exceptionsReachTheCaller_data()
    {
        QTest::addColumn<QVariantMap>("document");
        QTest::addRow("database") << QVariantMap{{u"database"_s, QVariantMap{{u"name"_s, throwing()}}}};
        QTest::addRow("options") << QVariantMap{{u"options"_s, throwing()}};
        QTest::addRow("second entity")
            << QVariantMap{{u"entities"_s, QVariantList{QVariantMap(), throwing()}}};
        QTest::addRow("entity's names") << QVariantMap{
            {u"entities"_s, QVariantList{QVariantMap{{u"variables"_s, QVariantList{u"A"_s, throwing()}}}}}};
    }
    void exceptionsReachTheCaller()
    {
        QFETCH(QVariantMap, document);
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, imported(document));
    }

    void isCopyableAndMovable()
    {
        RunCreationBusiness business;
        RunCreationBusiness other;
        other = business;
        other = RunCreationBusiness();
        Config config;
        QCOMPARE(RunCreationBusiness(other).exportConfigToJson(&config).object().size(), 4);
    }
};

QTEST_APPLESS_MAIN(tst_RunCreationBusiness)

#include "tst_runcreationbusiness.moc"
