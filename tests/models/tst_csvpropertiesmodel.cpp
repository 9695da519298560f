#include "models/CsvPropertiesModel.h"

#include "model/OwnedList.h"
#include "tests/support/Icons.h"
#include "tests/support/Payloads.h"
#include "tests/support/RowListContract.h"

#include <QListView>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestCsvPropertiesModel : public QObject
{
    Q_OBJECT

    OwnedList<TDcSourceField> m_fields;

private Q_SLOTS:
    void init()
    {
        m_fields.append(makeField(u"AGE"_s, u"INTEGER"_s));
        m_fields.append(makeField(u"SEX"_s));
        m_fields.get()->first()->tag = 31;
        m_fields.get()->first()->label = u"Age"_s;
        m_fields.get()->first()->record = u"R"_s;
    }
    void cleanup() { m_fields.reset(nullptr); }

    void keepsTheContract()
    {
        const CsvPropertiesModel model(nullptr, m_fields.get());
        checkRowListContract(model, *m_fields.get(), 1);
    }

    void hasNoMetaObjectOfItsOwn()
    {
        const CsvPropertiesModel model(nullptr, m_fields.get());
        QCOMPARE(model.metaObject(), &QAbstractItemModel::staticMetaObject);
    }

    void belongsToItsParent()
    {
        QObject owner;
        auto *model = new CsvPropertiesModel(&owner, m_fields.get());
        QCOMPARE(static_cast<QObject *>(model)->parent(), &owner);
    }

    void takesAllFieldsAndNumbersNone()
    {
        const CsvPropertiesModel model(nullptr, m_fields.get());
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(m_fields.get()->first()->tag, 31);
    }

    void doesNotSeeLaterFields()
    {
        const CsvPropertiesModel model(nullptr, m_fields.get());
        m_fields.append(makeField(u"NEW"_s));
        QCOMPARE(model.rowCount(), 2);
    }

    void copesWithMissingListsAndFields()
    {
        QCOMPARE(CsvPropertiesModel(nullptr, nullptr).rowCount(), 0);
        QList<TDcSourceField *> none{nullptr};
        CsvPropertiesModel model(nullptr, &none);
        QVERIFY(!model.index(0, 0).data().isValid());
        QVERIFY(!model.index(0, 0).data(Qt::DecorationRole).isValid());
        QVERIFY(!model.setData(model.index(0, 0), 1));
        QVERIFY(!model.getItemData(nullptr, 0).isValid());
    }

    void showsNameAndIcon()
    {
        const CsvPropertiesModel model(nullptr, m_fields.get());
        const QModelIndex cell = model.index(0, 0);
        QCOMPARE(cell.data(), QVariant(u"AGE"_s));
        QCOMPARE(model.getItemData(m_fields.get()->first(), 0), QVariant(u"AGE"_s));
        QVERIFY(!model.getItemData(m_fields.get()->first(), 1).isValid());
        QCOMPARE(iconFile(cell.data(Qt::DecorationRole)),
                 u":/icons/res/icons/48px-Project-preferences.png"_s);
        for (const int role : {int(Qt::EditRole), int(Qt::ToolTipRole), int(Qt::CheckStateRole)})
            QVERIFY(!cell.data(role).isValid());
        QVERIFY(!model.index(0, 1).data().isValid());
        QVERIFY(!model.index(0, 1).data(Qt::DecorationRole).isValid());
    }

    void headersAreSectionNumbers()
    {
        const CsvPropertiesModel model(nullptr, m_fields.get());
        QCOMPARE(model.headerData(0, Qt::Horizontal).toInt(), 1);
        QCOMPARE(model.headerData(1, Qt::Vertical).toInt(), 2);
    }

    void itemsCanBeDraggedAndDroppedOnButNotEdited()
    {
        const CsvPropertiesModel model(nullptr, m_fields.get());
        QCOMPARE(model.flags(model.index(0, 0)),
                 Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled);
        QCOMPARE(model.flags({}), Qt::ItemFlags(Qt::ItemIsDropEnabled));
        QCOMPARE(model.mimeTypes(), QStringList{u"application/vnd.text.list"_s});
        QCOMPARE(model.supportedDropActions(), Qt::CopyAction | Qt::MoveAction);
    }

    void anEditIsAnnouncedButStoresNothing()
    {
        CsvPropertiesModel model(nullptr, m_fields.get());
        const QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        const QModelIndex cell = model.index(1, 0);
        QVERIFY(!model.setData({}, u"X"_s));
        QVERIFY(changed.isEmpty());
        QVERIFY(model.setData(cell, u"X"_s));
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.first().at(0).toModelIndex(), cell);
        QCOMPARE(changed.first().at(1).toModelIndex(), cell);
        QVERIFY(changed.first().at(2).value<QList<int>>().isEmpty());
        QCOMPARE(cell.data(), QVariant(u"SEX"_s));
    }

    void dragsNameAndNoTag()
    {
        const CsvPropertiesModel model(nullptr, m_fields.get());
        const std::unique_ptr<QMimeData> data(
            model.mimeData({model.index(1, 0), QModelIndex(), model.index(0, 0)}));
        QCOMPARE(data->formats(), QStringList{u"application/vnd.text.list"_s});
        QCOMPARE(data->data(payloadType()),
                 payloadBytes({u"{\n    \"name\": \"SEX\",\n    \"tag\": -1\n}\n"_s,
                               u"{\n    \"name\": \"AGE\",\n    \"tag\": -1\n}\n"_s}));
    }

    void worksInAView()
    {
        CsvPropertiesModel model(nullptr, m_fields.get());
        QListView view;
        view.setModel(&model);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        view.setCurrentIndex(model.index(0, 0));
        QTest::keyClick(&view, Qt::Key_Down);
        QCOMPARE(view.currentIndex().data(), QVariant(u"SEX"_s));
    }
};

QTEST_MAIN(TestCsvPropertiesModel)
#include "tst_csvpropertiesmodel.moc"
