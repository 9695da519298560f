#include "documents/checks/DictionaryCheck.h"
#include "documents/codebook/Codebook.h"
#include "documents/DictionaryCopy.h"
#include "documents/DictionaryDifference.h"
#include "models/base/CheckListModel.h"
#include "models/VariableDiccionaryModel.h"
#include "tests/workbench/Bench.h"
#include "tests/workbench/IsolatedSettings.h"
#include "tests/workbench/LabelledVariables.h"
#include "tests/workbench/TsFiles.h"
#include "workbench/operations/ExpressionCheck.h"
#include "workbench/panels/Inspector.h"
#include "workbench/panels/RangesPanel.h"
#include "workbench/panels/SourcesPanel.h"
#include "workbench/panels/SourceTab.h"
#include "workbench/panels/ValueLabelsPanel.h"
#include "workbench/run/StepModels.h"
#include "workbench/SourceCommands.h"
#include "workbench/Translations.h"

#include <QDialog>
#include <QFile>
#include <QMenu>
#include <QScrollArea>
#include <QSet>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

using namespace TsFiles;

namespace
{
/// Notes what is asked for while it lives.
class Listener : public QTranslator
{
public:
    Listener() { QCoreApplication::installTranslator(this); }

    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char *context, const char *text, const char *, int) const override
    {
        m_asked.insert({QString::fromUtf8(context), QString::fromUtf8(text)});
        return {};
    }
    [[nodiscard]] QSet<std::pair<QString, QString>> asked() const { return m_asked; }

private:
    mutable QSet<std::pair<QString, QString>> m_asked;
};

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void textsAreAskedForWhereTheyStand();
    void formsHaveRoomForTheirTexts_data();
    void formsHaveRoomForTheirTexts();
    void reachesEveryLayer_data();
    void reachesEveryLayer();
    void titlesEveryColumn_data();
    void titlesEveryColumn();
    void titlesTheVariablesOfARun_data();
    void titlesTheVariablesOfARun();
    void anotherLanguageReplacesTheFirst();
    void englishIsALanguageOfItsOwn();

private:
    std::unique_ptr<IsolatedSettings> m_settings;
};

void TestTranslations::init()
{
    m_settings = std::make_unique<IsolatedSettings>();
}

void TestTranslations::cleanup()
{
    Translations::install(u"C"_s);
    m_settings.reset();
}

/// A translation under another context than the program asks for would never be seen.
void TestTranslations::textsAreAskedForWhereTheyStand()
{
    const Listener listener;
    MainWindow window;
    addLabelledVariables(window);
    window.show();
    for (ActionId opens : {ActionId::ToolsExpression, ActionId::ToolsAreas, ActionId::ToolsNewRun,
                           ActionId::VariableEditTogether, ActionId::ValuesCopyTo, ActionId::ValuesLabelSets})
        (*window.actions())[opens]->trigger();
    TDcEntity *root = window.document()->root();
    (void)DictionaryCheck::rules();
    (void)DictionaryCheck::summary(DictionaryCheck::check(root));
    (void)ExpressionCheck::check(root, u"(X = ; 2"_s);
    const auto before = DictionaryCopy::copy(*root);
    root->getVariables()->first()->setMissing(9);
    (void)DictionaryDifference::between(*before, *root).text();
    (void)Codebook::html(root);

    QSet<std::pair<QString, QString>> known;
    const QList<Message> messages = readMessages(tsFile(u"de"_s));
    for (const Message &message : messages)
        known.insert({message.context, message.source});
    QStringList unknown;
    const auto asked = listener.asked();
    for (const auto &[context, text] : asked) {
        const bool ofQt = context.startsWith(u'Q') || context == u"CloseButton"_s;
        if (!ofQt && !known.contains({context, text}))
            unknown.append(context + u": "_s + text);
    }
    QVERIFY(asked.size() > 400);
    QCOMPARE(unknown.join(u'\n'), QString());
}

void TestTranslations::formsHaveRoomForTheirTexts_data()
{
    addTranslations();
    QTest::addRow("English") << u"en"_s;
}

void TestTranslations::formsHaveRoomForTheirTexts()
{
    QFETCH(const QString, language);
    Translations::install(language);
    MainWindow window;
    addLabelledVariables(window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QList<QScrollArea *> areas = window.findChildren<QScrollArea *>();
    QVERIFY(areas.size() >= 2);
    for (const QScrollArea *area : areas)
        QVERIFY2(area->widget()->width() <= area->viewport()->width(),
                 area->widget()->metaObject()->className());
}

void TestTranslations::reachesEveryLayer_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>(
        "texts"); // Of Qt, an action, a menu, the layer, the checks, undo, a wizard.
    QTest::addRow("German") << u"de"_s
                            << QStringList{u"&Ja"_s,
                                           u"&Neu"_s,
                                           u"&Bearbeiten"_s,
                                           u"Gruppe"_s,
                                           u"Eine Entität hat kein Label"_s,
                                           u"Code für fehlende Werte von SEX"_s,
                                           u"&Weiter >"_s};
    QTest::addRow("Spanish, as spoken in Mexico") << u"es_MX"_s
                                                  << QStringList{u"&Sí"_s,
                                                                 u"&Nuevo"_s,
                                                                 u"&Editar"_s,
                                                                 u"Grupo"_s,
                                                                 u"Una entidad no tiene etiqueta"_s,
                                                                 u"código de valor perdido de SEX"_s,
                                                                 u"Siguie&nte >"_s};
    QTest::addRow("a language without translations") << u"fi"_s << QStringList{u"&Kyllä"_s,
                                                                               u"&New"_s,
                                                                               u"&Edit"_s,
                                                                               u"Group"_s,
                                                                               u"An entity has no label"_s,
                                                                               u"missing code of SEX"_s,
                                                                               u"&Seuraava >"_s};
}

