#include "business/RunCreationBusiness.h"
#include "cli/DocumentReader.h"
#include "cli/RoundTrip.h"
#include "model/Config.h"
#include "model/PreOrder.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "tests/cli/Program.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using namespace Cli;

namespace
{
QString sample(const QString &name)
{
    return QStringLiteral(QUILLON_SOURCE_DIR) + u"/samples/"_s + name;
}

QList<TDcEntity *> allEntities(const Entities &roots)
{
    QList<TDcEntity *> all;
    for (const auto &root : roots)
        preOrder(root.get(), [&all](TDcEntity *entity) { all.append(entity); });
    return all;
}

bool hasVariable(const TDcEntity &entity, const QString &name)
{
    const QList<TDcVariable *> &variables = *entity.getVariables();
    return std::any_of(variables.cbegin(), variables.cend(),
                       [&name](const TDcVariable *variable) { return variable->getName() == name; });
}
} // namespace

class TestSamples : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dictionariesHoldWhatTheyPromise_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QStringList>("entities");
        QTest::addColumn<qsizetype>("losses");
        // The household's layout has records, positions and documentation, which reading or writing drops.
        QTest::addRow("household") << u"household.mvdb"_s
                                   << QStringList{u"DWELLING 17"_s, u"HOUSEHOLD 18"_s, u"PERSON 26"_s}
                                   << qsizetype(130);
        QTest::addRow("farms") << u"farms.mvdb"_s
                               << QStringList{u"COMARCA 2"_s, u"EXPLOTACION 11"_s, u"PARCELA 6"_s,
                                              u"GANADO 5"_s}
                               << qsizetype(0);
    }
    void dictionariesHoldWhatTheyPromise()
    {
        QFETCH(QString, file);
        const DictionaryDocument document = readDocument(sample(file));
        const Entities roots = readEntities(document);
        QStringList found;
        for (const TDcEntity *entity : allEntities(roots)) {
            found.append(u"%1 %2"_s.arg(entity->getName()).arg(entity->getVariables()->size()));
            for (const QString &role :
                 {entity->getRefCode(), entity->getRefLabel(), entity->getWeightVariable()})
                QVERIFY2(role.isEmpty() || hasVariable(*entity, role), qPrintable(role));
            for (const TDcVariable *variable : std::as_const(*entity->getVariables())) {
                QVERIFY(!variable->getLabel().isEmpty());
                QVERIFY((QStringList{u"integer"_s, u"real"_s, u"string"_s}).contains(variable->getVarType()));
                QVERIFY(variable->getFieldSize() > 0);
            }
        }
        QTEST(found, "entities");
        QTEST(roundTrip(document).losses.size(), "losses");
    }

    void theRunConfigurationFitsTheHousehold()
    {
        QFile file(sample(u"household.lsd.json"_s));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QJsonParseError error;
        const QJsonObject content = QJsonDocument::fromJson(file.readAll(), &error).object();
        QCOMPARE(error.error, QJsonParseError::NoError);
        const std::unique_ptr<Config> config(
            RunCreationBusiness().recorrerNodosEntitiesJsonYCargaEstructuraConfig(content.toVariantMap()));
        QCOMPARE(config->getDataBase()->getName(), u"HOUSEHOLD2025"_s);
        QVERIFY(config->getOptions()->getCreateNotAppMissingInRange());

        const Entities roots = readEntities(readDocument(sample(u"household.mvdb"_s)));
        const QList<TDcEntity *> entities = allEntities(roots);
        QCOMPARE(config->getEntities()->size(), entities.size());
        for (qsizetype i = 0; i < entities.size(); ++i) {
            const ConfigEntities *wanted = config->getEntities()->at(i);
            QCOMPARE(wanted->getName(), entities.at(i)->getName());
            for (const QString &name : std::as_const(*wanted->getVariables()))
                QVERIFY2(hasVariable(*entities.at(i), name), qPrintable(name));
        }
    }

    void theLargeDictionaryIsMadeAsAsked()
    {
        const TestFolder folder;
        const QStringList arguments{sample(u"make_large.py"_s),
                                    u"--entities"_s,
                                    u"7"_s,
                                    u"--variables"_s,
                                    u"50"_s,
                                    u"--labels"_s,
                                    u"333"_s};
        const QString first = folder.path(u"first.mvdb"_s);
        const QString second = folder.path(u"second.mvdb"_s);
        for (const QString &path : {first, second})
            QCOMPARE(QProcess::execute(u"python3"_s, arguments + QStringList{u"--output"_s, path}), 0);
        QCOMPARE(folder.read(u"first.mvdb"_s), folder.read(u"second.mvdb"_s));

        const DictionaryDocument document = readDocument(first);
        const Entities roots = readEntities(document);
        const QList<TDcEntity *> entities = allEntities(roots);
        qsizetype variables = 0;
        qsizetype labels = 0;
        for (const TDcEntity *entity : entities) {
            variables += entity->getVariables()->size();
            for (const TDcVariable *variable : std::as_const(*entity->getVariables()))
                labels += variable->getValueLabelElementList()->size();
        }
        QCOMPARE(entities.size(), 7);
        QCOMPARE(variables, 50);
        QCOMPARE(labels, 333);
        QVERIFY(roundTrip(document).losses.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestSamples)
#include "tst_samples.moc"
