#include "tests/support/MessageBoxAnswer.h"
#include "tests/workbench/Controls.h"
#include "tests/workbench/IsolatedSettings.h"
#include "workbench/dialogs/AreaSelectionDialog.h"
#include "workbench/panels/EmptyText.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr auto provinces = "code,parent,name,area\n"
                           "0,,Country,Whole country\n"
                           "1,0,North,Northern Province\n"
                           "11,1,Hill,Hill Town\n"
                           "12,1,Lake,Lake Town\n"
                           "2,0,South,Southern Province\n"
                           "21,2,Harbour,Harbour Town\n";
}

class TestAreaSelectionDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void startsWithoutAFile();
    void showsTheUnitsOfAFile();
    void selectsByKeyboardAlone();
    void selectsByClick();
    void filtersAndKeepsParents();
    void filtersByWhatIsNotShown_data();
    void filtersByWhatIsNotShown();
    void saysWhyItIsEmpty();
    void expandsAndCollapsesAll();
    void showsCodesAndNames();
    void copiesTheFewestCodes();
    void savesTheSelection();
    void tellsThatItCannotSave();
    void tellsWhatIsWrongWithAFile();
    void keepsTheUnitsWhenAnotherFileIsBad();
    void putsOneRootAboveSeveral();
    void takesAFileWithoutUnits();
    void escapeCloses();

private:
    [[nodiscard]] QString write(const QByteArray &content);
    [[nodiscard]] QStringList lines(const QModelIndex &parent = {}, int depth = 0) const;
    [[nodiscard]] QModelIndex find(const QString &text) const;
    [[nodiscard]] QString count() const { return m_dialog->findChild<QLabel *>(u"areaCount"_s)->text(); }
    [[nodiscard]] QPushButton *button(const QString &name) const
    {
        return Controls::button<QPushButton>(m_dialog.get(), name);
    }

    std::unique_ptr<IsolatedSettings> m_settings;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<AreaSelectionDialog> m_dialog;
};

void TestAreaSelectionDialog::init()
{
    m_settings = std::make_unique<IsolatedSettings>();
    m_folder = std::make_unique<QTemporaryDir>();
    m_dialog = std::make_unique<AreaSelectionDialog>();
    m_dialog->open();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

void TestAreaSelectionDialog::cleanup()
{
    m_dialog.reset();
    m_folder.reset();
    m_settings.reset();
}

QString TestAreaSelectionDialog::write(const QByteArray &content)
{
    QFile file(m_folder->filePath(u"areas.csv"_s));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? file.fileName()
                                                                                    : QString();
}

QStringList TestAreaSelectionDialog::lines(const QModelIndex &parent, int depth) const
{
    QStringList result;
    const QAbstractItemModel *model = m_dialog->view()->model();
    for (int row = 0; row < model->rowCount(parent); ++row) {
        const QModelIndex index = model->index(row, 0, parent);
        result.append(QString(depth, u' ') + u"-~+"_s.at(index.data(Qt::CheckStateRole).toInt())
                      + index.data().toString());
        result.append(lines(index, depth + 1));
    }
    return result;
}

QModelIndex TestAreaSelectionDialog::find(const QString &text) const
{
    const QAbstractItemModel *model = m_dialog->view()->model();
    return model->match(model->index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchExactly | Qt::MatchRecursive)
        .value(0);
}

void TestAreaSelectionDialog::startsWithoutAFile()
{
    QCOMPARE(lines(), QStringList());
    QCOMPARE(count(), u"Areas selected: 0 of 0"_s);
    for (const QString &name :
         {u"Expand All"_s, u"Collapse All"_s, u"Select None"_s, u"Copy Codes"_s, u"Save as CSV…"_s})
        QVERIFY2(!button(name)->isEnabled(), qPrintable(name));
    QVERIFY(button(u"Open File…"_s)->isEnabled());
    m_dialog->findChild<QCheckBox *>()->toggle(); // Nothing to show yet.
    QCOMPARE(m_dialog->text(), QString());
}

void TestAreaSelectionDialog::showsTheUnitsOfAFile()
{
    QVERIFY(m_dialog->load(write(provinces)));
    QCOMPARE(lines(),
             QStringList({u"-0 Whole country"_s, u" -1 Northern Province"_s, u"  -11 Hill Town"_s,
                          u"  -12 Lake Town"_s, u" -2 Southern Province"_s, u"  -21 Harbour Town"_s}));
    QCOMPARE(count(), u"Areas selected: 0 of 3"_s);
    QCOMPARE(m_dialog->view()->currentIndex().data().toString(), u"0 Whole country"_s);
    QCOMPARE(QApplication::focusWidget(), m_dialog->view());
    QVERIFY(!button(u"Copy Codes"_s)->isEnabled());
}

void TestAreaSelectionDialog::selectsByKeyboardAlone()
{
    QVERIFY(m_dialog->load(write(provinces)));
    QTreeView *view = m_dialog->view();
    QTest::keyClick(view, Qt::Key_Down);
    QTest::keyClick(view, Qt::Key_Space);
    QCOMPARE(count(), u"Areas selected: 2 of 3"_s);
    QCOMPARE(lines(),
             QStringList({u"~0 Whole country"_s, u" +1 Northern Province"_s, u"  +11 Hill Town"_s,
                          u"  +12 Lake Town"_s, u" -2 Southern Province"_s, u"  -21 Harbour Town"_s}));
    QTest::keyClick(view, Qt::Key_Right);
    QTest::keyClick(view, Qt::Key_Down);
    QTest::keyClick(view, Qt::Key_Space);
    QCOMPARE(m_dialog->text(), u"12"_s);
    // A partly selected unit is selected wholly first.
    QTest::keyClick(view, Qt::Key_Home);
    QTest::keyClick(view, Qt::Key_Space);
    QCOMPARE(m_dialog->text(), u"0"_s);
    QTest::keyClick(view, Qt::Key_T, Qt::AltModifier);
    QTRY_COMPARE(count(), u"Areas selected: 0 of 3"_s); // The button shows that it is pressed.
    QTest::keyClick(m_dialog.get(), Qt::Key_F, Qt::AltModifier);
    QCOMPARE(QApplication::focusWidget(), m_dialog->findChild<QLineEdit *>());
}

void TestAreaSelectionDialog::selectsByClick()
{
    QVERIFY(m_dialog->load(write(provinces)));
    QTreeView *view = m_dialog->view();
    const QRect row = view->visualRect(find(u"2 Southern Province"_s));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, QPoint(row.left() + 8, row.center().y()));
    QCOMPARE(m_dialog->text(), u"2"_s);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, QPoint(row.left() + 8, row.center().y()));
    QCOMPARE(m_dialog->text(), QString());
}

