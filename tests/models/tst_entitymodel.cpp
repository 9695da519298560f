#include "models/EntityModel.h"

#include "tests/support/TreeContract.h"
#include "tests/support/Trees.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestEntityModel : public QObject
{
    Q_OBJECT

    std::unique_ptr<TDcEntity> m_root;
    std::unique_ptr<EntityModel> m_model;

    [[nodiscard]] QModelIndex person(int column = 0) const
    {
        return m_model->index(0, column, m_model->index(1, 0, m_model->index(0, 0)));
    }

private Q_SLOTS:
    void init()
    {
        m_root = makeEntities(uR"(
COUNTRY
    DISTRICT
        BLOCK
    HOUSEHOLD
        PERSON
        DWELLING
)");
        m_model = std::make_unique<EntityModel>(nullptr, m_root.get());
    }
    void cleanup()
    {
        m_model.reset();
        QCOMPARE(m_root->getChildren()->size(), 2); // The model leaves the tree alone.
        m_root.reset();
    }

    void keepsTheContract() { checkTreeContract(*m_model, m_root.get()); }
    void worksInAView() { checkTreeInView(*m_model); }

    void knowsItsRoot() { QCOMPARE(m_model->root(), m_root.get()); }

    void hasNoMetaObjectOfItsOwn() { QCOMPARE(m_model->metaObject(), &QAbstractItemModel::staticMetaObject); }

    void rowOfAParentIsTheLevelOfItsChild()
    {
        QCOMPARE(person().parent().internalPointer(), findEntity(m_root.get(), u"HOUSEHOLD"));
        QCOMPARE(person().parent().row(), 3);
        QCOMPARE(
            m_model->recorrerStructuraArbol(findEntity(m_root.get(), u"BLOCK"), m_root.get(), m_root.get())
                .internalPointer(),
            findEntity(m_root.get(), u"DISTRICT"));
    }

    void showsNamesToDisplayAlone()
    {
        QCOMPARE(m_model->data(person()), QVariant(u"PERSON"_s));
        for (const int role : {int(Qt::EditRole), int(Qt::DecorationRole), int(Qt::CheckStateRole),
                               int(Qt::ToolTipRole), int(Qt::UserRole)})
            QVERIFY(!m_model->data(person(), role).isValid());
        QVERIFY(!m_model->data(person(1)).isValid());
        QVERIFY(!m_model->data({}).isValid());
    }

    void tellsTheTextOfACell()
    {
        QCOMPARE(m_model->getItemData(m_root.get(), 0), QVariant(u"COUNTRY"_s));
        QVERIFY(!m_model->getItemData(m_root.get(), 1).isValid());
        QVERIFY(!m_model->getItemData(nullptr, 0).isValid());
    }

    void headerIsTheSameEverywhere()
    {
        for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
            QCOMPARE(m_model->headerData(0, orientation, Qt::DisplayRole), u"Entity"_s);
            QCOMPARE(m_model->headerData(3, orientation, Qt::DisplayRole), u"Entity"_s);
            QVERIFY(!m_model->headerData(0, orientation, Qt::EditRole).isValid());
        }
    }

    void cellsAreNotEditable()
    {
        QCOMPARE(m_model->flags(person()), Qt::ItemFlags(0x21));
        QCOMPARE(m_model->flags({}), Qt::ItemFlags());
    }

    void everyRoleAndColumnRenamesAndKeepsBlanks_data()
    {
        QTest::addColumn<int>("role");
        QTest::addColumn<int>("column");
        QTest::addRow("edit") << int(Qt::EditRole) << 0;
        QTest::addRow("display") << int(Qt::DisplayRole) << 0;
        QTest::addRow("check state") << int(Qt::CheckStateRole) << 0;
        QTest::addRow("user") << int(Qt::UserRole) << 0;
        QTest::addRow("another column") << int(Qt::EditRole) << 4;
    }
    void everyRoleAndColumnRenamesAndKeepsBlanks()
    {
        QFETCH(const int, role);
        QFETCH(const int, column);
        const QSignalSpy changes(m_model.get(), &QAbstractItemModel::dataChanged);
        QVERIFY(m_model->setData(person(column), u" no rules-here "_s, role));
        QCOMPARE(m_model->data(person()), QVariant(u" no rules-here "_s));
        QCOMPARE(changes.size(), 0); // Renames are not announced.
    }

    void renamingWhatCarriesNoEntityIsTrueWithoutEffect()
    {
        m_root->getChildren()->append(nullptr);
        const QModelIndex empty = m_model->index(2, 0, m_model->index(0, 0));
        QVERIFY(empty.isValid());
        const QSignalSpy changes(m_model.get(), &QAbstractItemModel::dataChanged);
        QVERIFY(m_model->setData(empty, u"NAME"_s));
        QVERIFY(!m_model->setData({}, u"NAME"_s));
        QCOMPARE(changes.size(), 0);
        QVERIFY(!m_model->data(empty).isValid());
        QCOMPARE(m_model->rowCount(empty), 0);
        QVERIFY(!m_model->parent(empty).isValid());
        m_root->getChildren()->removeLast();
        QCOMPARE(shownRows(*m_model),
                 QStringList(
                     {u"COUNTRY"_s, u"DISTRICT"_s, u"BLOCK"_s, u"HOUSEHOLD"_s, u"PERSON"_s, u"DWELLING"_s}));
    }

    void aViewDoesNotEdit()
    {
        QTreeView view;
        view.setModel(m_model.get());
        view.expandAll();
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        view.setCurrentIndex(person());
        QTest::keyClick(&view, Qt::Key_F2);
        QCOMPARE(view.viewport()->findChildren<QWidget *>().size(), 0);
    }
};

QTEST_MAIN(TestEntityModel)
#include "tst_entitymodel.moc"
