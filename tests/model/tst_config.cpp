#include "model/Config.h"
#include "tests/support/Accessors.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_Config : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newConfigHoldsItsThreeParts()
    {
        const Config config;
        QVERIFY(config.getDataBase());
        QVERIFY(config.getOptions());
        QVERIFY(config.getEntities());
        QVERIFY(config.getEntities()->isEmpty());
    }

    void partsAreTakenOverAndReplaced()
    {
        Config config;
        auto *dataBase = new ConfigDb;
        config.setDataBase(dataBase);
        config.setDataBase(dataBase); // The same one stays.
        dataBase->setName(u"db"_s);
        QCOMPARE(config.getDataBase()->getName(), u"db"_s);
        auto *options = new ConfigOptions;
        config.setOptions(options);
        config.setOptions(options);
        options->setCreateNoRanges(true);
        QVERIFY(config.getOptions()->getCreateNoRanges());
    }

    void setEntitiesReplacesTheList()
    {
        Config config;
        config.getEntities()->append(new ConfigEntities);
        auto *given = new QList<ConfigEntities *>{new ConfigEntities, new ConfigEntities};
        config.setEntities(given);
        QCOMPARE(config.getEntities(), given);
    }

    void entityProperties()
    {
        ConfigEntities entity;
        CHECK_ACCESSORS(entity, Name, QString(), u"PERSON"_s);
        CHECK_ACCESSORS(entity, RecType, QString(), u"P"_s);
        CHECK_ACCESSORS(entity, AllVariables, false, true);
        CHECK_ACCESSORS(entity, CheckSequence, true, false);
        CHECK_ACCESSORS(entity, CreateSDC, false, true);
        CHECK_ACCESSORS(entity, CheckDelete, false, true);
        CHECK_ACCESSORS(entity, CheckSelectable, false, true);
    }

    void addVariablesAppendsToTheLiveList()
    {
        ConfigEntities entity;
        const auto *live = entity.getVariables();
        entity.addVariables(u"A"_s);
        entity.addVariables(u"A"_s);
        QCOMPARE(*live, QList<QString>({u"A"_s, u"A"_s}));
    }

    void setVariablesTakesTheListOver()
    {
        ConfigEntities entity;
        auto *given = new QList<QString>{u"A"_s};
        entity.setVariables(given);
        entity.setVariables(given); // The same one stays.
        QCOMPARE(entity.getVariables(), given);
        entity.setVariables(nullptr);
        QVERIFY(entity.getVariables());
        QVERIFY(entity.getVariables()->isEmpty());
    }
};

QTEST_APPLESS_MAIN(tst_Config)

#include "tst_config.moc"