void TestTranslations::reachesEveryLayer()
{
    QFETCH(const QString, language);
    Translations::install(language);
    MainWindow window;
    QStringList texts{QCoreApplication::translate("QPlatformTheme", "&Yes"),
                      (*window.actions())[ActionId::FileNew]->text(),
                      window.actions()->menu(MenuId::Edit)->title()};

    Bench bench;
    TDcEntity *person = bench.entity(u"PERSON"_s);
    const VariableDiccionaryModel table(nullptr, bench.document.root(), person);
    texts.append(table.headerData(3, Qt::Horizontal, Qt::DisplayRole).toString());
    const QList<CheckRule> rules = DictionaryCheck::rules();
    const auto rule = std::find_if(rules.cbegin(), rules.cend(), [](const CheckRule &candidate) {
        return candidate.id == "entity-label-missing"_L1;
    });
    texts.append(rule->title);
    Places::findVariable(person, u"SEX"_s)->setMissing(99);
    bench.document.commit();
    texts.append(bench.undoText());
    texts.append(QCoreApplication::translate("QWizard", "&Next >"));
    QTEST(texts, "texts");
}

void TestTranslations::titlesEveryColumn_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("titles"); // Value labels, ranges, dataset, CSV, lookups, label sets.
    QTest::addRow("none") << u"C"_s
                          << QStringList{u"Code Label"_s, u"Minimum Maximum"_s, u"Field Label Tag"_s,
                                         u"Field"_s,      u"Lookup"_s,          u"Code Label"_s};
    QTest::addRow("German") << u"de"_s
                            << QStringList{u"Code Label"_s, u"Minimum Maximum"_s,    u"Feld Label Nummer"_s,
                                           u"Feld"_s,       u"Nachschlagetabelle"_s, u"Code Label"_s};
    QTest::addRow("Spanish") << u"es"_s << QStringList{u"Código Etiqueta"_s,       u"Mínimo Máximo"_s,
                                                       u"Campo Etiqueta Número"_s, u"Campo"_s,
                                                       u"Tabla de consulta"_s,     u"Código Etiqueta"_s};
}

void TestTranslations::titlesEveryColumn()
{
    QFETCH(const QString, language);
    Translations::install(language);
    MainWindow window;
    addLabelledVariables(window);
    auto *commands = window.findChild<SourceCommands *>();
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"units.csv"_s);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("id,label\n1,North\n") > 0);
    file.close();
    QVERIFY(commands->openDataset(path) && commands->openCsv(path) && commands->openLookups(path));
    const auto *inspector = window.findChild<Inspector *>();
    const auto *sources = window.findChild<SourcesPanel *>();
    (*window.actions())[ActionId::ValuesLabelSets]->trigger();
    const auto *sets = window.findChild<QDialog *>(u"labelSetsDialog"_s);
    QStringList titles;
    for (const QTableView *view :
         {inspector->valueLabels()->view(), inspector->ranges()->view(), sources->dataset()->view(),
          sources->csv()->view(), sources->lookups()->view(), sets->findChild<QTableView *>()}) {
        QStringList columns;
        for (int column = 0; column < view->model()->columnCount(); ++column)
            columns.append(view->model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
        titles.append(columns.join(u' '));
    }
    QTEST(titles, "titles");
}

void TestTranslations::titlesTheVariablesOfARun_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("titles");
    QTest::addRow("none") << u"C"_s << QStringList{u"Name"_s, u"Label"_s, u"Alias"_s, u"Group"_s, u"Tag"_s};
    QTest::addRow("German") << u"de"_s
                            << QStringList{u"Name"_s, u"Label"_s, u"Alias"_s, u"Gruppe"_s, u"Nummer"_s};
    QTest::addRow("Spanish") << u"es"_s
                             << QStringList{u"Nombre"_s, u"Etiqueta"_s, u"Alias"_s, u"Grupo"_s, u"Número"_s};
}

void TestTranslations::titlesTheVariablesOfARun()
{
    QFETCH(const QString, language);
    QFETCH(const QStringList, titles);
    Translations::install(language);
    Bench bench;
    for (const auto step :
         {VariablesPage::Step::Choose, VariablesPage::Step::Split, VariablesPage::Step::Down}) {
        QSortFilterProxyModel *proxy = StepModels::makeProxy(step, &bench.document);
        TDcEntity *person = bench.entity(u"PERSON"_s);
        proxy->setSourceModel(StepModels::make(step, person, StepModels::offered(step, person), proxy));
        QStringList columns;
        for (int column = 0; column < proxy->columnCount(); ++column)
            columns.append(proxy->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
        QCOMPARE(columns, titles.first(columns.size()));
        QCOMPARE(columns.size(), step == VariablesPage::Step::Choose ? 5 : 3);
    }
}

void TestTranslations::anotherLanguageReplacesTheFirst()
{
    Translations::install(u"de"_s);
    Translations::install(u"en"_s);
    QCOMPARE(QCoreApplication::translate("Actions", "&New"), u"&New"_s);
    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "&Yes"), u"&Yes"_s);
}

void TestTranslations::englishIsALanguageOfItsOwn()
{
    // Otherwise somebody who reads English first and German next would get German.
    QTranslator translator;
    QVERIFY(translator.load(QLocale(u"en_GB"_s), u"quillon"_s, u"_"_s, u":/i18n"_s));
    QVERIFY(translator.filePath().endsWith(u"quillon_en.qm"_s));
}

QTEST_MAIN(TestTranslations)
#include "tst_translations.moc"
