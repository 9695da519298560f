#include "tests/workbench/IsolatedSettings.h"
#include "tests/workbench/LabelledVariables.h"
#include "tests/workbench/TsFiles.h"
#include "workbench/run/RunDraft.h"
#include "workbench/run/RunWizard.h"
#include "workbench/Translations.h"

#include <QAbstractButton>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QToolButton>
#include <QWizardPage>

using namespace TsFiles;

namespace
{
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

QStringList texts(const QList<QAction *> &actions)
{
    QStringList result;
    for (const QAction *action : actions)
        result.append(action->text());
    return result;
}
} // namespace

class TestMnemonics : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void ofMenusAndPanelsAreUnique_data() { addLanguages(); }
    void ofMenusAndPanelsAreUnique();
    void ofDialogsAreUnique_data();
    void ofDialogsAreUnique();
    void ofTheWizardAreUniqueOnEachPage_data() { addLanguages(); }
    void ofTheWizardAreUniqueOnEachPage();

private:
    static void addLanguages()
    {
        addTranslations();
        QTest::addRow("English") << u"en"_s;
    }

    std::unique_ptr<IsolatedSettings> m_settings;
};

void TestMnemonics::init()
{
    m_settings = std::make_unique<IsolatedSettings>();
}

void TestMnemonics::cleanup()
{
    Translations::install(u"C"_s);
    m_settings.reset();
}

void TestMnemonics::ofMenusAndPanelsAreUnique()
{
    QFETCH(const QString, language);
    Translations::install(language);
    MainWindow window;
    window.show();
    for (const QAction *action : window.menuBar()->actions())
        QCOMPARE(clashes(texts(action->menu()->actions())).join(u'\n'), QString());
    QCOMPARE(clashes(texts(window.menuBar()->actions()) + texts(window)).join(u'\n'), QString());
}

void TestMnemonics::ofDialogsAreUnique_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<ActionId>("opens");
    for (const char *language : {"de", "en", "es"}) {
        const auto add = [language](const char *name, ActionId opens) {
            QTest::addRow("%s, %s", name, language) << QString::fromLatin1(language) << opens;
        };
        add("expression", ActionId::ToolsExpression);
        add("areas", ActionId::ToolsAreas);
        add("many variables", ActionId::VariableEditTogether);
        add("copied values", ActionId::ValuesCopyTo);
        add("label sets", ActionId::ValuesLabelSets);
    }
}

void TestMnemonics::ofDialogsAreUnique()
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
    QCOMPARE(clashes(texts(*dialog)).join(u'\n'), QString());
}

void TestMnemonics::ofTheWizardAreUniqueOnEachPage()
{
    QFETCH(const QString, language);
    Translations::install(language);
    MainWindow window;
    addLabelledVariables(window);
    window.show();
    (*window.actions())[ActionId::ToolsNewRun]->trigger();
    auto *wizard = window.findChild<RunWizard *>();
    QVERIFY(wizard);
    wizard->draft().chooseEntities(true);
    wizard->currentPage()->findChild<QLineEdit *>(u"name"_s)->setText(u"x"_s);
    for (;;) {
        // The wizard's own buttons differ from page to page.
        QCOMPARE(clashes(texts(*wizard, wizard->currentPage())).join(u'\n'), QString());
        if (wizard->nextId() < 0)
            break;
        const int before = wizard->currentId();
        wizard->next();
        QVERIFY(wizard->currentId() != before);
    }
    QCOMPARE(wizard->currentPage()->objectName(), u"runSummaryPage"_s);
}

QTEST_MAIN(TestMnemonics)
#include "tst_mnemonics.moc"
