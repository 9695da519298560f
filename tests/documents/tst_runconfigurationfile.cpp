#include "business/RunCreationBusiness.h"
#include "documents/RunConfigurationFile.h"
#include "model/Config.h"
#include "tests/documents/Files.h"
#include "tests/documents/RandomDocument.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace
{
QJsonDocument json(QByteArray text)
{
    return QJsonDocument::fromJson(text.replace('\'', '"'));
}

QString shown(const QJsonDocument &document)
{
    return QString::fromUtf8(document.toJson());
}

/// A whole configuration: \a dataBase are the keys of the database, \a entity those of its only entity.
QJsonDocument whole(const QByteArray &dataBase, const QByteArray &entity = "'allVariables': true")
{
    return json("{'type': 'config', 'database': {" + dataBase
                + "}, 'options': {'createNoRanges': true,"
                  "'createNotAppMissingInRange': false}, 'entities': [{"
                + entity + "}]}");
}

QJsonDocument plainRoundTrip(const QJsonDocument &document)
{
    const std::unique_ptr<Config> config(
        RunCreationBusiness().recorrerNodosEntitiesJsonYCargaEstructuraConfig(
            document.object().toVariantMap()));
    return RunCreationBusiness().exportConfigToJson(config.get());
}

struct Opened {
    TemporaryFile file;
    RunConfigurationFile configuration;

    explicit Opened(const QJsonDocument &document) : file(document.toJson())
    {
        QVERIFY2(configuration.open(file.path()), qPrintable(configuration.errorText()));
    }
    [[nodiscard]] Config &config() const { return *configuration.config(); }
    [[nodiscard]] QJsonDocument saved() const { return QJsonDocument::fromJson(configuration.content()); }
};

constexpr auto forOwnerAlone = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
} // namespace

