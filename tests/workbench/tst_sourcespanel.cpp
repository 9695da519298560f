#include "tests/support/Payloads.h"
#include "tests/workbench/Bench.h"
#include "tests/workbench/Controls.h"
#include "tests/workbench/IsolatedSettings.h"
#include "workbench/panels/EmptyText.h"
#include "workbench/panels/SourcesPanel.h"
#include "workbench/panels/SourceTab.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMimeData>
#include <QSignalSpy>
#include <QTableView>
#include <QTabWidget>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

// The panel and its tabs.
class TestSourcesPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void startsEmpty();
    void showsEachSourceInItsTab();
    void tabGoesInReadingOrder();
    void choosesARecord();
    void offersNoChoiceOfOneRecord();
    void filtersWithoutCase();
    void filtersTextAsItStands();
    void keepsARowSelectedWhileFiltering();
    void saysWhyItIsEmpty();
    void handsOverTheSelectedRows();
    void appendsByActionAndByKey();
    void appendsFromTheTabInSight();
    void replacesWhatItShowed();
    void appendsNothingOfAnEmptySource();
    void goesWithWhatItShows();

private:
    using Fields = SourcesPanel::Fields;
    [[nodiscard]] static Fields fields(const QStringList &names, const QStringList &records = {});
    [[nodiscard]] static SourcesPanel::Lookups lookups(const QStringList &ids);
    [[nodiscard]] static QStringList shown(const SourceTab *tab);
    [[nodiscard]] static QStringList payload(const SourceTab *tab);
    [[nodiscard]] QAction *append() const { return m_bench->actions[ActionId::SourceAppend]; }
    [[nodiscard]] static QLineEdit *filter(const SourceTab *tab) { return tab->findChild<QLineEdit *>(); }
    [[nodiscard]] QComboBox *records() const { return m_panel->findChild<QComboBox *>(); }

    IsolatedSettings m_settings;
    std::unique_ptr<Bench> m_bench;
    std::unique_ptr<SourcesPanel> m_panel;
};

void TestSourcesPanel::init()
{
    m_bench = std::make_unique<Bench>();
    m_panel = std::make_unique<SourcesPanel>(m_bench->workspace());
    m_panel->resize(700, 250);
    m_panel->show();
    m_panel->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
}

void TestSourcesPanel::cleanup()
{
    m_panel.reset();
    m_bench.reset();
}

SourcesPanel::Fields TestSourcesPanel::fields(const QStringList &names, const QStringList &records)
{
    auto list = std::make_unique<OwnedList<TDcSourceField>>();
    for (qsizetype i = 0; i < names.size(); ++i) {
        auto field = std::make_unique<TDcSourceField>();
        field->name = names.at(i);
        field->label = u"Label of "_s + names.at(i);
        field->record = records.value(i);
        list->append(std::move(field));
    }
    return list;
}

SourcesPanel::Lookups TestSourcesPanel::lookups(const QStringList &ids)
{
    auto list = std::make_unique<OwnedList<TDcLookup>>();
    for (const QString &id : ids) {
        auto lookup = std::make_unique<TDcLookup>();
        lookup->setId(id);
        list->append(std::move(lookup));
    }
    return list;
}

QStringList TestSourcesPanel::shown(const SourceTab *tab)
{
    QStringList names;
    const QAbstractItemModel *model = tab->view()->model();
    for (int row = 0; row < model->rowCount(); ++row)
        names.append(model->index(row, 0).data().toString());
    return names;
}

/// The names of the fields that a drag would carry.
QStringList TestSourcesPanel::payload(const SourceTab *tab)
{
    const std::unique_ptr<QMimeData> data(tab->payload());
    QStringList names;
    for (const QString &text : data ? payloadTexts(*data) : QStringList())
        names.append(QJsonDocument::fromJson(text.toUtf8()).object().value(u"name"_s).toString());
    return names;
}

void TestSourcesPanel::startsEmpty()
{
    QVERIFY(!append()->isEnabled());
    for (const SourceTab *tab : {m_panel->dataset(), m_panel->csv(), m_panel->lookups()}) {
        QCOMPARE(shown(tab), QStringList());
        QVERIFY(!tab->payload());
    }
    QVERIFY(!records()->isVisible());
}

void TestSourcesPanel::showsEachSourceInItsTab()
{
    const auto *tabs = m_panel->findChild<QTabWidget *>();
    m_panel->setCsvFields(fields({u"AGE"_s, u"SEX"_s}));
    QCOMPARE(shown(m_panel->csv()), QStringList({u"AGE"_s, u"SEX"_s}));
    QCOMPARE(tabs->currentWidget(), m_panel->csv());
    m_panel->setLookups(lookups({u"10"_s}));
    QCOMPARE(shown(m_panel->lookups()).size(), 1);
    QCOMPARE(tabs->currentWidget(), m_panel->lookups());
    m_panel->setDatasetFields(fields({u"WAGE"_s}));
    QCOMPARE(shown(m_panel->dataset()), QStringList({u"WAGE"_s}));
    QCOMPARE(tabs->currentWidget(), m_panel->dataset());
    QCOMPARE(shown(m_panel->csv()).size(), 2);
    for (const SourceTab *tab : {m_panel->dataset(), m_panel->csv(), m_panel->lookups()})
        QCOMPARE(tab->view()->currentIndex().row(), 0);
    QVERIFY(append()->isEnabled());
}

