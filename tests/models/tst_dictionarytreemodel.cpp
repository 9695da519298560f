#include "models/DictionaryTreeModel.h"

#include "tests/support/ContextTranslator.h"
#include "tests/support/MessageBoxAnswer.h"
#include "tests/support/TreeContract.h"
#include "tests/support/Trees.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QTreeView>

using namespace Qt::Literals::StringLiterals;

/// A dictionary with PERSON as the entity that is renamed.
class TestDictionaryTreeModel : public QObject
{
    Q_OBJECT

    std::unique_ptr<TDcEntity> m_root;
    std::unique_ptr<DictionaryTreeModel> m_model;

    [[nodiscard]] QModelIndex person(int column = 0) const
    {
        const QModelIndex country = m_model->index(0, 0);
        return m_model->index(0, column, m_model->index(1, 0, country));
    }
    [[nodiscard]] QString personName() const { return person().data().toString(); }

private Q_SLOTS:
    void init()
    {
        m_root = makeEntities(uR"(
COUNTRY/nation
    DISTRICT
        BLOCK
    HOUSEHOLD/home
        PERSON/member
        DWELLING
)");
        TDcEntity *household = findEntity(m_root.get(), u"HOUSEHOLD");
        household->addVariables(makeVariable(u"V1"_s, {}, {}, u"income"_s));
        household->addVariables(makeVariable(u"V2"_s, {}, {}, u"DISTRICT"_s));
        m_model = std::make_unique<DictionaryTreeModel>(nullptr, m_root.get());
    }
    void cleanup()
    {
        m_model.reset();
        QCOMPARE(m_root->getChildren()->size(), 2); // The model leaves the tree alone.
        m_root.reset();
    }

    void keepsTheContract() { checkTreeContract(*m_model, m_root.get()); }
    void worksInAView() { checkTreeInView(*m_model); }

    void knowsItsRoot() { QCOMPARE(m_model->getRoot(), m_root.get()); }

    void belongsToItsParent()
    {
        QObject owner;
        auto *model = new DictionaryTreeModel(&owner, m_root.get());
        QCOMPARE(static_cast<QObject *>(model)->parent(), &owner);
    }

    void hasAMetaObjectOfItsOwn()
    {
        QCOMPARE(m_model->metaObject()->className(), "DictionaryTreeModel");
        QCOMPARE(m_model->metaObject()->superClass(), &QAbstractItemModel::staticMetaObject);
        QCOMPARE(m_model->metaObject()->methodCount(), QAbstractItemModel::staticMetaObject.methodCount());
        QCOMPARE(m_model->metaObject()->propertyCount(),
                 QAbstractItemModel::staticMetaObject.propertyCount());
    }

    void translatesInItsOwnContext()
    {
        const ContextTranslator translator;
        QCOMPARE(m_model->headerData(0, Qt::Horizontal), u"DictionaryTreeModel:Entities"_s);
        const MessageBoxAnswer box;
        QVERIFY(!m_model->setData(person(), u"no name"_s));
        QCOMPARE(box.texts(), QStringList{u"DictionaryTreeModel:Invalid string"_s});
    }

    void rowOfAParentIsTheLevelOfItsChild()
    {
        const QModelIndex district = m_model->index(0, 0, m_model->index(0, 0));
        QCOMPARE(district.parent().internalPointer(), m_root.get());
        QCOMPARE(district.parent().row(), 2);
        QCOMPARE(district.parent().column(), 0);
        QCOMPARE(person().parent().row(), 3); // HOUSEHOLD is row 1.
    }

