#include "tests/workbench/IsolatedSettings.h"
#include "workbench/MainWindow.h"
#include "workbench/panels/EntityForm.h"
#include "workbench/panels/VariableTablePanel.h"

#include <QDockWidget>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTableView>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestPanes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void goesRound();
    void goesBack();
    void leavesOutWhatIsClosed();
    void followsADockThatIsMoved();
    void comesBackToTheSameControl();
    void passesOverWhatTakesNoKeyboard();
    void beginsFromOutside();
    void bringsATabToTheFront();

private:
    /// The name of the dock that has the keyboard; "table" for the table in the middle.
    [[nodiscard]] QString pane() const;
    [[nodiscard]] QStringList press(Qt::KeyboardModifiers modifiers, int times);
    [[nodiscard]] QDockWidget *dock(const QString &name) { return m_window->findChild<QDockWidget *>(name); }

    std::unique_ptr<IsolatedSettings> m_settings;
    std::unique_ptr<MainWindow> m_window;
};

void TestPanes::init()
{
    m_settings = std::make_unique<IsolatedSettings>();
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QCOMPARE(pane(), u"table"_s);
}

void TestPanes::cleanup()
{
    m_window.reset();
    m_settings.reset();
}

QString TestPanes::pane() const
{
    const QWidget *focus = QApplication::focusWidget();
    if (focus && m_window->centralWidget()->isAncestorOf(focus))
        return u"table"_s;
    const auto docks = m_window->findChildren<QDockWidget *>();
    const auto found = std::find_if(docks.cbegin(), docks.cend(),
                                    [focus](const QDockWidget *each) { return each->isAncestorOf(focus); });
    return found == docks.cend() ? QString() : (*found)->objectName();
}

QStringList TestPanes::press(Qt::KeyboardModifiers modifiers, int times)
{
    QStringList panes;
    for (int i = 0; i < times; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6, modifiers);
        panes.append(pane());
    }
    return panes;
}

void TestPanes::goesRound()
{
    QCOMPARE(press(Qt::NoModifier, 7),
             QStringList({u"variable"_s, u"sources"_s, u"problems"_s, u"find"_s, u"entities"_s, u"entity"_s,
                          u"table"_s}));
}

void TestPanes::goesBack()
{
    QCOMPARE(press(Qt::ShiftModifier, 7),
             QStringList({u"entity"_s, u"entities"_s, u"find"_s, u"problems"_s, u"sources"_s, u"variable"_s,
                          u"table"_s}));
}

void TestPanes::leavesOutWhatIsClosed()
{
    for (const char *name : {"variable", "problems", "entities"})
        dock(QLatin1StringView(name))->close();
    QCOMPARE(press(Qt::NoModifier, 4), QStringList({u"sources"_s, u"find"_s, u"entity"_s, u"table"_s}));
}

void TestPanes::followsADockThatIsMoved()
{
    m_window->addDockWidget(Qt::LeftDockWidgetArea, dock(u"variable"_s));
    QCOMPARE(press(Qt::ShiftModifier, 1), QStringList({u"variable"_s}));
}

void TestPanes::comesBackToTheSameControl()
{
    const auto fields = m_window->findChild<EntityForm *>()->findChildren<QLineEdit *>();
    QVERIFY(fields.size() > 2);
    fields.at(2)->setFocus();
    QCOMPARE(press(Qt::NoModifier, 1), QStringList({u"table"_s}));
    QCOMPARE(QApplication::focusWidget(), m_window->findChild<VariableTablePanel *>()->view());
    QCOMPARE(press(Qt::ShiftModifier, 1), QStringList({u"entity"_s}));
    QCOMPARE(QApplication::focusWidget(), fields.at(2));
}

void TestPanes::passesOverWhatTakesNoKeyboard()
{
    dock(u"sources"_s)->widget()->setEnabled(false);
    QCOMPARE(press(Qt::NoModifier, 2), QStringList({u"variable"_s, u"problems"_s}));
}

void TestPanes::beginsFromOutside()
{
    m_window->menuBar()->setFocus(Qt::MenuBarFocusReason);
    (*m_window->actions())[ActionId::ViewNextPane]->trigger();
    QCOMPARE(pane(), u"entities"_s);
    m_window->menuBar()->setFocus(Qt::MenuBarFocusReason);
    (*m_window->actions())[ActionId::ViewPreviousPane]->trigger();
    QCOMPARE(pane(), u"find"_s);
}

void TestPanes::bringsATabToTheFront()
{
    QVERIFY(dock(u"problems"_s)->visibleRegion().isEmpty());
    QCOMPARE(press(Qt::NoModifier, 3).last(), u"problems"_s);
    QApplication::processEvents();
    QVERIFY(!dock(u"problems"_s)->visibleRegion().isEmpty());
    QVERIFY(dock(u"sources"_s)->visibleRegion().isEmpty());
}

QTEST_MAIN(TestPanes)
#include "tst_panes.moc"
