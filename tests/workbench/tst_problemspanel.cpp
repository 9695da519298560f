#include "documents/checks/DictionaryCheck.h"
#include "model/TDcVariable.h"
#include "model/ValueLabelElement.h"
#include "tests/workbench/Bench.h"
#include "tests/workbench/IsolatedSettings.h"
#include "workbench/CheckCommands.h"
#include "workbench/MainWindow.h"
#include "workbench/panels/EmptyText.h"
#include "workbench/panels/FindingsModel.h"
#include "workbench/panels/ProblemsPanel.h"

#include <QAbstractItemDelegate>
#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QDockWidget>
#include <QPainter>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

using namespace std::chrono_literals;
using namespace Qt::Literals::StringLiterals;

class TestProblemsPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsWhatTheChecksFind();
    void checksAgainAfterEachChange();
    void checksWhileThePersonWorks();
    void aChangeDuringACheckStartsItAnew();
    void saysInWordsThatNothingWasFound();
    void filtersBySeverity();
    void showsTheEndOfALongPlace();
    void sortsBySeverityFromTheWorst();
    void keyboardGoesToThePlace();
    void stepsFromProblemToProblem();
    void staysOnTheProblemWhenOthersAreMended();
    void disturbsNobodyWhenNothingChanged();
    void forgetsObjectsThatAreGone();
    void selectsTheCategoryToo();
    void countsInTheTitleOfTheDock();
};

namespace
{
/// A panel with its checks on the dictionary of a bench; checks wait for nothing.
struct Checked : Bench {
    ProblemsPanel panel;
    CheckCommands checks{workspace(), &panel, nullptr, 0ms};