class tst_RunConfigurationFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomDocumentsAreSavedEqual()
    {
        for (quint32 seed = 0; seed < 1000; ++seed) {
            const QJsonDocument document = RandomDocument(seed).configuration();
            const QJsonDocument saved = Opened(document).saved();
            QVERIFY2(saved == document,
                     qPrintable(u"seed %1:\n%2%3"_s.arg(seed).arg(shown(document), shown(saved))));
        }
    }

    void keepsWhatAPlainRoundTripLoses_data()
    {
        QTest::addColumn<QJsonDocument>("document");
        QTest::addRow("label") << whole("'label': 'L'");
        QTest::addRow("author") << whole("'author': 'A'");
        QTest::addRow("filter") << whole("'filter': 'F'");
        QTest::addRow("select filter") << whole("'selectFilter': 'F'");
        QTest::addRow("file filter") << whole("'fileFilter': 'F'");
        QTest::addRow("project") << whole("'XXXproject': 'P'");
        QTest::addRow("project under its plain name") << whole("'project': 'P'");
        QTest::addRow("backslashes") << whole("'folder': 'C:\\\\data', 'sourceFile': 'a\\\\b'");
        QTest::addRow("marked for deletion") << whole("", "'allVariables': true, 'delete': true");
        QTest::addRow("selectable") << whole("", "'allVariables': true, 'selectable': true");
        QTest::addRow("sequence checked in so many words")
            << whole("", "'allVariables': true, 'checkSequence': true");
        QTest::addRow("names that are numbers")
            << whole("", "'allVariables': true, 'variables': [1, null, 'b']");
        QTest::addRow("names as text") << whole("", "'allVariables': true, 'variables': 'ab'");
        QTest::addRow("no names") << whole("", "'allVariables': true, 'variables': []");
        QTest::addRow("missing flag") << whole("", "");
        QTest::addRow("another type") << json("{'type': 7, 'database': {}, 'options': {}, 'entities': []}");
        QTest::addRow("nothing") << json("{}");
        QTest::addRow("parts that are none")
            << json("{'type': 'config', 'database': 5, 'options': [1], 'entities': {'a': 1}}");
        QTest::addRow("entities that are none")
            << json("{'type': 'config', 'database': {}, 'options': {}, 'entities': [1, null]}");
        QTest::addRow("entities as text")
            << json("{'type': 'config', 'database': {}, 'options': {}, 'entities': 'ab'}");
    }

    void keepsWhatAPlainRoundTripLoses()
    {
        QFETCH(QJsonDocument, document);
        QVERIFY(plainRoundTrip(document) != document);
        QCOMPARE(shown(Opened(document).saved()), shown(document));
    }

    void putsBackWhatTheReaderDrops()
    {
        const Opened opened(whole("'label': 'L', 'author': 'A'"));
        QCOMPARE(opened.config().getDataBase()->getLabel(), u"L"_s);
        QCOMPARE(opened.config().getDataBase()->getAuthor(), u"A"_s);
    }

    void anEditChangesJustWhatItEdits()
    {
        const Opened opened(whole("'label': 'L', 'filter': 'F', 'folder': 'C:\\\\a', 'id': 7",
                                  "'delete': 1, 'variables': [1, 'b', null], 'id': 8"));
        opened.config().getDataBase()->setLabel(u"M"_s);
        opened.config().getDataBase()->setFilter({});
        ConfigEntities &entity = *opened.config().getEntities()->constFirst();
        entity.getVariables()->insert(2, u"c"_s);
        entity.setRecType(u"R"_s);
        QCOMPARE(shown(opened.saved()),
                 shown(whole("'label': 'M', 'folder': 'C:\\\\a', 'id': 7",
                             "'delete': 1, 'variables': [1, 'b', 'c', null], 'id': 8, 'recType': 'R'")));

        entity.getVariables()->clear();
        entity.setCheckDelete(false);
        opened.config().getDataBase()->setFolder(u"D:\\b"_s);
        QCOMPARE(shown(opened.saved()),
                 shown(whole("'label': 'M', 'folder': 'D:/b', 'id': 7", "'id': 8, 'recType': 'R'")));
    }

    void newEntitiesAreWrittenInFull()
    {
        RunConfigurationFile file;
        auto *entity = new ConfigEntities;
        entity->setCheckDelete(true);
        entity->setCheckSelectable(true);
        file.config()->getEntities()->append(entity);
        file.config()->getDataBase()->setProject(u"P"_s);
        QCOMPARE(
            shown(QJsonDocument::fromJson(file.content())),
            shown(json(
                "{'type': 'config', 'database': {'XXXproject': 'P'}, 'options': {'createNoRanges': false,"
                "'createNotAppMissingInRange': false}, 'entities': [{'allVariables': false,"
                "'delete': true, 'selectable': true}]}")));
    }

    void anArrayIsNoConfiguration()
    {
        const TemporaryFile file("[{}]");
        RunConfigurationFile configuration;
        QVERIFY(!configuration.open(file.path()));
        QCOMPARE(configuration.error(), DocumentFile::Error::NoRoot);
    }

    void aDictionaryIsNoConfiguration_data()
    {
        QTest::addColumn<QJsonDocument>("document");
        QTest::addColumn<bool>("opens");
        QTest::addRow("under root") << json("{'root': [{'name': 'CENSUS'}]}") << false;
        QTest::addRow("under root, as an object") << json("{'root': {'name': 'CENSUS'}}") << false;
        QTest::addRow("the root itself") << json("{'name': 'CENSUS', 'entities': [{'name': 'A'}]}") << false;
        QTest::addRow("the root with variables") << json("{'name': 'CENSUS', 'variables': []}") << false;
        QTest::addRow("entities with children")
            << json("{'entities': [{'name': 'CENSUS', 'entities': [{'name': 'A'}]}]}") << false;
        QTest::addRow("an entity alone") << json("{'entities': {'name': 'A', 'codeVar': 'ID'}}") << false;
        QTest::addRow("entities with variables")
            << json("{'entities': [{'name': 'A', 'variables': [{'name': 'SEX'}]}]}") << false;
        QTest::addRow("a root beside a database") << json("{'database': {}, 'root': {'name': 'A'}}") << true;
        QTest::addRow("a root that says what it is")
            << json("{'type': 'config', 'root': {'name': 'A'}}") << true;
        QTest::addRow("a root that is none") << json("{'root': 5}") << true;
        QTest::addRow("a label alone") << json("{'label': 'L', 'options': {}}") << true;
        QTest::addRow("entities by name")
            << json("{'entities': [{'name': 'A', 'variables': ['SEX'], 'selectable': true}]}") << true;
        QTest::addRow("names that are objects")
            << json("{'entities': [{'name': 'A', 'variables': [{'value': 1}]}]}") << true;
    }

    void aDictionaryIsNoConfiguration()
    {
        QFETCH(const QJsonDocument, document);
        QFETCH(const bool, opens);
        const TemporaryFile file(document.toJson());
        RunConfigurationFile configuration;
        QCOMPARE(configuration.open(file.path()), opens);
        QCOMPARE(configuration.error(), opens ? DocumentFile::Error::None : DocumentFile::Error::NoRoot);
        if (!opens)
            QVERIFY(configuration.errorText().endsWith(u"This is a dictionary, not a run configuration."_s));
    }

    void aFileWithAPasswordIsForItsOwnerAlone()
    {
        Opened opened(whole("'name': 'N'"));
        constexpr auto wide = forOwnerAlone | QFile::ReadGroup | QFile::ReadOther;
        QVERIFY(QFile::setPermissions(opened.file.path(), wide));
        QVERIFY(opened.configuration.save());
        QCOMPARE(QFile::permissions(opened.file.path()), QFile::Permissions(wide));

        opened.config().getDataBase()->setPassword(u"secret"_s);
        QVERIFY(opened.configuration.save());
        QCOMPARE(QFile::permissions(opened.file.path()), QFile::Permissions(forOwnerAlone));

        const QString other = opened.file.folder() + u"/new"_s;
        QVERIFY(opened.configuration.saveAs(other));
        QCOMPARE(QFile::permissions(other), QFile::Permissions(forOwnerAlone));
    }

    void everyTruncationGivesAResultOrAnError()
    {
        const QByteArray text = whole("'label': 'L'").toJson();
        for (qsizetype size = 0; size < text.size(); ++size) {
            const TemporaryFile file(text.first(size));
            RunConfigurationFile configuration;
            QCOMPARE(configuration.open(file.path()), text.sliced(size).trimmed().isEmpty());
        }
    }
};

QTEST_GUILESS_MAIN(tst_RunConfigurationFile)
#include "tst_runconfigurationfile.moc"