void TestAreaSelectionDialog::filtersAndKeepsParents()
{
    QVERIFY(m_dialog->load(write(provinces)));
    auto *filter = m_dialog->findChild<QLineEdit *>();
    QTest::keyClicks(filter, u"LAKE"_s);
    QCOMPARE(lines(), QStringList({u"-0 Whole country"_s, u" -1 Northern Province"_s, u"  -12 Lake Town"_s}));
    QVERIFY(m_dialog->view()->isExpanded(find(u"1 Northern Province"_s)));
    // Of what is found, all below stays.
    filter->setText(u"southern"_s);
    QCOMPARE(lines(),
             QStringList({u"-0 Whole country"_s, u" -2 Southern Province"_s, u"  -21 Harbour Town"_s}));
    // A unit is selected with all below it, in sight or not.
    filter->setText(u"lake"_s);
    QVERIFY(
        m_dialog->view()->model()->setData(find(u"1 Northern Province"_s), Qt::Checked, Qt::CheckStateRole));
    QCOMPARE(count(), u"Areas selected: 2 of 3"_s);
    filter->setText(u"nowhere"_s);
    QCOMPARE(lines(), QStringList());
    filter->clear();
    QCOMPARE(lines().size(), 6);
    QVERIFY(m_dialog->view()->currentIndex().isValid());
    QCOMPARE(m_dialog->text(), u"1"_s);
}

void TestAreaSelectionDialog::filtersByWhatIsNotShown_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<bool>("found");
    QTest::addRow("code") << u"a1"_s << true;
    QTest::addRow("name") << u"north"_s << true;
    QTest::addRow("first text") << u"First"_s << true;
    QTest::addRow("second text") << u"prov"_s << true;
    QTest::addRow("code and name at once") << u"A1 North"_s << false;
}

void TestAreaSelectionDialog::filtersByWhatIsNotShown()
{
    QFETCH(const QString, filter);
    QFETCH(const bool, found);
    QVERIFY(m_dialog->load(
        write("code,parent,name,area1,area2\nA0,,Country,Land,Whole\nA1,A0,North,First,Prov\n")));
    m_dialog->findChild<QLineEdit *>()->setText(filter);
    QCOMPARE(lines(), found ? QStringList({u"-Land Whole"_s, u" -First Prov"_s}) : QStringList());
}

void TestAreaSelectionDialog::saysWhyItIsEmpty()
{
    const auto words = [this] { return static_cast<EmptyText<QTreeView> *>(m_dialog->view())->emptyText(); };
    QVERIFY(words().startsWith(u"Open a CSV file"_s));
    QVERIFY(m_dialog->load(write(provinces)));
    m_dialog->findChild<QLineEdit *>()->setText(u"nowhere"_s);
    QCOMPARE(words(), u"No area matches the filter."_s);
}

void TestAreaSelectionDialog::expandsAndCollapsesAll()
{
    QVERIFY(m_dialog->load(write(provinces)));
    QVERIFY(m_dialog->view()->isExpanded(find(u"0 Whole country"_s)));
    QVERIFY(!m_dialog->view()->isExpanded(find(u"1 Northern Province"_s)));
    button(u"Expand All"_s)->click();
    QVERIFY(m_dialog->view()->isExpanded(find(u"1 Northern Province"_s)));
    button(u"Collapse All"_s)->click();
    QVERIFY(!m_dialog->view()->isExpanded(find(u"0 Whole country"_s)));
}

