#include "models/VarValueLabelDiccionaryModel.h"

#include "tests/support/EditorContract.h"
#include "tests/support/Variables.h"

#include <QLineEdit>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

class TestVarValueLabelDiccionaryModel : public QObject
{
    Q_OBJECT

    std::unique_ptr<TDcVariable> m_variable;
    std::unique_ptr<VarValueLabelDiccionaryModel> m_model;

    [[nodiscard]] ValueLabelElement *element(int row) const
    {
        return m_variable->getValueLabelElementList()->at(row);
    }

private Q_SLOTS:
    void init()
    {
        m_variable = makeLabelled({{u"1"_s, u"Yes"_s}, {u"2"_s, u"No"_s}});
        m_model = std::make_unique<VarValueLabelDiccionaryModel>(nullptr, m_variable.get());
    }
    void cleanup()
    {
        m_model.reset();
        QCOMPARE(m_variable->getValueLabelElementList()->size(), 2); // The model deletes nothing.
        m_variable.reset();
    }

    void keepsTheContract() { checkRowListContract(*m_model, *m_variable->getValueLabelElementList(), 2); }

    void showsCodeAndLabelAsTexts()
    {
        checkHeaderContract(*m_model, {u"Code"_s, u"Label"_s});
        QCOMPARE(rowText(*m_model, 0), u"1|Yes"_s);
        QCOMPARE(m_model->index(0, 0).data().typeId(), int(QMetaType::QString));
        QCOMPARE(m_model->index(1, 1).data(Qt::EditRole), QVariant(u"No"_s));
        QVERIFY(!m_model->getItemData(element(0), 2).isValid());
        QVERIFY(!m_model->getItemData(element(0), -1).isValid());
        QVERIFY(!m_model->getItemData(nullptr, 0).isValid());
    }

    void showsNothingOfAVariableWithoutCategories()
    {
        TDcVariable variable;
        const VarValueLabelDiccionaryModel model(nullptr, &variable);
        checkRowListContract(model, QList<ValueLabelElement *>(), 2);
        checkHeaderContract(model, {u"Code"_s, u"Label"_s});
    }

    void storesWhateverIsTyped_data()
    {
        QTest::addColumn<QVariant>("typed");
        QTest::addColumn<QString>("stored");
        QTest::addRow("text") << QVariant(u"A"_s) << u"A"_s;
        QTest::addRow("empty text") << QVariant(QString()) << QString();
        QTest::addRow("repeated code") << QVariant(u"2"_s) << u"2"_s;
        QTest::addRow("blanks stay") << QVariant(u" x "_s) << u" x "_s;
        QTest::addRow("number") << QVariant(7) << u"7"_s;
        QTest::addRow("nothing") << QVariant() << QString();
    }
    void storesWhateverIsTyped()
    {
        QFETCH(QVariant, typed);
        QFETCH(QString, stored);
        QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
        QVERIFY(m_model->setData(m_model->index(0, 0), typed));
        QCOMPARE(element(0)->getValue(), stored);
        QCOMPARE(element(0)->getLabel(), u"Yes"_s);
        QVERIFY(m_model->setData(m_model->index(0, 1), typed));
        QCOMPARE(element(0)->getLabel(), stored);
        QCOMPARE(changed.size(), 2);
        QCOMPARE(changed.at(0).at(0).toModelIndex(), m_model->index(0, 0));
        QCOMPARE(changed.at(1).at(1).toModelIndex(), m_model->index(0, 1));
    }

    void announcesRolesThatStoreNothing() { checkSilentRolesContract(*m_model, u"x"_s); }

    void neverEmitsEditedItem()
    {
        QSignalSpy edited(m_model.get(), &VarValueLabelDiccionaryModel::editedItem);
        QVERIFY(edited.isValid());
        QVERIFY(m_model->setData(m_model->index(0, 0), u"9"_s));
        QVERIFY(m_model->setData(m_model->index(0, 1), u"Nine"_s));
        QVERIFY(m_model->setData(m_model->index(0, 0), u"9"_s, Qt::DisplayRole));
        QCOMPARE(edited.size(), 0);
    }

    void doesNotSeeLaterChangesOfTheList()
    {
        m_variable->addValueLabelElement(new ValueLabelElement);
        QCOMPARE(m_model->rowCount(), 2);
        delete m_variable->getValueLabelElementList()->takeLast();
    }

    void isEditedInAView()
    {
        QTableView view;
        view.setModel(m_model.get());
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        view.setCurrentIndex(m_model->index(1, 1));
        QTest::keyClick(&view, Qt::Key_F2);
        auto *editor = view.findChild<QLineEdit *>();
        QVERIFY(editor);
        QCOMPARE(editor->text(), u"No"_s);
        QTest::keyClicks(editor, u"Never"_s);
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_COMPARE(element(1)->getLabel(), u"Never"_s);
        QCOMPARE(element(1)->getValue(), u"2"_s);
    }
};

QTEST_MAIN(TestVarValueLabelDiccionaryModel)
#include "tst_varvaluelabeldiccionarymodel.moc"