void TestSourcesPanel::tabGoesInReadingOrder()
{
    m_panel->setDatasetFields(fields({u"A"_s, u"B"_s}, {u"x"_s, u"y"_s}));
    m_panel->dataset()->setNotes({SourceProblem()});
    const QStringList order = Controls::tabOrder(m_panel->dataset());
    QCOMPARE(order.size(), 6);
    // After the buttons to open and to append.
    QCOMPARE(
        order.mid(2),
        QStringList({u"Notes (1)…"_s, u"All records"_s, u"Filter Dataset fields"_s, u"Dataset fields"_s}));
    QCOMPARE(Controls::tabOrder(m_panel->csv()).mid(2),
             QStringList({u"Filter CSV fields"_s, u"CSV fields"_s}));
}

void TestSourcesPanel::choosesARecord()
{
    m_panel->setDatasetFields(
        fields({u"ROOMS"_s, u"AGE"_s, u"SEX"_s}, {u"house"_s, u"person"_s, u"person"_s}));
    QVERIFY(records()->isVisible());
    QStringList offered;
    for (int i = 0; i < records()->count(); ++i)
        offered.append(records()->itemText(i));
    QCOMPARE(offered, QStringList({u"All records"_s, u"house"_s, u"person"_s}));
    QCOMPARE(shown(m_panel->dataset()).size(), 3);
    records()->setFocus();
    QTest::keyClick(records(), Qt::Key_Down);
    QCOMPARE(shown(m_panel->dataset()), QStringList({u"ROOMS"_s}));
    QTest::keyClick(records(), Qt::Key_Down);
    QCOMPARE(shown(m_panel->dataset()), QStringList({u"AGE"_s, u"SEX"_s}));
    QVERIFY(m_panel->dataset()->view()->currentIndex().isValid());
    QCOMPARE(payload(m_panel->dataset()), QStringList({u"AGE"_s}));
    QTest::keyClick(records(), Qt::Key_Home);
    QCOMPARE(shown(m_panel->dataset()).size(), 3);
}

void TestSourcesPanel::offersNoChoiceOfOneRecord()
{
    m_panel->setDatasetFields(fields({u"A"_s, u"B"_s}, {u"x"_s, u"y"_s}));
    QVERIFY(records()->isVisible());
    records()->setCurrentIndex(2);
    m_panel->setDatasetFields(fields({u"A"_s, u"B"_s}, {u"x"_s, u"x"_s}));
    QVERIFY(!records()->isVisible());
    QCOMPARE(shown(m_panel->dataset()).size(), 2);
}

void TestSourcesPanel::filtersWithoutCase()
{
    const SourceTab *tab = m_panel->dataset();
    m_panel->setDatasetFields(fields({u"AGE"_s, u"WAGE"_s, u"SEX"_s}));
    QTest::keyClicks(filter(tab), u" age "_s);
    QCOMPARE(shown(tab), QStringList({u"AGE"_s, u"WAGE"_s}));
    filter(tab)->setText(u"LABEL OF SEX"_s);
    QCOMPARE(shown(tab), QStringList({u"SEX"_s}));
    filter(tab)->clear();
    QCOMPARE(shown(tab).size(), 3);
    m_panel->setCsvFields(fields({u"Höhe"_s, u"SEX"_s}));
    filter(m_panel->csv())->setText(u"HÖHE"_s);
    QCOMPARE(shown(m_panel->csv()), QStringList({u"Höhe"_s}));
}

void TestSourcesPanel::filtersTextAsItStands()
{
    m_panel->setCsvFields(fields({u"A.B"_s, u"AXB"_s, u"(A"_s}));
    filter(m_panel->csv())->setText(u"a.b"_s);
    QCOMPARE(shown(m_panel->csv()), QStringList({u"A.B"_s}));
    filter(m_panel->csv())->setText(u"("_s);
    QCOMPARE(shown(m_panel->csv()), QStringList({u"(A"_s}));
}

void TestSourcesPanel::keepsARowSelectedWhileFiltering()
{
    m_panel->setCsvFields(fields({u"AGE"_s, u"SEX"_s}));
    filter(m_panel->csv())->setText(u"sex"_s);
    QVERIFY(append()->isEnabled());
    QCOMPARE(payload(m_panel->csv()), QStringList({u"SEX"_s}));
    filter(m_panel->csv())->setText(u"nothing"_s);
    QVERIFY(!append()->isEnabled());
    QCOMPARE(payload(m_panel->csv()), QStringList());
    filter(m_panel->csv())->clear();
    QVERIFY(append()->isEnabled());
}