void TestAreaSelectionDialog::showsCodesAndNames()
{
    QVERIFY(
        m_dialog->load(write("code,parent,name,area1,area2\nA0,,Country,Land,Whole\nA1,A0,North,N,Prov\n")));
    QVERIFY(m_dialog->view()->model()->setData(find(u"N Prov"_s), Qt::Checked, Qt::CheckStateRole));
    const QList<QCheckBox *> boxes = m_dialog->findChildren<QCheckBox *>();
    QCOMPARE(lines(), QStringList({u"+Land Whole"_s, u" +N Prov"_s}));
    boxes.at(0)->toggle();
    QCOMPARE(lines(), QStringList({u"+A0 Whole"_s, u" +A1 Prov"_s}));
    boxes.at(1)->toggle();
    QCOMPARE(lines(), QStringList({u"+A0 Whole"_s, u" +North | A1 Prov"_s}));
    boxes.at(0)->toggle();
    QCOMPARE(lines(), QStringList({u"+Land Whole"_s, u" +North | N Prov"_s}));
}

void TestAreaSelectionDialog::copiesTheFewestCodes()
{
    QVERIFY(m_dialog->load(write(provinces)));
    for (const QString &text : {u"11 Hill Town"_s, u"12 Lake Town"_s})
        QVERIFY(m_dialog->view()->model()->setData(find(text), Qt::Checked, Qt::CheckStateRole));
    button(u"Copy Codes"_s)->click();
    QCOMPARE(QApplication::clipboard()->text(), u"1"_s);
}

void TestAreaSelectionDialog::savesTheSelection()
{
    QVERIFY(m_dialog->load(write(provinces)));
    for (const QString &text : {u"11 Hill Town"_s, u"2 Southern Province"_s})
        QVERIFY(m_dialog->view()->model()->setData(find(text), Qt::Checked, Qt::CheckStateRole));
    const QString path = m_folder->filePath(u"selected.csv"_s);
    QVERIFY(m_dialog->save(path));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(file.readAll()),
             u"code,name,area1,area2\n11,Hill,11,Hill Town\n2,South,2,Southern Province\n"_s);
}

void TestAreaSelectionDialog::tellsThatItCannotSave()
{
    QVERIFY(m_dialog->load(write(provinces)));
    const MessageBoxAnswer box({u"OK"_s});
    QVERIFY(!m_dialog->save(m_folder->filePath(u"missing/selected.csv"_s)));
    QCOMPARE(box.shown().size(), 1);
    QVERIFY(box.shown().first().text.contains(u"selected.csv"_s));
}

void TestAreaSelectionDialog::tellsWhatIsWrongWithAFile()
{
    const MessageBoxAnswer box({u"OK"_s});
    QVERIFY(!m_dialog->load(write("code,parent\n1,9\n")));
    QVERIFY(!m_dialog->load(m_folder->filePath(u"missing.csv"_s)));
    QCOMPARE(box.texts(), QStringList({u"The file cannot be read."_s, u"The file cannot be read."_s}));
}

void TestAreaSelectionDialog::keepsTheUnitsWhenAnotherFileIsBad()
{
    QVERIFY(m_dialog->load(write(provinces)));
    QVERIFY(m_dialog->view()->model()->setData(find(u"11 Hill Town"_s), Qt::Checked, Qt::CheckStateRole));
    const MessageBoxAnswer box({u"OK"_s});
    QVERIFY(!m_dialog->load(m_folder->filePath(u"missing.csv"_s)));
    QCOMPARE(m_dialog->text(), u"11"_s);
}

void TestAreaSelectionDialog::putsOneRootAboveSeveral()
{
    QVERIFY(m_dialog->load(write("code,parent,name\n1,,North\n2,,South\n21,2,Harbour\n")));
    QCOMPARE(lines(), QStringList({u"-All areas"_s, u" -1 North"_s, u" -2 South"_s, u"  -21 Harbour"_s}));
    QTest::keyClick(m_dialog->view(), Qt::Key_Space);
    QCOMPARE(m_dialog->text(), u"1\n2"_s);
}

void TestAreaSelectionDialog::takesAFileWithoutUnits()
{
    QVERIFY(m_dialog->load(write(provinces)));
    QVERIFY(m_dialog->load(write("code,parent\n")));
    QCOMPARE(lines(), QStringList());
    QCOMPARE(count(), u"Areas selected: 0 of 0"_s);
    QVERIFY(!button(u"Expand All"_s)->isEnabled());
}

void TestAreaSelectionDialog::escapeCloses()
{
    QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
    QVERIFY(!m_dialog->isVisible());
}

QTEST_MAIN(TestAreaSelectionDialog)
#include "tst_areaselectiondialog.moc"