    [[nodiscard]] bool wait()
    {
        QSignalSpy done(&checks, &CheckCommands::checked);
        return done.wait(10'000);
    }
    [[nodiscard]] QStringList column(int column) const
    {
        QStringList texts;
        const QAbstractItemModel &model = *panel.view()->model();
        for (int row = 0; row < model.rowCount(); ++row)
            texts.append(model.index(row, column).data().toString());
        return texts;
    }
    void selectProblem(const QString &place, const QString &part)
    {
        const QStringList places = column(FindingsModel::PlaceColumn);
        const QStringList messages = column(FindingsModel::ProblemColumn);
        for (int row = 0; row < places.size(); ++row) {
            if (places.at(row).endsWith(place) && messages.at(row).contains(part))
                return panel.view()->selectRow(row);
        }
        QFAIL("There is no such problem.");
    }
    [[nodiscard]] TDcVariable *age() { return entity(u"PERSON"_s)->getVariables()->at(1); }
};
} // namespace

void TestProblemsPanel::showsWhatTheChecksFind()
{
    Checked bench;
    QAbstractItemModelTester tester(bench.panel.view()->model(),
                                    QAbstractItemModelTester::FailureReportingMode::QtTest);
    QVERIFY(bench.wait());
    const QList<Finding> findings = DictionaryCheck::check(bench.document.root());
    QStringList messages;
    for (const Finding &finding : findings)
        messages.append(finding.message);
    QVERIFY(!messages.isEmpty());
    QCOMPARE(bench.column(FindingsModel::ProblemColumn), messages);
    QCOMPARE(bench.panel.view()->currentIndex().row(), 0);
    for (int row = 0; row < messages.size(); ++row) {
        const QModelIndex index = bench.panel.view()->model()->index(row, FindingsModel::SeverityColumn);
        QVERIFY(!index.data(Qt::DecorationRole).value<QIcon>().isNull());
    }
}

void TestProblemsPanel::checksAgainAfterEachChange()
{
    Checked bench;
    QVERIFY(bench.wait());
    const qsizetype before = bench.column(0).size();
    bench.age()->setName(u"NOT VALID"_s);
    bench.document.commit();
    QVERIFY(bench.wait());
    QVERIFY(bench.column(0).size() > before);
    bench.document.undoStack()->undo();
    QVERIFY(bench.wait());
    QCOMPARE(bench.column(0).size(), before);
    bench.document.clear();
    QVERIFY(bench.wait());
    QVERIFY(bench.column(0).size() < before);
}

void TestProblemsPanel::checksWhileThePersonWorks()
{
    Checked bench;
    bench.document.edit(u"adding"_s, [&bench] {
        for (int i = 0; i < 20'000; ++i)
            bench.document.root()->addVariables(makeVariable(u"V%1"_s.arg(i)));
    });
    // Whatever happens in between has its turn many times before the check is through.
    QSignalSpy done(&bench.checks, &CheckCommands::checked);
    int turns = 0;
    QTimer work;
    connect(&work, &QTimer::timeout, this, [&] { turns += done.isEmpty() ? 1 : 0; });
    work.start(0);
    QVERIFY(done.wait(60'000));
    QVERIFY2(turns > 5, qPrintable(QString::number(turns)));
}

void TestProblemsPanel::aChangeDuringACheckStartsItAnew()
{
    Checked bench;
    bench.document.edit(u"adding"_s, [&bench] {
        for (int i = 0; i < 20'000; ++i)
            bench.document.root()->addVariables(makeVariable(u"V%1"_s.arg(i), {}, u"Label"_s));
    });
    QSignalSpy done(&bench.checks, &CheckCommands::checked);
    QTest::qWait(20);
    QVERIFY(done.isEmpty());
    bench.document.edit(u"removing"_s, [&bench] {
        while (!bench.document.root()->getVariables()->isEmpty())
            delete bench.document.root()->getVariables()->takeLast();
    });
    QVERIFY(done.wait(60'000));
    QTest::qWait(50);
    QCOMPARE(done.size(), 1);
    QCOMPARE(bench.column(0).size(), DictionaryCheck::check(bench.document.root()).size());
}

void TestProblemsPanel::saysInWordsThatNothingWasFound()
{
    ProblemsPanel panel;
    panel.resize(400, 200);
    QSignalSpy count(&panel, &ProblemsPanel::countChanged);
    panel.setFindings({});
    const auto text = [&panel] { return static_cast<EmptyText<QTableView> *>(panel.view())->emptyText(); };
    QCOMPARE(text(), u"No problems found."_s);
    panel.setChecking(true);
    QCOMPARE(text(), u"Looking for problems…"_s);
    panel.setChecking(false);
    Finding note;
    note.message = u"A note"_s;
    panel.setFindings({note});
    panel.severities()->setCurrentIndex(2);
    QCOMPARE(panel.view()->model()->rowCount(), 0);
    QCOMPARE(text(), u"No problems of this severity."_s);
    QCOMPARE(count.last().first().toLongLong(), 1);
}

namespace
{
Finding finding(Severity severity, const QString &message, const QString &place = {})
{
    Finding finding;
    finding.rule = "rule"_L1;
    finding.severity = severity;
    finding.message = message;
    finding.place = place;
    return finding;
}

QList<Finding> three()
{
    return {finding(Severity::Note, u"note"_s, u"A"_s), finding(Severity::Error, u"error"_s, u"B"_s),
            finding(Severity::Warning, u"warning"_s, u"C"_s)};
}

QStringList messages(const ProblemsPanel &panel)
{
    QStringList texts;
    for (int row = 0; row < panel.view()->model()->rowCount(); ++row)
        texts.append(panel.view()->model()->index(row, FindingsModel::ProblemColumn).data().toString());
    return texts;
}
} // namespace

void TestProblemsPanel::showsTheEndOfALongPlace()
{
    Checked bench;
    Finding finding;
    finding.place = u"CENSUS/HOUSEHOLD/PERSON/AGE"_s;
    Finding other = finding;
    other.place = u"CENSUS/HOUSEHOLD/PERSON/SEX"_s;
    bench.panel.setFindings({finding, other});
    const QTableView *view = bench.panel.view();
    const auto drawn = [view](int row) {
        QImage image(90, 20, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        QStyleOptionViewItem option;
        option.rect = image.rect();
        option.font = view->font();
        option.fontMetrics = view->fontMetrics();
        option.palette = view->palette();
        option.state = QStyle::State_Enabled;
        option.widget = view;
        const QModelIndex index = view->model()->index(row, FindingsModel::PlaceColumn);
        view->itemDelegateForIndex(index)->paint(&painter, option, index);
        return image;
    };
    QVERIFY(drawn(0) != drawn(1));
}

void TestProblemsPanel::filtersBySeverity()
{
    ProblemsPanel panel;
    panel.setFindings(three());
    QCOMPARE(messages(panel), QStringList({u"note"_s, u"error"_s, u"warning"_s}));
    panel.severities()->setCurrentIndex(1);
    QCOMPARE(messages(panel), QStringList({u"error"_s, u"warning"_s}));
    QVERIFY(panel.view()->currentIndex().isValid());
    panel.severities()->setCurrentIndex(2);
    QCOMPARE(messages(panel), QStringList({u"error"_s}));
    panel.severities()->setCurrentIndex(0);
    QCOMPARE(messages(panel).size(), 3);
}

void TestProblemsPanel::sortsBySeverityFromTheWorst()
{
    ProblemsPanel panel;
    panel.setFindings(three());
    panel.view()->sortByColumn(FindingsModel::SeverityColumn, Qt::AscendingOrder);
    QCOMPARE(messages(panel), QStringList({u"error"_s, u"warning"_s, u"note"_s}));
    panel.view()->sortByColumn(FindingsModel::PlaceColumn, Qt::DescendingOrder);
    QCOMPARE(messages(panel), QStringList({u"warning"_s, u"error"_s, u"note"_s}));
}

void TestProblemsPanel::keyboardGoesToThePlace()
{
    Checked bench;
    bench.age()->setName(u"NOT VALID"_s);
    bench.document.commit();
    QVERIFY(bench.wait());
    bench.selection.setEntity(bench.document.root());
    bench.selectProblem(u"PERSON/NOT VALID"_s, u"not valid"_s);
    QTest::keyClick(bench.panel.view(), Qt::Key_Return);
    QCOMPARE(bench.selection.entity()->getName(), u"PERSON"_s);
    QCOMPARE(bench.selection.variable(), bench.age());
}

void TestProblemsPanel::stepsFromProblemToProblem()
{
    ProblemsPanel panel;
    QSignalSpy chosen(&panel, &ProblemsPanel::chosen);
    panel.step(true);
    QCOMPARE(chosen.size(), 0);
    panel.setFindings(three());
    QStringList visited;
    connect(&panel, &ProblemsPanel::chosen, this,
            [&visited](const Finding &problem) { visited.append(problem.message); });
    for (int i = 0; i < 3; ++i)
        panel.step(true);
    QCOMPARE(visited, QStringList({u"error"_s, u"warning"_s, u"note"_s}));
    visited.clear();
    for (int i = 0; i < 3; ++i)
        panel.step(false);
    QCOMPARE(visited, QStringList({u"warning"_s, u"error"_s, u"note"_s}));
}

void TestProblemsPanel::staysOnTheProblemWhenOthersAreMended()
{
    ProblemsPanel panel;
    panel.setFindings(three());
    panel.view()->selectRow(2);
    panel.setFindings(three().mid(1));
    QCOMPARE(panel.view()->currentIndex().data().toString(), u"Warning"_s);
    // The problem itself was mended: the row stays, as far as there are rows.
    panel.setFindings(three().mid(0, 2));
    QCOMPARE(panel.view()->currentIndex().row(), 1);
    panel.setFindings(three().mid(0, 1));
    QCOMPARE(panel.view()->currentIndex().row(), 0);
}

void TestProblemsPanel::disturbsNobodyWhenNothingChanged()
{
    ProblemsPanel panel;
    panel.setFindings(three());
    QSignalSpy reset(panel.view()->model(), &QAbstractItemModel::modelReset);
    panel.setFindings(three());
    QCOMPARE(reset.size(), 0);
}

void TestProblemsPanel::forgetsObjectsThatAreGone()
{
    Checked bench;
    bench.age()->setName(u"NOT VALID"_s);
    bench.document.commit();
    QVERIFY(bench.wait());
    bench.selectProblem(u"PERSON/NOT VALID"_s, u"not valid"_s);
    bench.document.edit(u"removing"_s, [&bench] {
        QList<TDcEntity *> &below = *bench.entity(u"HOUSEHOLD"_s)->getChildren();
        delete below.takeFirst();
    });
    bench.selection.setEntity(bench.document.root());
    QTest::keyClick(bench.panel.view(), Qt::Key_Return);
    QCOMPARE(bench.selection.entity(), bench.document.root());
    QVERIFY(bench.wait());
    QVERIFY(!bench.column(FindingsModel::PlaceColumn).contains(u"CENSUS/HOUSEHOLD/PERSON/NOT VALID"_s));
}

void TestProblemsPanel::selectsTheCategoryToo()
{
    Checked bench;
    auto *element = new ValueLabelElement; // Without a text.
    bench.age()->addValueLabelElement(element);
    bench.document.commit();
    QVERIFY(bench.wait());
    QSignalSpy item(&bench.checks, &CheckCommands::itemChosen);
    const QList<Finding> findings = DictionaryCheck::check(bench.document.root());
    const auto found = std::find_if(findings.cbegin(), findings.cend(),
                                    [element](const Finding &one) { return one.valueLabel == element; });
    QVERIFY(found != findings.cend());
    bench.panel.view()->selectRow(int(found - findings.cbegin()));
    QTest::keyClick(bench.panel.view(), Qt::Key_Return);
    QCOMPARE(item.size(), 1);
    QCOMPARE(item.first().first().value<void *>(), element);
}

void TestProblemsPanel::countsInTheTitleOfTheDock()
{
    const IsolatedSettings settings;
    MainWindow window;
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    auto *dock = window.findChild<QDockWidget *>(u"problems"_s);
    auto *panel = window.findChild<ProblemsPanel *>();
    QTRY_VERIFY(panel->visibleRegion().isEmpty()); // Behind its tab.
    QTest::keyClick(&window, Qt::Key_F7);
    QTRY_VERIFY(!panel->visibleRegion().isEmpty());
    const qsizetype count = DictionaryCheck::check(window.document()->root()).size();
    QVERIFY(count > 0);
    QCOMPARE(dock->windowTitle(), u"Problems (%1)"_s.arg(count));
    panel->setFindings({});
    QCOMPARE(dock->windowTitle(), u"Problems"_s);
}

QTEST_MAIN(TestProblemsPanel)
#include "tst_problemspanel.moc"
