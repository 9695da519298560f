#include "models/VariableModelSplitStep3.h"

#include "tests/support/CheckListContract.h"

#include <QListView>

using namespace Qt::Literals::StringLiterals;

class TestVariableModelSplitStep3 : public QObject
{
    Q_OBJECT

    std::unique_ptr<TDcEntity> m_entity;
    std::unique_ptr<VariableModelSplitStep3> m_model;

    [[nodiscard]] TDcVariable *variable(int row) const { return m_entity->getVariables()->at(row); }

private Q_SLOTS:
    void init()
    {
        m_entity = makeEntityWithRoles();
        m_model =
            std::make_unique<VariableModelSplitStep3>(nullptr, m_entity.get(), m_entity->getVariables());
    }
    void cleanup()
    {
        m_model.reset();
        QCOMPARE(m_entity->getVariables()->size(), 5); // The model deletes nothing.
        m_entity.reset();
    }

    void keepsTheContract() { checkRowListContract(*m_model, *m_entity->getVariables(), 3); }

    void offersVariablesWithARoleToo()
    {
        QCOMPARE(m_model->rowCount(), 5);
        QCOMPARE(rowText(*m_model, 0), u"CODE|label of CODE|alias of CODE"_s);
    }

    void showsNameLabelAndAlias()
    {
        checkHeaderContract(*m_model, {u"Name"_s, u"Label"_s, u"Alias"_s});
        const int last = m_model->rowCount() - 1;
        QCOMPARE(rowText(*m_model, last), u"code|label of code|alias of code"_s);
        QVERIFY(!m_model->getItemData(variable(0), 3).isValid());
        QVERIFY(!m_model->getItemData(variable(0), -1).isValid());
        QVERIFY(!m_model->getItemData(nullptr, 0).isValid());
        QCOMPARE(m_model->getItemData(variable(0), 2), QVariant(u"alias of CODE"_s));
    }

    void showsNothingOfAnEmptyList()
    {
        QList<TDcVariable *> none;
        const VariableModelSplitStep3 model(nullptr, m_entity.get(), &none);
        QCOMPARE(VariableModelSplitStep3(nullptr, m_entity.get(), nullptr).rowCount(), 0);
        checkRowListContract(model, none, 3);
    }

    void togglesWhateverTheLevel()
    {
        variable(4)->setLevel(2);
        checkTogglingContract(*m_model, m_model->rowCount() - 1, variable(4));
    }

    void offersNoFlagsBesideThoseOfAnyItem()
    {
        QCOMPARE(m_model->flags(m_model->index(0, 0)), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
        QCOMPARE(m_model->flags(m_model->index(0, 2)), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
        QCOMPARE(m_model->flags({}), Qt::ItemFlags());
    }

    /// The check box is shown, but a view leaves it to the front end to toggle it.
    void isNotCheckedByAViewItself()
    {
        QListView view;
        view.setModel(m_model.get());
        view.resize(300, 200);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        connect(&view, &QListView::clicked, m_model.get(),
                [this](const QModelIndex &index) { m_model->setData(index, {}, Qt::CheckStateRole); });
        TDcVariable *first = static_cast<TDcVariable *>(m_model->index(0, 0).internalPointer());

        view.setCurrentIndex(m_model->index(0, 0));
        QTest::keyClick(&view, Qt::Key_Space);
        QCOMPARE(first->getChecked(), 0);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                          view.visualRect(m_model->index(0, 0)).topLeft() + QPoint(8, 8));
        QCOMPARE(first->getChecked(), 1); // By the connection alone.
    }
};

QTEST_MAIN(TestVariableModelSplitStep3)
#include "tst_variablemodelsplitstep3.moc"
