#include "models/dictionaryTreeModelDownload.h"

#include "tests/support/ContextTranslator.h"
#include "tests/support/Icons.h"
#include "tests/support/MessageBoxAnswer.h"
#include "tests/support/TreeContract.h"
#include "tests/support/Trees.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestDictionaryTreeModelDownload : public QObject
{
    Q_OBJECT

    std::unique_ptr<TDcEntity> m_root;
    std::unique_ptr<dictionaryTreeModelDownload> m_model;

    [[nodiscard]] QModelIndex person(int column = 0) const
    {
        return m_model->index(0, column, m_model->index(1, 0, m_model->index(0, 0)));
    }
    [[nodiscard]] TDcEntity *personEntity() const { return findEntity(m_root.get(), u"PERSON"); }

private Q_SLOTS:
    void init()
    {
        m_root = makeEntities(uR"(
COUNTRY
    DISTRICT
        BLOCK
    HOUSEHOLD
        PERSON/member
        DWELLING
)");
        m_model = std::make_unique<dictionaryTreeModelDownload>(nullptr, m_root.get());
    }
    void cleanup()
    {
        m_model.reset();
        QCOMPARE(m_root->getChildren()->size(), 2); // The model leaves the tree alone.
        m_root.reset();
    }

    void keepsTheContract() { checkTreeContract(*m_model, m_root.get()); }
    void worksInAView() { checkTreeInView(*m_model); }

    void hasAMetaObjectOfItsOwn()
    {
        QCOMPARE(m_model->metaObject()->className(), "dictionaryTreeModelDownload");
        QCOMPARE(m_model->metaObject()->superClass(), &QAbstractItemModel::staticMetaObject);
    }

    void translatesInItsOwnContext()
    {
        const ContextTranslator translator;
        QCOMPARE(m_model->headerData(0, Qt::Horizontal), u"dictionaryTreeModelDownload:Entity"_s);
    }

    void rowOfAParentIsTheLevelOfItsChild()
    {
        QCOMPARE(person().parent().internalPointer(), findEntity(m_root.get(), u"HOUSEHOLD"));
        QCOMPARE(person().parent().row(), 3);
    }

    void showsNamesInTheFirstColumn()
    {
        for (const int role : {Qt::DisplayRole, Qt::EditRole}) {
            QCOMPARE(m_model->data(person(), role), QVariant(u"PERSON"_s));
            QVERIFY(!m_model->data(person(1), role).isValid());
        }
        for (const int role : {Qt::ToolTipRole, Qt::TextAlignmentRole, Qt::UserRole})
            QVERIFY(!m_model->data(person(), role).isValid());
        QCOMPARE(m_model->getItemData(m_root.get(), 0), QVariant(u"COUNTRY"_s));
        QVERIFY(!m_model->getItemData(m_root.get(), 1).isValid());
    }

    void checkMarkTellsTheSelectableOnes()
    {
        QCOMPARE(m_model->data(person(), Qt::CheckStateRole), QVariant(0));
        personEntity()->setSelectable(true);
        QCOMPARE(m_model->data(person(), Qt::CheckStateRole), QVariant(2));
        QVERIFY(!m_model->data(person(1), Qt::CheckStateRole).isValid());
        QVERIFY(!m_model->data({}, Qt::CheckStateRole).isValid());
    }

    void iconTellsThoseMarkedForDeletion()
    {
        QVERIFY(!m_model->data(person(), Qt::DecorationRole).isValid());
        personEntity()->setCheckDelete(true);
        QCOMPARE(iconFile(m_model->data(person(), Qt::DecorationRole)),
                 u":/icons/res/icons/48px-numberplaceholder.png"_s);
        QVERIFY(!m_model->data(person(1), Qt::DecorationRole).isValid());
    }

    void headerIsTheSameEverywhere()
    {
        for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
            QCOMPARE(m_model->headerData(0, orientation, Qt::DisplayRole), u"Entity"_s);
            QCOMPARE(m_model->headerData(3, orientation, Qt::DisplayRole), u"Entity"_s);
            QVERIFY(!m_model->headerData(0, orientation, Qt::EditRole).isValid());
        }
    }

    void cellsAreNeitherEditableNorCheckable()
    {
        QCOMPARE(m_model->flags(person()), Qt::ItemFlags(0x21));
        QCOMPARE(m_model->flags({}), Qt::ItemFlags());
    }

    void renamesWithoutAnyCheck_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("stored");
        QTest::addRow("blanks around it are cut") << u" RESIDENT "_s << u"RESIDENT"_s;
        QTest::addRow("empty") << u""_s << u""_s;
        QTest::addRow("invalid") << u"1 st-one"_s << u"1 st-one"_s;
        QTest::addRow("name of another entity") << u"DWELLING"_s << u"DWELLING"_s;
        QTest::addRow("its own alias") << u"member"_s << u"member"_s;
        QTest::addRow("long") << QString(60, u'N') << QString(60, u'N');
    }
    void renamesWithoutAnyCheck()
    {
        QFETCH(const QString, typed);
        const MessageBoxAnswer box;
        const QSignalSpy changes(m_model.get(), &QAbstractItemModel::dataChanged);
        QVERIFY(m_model->setData(person(), typed));
        QTEST(person().data().toString(), "stored");
        QVERIFY(box.shown().isEmpty());
        QCOMPARE(changes.size(), 1);
        QCOMPARE(changes.at(0).at(0).toModelIndex(), person());
        QCOMPARE(changes.at(0).at(1).toModelIndex(), person());
        QVERIFY(changes.at(0).at(2).value<QList<int>>().isEmpty());
    }

    void otherRolesAndColumnsStoreNothingButAnnounceAChange()
    {
        const QSignalSpy changes(m_model.get(), &QAbstractItemModel::dataChanged);
        QVERIFY(m_model->setData(person(), u"RESIDENT"_s, Qt::DisplayRole));
        QVERIFY(m_model->setData(person(1), u"RESIDENT"_s, Qt::EditRole));
        QVERIFY(m_model->setData(person(), int(Qt::Checked), Qt::CheckStateRole));
        QCOMPARE(changes.size(), 3);
        QCOMPARE(changes.at(1).at(0).toModelIndex(), person(1));
        QCOMPARE(person().data().toString(), u"PERSON"_s);
        QVERIFY(!personEntity()->getSelectable()); // Marks are the front end's.
    }

    void anIndexWithoutAnEntityAnswersNothing()
    {
        m_root->getChildren()->append(nullptr);
        const QModelIndex empty = m_model->index(2, 0, m_model->index(0, 0));
        const QSignalSpy changes(m_model.get(), &QAbstractItemModel::dataChanged);
        for (const QModelIndex &index : {empty, QModelIndex()}) {
            QVERIFY(!m_model->setData(index, u"NAME"_s));
            for (const int role : {Qt::DisplayRole, Qt::DecorationRole, Qt::CheckStateRole})
                QVERIFY(!m_model->data(index, role).isValid());
        }
        QCOMPARE(changes.size(), 0);
        m_root->getChildren()->removeLast();
    }

    void aClickOnTheMarkChangesNothing()
    {
        QTreeView view;
        view.setModel(m_model.get());
        view.expandAll();
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const QSignalSpy changes(m_model.get(), &QAbstractItemModel::dataChanged);
        const QRect cell = view.visualRect(person());
        for (int x = cell.left() + 1; x < cell.left() + 40; x += 3)
            QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, QPoint(x, cell.center().y()));
        QTest::keyClick(&view, Qt::Key_Space);
        QCOMPARE(view.currentIndex(), person());
        QCOMPARE(changes.size(), 0);
        QVERIFY(!personEntity()->getSelectable());
    }
};

QTEST_MAIN(TestDictionaryTreeModelDownload)
#include "tst_dictionarytreemodeldownload.moc"
