#include "documents/checks/DictionaryCheck.h"
#include "model/ValueLabelElement.h"
#include "models/VariableDiccionaryModel.h"
#include "tests/workbench/Bench.h"
#include "tests/workbench/IsolatedSettings.h"
#include "workbench/MainWindow.h"
#include "workbench/Translations.h"

#include <QAbstractButton>
#include <QDialog>
#include <QDirIterator>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QRegularExpression>
#include <QScrollArea>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QTranslator>
#include <QWizardPage>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

namespace
{
struct Message {
    QString context;
    QString source;
    QStringList translations; ///< More than one for plural forms.
    QString state; ///< Empty when it is finished.

    [[nodiscard]] QString what() const { return context + u": "_s + source; }
};

Message readMessage(QXmlStreamReader &xml, const QString &context)
{
    Message message{.context = context, .source = {}, .translations = {}, .state = {}};
    while (xml.readNextStartElement()) {
        if (xml.name() == "source"_L1) {
            message.source = xml.readElementText();
        } else if (xml.name() == "numerusform"_L1) {
            message.translations.append(xml.readElementText());
        } else if (xml.name() == "translation"_L1) {
            message.state = xml.attributes().value("type"_L1).toString();
            QString text;
            while (!xml.atEnd()
                   && !(xml.readNext() == QXmlStreamReader::EndElement && xml.name() == "translation"_L1)) {
                if (xml.isStartElement())
                    message.translations.append(xml.readElementText());
                else
                    text += xml.text();
            }
            if (message.translations.isEmpty())
                message.translations.append(text);
        } else {
            xml.skipCurrentElement();
        }
    }
    return message;
}

QList<Message> readMessages(const QString &path)
{
    QList<Message> messages;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return messages;
    QXmlStreamReader xml(&file);
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == "name"_L1)
            context = xml.readElementText();
        else if (xml.name() == "message"_L1)
            messages.append(readMessage(xml, context));
    }
    return xml.hasError() ? QList<Message>() : messages;
}

QString tsFile(const QString &language)
{
    return QStringLiteral(QUILLON_SOURCE_DIR "/workbench/i18n/quillon_%1.ts").arg(language);
}

/// The placeholders of a text, "%1 %2 %n".
QString placeholders(const QString &text)
{
    static const QRegularExpression pattern(u"%L?(\\d|n)"_s);
    QStringList found;
    for (auto matches = pattern.globalMatch(text); matches.hasNext();)
        found.append(matches.next().captured());
    found.sort();
    return found.join(u' ');
}

/// What a text ends with, if that is punctuation or the end of a line.
QString ending(const QString &text)
{
    static const QRegularExpression pattern(u"[.:…?!\\n]+$"_s);
    return pattern.match(text).captured();
}

/// The letter that Alt goes with, in lower case; null for none.
QChar mnemonic(const QString &text)
{
    const QKeySequence key = QKeySequence::mnemonic(text);
    return key.isEmpty() ? QChar() : key.toString().back().toLower();
}

/// Those of \a texts whose mnemonic another has too.
QStringList clashes(const QStringList &texts)
{
    QMultiHash<QChar, QString> byLetter;
    for (const QString &text : texts) {
        if (const QChar letter = mnemonic(text); !letter.isNull())
            byLetter.insert(letter, text);
    }
    QStringList found;
    const QList<QChar> letters = byLetter.uniqueKeys();
    for (const QChar letter : letters) {
        if (byLetter.count(letter) > 1)
            found.append(byLetter.values(letter).join(u" / "_s));
    }
    return found;
}

/// What Alt reaches in \a window: labels of fields, and buttons. Of pages that take turns, those of \a page.
QStringList texts(const QWidget &window, const QWidget *page = nullptr)
{
    const auto shown = [&window, page](const QWidget *widget) {
        for (const QWidget *above = widget; above && above != &window; above = above->parentWidget()) {
            if (qobject_cast<const QWizardPage *>(above))
                return above == page;
        }
        return !widget->isHidden();
    };
    QStringList result;
    const QList<QLabel *> labels = window.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->buddy() && shown(label))
            result.append(label->text());
    }
    const QList<QAbstractButton *> buttons = window.findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons) {
        if (!qobject_cast<const QToolButton *>(button) && shown(button))
            result.append(button->text());
    }
    return result;
}

/// Gives the dictionary two variables with the same value labels and selects them.
void addLabelledVariables(MainWindow &window)
{
    TDcEntity *root = window.document()->root();
    window.document()->edit(u"adding"_s, [root] {
        for (const QString &name : {u"SMOKES"_s, u"DRINKS"_s}) {
            TDcVariable *variable = makeVariable(name);
            auto *label = new ValueLabelElement;
            label->setValue(u"1"_s);
            label->setLabel(u"Yes"_s);
            variable->addValueLabelElement(label);
            root->addVariables(variable);
        }
    });
    window.selection()->setVariables(*root->getVariables(), root->getVariables()->first());
}

QStringList texts(const QList<QAction *> &actions)
{
    QStringList result;
    for (const QAction *action : actions)
        result.append(action->text());
    return result;
}
} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void everyTextIsTranslated_data();
    void everyTextIsTranslated();
    void noMacroHidesATextFromTheCollector();
    void translationsFitTheirTexts_data();
    void translationsFitTheirTexts();
    void mnemonicsAreUnique_data();
    void mnemonicsAreUnique();
    void mnemonicsOfDialogsAreUnique_data();
    void mnemonicsOfDialogsAreUnique();
    void formsHaveRoomForTheirTexts_data();
    void formsHaveRoomForTheirTexts();
    void reachesEveryLayer_data();
    void reachesEveryLayer();
    void anotherLanguageReplacesTheFirst();
    void englishIsALanguageOfItsOwn();

