#include "models/VarRangeDelegate.h"

#include "models/VarRangeModel.h"
#include "models/VarRangeProxyModel.h"
#include "tests/support/Variables.h"

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>

#include <limits>

using namespace Qt::Literals::StringLiterals;

class TestVarRangeDelegate : public QObject
{
    Q_OBJECT

    /// The editor that the delegate of \a variable makes.
    static std::unique_ptr<QWidget> makeEditor(TDcVariable *variable)
    {
        const VarRangeDelegate delegate(variable, nullptr);
        return std::unique_ptr<QWidget>(delegate.createEditor(nullptr, {}, {}));
    }

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }

    void editsIntegersInASpinBoxOfAllIntegers()
    {
        const auto variable = makeRanged(u"INTEGER"_s, {});
        const auto editor = makeEditor(variable.get());
        const auto *box = qobject_cast<QSpinBox *>(editor.get());
        QVERIFY(box);
        QCOMPARE(box->minimum(), std::numeric_limits<int>::min());
        QCOMPARE(box->maximum(), std::numeric_limits<int>::max());
    }

    void editsOtherTypesInADecimalSpinBox_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<int>("offered");
        QTest::addRow("real") << u"REAL"_s << 3 << 3;
        QTest::addRow("one decimal") << u"REAL"_s << 1 << 1;
        QTest::addRow("no decimals") << u"REAL"_s << 0 << 2;
        QTest::addRow("negative decimals") << u"REAL"_s << -1 << 2;
        QTest::addRow("lower-case integer") << u"integer"_s << 0 << 2;
        QTest::addRow("text") << u"STRING"_s << 4 << 4;
        QTest::addRow("no type") << QString() << 0 << 2;
    }
    void editsOtherTypesInADecimalSpinBox()
    {
        QFETCH(QString, type);
        QFETCH(int, decimals);
        QFETCH(int, offered);
        const auto variable = makeRanged(type, {});
        variable->setDecimals(decimals);
        const auto editor = makeEditor(variable.get());
        const auto *box = qobject_cast<QDoubleSpinBox *>(editor.get());
        QVERIFY(box);
        QCOMPARE(box->decimals(), offered);
        QCOMPARE(box->minimum(), -1e12);
        QCOMPARE(box->maximum(), 1e12);
    }

    void givesTheEditorToItsParent()
    {
        const auto variable = makeRanged(u"REAL"_s, {});
        const VarRangeDelegate delegate(variable.get(), nullptr);
        QWidget parent;
        QCOMPARE(delegate.createEditor(&parent, {}, {})->parentWidget(), &parent);
    }

    void fillsTheEditorFromTheEditRole()
    {
        /// Displays something else than it edits.
        struct Model : QStandardItemModel {
            using QStandardItemModel::QStandardItemModel;
            QVariant data(const QModelIndex &index, int role) const override
            {
                return role == Qt::DisplayRole ? 7 : QStandardItemModel::data(index, role);
            }
        } model(1, 1);
        model.setData(model.index(0, 0), u"12.5"_s, Qt::EditRole);
        const auto variable = makeRanged(u"REAL"_s, {});
        const VarRangeDelegate delegate(variable.get(), nullptr);

        QDoubleSpinBox decimal;
        delegate.setEditorData(&decimal, model.index(0, 0));
        QCOMPARE(decimal.value(), 12.5);

        QSpinBox whole; // What counts is the editor, not the type of the variable.
        whole.setValue(5);
        delegate.setEditorData(&whole, model.index(0, 0));
        QCOMPARE(whole.value(), 0); // "12.5" is no whole number.
        model.setData(model.index(0, 0), 42, Qt::EditRole);
        delegate.setEditorData(&whole, model.index(0, 0));
        QCOMPARE(whole.value(), 42);

        QLineEdit other;
        other.setText(u"as it was"_s);
        delegate.setEditorData(&other, model.index(0, 0));
        QCOMPARE(other.text(), u"as it was"_s);
    }

    void writesSpinBoxesOnly()
    {
        QStandardItemModel model(1, 1);
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        const auto variable = makeRanged(u"REAL"_s, {});
        const VarRangeDelegate delegate(variable.get(), nullptr);

        QLineEdit other(u"77"_s);
        delegate.setModelData(&other, &model, model.index(0, 0));
        QCOMPARE(changed.size(), 0);
        QVERIFY(!model.index(0, 0).data(Qt::EditRole).isValid());

        QSpinBox whole;
        whole.setValue(42);
        delegate.setModelData(&whole, &model, model.index(0, 0));
        QCOMPARE(model.index(0, 0).data(Qt::EditRole), QVariant(42));
        QCOMPARE(model.index(0, 0).data(Qt::EditRole).typeId(), int(QMetaType::Int));

        QDoubleSpinBox decimal;
        decimal.setValue(1.25);
        delegate.setModelData(&decimal, &model, model.index(0, 0));
        QCOMPARE(model.index(0, 0).data(Qt::EditRole), QVariant(1.25));
        QCOMPARE(model.index(0, 0).data(Qt::EditRole).typeId(), int(QMetaType::Double));
    }

    void editsInAViewThroughTheProxy_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<double>("stored");
        QTest::addRow("integer") << u"INTEGER"_s << u"-15"_s << -15.0;
        QTest::addRow("integer takes no fraction") << u"INTEGER"_s << u"1.5"_s << 15.0;
        QTest::addRow("integer beyond int stops growing") << u"INTEGER"_s << u"21474836479"_s << 2147483647.0;
        QTest::addRow("real") << u"REAL"_s << u"2.75"_s << 2.75;
        QTest::addRow("real takes its decimals only") << u"REAL"_s << u"2.759"_s << 2.75;
        QTest::addRow("above the maximum") << u"REAL"_s << u"1000"_s << 1000.0;
    }
    void editsInAViewThroughTheProxy()
    {
        QFETCH(QString, type);
        QFETCH(QString, keys);
        QFETCH(double, stored);
        const auto variable = makeRanged(type, {{30, 31}, {4, 5}, {20, 21}});
        VarRangeModel model(nullptr, variable.get());
        VarRangeProxyModel proxy(nullptr);
        proxy.setSourceModel(&model);
        VarRangeDelegate delegate(variable.get(), nullptr);
        QTableView view;
        view.setModel(&proxy);
        view.setItemDelegate(&delegate);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));

        view.setCurrentIndex(proxy.mapFromSource(model.index(1, 0)));
        QTest::keyClick(&view, Qt::Key_F2);
        auto *editor = view.findChild<QAbstractSpinBox *>();
        QVERIFY(editor);
        QCOMPARE(editor->text().toDouble(), 4.0);
        editor->selectAll();
        QTest::keyClicks(editor, keys);
        QTest::keyClick(editor, Qt::Key_Return);

        const QList<Range *> &ranges = *variable->getMetadataVariables()->getRange();
        QTRY_COMPARE(ranges.at(1)->getRangeMin(), stored);
        QCOMPARE(ranges.at(1)->getRangeMax(), 5.0);
        QCOMPARE(ranges.at(0)->getRangeMin(), 30.0);
        QCOMPARE(ranges.at(2)->getRangeMin(), 20.0);
    }

    void leavesTheRangeAloneOnEscape()
    {
        const auto variable = makeRanged(u"INTEGER"_s, {{1, 2}});
        VarRangeModel model(nullptr, variable.get());
        VarRangeDelegate delegate(variable.get(), nullptr);
        QTableView view;
        view.setModel(&model);
        view.setItemDelegate(&delegate);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        view.setCurrentIndex(model.index(0, 0));
        QTest::keyClick(&view, Qt::Key_F2);
        auto *editor = view.findChild<QSpinBox *>();
        QVERIFY(editor);
        QTest::keyClicks(editor, u"99"_s);
        QTest::keyClick(editor, Qt::Key_Escape);
        QCOMPARE(variable->getMetadataVariables()->getRange()->first()->getRangeMin(), 1.0);
    }
};

QTEST_MAIN(TestVarRangeDelegate)
#include "tst_varrangedelegate.moc"
