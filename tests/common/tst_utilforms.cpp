#include "common/UtilForms.h"
#include "tests/support/MessageBoxAnswer.h"

#include <QTest>
#include <QWidget>

using namespace Qt::Literals::StringLiterals;

namespace
{
const QString markup = u"<b>A & B</b>\nsecond line %1"_s;
}

class tst_UtilForms : public QObject
{
    Q_OBJECT

private:
    /// The box that the call opened; there must be just one.
    static void compareMessage(const ShownBox &box, QMessageBox::Icon icon, const QString &title)
    {
        QCOMPARE(box.icon, icon);
        QCOMPARE(box.title, title);
        QCOMPARE(box.text, markup);
        QCOMPARE(box.format, Qt::PlainText);
        QCOMPARE(box.buttons, QStringList({u"OK"_s}));
        QCOMPARE(box.defaultButton, u"OK"_s);
        QCOMPARE(box.escapeButton, u"OK"_s);
        QVERIFY(box.modal);
        QVERIFY(!box.hasParent);
    }

private Q_SLOTS:
    void errorMessageShowsTheTextAsGiven()
    {
        MessageBoxAnswer answer({u"OK"_s});
        UtilForms::showErrorMessage(markup);
        QCOMPARE(answer.shown().size(), 1);
        compareMessage(answer.shown().constFirst(), QMessageBox::Critical, u"Error"_s);
    }

    void infoMessageShowsTheTextAsGiven()
    {
        MessageBoxAnswer answer({u"OK"_s});
        UtilForms::showInfoMessage(markup);
        QCOMPARE(answer.shown().size(), 1);
        compareMessage(answer.shown().constFirst(), QMessageBox::Information, u"Information"_s);
    }

    void messagesAreAcknowledgedWithEscapeToo()
    {
        MessageBoxAnswer answer;
        UtilForms::showErrorMessage(u"one"_s);
        UtilForms::showInfoMessage(u"two"_s);
        QCOMPARE(answer.texts(), QStringList({u"one"_s, u"two"_s}));
    }

    void questionOffersYesNoAndCancel()
    {
        MessageBoxAnswer answer;
        UtilForms::displayYesNoCancelMessageBox(nullptr, u"RefCode Variable"_s, markup);
        QCOMPARE(answer.shown().size(), 1);
        const ShownBox box = answer.shown().constFirst();
        QCOMPARE(box.icon, QMessageBox::Question);
        QCOMPARE(box.title, u"RefCode Variable"_s);
        QCOMPARE(box.text, markup);
        QCOMPARE(box.format, Qt::PlainText);
        QStringList buttons = box.buttons;
        buttons.sort();
        QCOMPARE(buttons, QStringList({u"Cancel"_s, u"No"_s, u"Yes"_s}));
        QCOMPARE(box.defaultButton, u"Yes"_s);
        QCOMPARE(box.escapeButton, u"Cancel"_s);
        QVERIFY(box.modal);
        QVERIFY(!box.hasParent);
    }

    void questionOpensOverItsParent()
    {
        QWidget parent;
        MessageBoxAnswer answer;
        UtilForms::displayYesNoCancelMessageBox(&parent, u"title"_s, u"text"_s);
        QVERIFY(answer.shown().constFirst().hasParent);
    }

    void answersAreThreeDifferentNumbers()
    {
        MessageBoxAnswer answer({u"Yes"_s, u"No"_s, u"Cancel"_s, QString()});
        const auto ask = [] { return UtilForms::displayYesNoCancelMessageBox(nullptr, u"?"_s, u"?"_s); };
        const int yes = ask();
        QVERIFY(yes != UtilForms::NO);
        QVERIFY(yes != UtilForms::CANCELED);
        QCOMPARE(ask(), UtilForms::NO);
        QCOMPARE(ask(), UtilForms::CANCELED);
        QCOMPARE(ask(), UtilForms::CANCELED); // Escape.
        QVERIFY(UtilForms::NO != UtilForms::CANCELED);
    }
};

QTEST_MAIN(tst_UtilForms)

#include "tst_utilforms.moc"
