#include "models/CategoryExpressionModel.h"

#include "model/TDcVariable.h"
#include "tests/support/ExpressionContract.h"

#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

class TestCategoryExpressionModel : public QObject
{
    Q_OBJECT

    TDcVariable m_variable; // owns the categories

    [[nodiscard]] QList<ValueLabelElement *> &items() { return *m_variable.getValueLabelElementList(); }
    void append(const QString &value, const QString &label)
    {
        auto *item = new ValueLabelElement;
        item->setValue(value);
        item->setLabel(label);
        m_variable.addValueLabelElement(item);
    }
    [[nodiscard]] std::unique_ptr<CategoryExpressionModel> makeModel(eEntityShowMode mode = ShowName)
    {
        return std::make_unique<CategoryExpressionModel>(nullptr, &items(), mode);
    }

private Q_SLOTS:
    void init()
    {
        append(u"1"_s, u"Yes"_s);
        append(u"2"_s, u"No"_s);
        append(u"9"_s, QString());
    }
    void cleanup() { qDeleteAll(std::exchange(items(), {})); }

    void hasAMetaObjectOfItsOwn()
    {
        const auto model = makeModel();
        QCOMPARE(model->metaObject()->className(), "CategoryExpressionModel");
        QCOMPARE(model->metaObject()->superClass(), &QAbstractItemModel::staticMetaObject);
    }

    void keepsTheContract() { checkRowListContract(*makeModel(), items(), 1); }
    void flagsAllowDragAndDrop() { ExpressionContract::checkFlags(*makeModel()); }
    void editsStoreNothingButAreAnnounced() { ExpressionContract::checkSilentEdit(*makeModel()); }
    void worksInAView() { ExpressionContract::checkInView(*makeModel()); }

    void showsValueAndLabelInEveryMode_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QStringList>("texts");
        const QStringList texts{u"1-Yes"_s, u"2-No"_s, u"9-"_s};
        QTest::addRow("name") << int(ShowName) << texts;
        QTest::addRow("label") << int(ShowLabel) << texts;
        QTest::addRow("name and label") << int(ShowNameAndLabel) << texts;
        QTest::addRow("any other shows icons alone") << 3 << QStringList{{}, {}, {}};
        QTest::addRow("negative shows icons alone") << -1 << QStringList{{}, {}, {}};
    }
    void showsValueAndLabelInEveryMode()
    {
        QFETCH(const int, mode);
        QFETCH(const QStringList, texts);
        const auto model = makeModel(eEntityShowMode(mode));
        ExpressionContract::checkCells(*model, texts);
        QCOMPARE(model->getItemData(items().first(), 5).toString(), texts.first());
        QCOMPARE(model->getItemData(items().first(), 0).isValid(), !texts.first().isEmpty());
        QVERIFY(!model->getItemData(nullptr, 0).isValid());
    }

    void keepsAListOfItsOwn()
    {
        const auto model = makeModel();
        append(u"3"_s, u"Later"_s);
        QCOMPARE(model->rowCount(), 3);
        QCOMPARE(*model->getData(), items().first(3));
        model->getData()->removeFirst();
        QCOMPARE(model->rowCount(), 2); // It is the model's rows themselves.
        QCOMPARE(items().size(), 4);
        QCOMPARE(CategoryExpressionModel(nullptr, nullptr, ShowName).rowCount(), 0);
    }

    void removesRowsAsAnnounced_data() { ExpressionContract::removals(); }
    void removesRowsAsAnnounced()
    {
        QFETCH(const int, row);
        QFETCH(const int, count);
        QFETCH(const QString, range);
        QFETCH(const QStringList, left);
        QList<ValueLabelElement *> own;
        for (const char16_t letter : u"abcd"_s.toStdU16String()) {
            own += new ValueLabelElement;
            own.last()->setValue(QString(QChar(letter)));
        }
        CategoryExpressionModel model(nullptr, &own, ShowName);
        QStringList expected;
        for (const QString &letter : left)
            expected += letter + u'-';
        ExpressionContract::checkRemovesRows(model, row, count, range, expected, {}); // Nothing is logged.
        QCOMPARE(own.first()->getValue(), u"a"_s); // Items are never deleted.
        qDeleteAll(own);
    }

    void dragAndDropIsTheBaseClasss()
    {
        const auto model = makeModel();
        QCOMPARE(model->mimeTypes(), QStringList{u"application/x-qabstractitemmodeldatalist"_s});
        QCOMPARE(model->supportedDropActions(), Qt::CopyAction);
        const QSignalSpy inserted(model.get(), &QAbstractItemModel::rowsInserted);
        QVERIFY(!model->insertRows(0, 1, model->index(0, 0)));
        QCOMPARE(inserted.size(), 0);
        QCOMPARE(model->rowCount(), 3);
    }

    void nullItemsShowTheirIconAlone()
    {
        QList<ValueLabelElement *> gap{nullptr};
        CategoryExpressionModel model(nullptr, &gap, ShowName);
        ExpressionContract::checkCells(model, {QString()});
        QVERIFY(!model.setData(model.index(0, 0), 1));
    }
};

QTEST_MAIN(TestCategoryExpressionModel)
#include "tst_categoryexpressionmodel.moc"