    void showsNamesToDisplayAndEdit_data()
    {
        QTest::addColumn<int>("role");
        QTest::addColumn<QVariant>("shown");
        QTest::addRow("display") << int(Qt::DisplayRole) << QVariant(u"PERSON"_s);
        QTest::addRow("edit") << int(Qt::EditRole) << QVariant(u"PERSON"_s);
        for (const int role : {int(Qt::DecorationRole), int(Qt::ToolTipRole), int(Qt::CheckStateRole),
                               int(Qt::TextAlignmentRole), int(Qt::UserRole)})
            QTest::addRow("role %d", role) << role << QVariant();
    }
    void showsNamesToDisplayAndEdit()
    {
        QFETCH(const int, role);
        QFETCH(const QVariant, shown);
        QCOMPARE(m_model->data(person(), role), shown);
        QVERIFY(!m_model->data(person(1), role).isValid());
        QVERIFY(!m_model->data({}, role).isValid());
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
            QCOMPARE(m_model->headerData(0, orientation, Qt::DisplayRole), u"Entities"_s);
            QCOMPARE(m_model->headerData(5, orientation, Qt::DisplayRole), u"Entities"_s);
            QVERIFY(!m_model->headerData(0, orientation, Qt::EditRole).isValid());
            QVERIFY(!m_model->headerData(0, orientation, Qt::DecorationRole).isValid());
        }
    }

    void cellsAreEditable()
    {
        QCOMPARE(m_model->flags(person()), Qt::ItemFlags(0x23));
        QCOMPARE(m_model->flags({}), Qt::ItemFlags());
    }

    void acceptsNames_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("stored");
        QTest::addRow("new") << u"Resident_2"_s << u"Resident_2"_s;
        QTest::addRow("blanks around it are cut") << u"  RESIDENT\t"_s << u"RESIDENT"_s;
        QTest::addRow("begins with an underscore") << u"_R"_s << u"_R"_s;
        QTest::addRow("letters of any script") << u"ÑANDÚ"_s << u"ÑANDÚ"_s;
        QTest::addRow("its own") << u"PERSON"_s << u"PERSON"_s;
        QTest::addRow("its own in other letter case") << u"person"_s << u"person"_s;
        QTest::addRow("its own with blanks") << u" Person "_s << u"Person"_s;
        QTest::addRow("50 characters") << u" "_s + QString(50, u'N') + u" "_s << QString(50, u'N');
        QTest::addRow("name of a variable") << u"V1"_s << u"V1"_s;
    }
    void acceptsNames()
    {
        QFETCH(const QString, typed);
        QFETCH(const QString, stored);
        const MessageBoxAnswer box;
        const QSignalSpy changes(m_model.get(), &QAbstractItemModel::dataChanged);
        QVERIFY(m_model->setData(person(), typed));
        QCOMPARE(personName(), stored);
        QVERIFY(box.shown().isEmpty());
        QCOMPARE(changes.size(), 1);
        QCOMPARE(changes.at(0).at(0).toModelIndex(), person());
        QCOMPARE(changes.at(0).at(1).toModelIndex(), person());
        QCOMPARE(changes.at(0).at(2).value<QList<int>>(), QList<int>());
    }

    void refusesNames_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("message");
        const QString group = u"Entity name already exists as a group name"_s;
        const QString name = u"Entity name already exists"_s;
        const QString alias = u"Entity name already exists as an alias name"_s;
        const QString invalid = u"Invalid string"_s;
        const QString tooLong = u"Chain with length greater than 50"_s;
        QTest::addRow("empty: no message") << QString() << QString();
        QTest::addRow("blanks: no message") << u"  "_s << QString();
        QTest::addRow("begins with a digit: no message") << u"1ST"_s << QString();
        QTest::addRow("group") << u"income"_s << group;
        QTest::addRow("group in other letter case, with blanks") << u" INCOME "_s << group;
        QTest::addRow("name of another entity") << u"DWELLING"_s << name;
        QTest::addRow("name of another entity in other letter case, with blanks") << u" dwelling "_s << name;
        QTest::addRow("name of the root") << u"COUNTRY"_s << name;
        QTest::addRow("name and group: the group is told") << u"DISTRICT"_s << group;
        QTest::addRow("alias of another entity") << u"HOME"_s << alias;
        QTest::addRow("its own alias") << u"member"_s << alias;
        QTest::addRow("alias of the root") << u"nation"_s << alias;
        QTest::addRow("blank inside") << u"NO NAME"_s << invalid;
        QTest::addRow("hyphen") << u"NO-NAME"_s << invalid;
        QTest::addRow("51 characters") << QString(51, u'N') << tooLong;
        QTest::addRow("invalid and too long: the first is told") << u"A-"_s + QString(51, u'N') << invalid;
    }
    void refusesNames()
    {
        QFETCH(const QString, typed);
        QFETCH(const QString, message);
        for (const int role : {Qt::EditRole, Qt::DisplayRole}) { // Another role passes the same checks.
            const MessageBoxAnswer box;
            const QSignalSpy changes(m_model.get(), &QAbstractItemModel::dataChanged);
            QVERIFY(!m_model->setData(person(), typed, role));
            QCOMPARE(personName(), u"PERSON"_s);
            QCOMPARE(changes.size(), 0);
            QCOMPARE(box.texts(), message.isEmpty() ? QStringList() : QStringList{message});
            if (!message.isEmpty()) {
                const ShownBox &shown = box.shown().first();
                QCOMPARE(shown.title, u"Information"_s);
                QCOMPARE(shown.icon, QMessageBox::Information);
                QCOMPARE(shown.buttons, QStringList{u"OK"_s});
                QCOMPARE(shown.defaultButton, u"OK"_s);
                QVERIFY(shown.modal);
                QVERIFY(!shown.hasParent);
            }
        }
    }

    void ownNameIsStillCheckedAgainstGroupsAndAliases()
    {
        findEntity(m_root.get(), u"PERSON")->setAlias(u"PERSON"_s);
        const MessageBoxAnswer box;
        QVERIFY(!m_model->setData(person(), u"person"_s));
        QCOMPARE(box.texts(), QStringList{u"Entity name already exists as an alias name"_s});

        findEntity(m_root.get(), u"BLOCK")->addVariables(makeVariable(u"V"_s, {}, {}, u"Person"_s));
        QVERIFY(!m_model->setData(person(), u"person"_s));
        QCOMPARE(box.texts().last(), u"Entity name already exists as a group name"_s);
    }

    void survivesItsEndWhileItTells()
    {
        const MessageBoxAnswer box;
        QTimer::singleShot(0, this, [this] { m_model.reset(); });
        QVERIFY(!m_model->setData(person(), u"DWELLING"_s));
        QCOMPARE(box.shown().size(), 1);
        QVERIFY(!m_model);
    }

    void otherRolesStoreNothingButAnnounceAChange()
    {
        const QSignalSpy changes(m_model.get(), &QAbstractItemModel::dataChanged);
        for (const int role : {Qt::DisplayRole, Qt::CheckStateRole, Qt::UserRole})
            QVERIFY(m_model->setData(person(), u"RESIDENT"_s, role));
        QCOMPARE(changes.size(), 3);
        QCOMPARE(changes.at(2).at(0).toModelIndex(), person());
        QVERIFY(changes.at(2).at(2).value<QList<int>>().isEmpty());
        QCOMPARE(personName(), u"PERSON"_s);
    }

    void otherColumnsStoreNothingButAnnounceAChange()
    {
        const QSignalSpy changes(m_model.get(), &QAbstractItemModel::dataChanged);
        QVERIFY(m_model->setData(person(1), u"RESIDENT"_s));
        QCOMPARE(changes.size(), 1);
        QCOMPARE(changes.at(0).at(1).toModelIndex(), person(1));
        QCOMPARE(personName(), u"PERSON"_s);
    }

    void anIndexWithoutAnEntityAnswersNothing()
    {
        m_root->getChildren()->append(nullptr);
        const QModelIndex empty = m_model->index(2, 0, m_model->index(0, 0));
        QVERIFY(empty.isValid());
        QCOMPARE(empty.internalPointer(), nullptr);
        const QSignalSpy changes(m_model.get(), &QAbstractItemModel::dataChanged);
        for (const QModelIndex &index : {empty, QModelIndex()}) {
            QVERIFY(!m_model->setData(index, u"RESIDENT"_s));
            QVERIFY(!m_model->data(index).isValid());
            QVERIFY(!m_model->parent(index).isValid());
        }
        QCOMPARE(changes.size(), 0);
        QCOMPARE(m_model->rowCount(empty), 0);
        QVERIFY(!m_model->index(0, 0, empty).isValid());
        QCOMPARE(m_model->flags(empty), Qt::ItemFlags(0x23));
        QVERIFY(m_model->setData(person(), u"RESIDENT"_s)); // The name checks pass the gap over.
        m_root->getChildren()->removeLast();
    }

    void withoutARootThereIsAnEmptyRow()
    {
        DictionaryTreeModel model(nullptr, nullptr);
        QCOMPARE(model.rowCount(), 1);
        const QModelIndex index = model.index(0, 0);
        QVERIFY(index.isValid());
        QVERIFY(!model.data(index).isValid());
        QVERIFY(!model.setData(index, u"RESIDENT"_s));
        QCOMPARE(model.rowCount(index), 0);
        QVERIFY(!model.parent(index).isValid());
        QVERIFY(!model.recorrerStructuraArbol(m_root.get(), nullptr, nullptr).isValid());
    }

    void renamesInAView_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("messages");
        QTest::addRow("accepted") << u"resident"_s << u"resident"_s << QStringList();
        QTest::addRow("refused") << u"dwelling"_s << u"PERSON"_s
                                 << QStringList{u"Entity name already exists"_s};
    }
    void renamesInAView()
    {
        QFETCH(const QString, typed);
        const MessageBoxAnswer box;
        QTreeView view;
        view.setModel(m_model.get());
        view.expandAll();
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        view.setCurrentIndex(person());
        QTest::keyClick(&view, Qt::Key_F2);
        auto *editor = view.viewport()->findChild<QLineEdit *>();
        QVERIFY(editor);
        QCOMPARE(editor->text(), u"PERSON"_s);
        QTest::keyClicks(editor, typed);
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_VERIFY(!view.viewport()->findChild<QLineEdit *>());
        QTEST(personName(), "name");
        QTEST(box.texts(), "messages");
    }
};

QTEST_MAIN(TestDictionaryTreeModel)
#include "tst_dictionarytreemodel.moc"