void TestSourcesPanel::saysWhyItIsEmpty()
{
    const auto *view = static_cast<const EmptyText<QTableView> *>(m_panel->csv()->view());
    const QString open = u"Open a file to list its fields here, then drag them onto the variables."_s;
    QCOMPARE(view->emptyText(), open);
    filter(m_panel->csv())->setText(u"nothing"_s);
    QCOMPARE(view->emptyText(), open);
    m_panel->setCsvFields(fields({u"AGE"_s}));
    QCOMPARE(shown(m_panel->csv()), QStringList());
    QCOMPARE(view->emptyText(), u"Nothing matches the filter."_s);
    m_panel->setCsvFields(fields({}));
    QCOMPARE(view->emptyText(), open);
}

void TestSourcesPanel::handsOverTheSelectedRows()
{
    m_panel->setDatasetFields(fields({u"AGE"_s, u"WAGE"_s, u"SEX"_s}));
    QTableView *view = m_panel->dataset()->view();
    view->sortByColumn(0, Qt::DescendingOrder);
    view->selectAll();
    QCOMPARE(payload(m_panel->dataset()), QStringList({u"WAGE"_s, u"SEX"_s, u"AGE"_s}));
    view->selectRow(1);
    QCOMPARE(payload(m_panel->dataset()), QStringList({u"SEX"_s}));
}

void TestSourcesPanel::appendsByActionAndByKey()
{
    m_panel->setDatasetFields(fields({u"AGE"_s, u"SEX"_s}));
    QStringList chosen;
    connect(m_panel.get(), &SourcesPanel::chosen, this,
            [&chosen](const QMimeData *data) { chosen += payloadTexts(*data); });
    append()->trigger();
    QCOMPARE(chosen.size(), 1);
    QVERIFY(chosen.last().contains(u"AGE"_s));
    QTableView *view = m_panel->dataset()->view();
    view->setFocus();
    QTest::keyClick(view, Qt::Key_Down);
    QTest::keyClick(view, Qt::Key_Return);
    QCOMPARE(chosen.size(), 2);
    QVERIFY(chosen.last().contains(u"SEX"_s));
    view->clearSelection();
    QVERIFY(!append()->isEnabled());
}

void TestSourcesPanel::appendsFromTheTabInSight()
{
    m_panel->setCsvFields(fields({u"AGE"_s}));
    m_panel->setDatasetFields(fields({u"SEX"_s}));
    QSignalSpy chosen(m_panel.get(), &SourcesPanel::chosen);
    QStringList texts;
    connect(m_panel.get(), &SourcesPanel::chosen, this,
            [&texts](const QMimeData *data) { texts += payloadTexts(*data); });
    auto *tabs = m_panel->findChild<QTabWidget *>();
    tabs->setCurrentWidget(m_panel->csv());
    append()->trigger();
    tabs->setCurrentWidget(m_panel->lookups());
    QVERIFY(!append()->isEnabled());
    tabs->setCurrentWidget(m_panel->dataset());
    QVERIFY(append()->isEnabled());
    append()->trigger();
    QCOMPARE(chosen.size(), 2);
    QVERIFY(texts.first().contains(u"AGE"_s));
    QVERIFY(texts.last().contains(u"SEX"_s));
}

void TestSourcesPanel::replacesWhatItShowed()
{
    for (int i = 0; i < 3; ++i) {
        m_panel->setDatasetFields(fields({u"A%1"_s.arg(i), u"B%1"_s.arg(i)}, {u"x"_s, u"y"_s}));
        m_panel->setCsvFields(fields({u"C%1"_s.arg(i)}));
        m_panel->setLookups(lookups({QString::number(i)}));
        m_panel->dataset()->view()->selectAll();
        m_panel->grab();
    }
    QCOMPARE(shown(m_panel->dataset()), QStringList({u"A2"_s, u"B2"_s}));
    QCOMPARE(shown(m_panel->csv()), QStringList({u"C2"_s}));
    QCOMPARE(records()->count(), 3);
}

void TestSourcesPanel::appendsNothingOfAnEmptySource()
{
    m_panel->setCsvFields(fields({u"AGE"_s}));
    QVERIFY(append()->isEnabled());
    m_panel->setCsvFields(fields({}));
    QVERIFY(!append()->isEnabled());
    QSignalSpy chosen(m_panel.get(), &SourcesPanel::chosen);
    append()->trigger();
    QCOMPARE(chosen.size(), 0);
}

void TestSourcesPanel::goesWithWhatItShows()
{
    m_panel->setDatasetFields(fields({u"AGE"_s}));
    m_panel->setCsvFields(fields({u"AGE"_s}));
    m_panel->setLookups(lookups({u"1"_s}));
    m_panel->csv()->view()->setFocus();
    m_panel.reset(); // Its lists go with it, after those who look at them.
    append()->trigger();
    QVERIFY(!m_panel);
}

QTEST_MAIN(TestSourcesPanel)
#include "tst_sourcespanel.moc"