private:
    void addLanguages();

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

void TestTranslations::addLanguages()
{
    QTest::addColumn<QString>("language");
    QTest::addRow("German") << u"de"_s;
    QTest::addRow("Spanish") << u"es"_s;
}

void TestTranslations::everyTextIsTranslated_data()
{
    addLanguages();
    QTest::addRow("English plurals") << u"en"_s;
}

/// Whoever sees this fail: workbench/i18n/collect lists the new texts in the .ts files, to be translated.
void TestTranslations::everyTextIsTranslated()
{
    QFETCH(const QString, language);
    const QTemporaryDir folder;
    const QString copy = folder.filePath(u"texts_%1.ts"_s.arg(language));
    QVERIFY(QFile::copy(tsFile(language), copy));
    QProcess collect;
    collect.start(QStringLiteral(QUILLON_SOURCE_DIR "/workbench/i18n/collect"), {copy});
    QVERIFY(collect.waitForFinished());
    QVERIFY2(collect.exitStatus() == QProcess::NormalExit && collect.exitCode() == 0,
             collect.readAllStandardError().constData());

    const QList<Message> current = readMessages(copy);
    const QList<Message> kept = readMessages(tsFile(language));
    QCOMPARE(current.isEmpty(), kept.isEmpty());
    QVERIFY(language == u"en"_s || current.size() > 600);
    QStringList lacking;
    for (const Message &message : current) {
        if (!message.state.isEmpty() || message.translations.contains(QString()))
            lacking.append(message.what());
    }
    QCOMPARE(lacking.join(u'\n'), QString());
    // What the sources no longer say is gone from the file too.
    QCOMPARE(kept.size(), current.size());
}

void TestTranslations::noMacroHidesATextFromTheCollector()
{
    QFile collect(QStringLiteral(QUILLON_SOURCE_DIR "/workbench/i18n/collect"));
    QVERIFY(collect.open(QIODevice::ReadOnly));
    const QString known = QString::fromUtf8(collect.readAll());
    static const QRegularExpression pattern(u"#define\\s+(\\w+)\\(.*(NOOP|\\btr)\\("_s);
    QStringList hiding;
    for (const char *folder : {"workbench", "documents", "common", "business", "models", "model"}) {
        QDirIterator sources(QStringLiteral(QUILLON_SOURCE_DIR "/") + QLatin1StringView(folder),
                             {u"*.cpp"_s, u"*.h"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (sources.hasNext()) {
            QFile source(sources.next());
            QVERIFY(source.open(QIODevice::ReadOnly));
            const auto macro = pattern.match(QString::fromUtf8(source.readAll()));
            if (macro.hasMatch() && !known.contains(u"+="_s + macro.captured(1)))
                hiding.append(source.fileName() + u": "_s + macro.captured(1));
        }
    }
    QCOMPARE(hiding.join(u'\n'), QString());
}

void TestTranslations::translationsFitTheirTexts_data()
{
    addLanguages();
}

void TestTranslations::translationsFitTheirTexts()
{
    QFETCH(const QString, language);
    QStringList wrong;
    const QList<Message> messages = readMessages(tsFile(language));
    for (const Message &message : messages) {
        for (const QString &translation : message.translations) {
            const bool fits = placeholders(translation) == placeholders(message.source)
                && ending(translation) == ending(message.source)
                && mnemonic(translation).isNull() == mnemonic(message.source).isNull()
                && translation.count(u'\n') == message.source.count(u'\n')
                && translation.trimmed().size() == translation.size();
            if (!fits)
                wrong.append(message.what() + u" -> "_s + translation);
        }
    }
    QCOMPARE(wrong.join(u'\n'), QString());
}

void TestTranslations::mnemonicsAreUnique_data()
{
    addLanguages();
    QTest::addRow("English") << u"en"_s;
}

void TestTranslations::mnemonicsAreUnique()
{
    QFETCH(const QString, language);
    Translations::install(language);
    MainWindow window;
    window.show();
    for (const QAction *action : window.menuBar()->actions())
        QCOMPARE(clashes(texts(action->menu()->actions())).join(u'\n'), QString());
    QCOMPARE(clashes(texts(window.menuBar()->actions()) + texts(window)).join(u'\n'), QString());
}

void TestTranslations::mnemonicsOfDialogsAreUnique_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<ActionId>("opens");
    for (const char *language : {"de", "en", "es"}) {
        const auto add = [language](const char *name, ActionId opens) {
            QTest::addRow("%s, %s", name, language) << QString::fromLatin1(language) << opens;
        };
        add("expression", ActionId::ToolsExpression);
        add("areas", ActionId::ToolsAreas);
        add("run configuration", ActionId::ToolsNewRun);
        add("many variables", ActionId::VariableEditTogether);
        add("copied values", ActionId::ValuesCopyTo);
        add("label sets", ActionId::ValuesLabelSets);
    }
}

void TestTranslations::mnemonicsOfDialogsAreUnique()
{
    QFETCH(const QString, language);
    QFETCH(const ActionId, opens);
    Translations::install(language);
    MainWindow window;
    addLabelledVariables(window);
    window.show();
    (*window.actions())[opens]->trigger();
    const auto *dialog = window.findChild<QDialog *>();
    QVERIFY(dialog);
    QList<QWizardPage *> pages = dialog->findChildren<QWizardPage *>();
    if (pages.isEmpty())
        pages.append(nullptr); // It has no pages that take turns.
    for (const QWizardPage *page : std::as_const(pages))
        QCOMPARE(clashes(texts(*dialog, page)).join(u'\n'), QString());
}

void TestTranslations::formsHaveRoomForTheirTexts_data()
{
    addLanguages();
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
