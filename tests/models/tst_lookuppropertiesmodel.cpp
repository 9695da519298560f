#include "models/LookupPropertiesModel.h"

#include "model/OwnedList.h"
#include "tests/support/Icons.h"
#include "tests/support/Payloads.h"
#include "tests/support/RowListContract.h"

#include <QListView>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestLookupPropertiesModel : public QObject
{
    Q_OBJECT

    OwnedList<TDcLookup> m_lookups;

    void add(const QString &id, const QString &label)
    {
        auto lookup = std::make_unique<TDcLookup>();
        lookup->setId(id);
        lookup->setLabel(label);
        m_lookups.append(std::move(lookup));
    }

private Q_SLOTS:
    void init()
    {
        add(u"12"_s, u"Regions"_s);
        add(u"7"_s, {});
    }
    void cleanup() { m_lookups.reset(nullptr); }

    void keepsTheContract()
    {
        const LookupPropertiesModel model(nullptr, m_lookups.get());
        checkRowListContract(model, *m_lookups.get(), 1);
    }

    void hasNoMetaObjectOfItsOwn()
    {
        const LookupPropertiesModel model(nullptr, m_lookups.get());
        QCOMPARE(model.metaObject(), &QAbstractItemModel::staticMetaObject);
    }

    void belongsToItsParent()
    {
        QObject owner;
        auto *model = new LookupPropertiesModel(&owner, m_lookups.get());
        QCOMPARE(static_cast<QObject *>(model)->parent(), &owner);
    }

    void copesWithMissingListsAndLookups()
    {
        QCOMPARE(LookupPropertiesModel(nullptr, nullptr).rowCount(), 0);
        QList<TDcLookup *> none{nullptr};
        LookupPropertiesModel model(nullptr, &none);
        QVERIFY(!model.index(0, 0).data().isValid());
        QVERIFY(!model.index(0, 0).data(Qt::DecorationRole).isValid());
        QVERIFY(!model.setData(model.index(0, 0), 1));
        QVERIFY(!model.getItemData(nullptr, 0).isValid());
    }

    void showsIdLabelAndIcon()
    {
        const LookupPropertiesModel model(nullptr, m_lookups.get());
        const QModelIndex cell = model.index(0, 0);
        QCOMPARE(cell.data(), QVariant(u"12-Regions"_s));
        QCOMPARE(iconFile(cell.data(Qt::DecorationRole)),
                 u":/icons/res/icons/48px-Project-preferences.png"_s);
        for (const int role : {int(Qt::EditRole), int(Qt::ToolTipRole), int(Qt::CheckStateRole)})
            QVERIFY(!cell.data(role).isValid());
        QVERIFY(!model.index(0, 1).data().isValid());
        QVERIFY(!model.index(0, 1).data(Qt::DecorationRole).isValid());
        QVERIFY(!model.getItemData(m_lookups.get()->first(), 1).isValid());
    }

    void showsAnEmptyLabelAsNothingBehindTheHyphen()
    {
        const LookupPropertiesModel model(nullptr, m_lookups.get());
        QCOMPARE(model.index(1, 0).data(), QVariant(u"7-"_s));
    }

    void headersAreSectionNumbers()
    {
        const LookupPropertiesModel model(nullptr, m_lookups.get());
        QCOMPARE(model.headerData(0, Qt::Horizontal).toInt(), 1);
    }

    void itemsCanBeDraggedAndDroppedOnButNotEdited()
    {
        const LookupPropertiesModel model(nullptr, m_lookups.get());
        QCOMPARE(model.flags(model.index(0, 0)),
                 Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled);
        QCOMPARE(model.flags({}), Qt::ItemFlags(Qt::ItemIsDropEnabled));
        QCOMPARE(model.mimeTypes(), QStringList{u"application/vnd.text.list"_s});
        QCOMPARE(model.supportedDropActions(), Qt::CopyAction | Qt::MoveAction);
    }

    void anEditIsAnnouncedButStoresNothing()
    {
        LookupPropertiesModel model(nullptr, m_lookups.get());
        const QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        const QModelIndex cell = model.index(0, 0);
        QVERIFY(!model.setData({}, u"X"_s));
        QVERIFY(changed.isEmpty());
        QVERIFY(model.setData(cell, u"X"_s));
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.first().at(0).toModelIndex(), cell);
        QCOMPARE(cell.data(), QVariant(u"12-Regions"_s));
    }

    void dragsIdLabelAndTypeWithAStarForATag()
    {
        const LookupPropertiesModel model(nullptr, m_lookups.get());
        const std::unique_ptr<QMimeData> data(model.mimeData({model.index(0, 0)}));
        const QString text = uR"({
    "label": "Regions",
    "name": "12",
    "tag": "*",
    "type": "LOOKUP"
}
)"_s;
        QCOMPARE(data->data(payloadType()), payloadBytes({text}));
    }

    void worksInAView()
    {
        LookupPropertiesModel model(nullptr, m_lookups.get());
        QListView view;
        view.setModel(&model);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        view.setCurrentIndex(model.index(0, 0));
        QTest::keyClick(&view, Qt::Key_Down);
        QCOMPARE(view.currentIndex().data(), QVariant(u"7-"_s));
    }
};

QTEST_MAIN(TestLookupPropertiesModel)
#include "tst_lookuppropertiesmodel.moc"
