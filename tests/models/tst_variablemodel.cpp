#include "models/VariableModel.h"

#include "tests/support/CheckListContract.h"

#include <QTableView>

using namespace Qt::Literals::StringLiterals;

class TestVariableModel : public QObject
{
    Q_OBJECT

    std::unique_ptr<TDcEntity> m_entity;
    std::unique_ptr<VariableModel> m_model;

    [[nodiscard]] TDcVariable *variable(int row) const { return m_entity->getVariables()->at(row); }

    /// Where a view shows the check box of \a index.
    static QPoint boxPosition(const QTableView &view, const QModelIndex &index)
    {
        QStyleOptionViewItem option;
        option.initFrom(&view);
        option.rect = view.visualRect(index);
        option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
        option.text = index.data().toString();
        option.widget = &view;
        return view.style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &view).center();
    }

private Q_SLOTS:
    void init()
    {
        m_entity = makeEntityWithRoles();
        m_model = std::make_unique<VariableModel>(nullptr, m_entity.get(), m_entity->getVariables());
    }
    void cleanup()
    {
        m_model.reset();
        QCOMPARE(m_entity->getVariables()->size(), 5); // The model deletes nothing.
        m_entity.reset();
    }

    void keepsTheContract() { checkRowListContract(*m_model, QList{variable(1), variable(4)}, 5); }

    void offersNoVariableWithARole()
    {
        QCOMPARE(rowText(*m_model, 0), u"AGE|label of AGE|alias of AGE|group|7"_s);
        // Names are compared exactly.
        QCOMPARE(rowText(*m_model, 1), u"code|label of code|alias of code|group|7"_s);
        QCOMPARE(m_model->index(0, 4).data().typeId(), int(QMetaType::Int));
    }

    void treatsNamelessVariablesAsTheRoleThatNobodyHas()
    {
        TDcEntity entity;
        entity.addVariables(makeVariable({}));
        entity.addVariables(makeVariable(u"A"_s));
        const VariableModel model(nullptr, &entity, entity.getVariables());
        QCOMPARE(model.rowCount(), 1);
        QCOMPARE(model.index(0, 0).data(), QVariant(u"A"_s));
    }

    void showsLabelBeforeAlias()
    {
        checkHeaderContract(*m_model, {u"Name"_s, u"Label"_s, u"Alias"_s, u"Group"_s, u"Tag"_s});
    }

    void showsNothingOfAnEmptyList()
    {
        QList<TDcVariable *> none;
        const VariableModel model(nullptr, m_entity.get(), &none);
        QCOMPARE(VariableModel(nullptr, m_entity.get(), nullptr).rowCount(), 0);
        checkRowListContract(model, none, 5);
    }

    void givesItemData()
    {
        QCOMPARE(m_model->getItemData(variable(0), 0), QVariant(u"CODE"_s));
        QCOMPARE(m_model->getItemData(variable(0), 4), QVariant(7));
        QVERIFY(!m_model->getItemData(variable(0), 5).isValid());
        QVERIFY(!m_model->getItemData(variable(0), -1).isValid());
        QVERIFY(!m_model->getItemData(nullptr, 0).isValid());
    }

    void doesNotSeeLaterChangesOfTheList()
    {
        m_entity->addVariables(makeVariable(u"NEW"_s));
        QCOMPARE(m_model->rowCount(), 2);
        delete m_entity->getVariables()->takeLast();
    }

    void toggles() { checkTogglingContract(*m_model, 0, variable(1)); }

    void hasNoCheckBoxBeyondLevelOne_data()
    {
        QTest::addColumn<int>("level");
        QTest::addRow("no level") << 0;
        QTest::addRow("level 2") << 2;
    }
    void hasNoCheckBoxBeyondLevelOne()
    {
        QFETCH(int, level);
        variable(1)->setLevel(level);
        QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
        QVERIFY(!m_model->index(0, 0).data(Qt::CheckStateRole).isValid());
        QVERIFY(!m_model->setData(m_model->index(0, 0), Qt::Checked, Qt::CheckStateRole));
        QCOMPARE(variable(1)->getChecked(), 0);
        QCOMPARE(changed.size(), 0);
        QCOMPARE(m_model->index(0, 0).data(), QVariant(u"AGE"_s));
    }

    void letsUsersCheckTheFirstColumnOnly()
    {
        const Qt::ItemFlags plain = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
        QCOMPARE(m_model->flags(m_model->index(0, 0)), plain | Qt::ItemIsUserCheckable);
        QCOMPARE(m_model->flags(m_model->index(0, 1)), plain);
        QCOMPARE(m_model->flags({}), Qt::ItemFlags());
    }

    void answersIndexesOfOtherModelsAsInvalid()
    {
        const VariableModel other(nullptr, m_entity.get(), m_entity->getVariables());
        QVERIFY(!m_model->data(other.index(0, 0)).isValid());
        QVERIFY(!m_model->setData(other.index(0, 0), Qt::Checked, Qt::CheckStateRole));
    }

    void isCheckedInAViewByMouseAndSpaceKey()
    {
        variable(4)->setLevel(2);
        QTableView view;
        view.setModel(m_model.get());
        view.resize(600, 200);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));

        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, boxPosition(view, m_model->index(0, 0)));
        QCOMPARE(variable(1)->getChecked(), 1);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, boxPosition(view, m_model->index(0, 0)));
        QCOMPARE(variable(1)->getChecked(), 0);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                          view.visualRect(m_model->index(0, 1)).center());
        QCOMPARE(variable(1)->getChecked(), 0);

        view.setCurrentIndex(m_model->index(0, 0));
        QTest::keyClick(&view, Qt::Key_Space);
        QCOMPARE(variable(1)->getChecked(), 1);

        view.setCurrentIndex(m_model->index(1, 0)); // Level 2: no check box.
        QTest::keyClick(&view, Qt::Key_Space);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, boxPosition(view, m_model->index(1, 0)));
        QCOMPARE(variable(4)->getChecked(), 0);
    }
};

QTEST_MAIN(TestVariableModel)
#include "tst_variablemodel.moc"
