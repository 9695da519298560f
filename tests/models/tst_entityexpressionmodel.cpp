#include "models/EntityExpressionModel.h"

#include "models/DictionaryTreeModel.h"
#include "tests/support/ExpressionContract.h"
#include "tests/support/Trees.h"

#include <QMimeData>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

class TestEntityExpressionModel : public QObject
{
    Q_OBJECT

    QList<TDcEntity *> m_items; // owned

    void append(const QString &name, const QString &label)
    {
        m_items += new TDcEntity;
        m_items.last()->setName(name);
        m_items.last()->setLabel(label);
    }
    [[nodiscard]] std::unique_ptr<EntityExpressionModel> makeModel(eEntityShowMode mode = ShowName)
    {
        return std::make_unique<EntityExpressionModel>(nullptr, &m_items, mode);
    }

private Q_SLOTS:
    void init()
    {
        append(u"PERSON"_s, u"Person"_s);
        append(u"HOUSEHOLD"_s, u"Household"_s);
        append(u"TRIP"_s, QString());
    }
    void cleanup() { qDeleteAll(std::exchange(m_items, {})); }

    void hasAMetaObjectOfItsOwn()
    {
        const auto model = makeModel();
        QCOMPARE(model->metaObject()->className(), "EntityExpressionModel");
        QCOMPARE(model->metaObject()->superClass(), &QAbstractItemModel::staticMetaObject);
    }

    void keepsTheContract() { checkRowListContract(*makeModel(), m_items, 1); }
    void flagsAllowDragAndDrop() { ExpressionContract::checkFlags(*makeModel()); }
    void editsStoreNothingButAreAnnounced() { ExpressionContract::checkSilentEdit(*makeModel()); }
    void worksInAView()
    {
        const DebugLines log; // of the row that is removed there
        ExpressionContract::checkInView(*makeModel());
    }

    void modeChoosesTheText_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QStringList>("texts");
        QTest::addRow("name") << int(ShowName) << QStringList{u"PERSON"_s, u"HOUSEHOLD"_s, u"TRIP"_s};
        QTest::addRow("label") << int(ShowLabel) << QStringList{u"Person"_s, u"Household"_s, {}};
        QTest::addRow("name and label")
            << int(ShowNameAndLabel)
            << QStringList{u"PERSON - Person"_s, u"HOUSEHOLD - Household"_s, u"TRIP - "_s};
        QTest::addRow("any other shows icons alone") << 3 << QStringList{{}, {}, {}};
        QTest::addRow("negative shows icons alone") << -1 << QStringList{{}, {}, {}};
    }
    void modeChoosesTheText()
    {
        QFETCH(const int, mode);
        QFETCH(const QStringList, texts);
        const auto model = makeModel(eEntityShowMode(mode));
        ExpressionContract::checkCells(*model, texts);
        QCOMPARE(model->getItemData(m_items.first(), 5).toString(), texts.first());
        QCOMPARE(model->getItemData(m_items.first(), 0).isValid(), !texts.first().isEmpty());
        QVERIFY(!model->getItemData(nullptr, 0).isValid());
    }

    void keepsAListOfItsOwn()
    {
        const auto model = makeModel();
        append(u"LATER"_s, u"Later"_s);
        QCOMPARE(model->rowCount(), 3);
        QCOMPARE(*model->getData(), m_items.first(3));
        model->getData()->removeFirst();
        QCOMPARE(model->rowCount(), 2); // It is the model's rows themselves.
        QCOMPARE(m_items.size(), 4);
        QCOMPARE(EntityExpressionModel(nullptr, nullptr, ShowName).rowCount(), 0);
    }

    void removesRowsAsAnnounced_data() { ExpressionContract::removals(); }
    void removesRowsAsAnnounced()
    {
        QFETCH(const int, row);
        QFETCH(const int, count);
        QFETCH(const QString, range);
        QFETCH(const QStringList, left);
        cleanup();
        for (const auto &letter : {u"a"_s, u"b"_s, u"c"_s, u"d"_s})
            append(letter, {});
        const auto model = makeModel();
        ExpressionContract::checkRemovesRows(*model, row, count, range, left, {u"Removing rows"_s});
        QCOMPARE(m_items.first()->getName(), u"a"_s); // Items are never deleted.
    }

    void insertsTheOneItemOfAnotherModelsIndexAtTheEnd()
    {
        const auto root = makeEntities(u"COUNTRY\n    DISTRICT");
        const DictionaryTreeModel source(nullptr, root.get());
        const QModelIndex district = source.index(0, 0, source.index(0, 0));
        const auto model = makeModel();
        const QSignalSpy before(model.get(), &QAbstractItemModel::rowsAboutToBeInserted);
        const QSignalSpy after(model.get(), &QAbstractItemModel::rowsInserted);
        QVERIFY(model->insertRows(0, 3, district));
        QCOMPARE(ExpressionContract::announced(before), u"0-2"_s);
        QCOMPARE(ExpressionContract::announced(after), u"0-2"_s);
        QCOMPARE(ExpressionContract::texts(*model),
                 QStringList({u"PERSON"_s, u"HOUSEHOLD"_s, u"TRIP"_s, u"DISTRICT"_s}));
        QCOMPARE(model->getData()->last(), root->getChildren()->first());
    }

    void insertingWhatCarriesNoItemDoesNothing()
    {
        const auto model = makeModel();
        const QSignalSpy inserted(model.get(), &QAbstractItemModel::rowsInserted);
        const QSignalSpy before(model.get(), &QAbstractItemModel::rowsAboutToBeInserted);
        QVERIFY(!model->insertRows(0, 1, {}));
        QVERIFY(!model->insertRow(0));
        QCOMPARE(inserted.size() + before.size(), 0);
        QCOMPARE(model->rowCount(), 3);
    }

    void travelsAsAListOfTexts()
    {
        const auto model = makeModel();
        QCOMPARE(model->mimeTypes(), QStringList{u"application/vnd.text.list"_s});
        QCOMPARE(model->supportedDropActions(), Qt::CopyAction | Qt::MoveAction);
        const std::unique_ptr<QMimeData> payload(model->mimeData({model->index(0, 0)}));
        QCOMPARE(payload->formats(), model->mimeTypes());
    }

    void aDropIsTheBaseClasssAndAddsTheItemOfItsRow()
    {
        const auto model = makeModel();
        const std::unique_ptr<QMimeData> payload(model->mimeData({model->index(0, 0)}));
        model->dropMimeData(payload.get(), Qt::CopyAction, -1, -1, {}); // below the last row
        QCOMPARE(model->rowCount(), 3);
        QVERIFY(model->dropMimeData(payload.get(), Qt::CopyAction, -1, -1, model->index(1, 0)));
        QCOMPARE(*model->getData(), m_items + QList{m_items.at(1)});
    }

    void nullItemsShowTheirIconAlone()
    {
        QList<TDcEntity *> gap{nullptr};
        EntityExpressionModel model(nullptr, &gap, ShowName);
        ExpressionContract::checkCells(model, {QString()});
        QVERIFY(!model.setData(model.index(0, 0), 1));
    }
};

QTEST_MAIN(TestEntityExpressionModel)
#include "tst_entityexpressionmodel.moc"
